// Folders and file names that the system gives.
#pragma once

#include <string>

namespace vistrel::platform {

/// The folder of the running program, without a trailing backslash unless it is a drive's root.
std::string ProgramFolder();
/// GetWindowsDirectoryA with a buffer of 145 characters, cut at the first NUL.
std::string SystemWindowsDirectory();
/// GetTempPathA with a buffer of 145 characters, cut at the first NUL.
std::string SystemTempFolder();
/// A new empty file in `folder` whose name begins with `prefix`; empty when none can be made.
std::string MakeTempFile(const std::string& folder, const std::string& prefix);
/// GetShortPathNameA into a buffer of 255 NULs of which 250 are offered: all 255 characters.
std::string SystemShortPath(const std::string& path);

}  // namespace vistrel::platform
