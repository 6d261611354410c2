// What Rotaline and Shufflet have in common: installing another set without any window.
#include "companions/change_set.h"

#include "core/install.h"
#include "core/library.h"
#include "core/running_instance.h"
#include "core/settings.h"
#include "core/synchronizing.h"
#include "platform/files.h"

namespace vistrel {

namespace {

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
    const Settings settings = ReadSettings(locations);
    const std::vector<std::string> sets = LogoSetNames(settings.logoPath);
    if (sets.empty()) return Outcome::NoSets;

    const std::string chosen = choose(sets, settings.defaultLogoSet);
    const bool synchronize = settings.synchronizeLogos != 0;
    const bool copied = InstallLogoSet(
        {settings.logoPath, settings.bootRoot, locations.windowsDirectory}, chosen, synchronize);
    const bool recorded = SaveDefaultLogoSet(chosen);
    const bool registered =
        FollowSynchronizing(synchronize, locations.programFolder, settings.logoPath, chosen);

    if (!copied) return Outcome::ScreenNotCopied;
    if (!recorded) return Outcome::SetNotRecorded;
    return registered ? Outcome::Done : Outcome::NotRegistered;
}

}  // namespace vistrel
