// Reads the first picture of a GIF file.
#pragma once

#include "pictures/rgb_picture.h"

namespace vistrel {

/// Decodes the first picture of a GIF file, composed over its logical screen. Transparent pixels
/// are white; what the picture leaves uncovered is white too if it has a transparent colour, and
/// otherwise the file's background colour: a picture that knows no transparency is meant to stand
/// on that. Empty when the file is no GIF or holds no picture. A file that is cut short gives the
/// rows that it has.
std::optional<RgbPicture> ReadGif(FileBytes file);

}  // namespace vistrel
