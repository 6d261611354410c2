// Puts the decoded colour numbers of one GIF picture onto its screen.
#pragma once

#include <array>

#include "pictures/rgb_picture.h"

namespace vistrel {

/// Where a picture of a GIF file lies on the logical screen and how it is drawn.
struct GifFrame {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool interlaced = false;
    int transparent = -1;  ///< the colour number that is not drawn; -1 for none
    std::array<std::array<std::uint8_t, 3>, 256> palette{};  ///< red, green, blue
};

/// Draws a frame's colour numbers in the order in which the file has them. What lies outside the
/// screen is left out.
class GifFrameWriter {
 public:
    GifFrameWriter(const GifFrame& frame, RgbPicture& screen) : frame_(frame), screen_(screen) {}

    /// Draws the next colour numbers; false when the frame is complete.
    bool Draw(std::span<const std::uint8_t> colors);

 private:
    void Put(std::span<const std::uint8_t> colors);
    void NextRow();

    const GifFrame& frame_;
    RgbPicture& screen_;
    int x_ = 0;     // within the frame
    int y_ = 0;     // within the frame
    int pass_ = 0;  // of an interlaced frame, 0 to 3
};

}  // namespace vistrel
