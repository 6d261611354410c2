// Reads the first picture of a GIF file.
#pragma once

#include "pictures/picture_file.h"
#include "pictures/picture_rows.h"

namespace vistrel::gif {

/// The rows of the first picture of a GIF file that has an extent, composed over its logical
/// screen. Transparent pixels are white; what the picture leaves uncovered is white too if it has a
/// transparent colour, and otherwise the file's background colour: a picture that knows no
/// transparency is meant to stand on that. Null when the file is no GIF or holds no picture. A file
/// that is cut short gives the rows that it has. What `file` reads from must outlive the rows.
std::unique_ptr<pictures::PictureRows> OpenGif(const pictures::PictureFile& file);

/// All of them.
std::optional<pictures::RgbPicture> ReadGif(const pictures::PictureFile& file);

}  // namespace vistrel::gif
