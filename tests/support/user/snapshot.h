// What a machine holds, for comparing it with what it held before.
#pragma once

#include <map>
#include <string>
#include <vector>

namespace vistrel::test {

/// Paths of files, of folders (with a backslash at the end) and of registry values
/// ("HKLM\key\:value") with what there is to know of each.
using Snapshot = std::map<std::string, std::string>;

/// All of drive C, files with size, time and attributes, and all of HKEY_LOCAL_MACHINE and
/// HKEY_CURRENT_USER.
Snapshot TakeSnapshot();

/// "+path" for what has been added, "-path" for what is gone, "!path" for what has changed; without
/// the paths that begin with one of `ignored`.
std::vector<std::string> Differences(const Snapshot& before, const Snapshot& after,
                                     const std::vector<std::string>& ignored);

}  // namespace vistrel::test
