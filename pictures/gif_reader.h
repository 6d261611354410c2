// Reads the first picture of a GIF file.
#pragma once

#include "pictures/rgb_picture.h"

namespace vistrel {

/// Decodes the first picture of a GIF file, composed over its logical screen; where the screen
/// shows through and where the picture is transparent the result is white. Empty when the file is
/// no GIF or holds no picture. A file that is cut short gives the rows that it has.
std::optional<RgbPicture> ReadGif(FileBytes file);

}  // namespace vistrel
