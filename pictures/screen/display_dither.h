// Dithering for a display that shows no more than 256 colours at once.
#pragma once

#include <cstdint>
#include <vector>

namespace vistrel {

/// Number of colours that all pictures share on such a display.
inline constexpr int kDisplayColors = 240;

struct DisplayColor {
    std::uint8_t red, green, blue;
};

/// Each of those colours in the order of their numbers.
std::vector<DisplayColor> DisplayColors();

/// Dithers 24-bit pixels (red, green, blue, rows from the top, no padding) to numbers of these
/// colours; rows from the top, padded to multiples of four.
std::vector<std::uint8_t> DitherToDisplayColors(const std::uint8_t* rgb, int width, int height);

}  // namespace vistrel
