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
    bool operator==(const RgbPicture&) const = default;
};

/// A picture scaled to the size that was asked for, with its own size in the file.
struct ScaledPicture {
    RgbPicture picture;
    int fileWidth = 0;
    int fileHeight = 0;
};

/// How wide a pixel is to be seen where it is so high. Squares, unless a file is known to be meant
/// otherwise.
struct PixelShape {
    int width = 1;
    int height = 1;
    bool operator==(const PixelShape&) const = default;
};

/// The size of every screen file, in pixels, and their shape: a screen fills a monitor of 4 to 3.
inline constexpr int kLogoWidth = 320;
inline constexpr int kLogoHeight = 400;
inline constexpr PixelShape kScreenPixel{5, 3};

struct PictureSize {
    int width = 0;
    int height = 0;
    PixelShape pixel = {};
    bool operator==(const PictureSize&) const = default;
};

/// A part of a picture in 1/65,536 of its pixels: the sides may lie within pixels.
struct PictureArea {
    std::int64_t left = 0;
    std::int64_t top = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    bool operator==(const PictureArea&) const = default;

    static constexpr int kPixel = 65536;
    static PictureArea WholeOf(int width, int height) {
        return {0, 0, std::int64_t{width} * kPixel, std::int64_t{height} * kPixel};
    }
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
