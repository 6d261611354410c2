// Writes a picture as a JPG file.
#pragma once

#include <cstdint>
#include <vector>

#include "pictures/rgb_picture.h"

namespace vistrel::art {

/// A baseline JPG file with full colour resolution and fine quantization.
std::vector<std::uint8_t> JpgFile(const pictures::RgbPicture& picture);

}  // namespace vistrel::art
