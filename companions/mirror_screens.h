// Brings the wait and shutdown screens of a folder into the Windows directory.
#pragma once

#include <string>

#include "companions/outcome.h"

namespace vistrel::companions {

/// Makes both installed screens equal to those of `folder` (with or without a trailing backslash),
/// each by ReplaceScreen, without ever asking for a disk. `windowsDirectory` ends in a backslash.
Outcome MirrorScreens(const std::string& folder, const std::string& windowsDirectory);

}  // namespace vistrel::companions
