// Colour reduction by libimagequant.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

namespace vistrel::bench {

/// A picture of up to 256 colours: each palette entry is red, green, blue.
struct IndexedPicture {
    std::vector<std::uint8_t> indices;
    std::vector<std::array<std::uint8_t, 3>> palette;
};

/// `rgb` with a fourth, opaque channel, as libimagequant takes it.
std::vector<std::uint8_t> WithAlpha(const std::vector<std::uint8_t>& rgb);

/// Reduces width * height pixels to 256 colours, fully dithered. `speed` is 1 (best) to 10.
IndexedPicture ReduceByImagequant(const std::vector<std::uint8_t>& rgba, int width, int height,
                                  int speed);

}  // namespace vistrel::bench
