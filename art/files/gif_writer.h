// Writes a picture as a GIF file.
#pragma once

#include <cstdint>
#include <vector>

#include "pictures/rgb_picture.h"

namespace vistrel::art {

/// A GIF file of one picture in 256 colours.
std::vector<std::uint8_t> GifFile(const pictures::RgbPicture& picture);

}  // namespace vistrel::art
