// Writes a picture as a GIF file.
#pragma once

#include <cstdint>
#include <vector>

#include "pictures/rgb_picture.h"

namespace vistrel::samples {

/// A GIF file of one picture in 256 colours.
std::vector<std::uint8_t> GifFile(const RgbPicture& picture);

}  // namespace vistrel::samples
