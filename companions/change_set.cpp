#include "companions/change_set.h"

#include <algorithm>
#include <optional>

#include "companions/replace_screen.h"
#include "core/generali.h"
#include "core/library.h"
#include "core/mdl_registry.h"
#include "core/rotation.h"
#include "core/running_instance.h"
#include "core/settings.h"
#include "core/synchronizing.h"
#include "platform/files.h"

namespace vistrel::companions {

namespace {

/// The logo folder that is stored, the program's own where none is. Nothing when one is stored that
/// is not there or cannot be read: its drive may be away for this one start. The settings then name
/// the program's folder, which is right only where somebody can see it.
std::optional<std::string> LogoFolder(const core::SystemLocations& locations) {
    platform::RegistryKey key;
    core::RegistryValue value;
    platform::RegistryStatus status = key.Open(platform::Hive::LocalMachine, core::kSettingsKey);
    if (status == 0) status = core::QueryValueEx(key, "LogoPath", value);
    if (status > 0 && status != platform::kRegistryNotThere) return std::nullopt;
    const std::string stored = core::CutAtNul(core::TextOf(value));
    if (stored.empty()) return locations.programFolder;
    if (!platform::IsFolder(core::AddBackslash(stored))) return std::nullopt;
    return core::AddBackslash(stored);
}

bool HasStartupScreen(const std::string& logoFolder, const std::string& setName) {
    return core::FileExists(core::LogoSet{logoFolder, setName}.Screens()[0],
                            platform::kHiddenFile | platform::kSystemFile);
}

/// Chooses again until it is a set that can be installed: one that takes part and has a startup
/// screen. Empty when there is none.
std::optional<std::string> ChooseUsable(const SetChooser& choose, const core::Settings& settings) {
    const core::LeftOutSets leftOut(settings.leftOutOfRotation);
    std::vector<std::string> sets = core::LogoSetNames(settings.logoPath);
    // The installed one stays: the next in turn is the one behind it.
    std::erase_if(sets, [&](const std::string& set) {
        return set != settings.defaultLogoSet && leftOut.Holds(set);
    });
    while (!sets.empty()) {
        const std::string chosen = choose(sets, settings.defaultLogoSet);
        if (!leftOut.Holds(chosen) && HasStartupScreen(settings.logoPath, chosen)) return chosen;
        sets.erase(std::find(sets.begin(), sets.end(), chosen));
    }
    return std::nullopt;
}

/// Installs a set as InstallLogoSet does, but so that a power cut leaves no screen half written.
bool InstallSafely(const std::string& setName, const core::Settings& settings,
                   const core::SystemLocations& locations) {
    const auto from = core::LogoSet{settings.logoPath, setName}.Screens();
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
    const core::SystemLocations locations = core::FindSystemLocations();
    const std::optional<std::string> logoFolder = LogoFolder(locations);
    if (!logoFolder) return Outcome::LogoFolderNotThere;

    core::Settings settings = core::ReadSettings(locations);
    settings.logoPath = *logoFolder;
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
