// The headers of a bitmap file: what its pixels are and where they lie.
#pragma once

#include <array>

#include "pictures/picture_file.h"

namespace vistrel::bmp {

enum class BmpCompression { None, Rle8, Rle4 };

using RgbColor = std::array<std::uint8_t, 3>;

struct BmpHeader {
    int width = 0;
    int height = 0;  ///< always positive; see topDown
    bool topDown = false;
    int bitsPerPixel = 0;  ///< 1, 2, 4, 8, 16, 24 or 32
    BmpCompression compression = BmpCompression::None;
    std::array<std::uint32_t, 3> masks{};  ///< red, green and blue bits of 16- and 32-bit pixels
    std::array<RgbColor, 256> palette{};   ///< black where the file has no entry
    std::size_t pixelOffset = 0;           ///< within the file

    /// Bytes from one uncompressed row to the next: rows are padded to a multiple of 4 bytes.
    std::size_t RowBytes() const {
        return (static_cast<std::size_t>(width) * bitsPerPixel + 31) / 32 * 4;
    }
};

/// Reads the headers and the palette: OS/2 1.x (12 bytes), OS/2 2.x (16 to 64 bytes) and Windows
/// (40 to 124 bytes). Empty when the file is no bitmap, its pixels are of a kind that is not read
/// or its size is out of range.
std::optional<BmpHeader> ReadBmpHeader(const pictures::PictureFile& file);

}  // namespace vistrel::bmp
