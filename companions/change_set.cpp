// What Rotaline and Shufflet have in common: installing another set without any window.
#include "companions/change_set.h"

#include <algorithm>
#include <optional>

#include "companions/replace_screen.h"
#include "core/generali.h"
#include "core/library.h"
#include "core/mdl_registry.h"
#include "core/running_instance.h"
#include "core/settings.h"
#include "core/synchronizing.h"
#include "platform/files.h"

namespace vistrel::companions {

namespace {

/// False when a logo folder is stored and is not there: the drive may be away for this one start.
/// The settings then name the program's folder, which is right only where somebody can see it.
bool LogoFolderIsThere() {
    const std::string stored = core::CutAtNul(core::TextOf(
        core::QueryValue(platform::Hive::LocalMachine, core::kSettingsKey, "LogoPath")));
    return stored.empty() || platform::IsFolder(core::AddBackslash(stored));
}

bool HasStartupScreen(const std::string& logoFolder, const std::string& setName) {
    return core::FileExists(core::ScreenPathsOfSet(logoFolder, setName)[0],
                            platform::kHiddenFile | platform::kSystemFile);
}

/// Chooses again until it is a set that can be installed: one with a startup screen. Empty when
/// there is none.
std::optional<std::string> ChooseUsable(const SetChooser& choose, const core::Settings& settings) {
    std::vector<std::string> sets = core::LogoSetNames(settings.logoPath);
    while (!sets.empty()) {
        const std::string chosen = choose(sets, settings.defaultLogoSet);
        if (HasStartupScreen(settings.logoPath, chosen)) return chosen;
        sets.erase(std::find(sets.begin(), sets.end(), chosen));
    }
    return std::nullopt;
}

/// Installs a set as InstallLogoSet does, but so that a power cut leaves no screen half written.
bool InstallSafely(const std::string& setName, const core::Settings& settings,
                   const core::SystemLocations& locations) {
    const auto from = core::ScreenPathsOfSet(settings.logoPath, setName);
    const auto to = core::InstalledScreenPaths(settings.bootRoot, locations.windowsDirectory);
    // While synchronizing, Mirrorkin brings the other two.
    const std::size_t count = settings.synchronizeLogos != 0 ? 1 : to.size();
    bool copiedAll = true;
    for (std::size_t screen = 0; screen < count; ++screen) {
        if (!ReplaceScreen(from[screen], to[screen])) copiedAll = false;
    }
    return copiedAll;
}

/// Enters or removes what brings the wait and shutdown screens at the next start.
bool FollowSynchronizing(bool synchronize, const std::string& programFolder,
                         const std::string& logoFolder, const std::string& setName) {
    if (synchronize) return core::RegisterMirrorkin(programFolder, logoFolder, setName);
    core::RemoveMirrorkin(programFolder);
    return true;
}

}  // namespace

Outcome ChangeLogoSet(const SetChooser& choose) {
    platform::FailOnDrivesNotReady();
    if (core::VistrelIsRunning()) return Outcome::VistrelRuns;
    if (!LogoFolderIsThere()) return Outcome::LogoFolderNotThere;

    const core::SystemLocations locations = core::FindSystemLocations();
    const core::Settings settings = core::ReadSettings(locations);
    const std::optional<std::string> chosen = ChooseUsable(choose, settings);
    if (!chosen) return Outcome::NoSets;

    const bool copied = InstallSafely(*chosen, settings, locations);
    const bool recorded = core::SaveDefaultLogoSet(*chosen);
    const bool registered = FollowSynchronizing(
        settings.synchronizeLogos != 0, locations.programFolder, settings.logoPath, *chosen);

    if (!copied) return Outcome::ScreenNotCopied;
    if (!recorded) return Outcome::SetNotRecorded;
    return registered ? Outcome::Done : Outcome::NotRegistered;
}

}  // namespace vistrel::companions
