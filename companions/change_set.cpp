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

namespace vistrel {

namespace {

/// The logo folder that is stored, the program's own where none is. Nothing when one is stored that
/// is not there or cannot be read: its drive may be away for this one start. The settings then name
/// the program's folder, which is right only where somebody can see it.
std::optional<std::string> LogoFolder(const SystemLocations& locations) {
    RegistryKey key;
    RegistryValue value;
    RegistryStatus status = key.Open(Hive::LocalMachine, kSettingsKey);
    if (status == 0) status = QueryValueEx(key, "LogoPath", value);
    if (status > 0 && status != kRegistryNotThere) return std::nullopt;
    const std::string stored = CutAtNul(TextOf(value));
    if (stored.empty()) return locations.programFolder;
    if (!IsFolder(AddBackslash(stored))) return std::nullopt;
    return AddBackslash(stored);
}

bool HasStartupScreen(const std::string& logoFolder, const std::string& setName) {
    return FileExists(LogoSet{logoFolder, setName}.Screens()[0], kHiddenFile | kSystemFile);
}

/// Chooses again until it is a set that can be installed: one with a startup screen. Empty when
/// there is none.
std::optional<std::string> ChooseUsable(const SetChooser& choose, const Settings& settings) {
    std::vector<std::string> sets = LogoSetNames(settings.logoPath);
    while (!sets.empty()) {
        const std::string chosen = choose(sets, settings.defaultLogoSet);
        if (HasStartupScreen(settings.logoPath, chosen)) return chosen;
        sets.erase(std::find(sets.begin(), sets.end(), chosen));
    }
    return std::nullopt;
}

/// Installs a set as InstallLogoSet does, but so that a power cut leaves no screen half written.
bool InstallSafely(const std::string& setName, const Settings& settings,
                   const SystemLocations& locations) {
    const auto from = LogoSet{settings.logoPath, setName}.Screens();
    const auto to = InstalledScreenPaths(settings.bootRoot, locations.windowsDirectory);
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
    if (synchronize) return RegisterMirrorkin(programFolder, logoFolder, setName);
    RemoveMirrorkin(programFolder);
    return true;
}

}  // namespace

Outcome ChangeLogoSet(const SetChooser& choose) {
    FailOnDrivesNotReady();
    if (VistrelIsRunning()) return Outcome::VistrelRuns;
    const SystemLocations locations = FindSystemLocations();
    const std::optional<std::string> logoFolder = LogoFolder(locations);
    if (!logoFolder) return Outcome::LogoFolderNotThere;

    Settings settings = ReadSettings(locations);
    settings.logoPath = *logoFolder;
    const std::optional<std::string> chosen = ChooseUsable(choose, settings);
    if (!chosen) return Outcome::NoSets;

    const bool copied = InstallSafely(*chosen, settings, locations);
    const bool recorded = SaveDefaultLogoSet(*chosen);
    const bool registered = FollowSynchronizing(
        settings.synchronizeLogos != 0, locations.programFolder, settings.logoPath, *chosen);

    if (!copied) return Outcome::ScreenNotCopied;
    if (!recorded) return Outcome::SetNotRecorded;
    return registered ? Outcome::Done : Outcome::NotRegistered;
}

}  // namespace vistrel
