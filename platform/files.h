// Files and folders. Paths are ANSI text with backslashes. Every function returns what happened;
// a caller that passes no Error has decided not to care why. Nothing is ever shown.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/error.h"

namespace vistrel::platform {

inline constexpr std::uint32_t kNormalFile = 0;
inline constexpr std::uint32_t kReadOnlyFile = 1;
inline constexpr std::uint32_t kHiddenFile = 2;
inline constexpr std::uint32_t kSystemFile = 4;
inline constexpr std::uint32_t kDirectory = 16;

/// One entry of a folder, as a directory search gives it.
struct FolderEntry {
    std::string name;  ///< the short one (8.3) where the code page lacks letters of the long one
    std::uint32_t attributes = 0;
    std::uint64_t size = 0;
    std::uint64_t modified = 0;  ///< when it was last changed; counts up

    bool IsFolder() const { return (attributes & kDirectory) != 0; }
};

/// From now on a drive that is not ready makes an operation fail; without this the system would ask
/// the user for a disk.
void FailOnDrivesNotReady();

/// Calls `visit` for each entry that matches `pattern` (folder and name, wildcards allowed), "."
/// and ".." included, in the order in which the system gives them, until it returns false. False
/// when nothing matches or the folder cannot be read.
bool ForEachEntry(const std::string& pattern, const std::function<bool(const FolderEntry&)>& visit,
                  Error* error = nullptr);

/// The attributes of a file or folder; empty when there is none of that name.
std::optional<std::uint32_t> FileAttributes(const std::string& path);
bool IsFolder(const std::string& path);
/// Gives a file just these attributes; kNormalFile takes all away.
bool SetAttributes(const std::string& path, std::uint32_t attributes, Error* error = nullptr);

/// Copies one file, replacing `to`, attributes included. False when `from` is missing or `to` is
/// read-only.
bool CopyOver(const std::string& from, const std::string& to, Error* error = nullptr);
/// Deletes one file; a read-only file is not deleted.
bool Remove(const std::string& path, Error* error = nullptr);
/// Deletes every file that matches a pattern; sub-folders stay. False when one could not be, or
/// when nothing matches.
bool RemoveMatching(const std::string& pattern, Error* error = nullptr);
/// Renames a file or folder. Fails when `to` exists (other than by a change of case only).
bool Rename(const std::string& from, const std::string& to, Error* error = nullptr);
bool MakeFolder(const std::string& path, Error* error = nullptr);
/// Removes an empty folder.
bool RemoveFolder(const std::string& path, Error* error = nullptr);

}  // namespace vistrel::platform
