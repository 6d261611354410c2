// Reads the rows of one GIF picture.
#pragma once

#include <array>
#include <vector>

#include "pictures/gif/lzw.h"

namespace vistrel::gif {

/// Red, green and blue of each colour number, black where the file has no entry.
using GifPalette = std::array<std::array<std::uint8_t, 3>, 1 << GifLzw::kMostLiteralBits>;

/// Where a picture of a GIF file lies on the logical screen and how it is drawn.
struct GifFrame {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool interlaced = false;
    int transparent = -1;  ///< the colour number that is not drawn; -1 for none
    GifPalette palette{};
};

/// Draws the rows of a frame one after the other from the top, over what is there.
class GifFrameRows {
 public:
    GifFrameRows(const GifFrame& frame, const GifLzw& decoder);

    /// Draws the next row of the frame into a row of the screen of `screenWidth` pixels, as far as
    /// the file has it. What lies outside the screen is left out.
    void DrawNext(std::uint8_t* rgb, int screenWidth);

 private:
    GifLzw& DecoderOfNext();

    const GifFrame& frame_;
    int y_ = 0;  // of the next row, within the frame
    std::vector<GifLzw> decoders_;
    std::vector<GifColor> colors_;  // of one row
};

}  // namespace vistrel::gif
