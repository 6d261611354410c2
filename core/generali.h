// General helpers on paths and files ("generali": general).
#pragma once

#include <string>
#include <string_view>

namespace vistrel::core {

/// The Windows directory, without a trailing backslash.
std::string GetWindowsDir();
/// The full name of a new temporary file ("~tm...") in the system's temporary folder; empty when
/// none can be made.
std::string GetTempFile();
/// The short (8.3) form of a path with blanks around it trimmed.
// Quirk: the text still holds the NULs of the system's buffer; callers stop at the first
// (Machine.GetShortPathGivesAnEightDotThreeNameAndTheBuffersNuls).
std::string GetShortPath(const std::string& path);
/// The user's Startup folder, ending in a backslash.
std::string GetStartupFolder();
/// `path` as it is when it ends in a backslash, otherwise trimmed of blanks and with one added.
std::string AddBackslash(const std::string& path);
/// True when a directory search for `path` with these attributes (hidden 2, system 4, directory 16;
/// plain and read-only files are always found) finds an entry. False for an empty path.
bool FileExists(const std::string& path, unsigned attributes = 0);
/// The last component of a path.
// Quirk: a trailing backslash is taken off the caller's own text
// (GetFileNameTest.TakesATrailingBackslashOffTheCallersText).
std::string GetFileName(std::string& path);
/// `path` shortened to about `maximum` characters: its first three, "...", and its tail.
std::string CompactPath(const std::string& path, int maximum);

/// A text up to its first NUL.
std::string CutAtNul(std::string text);
/// A text without the blanks at both ends.
std::string Trim(const std::string& text);
std::string UpperCase(std::string_view text);
/// The last four characters in upper case: the ending by which files and sets are told apart.
std::string UpperEnding(std::string_view name);

}  // namespace vistrel::core
