// Brings the wait and shutdown screens of a folder into the Windows directory.
#pragma once

#include <string>

#include "companions/outcome.h"

namespace vistrel {

/// Makes both installed screens equal to those of `folder` (with or without a trailing backslash).
/// What is equal already is left as it is; a screen that the folder lacks ends up absent, as after
/// installing. `windowsDirectory` ends in a backslash.
///
/// Whenever the power goes, the old or the new file is there, complete. Windows 95 cannot replace a
/// file by renaming another over it, so that for the moment between two renames neither bears the
/// screen's own name: the old one is then found aside and put back by the next run.
Outcome MirrorScreens(const std::string& folder, const std::string& windowsDirectory);

}  // namespace vistrel
