// Makes the 256-colour bitmap that the operating system takes as a startup screen.
#pragma once

#include <cstdint>
#include <vector>

namespace vistrel::bmp {

/// The bytes of an uncompressed 8-bit bitmap: `indices` holds width * height bytes from the top,
/// `palette` `colors` entries (2 to 256) of blue, green, red, 0. The header's biClrUsed is 0 (which
/// means 256 entries; missing ones are written black) and biClrImportant is 0: the system rotates
/// the colours of a startup screen from the entry of that number on, 0 means a still picture.
std::vector<std::uint8_t> ColormappedBmp(const std::uint8_t* indices, int width, int height,
                                         int colors, const std::uint8_t* palette);

}  // namespace vistrel::bmp
