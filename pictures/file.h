// Files in one piece: into memory, and out of it so that a target is never left half written.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vistrel::pictures {

/// The largest file that is read: the largest picture (kMostPixels) at 4 bytes per pixel and some
/// headers. No honest picture file is larger, and nothing larger should be asked of the memory.
inline constexpr long kLargestFile = 264L * 1024 * 1024;

/// All bytes of the file at `path` (ANSI text). Empty when it cannot be opened or read to its end,
/// or is larger than kLargestFile.
std::optional<std::vector<std::uint8_t>> ReadWholeFile(const std::string& path);

/// The first `count` bytes of a file. Empty when it cannot be opened or has fewer.
std::optional<std::vector<std::uint8_t>> ReadStartOfFile(const std::string& path,
                                                         std::size_t count);

/// Writes `bytes` to `path`, replacing a file of that name. The bytes go to a temporary name in the
/// same folder first, so a full disk never leaves half a file under the target's name. False when
/// the file could not be written; `path` is then as it was.
bool WriteWholeFile(const std::string& path, const std::vector<std::uint8_t>& bytes);

}  // namespace vistrel::pictures
