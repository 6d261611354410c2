// Names that a user types for a folder or a file, before they reach the disk.
#pragma once

#include <optional>
#include <string>

namespace vistrel::core {

/// The name that a new or renamed set's folder in `parent` (which ends in a backslash) gets when
/// `typed` is asked for: blanks and dots at the end are cut, as the file system would do. Empty
/// when that is no valid name: nothing is left, it holds one of \ / : * ? " < > | or a control
/// character, it names a device, or the path of a screen in the folder would be longer than the
/// system takes.
std::optional<std::string> SetFolderName(const std::string& typed, const std::string& parent);

/// The same for a file or any other folder: its own path is what must not be too long.
std::optional<std::string> EntryName(const std::string& typed, const std::string& parent);

}  // namespace vistrel::core
