// Reduces a 24-bit picture to 256 colours: a palette made for it, and the index of each pixel.
#pragma once

#include <cstdint>

namespace vistrel::reduce {

/// How strongly neighbouring pixels share their rounding errors. On is as strongly as suits the
/// picture; Light, Medium and Strong are the same for every picture.
enum class Dither { On, Off, Light, Medium, Strong };

/// Reduces width * height pixels (`rgb`, red, green, blue) to at most `colors` (2 to 256) colours.
/// Writes one index per pixel to `indices` and `colors` entries of blue, green, red, 0 to `palette`
/// (unused entries black). A picture with no more than `colors` distinct colours keeps them
/// exactly. The result is the same on every machine. False when an argument is out of range or the
/// picture has more than 16,777,216 pixels.
bool QuantizeRgb(const std::uint8_t* rgb, int width, int height, int colors, std::uint8_t* indices,
                 std::uint8_t* palette, Dither dither = Dither::On);

}  // namespace vistrel::reduce
