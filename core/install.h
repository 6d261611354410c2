// Makes a logo set the current one of this machine.
#pragma once

#include <string>

namespace vistrel::core {

struct InstallTargets {
    std::string logoFolder;  ///< ends in a backslash, as all of these
    std::string bootRoot;
    std::string windowsDirectory;
};

/// Takes every attribute off the three installed screens; it never sets one.
void ToggleReadOnlyAttrib(const InstallTargets& targets);

/// Copies the screens of a set over the installed ones. A step that fails is passed over: a screen
/// that the set lacks ends up absent, its old file deleted. With `synchronize` only the startup
/// screen is copied; Mirrorkin brings the other two at the next start.
void InstallLogoSet(const InstallTargets& targets, const std::string& setName, bool synchronize);

}  // namespace vistrel::core
