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
/// Makes sure that what was written to a file is on the disk and not only in a cache.
bool FlushToDisk(const std::string& path, Error* error = nullptr);
/// True when both files can be read and hold the same bytes.
bool SameContents(const std::string& path, const std::string& other);
/// Renames a file or folder. Fails when `to` exists (other than by a change of case only).
bool Rename(const std::string& from, const std::string& to, Error* error = nullptr);
bool MakeFolder(const std::string& path, Error* error = nullptr);
/// Removes an empty folder.
bool RemoveFolder(const std::string& path, Error* error = nullptr);

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

/// The drives' roots ("C:\"), in the order of their letters, and the kind of each (GetDriveTypeA).
std::vector<std::string> DriveRoots();
enum class DriveKind {
    Unknown = 0,
    NoRoot = 1,
    Removable = 2,
    Fixed = 3,
    Remote = 4,
    CdRom = 5,
    RamDisk = 6
};
DriveKind KindOfDrive(const std::string& root);
/// The label of a drive's volume; empty when it has none or cannot be read.
std::string VolumeLabel(const std::string& root);

}  // namespace vistrel::platform
