// Pixels in 16 bits each: 5 of red, 6 of green, 5 of blue. A small picture loses nothing that is
// seen and takes two thirds of the room.
#pragma once

#include <cstdint>
#include <vector>

#include "pictures/rgb_picture.h"

namespace vistrel::thumbnails {

/// Two bytes per pixel, rows from the top.
std::vector<std::uint8_t> PackPixels(const pictures::RgbPicture& picture);

/// The picture again; `packed` holds width * height * 2 bytes.
pictures::RgbPicture UnpackPixels(pictures::FileBytes packed, int width, int height);

}  // namespace vistrel::thumbnails
