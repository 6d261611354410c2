// Makes screen files of paintings, by the program's own conversion.
#pragma once

#include <cstdint>
#include <vector>

#include "art/brush/painting.h"
#include "pictures/screen/moving_screen.h"

namespace vistrel::art {

/// Gives a picture what moves on it.
using Movement = void (*)(screen::MovingPicture& picture);

/// A still screen of 320 x 400 pixels in 256 colours.
std::vector<std::uint8_t> StillScreen(const art::Painting& painting);

/// The same with colours that the operating system moves while it starts.
std::vector<std::uint8_t> MovingScreen(const art::Painting& painting, Movement move);

/// An 8-bit bitmap of any size.
std::vector<std::uint8_t> IndexedBitmap(const pictures::RgbPicture& picture);

/// A 24-bit bitmap.
std::vector<std::uint8_t> TrueColorBitmap(const pictures::RgbPicture& picture);

}  // namespace vistrel::art
