#include "core/install.h"

#include "core/library.h"
#include "platform/files.h"

namespace vistrel::core {

void ToggleReadOnlyAttrib(const InstallTargets& targets) {
    for (const std::string& screen :
         InstalledScreenPaths(targets.bootRoot, targets.windowsDirectory)) {
        platform::SetAttributes(screen, platform::kNormalFile);
    }
}

void InstallLogoSet(const InstallTargets& targets, const std::string& setName, bool synchronize) {
    ToggleReadOnlyAttrib(targets);
    const auto [setStartup, setWait, setShutdown] = LogoSet{targets.logoFolder, setName}.Screens();
    const auto [startup, wait, shutdown] =
        InstalledScreenPaths(targets.bootRoot, targets.windowsDirectory);

    // Quirk: a screen that the set lacks ends up absent and not as it was
    // (InstallTest.AScreenThatTheSetLacksEndsUpAbsent).
    platform::Remove(startup);
    platform::CopyOver(setStartup, startup);
    if (synchronize) return;

    // Both go before either comes.
    platform::Remove(wait);
    platform::Remove(shutdown);
    platform::CopyOver(setWait, wait);
    platform::CopyOver(setShutdown, shutdown);
}

}  // namespace vistrel::core
