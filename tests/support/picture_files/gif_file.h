// Makes GIF files of every kind, sound ones and such with mistakes.
#pragma once

#include <array>

#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

using GifColors = std::vector<std::array<std::uint8_t, 3>>;  ///< red, green, blue

/// How colour numbers are compressed.
struct LzwOptions {
    int literalBits = 8;
    bool clearFirst = true;     ///< begin with a clear code, as encoders should
    bool clearWhenFull = true;  ///< or go on with the 4,096 codes that there are
    bool end = true;            ///< end with an end code, as encoders should
};

/// The compressed data of colour numbers, not yet in sub-blocks.
Bytes EncodeLzw(const Bytes& indices, const LzwOptions& options = {});

/// One picture of a GIF file.
struct GifImage {
    int left = 0;
    int top = 0;
    int width = 1;
    int height = 1;
    bool interlaced = false;
    int transparent = -1;  ///< -1: no graphic control block
    GifColors palette;     ///< local; none when empty
    Bytes indices;         ///< from the top, whether interlaced or not
    LzwOptions lzw;
};

struct GifFile {
    int width = 1;
    int height = 1;
    GifColors palette;  ///< global; none when empty; its size a power of 2
    int background = 0;
    Bytes extensions;  ///< whole blocks between screen and first picture
    std::vector<GifImage> images;
    bool trailer = true;

    Bytes Encode() const;
};

/// Data in sub-blocks of up to 255 bytes with the empty one at the end.
Bytes SubBlocks(const Bytes& data);

/// `count` colours, no two the same.
GifColors MakeGifColors(int count);

/// A file with one picture of width x height pixels that fills the screen and uses the colour
/// numbers of MakeIndices.
GifFile MakeGif(int width, int height, int colors);

}  // namespace vistrel::test
