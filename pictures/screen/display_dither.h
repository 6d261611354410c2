// Dithering for a display that shows no more than 256 colours at once.
#pragma once

#include <cstdint>
#include <vector>

namespace vistrel::screen {

/// Dithers 24-bit pixels (red, green, blue, rows from the top, no padding) to numbers of the
/// display's colours; rows from the top, padded to multiples of four.
std::vector<std::uint8_t> DitherToDisplayColors(const std::uint8_t* rgb, int width, int height);

}  // namespace vistrel::screen
