// The companion that changes the logo set at every start.
#include "core/startup_action.h"

#include <string>

#include "core/generali.h"
#include "platform/files.h"
#include "platform/shell_link.h"

namespace vistrel::core {

namespace {

constexpr const char* kRotalineLink = "Rotaline.lnk";
constexpr const char* kShuffletLink = "Shufflet.lnk";

/// True when a shell link leads to `program`, by its long name or its short one.
bool LeadsTo(const std::string& link, const std::string& program) {
    const auto known = [](const std::string& path) {
        return UpperCase(CutAtNul(GetShortPath(path)));
    };
    return known(platform::ShellLinkTarget(link)) == known(program);
}

}  // namespace

void MakeMissingLinks(const std::string& programFolder, const std::string& startupFolder) {
    const auto mend = [&](const std::string& link, const std::string& companion,
                          const char* description) {
        const std::string program = programFolder + companion;
        if (!FileExists(program)) return;
        const std::string own = programFolder + link;
        if (!LeadsTo(own, program))
            platform::WriteShellLink(own, program, "", programFolder, description);
        const std::string started = startupFolder + link;
        if (FileExists(started) && !LeadsTo(started, program)) platform::CopyOver(own, started);
    };
    mend(kRotalineLink, "Rotaline.exe", "Installs the next logo set in turn");
    mend(kShuffletLink, "Shufflet.exe", "Installs a logo set at random");
}

std::optional<StartUpActionKind> ReadStartUpAction(const std::string& startupFolder) {
    const bool shufflet = FileExists(startupFolder + kShuffletLink);
    const bool rotaline = FileExists(startupFolder + kRotalineLink);
    // Quirk: of two actions that are in force none is shown
    // (StartUpActionTest.TheLinksInTheStartupFolderAreTheRecord).
    if (shufflet && rotaline) return std::nullopt;
    if (shufflet) return StartUpActionKind::Shufflet;
    return rotaline ? StartUpActionKind::Rotaline : StartUpActionKind::Nothing;
}

void ApplyStartUpAction(StartUpActionKind action, const std::string& programFolder,
                        const std::string& startupFolder) {
    for (const char* link : {kShuffletLink, kRotalineLink}) {
        if (FileExists(startupFolder + link)) platform::Remove(startupFolder + link);
    }
    if (action == StartUpActionKind::Nothing) return;
    const char* chosen = action == StartUpActionKind::Rotaline ? kRotalineLink : kShuffletLink;
    platform::CopyOver(programFolder + chosen, startupFolder + chosen);
}

}  // namespace vistrel::core
