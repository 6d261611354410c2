// Makes screen files of paintings, by the program's own conversion.
#pragma once

#include <cstdint>
#include <vector>

#include "art/brush/painting.h"

namespace vistrel::art {

/// A bar across the screen whose colours the operating system moves while it starts.
struct MovingBar {
    int top;                        ///< first row of the bar, of the screen's 400
    int height;                     ///< in rows
    std::vector<art::Tint> colors;  ///< one wave of the bar, from left to right; it moves right
};

/// A still screen of 320 x 400 pixels in 256 colours.
std::vector<std::uint8_t> StillScreen(const art::Painting& painting);

/// The same with a moving bar: the bar's colours are the palette's last entries, which nothing else
/// uses, and the header's biClrImportant is the number of the first of them.
std::vector<std::uint8_t> MovingScreen(const art::Painting& painting, const MovingBar& bar);

/// An 8-bit bitmap of any size.
std::vector<std::uint8_t> IndexedBitmap(const pictures::RgbPicture& picture);

/// A 24-bit bitmap.
std::vector<std::uint8_t> TrueColorBitmap(const pictures::RgbPicture& picture);

}  // namespace vistrel::art
