// The companion that changes the logo set at every start.
#include "core/startup_action.h"

#include <string>

#include "core/generali.h"
#include "platform/files.h"
#include "platform/shell.h"

namespace vistrel {

namespace {

constexpr const char* kRotalineLink = "Rotaline.lnk";
constexpr const char* kShuffletLink = "Shufflet.lnk";

}  // namespace

void MakeMissingLinks(const std::string& programFolder) {
    const auto make = [&](const char* link, const char* program, const char* description) {
        if (FileExists(programFolder + link)) return;
        WriteShellLink(programFolder + link, programFolder + program, "", programFolder,
                       description);
    };
    make(kRotalineLink, "Rotaline.exe", "Installs the next logo set in turn");
    make(kShuffletLink, "Shufflet.exe", "Installs a logo set at random");
}

std::optional<StartUpActionKind> ReadStartUpAction(const std::string& startupFolder) {
    const bool shufflet = FileExists(startupFolder + kShuffletLink);
    const bool rotaline = FileExists(startupFolder + kRotalineLink);
    if (shufflet && rotaline) return std::nullopt;
    if (shufflet) return StartUpActionKind::Shufflet;
    return rotaline ? StartUpActionKind::Rotaline : StartUpActionKind::Nothing;
}

void ApplyStartUpAction(StartUpActionKind action, const std::string& programFolder,
                        const std::string& startupFolder) {
    for (const char* link : {kShuffletLink, kRotalineLink}) {
        if (FileExists(startupFolder + link)) Remove(startupFolder + link);
    }
    if (action == StartUpActionKind::Nothing) return;
    const char* chosen = action == StartUpActionKind::Rotaline ? kRotalineLink : kShuffletLink;
    CopyOver(programFolder + chosen, startupFolder + chosen);
}

}  // namespace vistrel
