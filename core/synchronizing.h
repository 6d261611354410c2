// The companion that brings wait and shutdown screens into place at the next start.
#pragma once

#include <string>

namespace vistrel::core {

/// The folder that Mirrorkin copies from: the logo folder itself for a single-logo set, otherwise
/// the set's own folder without a trailing backslash. Where no set is known (an empty name) it is
/// one that cannot exist, so that Mirrorkin leaves the screens alone.
std::string SynchronizedPath(const std::string& logoFolder, const std::string& setName);

/// Enters Mirrorkin among the programs that run at start and writes its ini file; a step that fails
/// is passed over. True when both were done.
bool RegisterMirrorkin(const std::string& programFolder, const std::string& logoFolder,
                       const std::string& setName);
/// Deletes Mirrorkin's ini file and its entry; neither has to exist.
void RemoveMirrorkin(const std::string& programFolder);

/// The folder that Mirrorkin's ini file names; empty when there is none.
std::string ReadSynchronizedPath(const std::string& programFolder);

}  // namespace vistrel::core
