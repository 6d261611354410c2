// A decoded picture in memory, and what every reader of a file format takes and gives.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace vistrel::pictures {

/// 24-bit picture: rows from the top, no padding, each pixel as red, green, blue.
struct RgbPicture {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> pixels;  ///< width * height * 3 bytes
};

/// A picture scaled to the size that was asked for, with its own size in the file.
struct ScaledPicture {
    RgbPicture picture;
    int fileWidth = 0;
    int fileHeight = 0;
};

/// The whole content of a picture file.
using FileBytes = std::span<const std::uint8_t>;

/// Widths and heights cross the image library's boundary as signed 16-bit numbers.
inline constexpr int kLargestSide = 32767;

/// A reader refuses a picture whose pixels would need more memory than this allows: a broken
/// header may claim any size, and an honest picture of this many pixels still fits into memory.
inline constexpr std::int64_t kMostPixels = 64 * 1024 * 1024;

inline bool IsPlausibleSize(std::int64_t width, std::int64_t height) {
    return width > 0 && height > 0 && width <= kLargestSide && height <= kLargestSide &&
           width * height <= kMostPixels;
}

}  // namespace vistrel::pictures
