// Makes bitmap files of every kind, sound ones and such with mistakes.
#pragma once

#include <optional>

#include "pictures/bmp/header.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

inline constexpr std::uint32_t kBmpRle8 = 1;
inline constexpr std::uint32_t kBmpRle4 = 2;
inline constexpr std::uint32_t kBmpBitFields = 3;
inline constexpr std::uint32_t kBmpAlphaBitFields = 6;

/// A bitmap file in parts. What a header of the given size has no room for is left out.
struct BmpFile {
    std::uint32_t headerSize = 40;
    std::int32_t width = 1;
    std::int32_t height = 1;  ///< negative for rows from the top
    int bitsPerPixel = 24;
    std::uint32_t compression = 0;
    std::uint32_t colorsUsed = 0;
    std::vector<std::uint32_t> masks;  ///< behind the 40 bytes that all Windows headers have
    std::vector<bmp::RgbColor> palette;
    Bytes gap;                                 ///< between palette and pixels
    Bytes pixels;                              ///< as they stand in the file
    std::optional<std::uint32_t> pixelOffset;  ///< what the header says; by default the truth

    Bytes Encode() const;
};

/// Rows of `bitsPerPixel` (1 to 8) bits an index, padded to 4 bytes, from the bottom.
Bytes PackIndices(const Bytes& indices, int width, int height, int bitsPerPixel);

/// Rows of 24-bit pixels, padded to 4 bytes, from the bottom.
Bytes PackRgb24(const pictures::RgbPicture& picture);

/// Rows of 16- or 32-bit pixels, padded to 4 bytes, from the bottom: each channel's highest bits
/// where its mask is, all other bits set.
Bytes PackMasked(const pictures::RgbPicture& picture, int bitsPerPixel,
                 const std::vector<std::uint32_t>& masks);

/// Run-length-encoded rows from the bottom, RLE8 or RLE4, with an end-of-picture mark: runs, and
/// stretches of single pixels where these are shorter.
Bytes EncodeRle(const Bytes& indices, int width, int height, int bitsPerPixel);

/// `count` colours, no two the same.
std::vector<bmp::RgbColor> MakePalette(int count);

/// What a reader should make of `indices` with a palette; colours beyond it are black.
pictures::RgbPicture Colored(const Bytes& indices, int width, int height,
                             const std::vector<bmp::RgbColor>& palette);

}  // namespace vistrel::test
