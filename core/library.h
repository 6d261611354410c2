// The logo sets on disk: what a set is, where its screens lie, and what the logo folder holds.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "core/locations.h"

namespace vistrel::core {

/// What the label of the installed set shows when none is known.
inline constexpr const char* kUnknownSet = "<Don't know>";
inline constexpr const char* kSingleLogoEnding = ".SLS";

/// True when a set of this name is a single-logo set: the name ends in ".SLS" in any case.
bool IsSingleLogoSet(const std::string& setName);

/// "singlelogo" or "multilogo": the key of the list icon of a set.
const char* IconKeyOfSet(const std::string& setName);
/// "Single logo" or "Multi logo".
const char* TypeCaptionOfSet(const std::string& setName);

/// The full paths of a set's three screens, in the order of LogoScreen. A single-logo set's wait
/// and shutdown screens lie in the logo folder, which ends in a backslash.
std::array<std::string, 3> ScreenPathsOfSet(const std::string& logoFolder,
                                            const std::string& setName);
/// The full paths of the three installed screens.
std::array<std::string, 3> InstalledScreenPaths(const std::string& bootRoot,
                                                const std::string& windowsDirectory);

/// Calls `visit` with the name of each set, in the order in which the folder lists them. Hidden and
/// system folders, such as the Recycle Bin of a drive, are none.
void ForEachLogoSet(const std::string& logoFolder,
                    const std::function<void(const std::string& name)>& visit);

/// The names of all sets, in that order.
std::vector<std::string> LogoSetNames(const std::string& logoFolder);

/// " 3 logo sets", " 1 logo set": the count line.
std::string CountLine(int sets);

/// The set that follows `installed` in the list's order, the first after the last; the first when
/// `installed` is not among them. Empty for an empty library.
std::optional<std::string> NextLogoSet(const std::vector<std::string>& sets,
                                       const std::string& installed);

}  // namespace vistrel::core
