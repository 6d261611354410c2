// Makes a logo set the current one of this machine.
#include "core/install.h"

#include "core/library.h"
#include "platform/files.h"

namespace vistrel {

void ToggleReadOnlyAttrib(const InstallTargets& targets) {
    for (const std::string& screen :
         InstalledScreenPaths(targets.bootRoot, targets.windowsDirectory)) {
        SetAttributes(screen, kNormalFile);
    }
}

bool InstallLogoSet(const InstallTargets& targets, const std::string& setName, bool synchronize) {
    ToggleReadOnlyAttrib(targets);
    const auto [setStartup, setWait, setShutdown] = ScreenPathsOfSet(targets.logoFolder, setName);
    const auto [startup, wait, shutdown] =
        InstalledScreenPaths(targets.bootRoot, targets.windowsDirectory);

    Remove(startup);
    bool copiedAll = CopyOver(setStartup, startup);
    if (synchronize) return copiedAll;

    // Both go before either comes.
    Remove(wait);
    Remove(shutdown);
    if (!CopyOver(setWait, wait)) copiedAll = false;
    if (!CopyOver(setShutdown, shutdown)) copiedAll = false;
    return copiedAll;
}

}  // namespace vistrel
