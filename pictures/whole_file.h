// Reads a picture file into memory in one piece.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vistrel::pictures {

/// The largest file that is read: the largest picture (kMostPixels) at 4 bytes a pixel and some
/// headers. No honest picture file is larger, and nothing larger should be asked of the memory.
inline constexpr long kLargestFile = 264L * 1024 * 1024;

/// All bytes of the file at `path` (ANSI text). Empty when it cannot be opened or read to its end,
/// or is larger than kLargestFile.
std::optional<std::vector<std::uint8_t>> ReadWholeFile(const std::string& path);

}  // namespace vistrel::pictures
