// Reads JPEG files: whole, or no more of them than a small picture needs.
#pragma once

#include "pictures/picture_file.h"

namespace vistrel::jpg {

/// Decodes a JPEG file, baseline or progressive, turned upright as its EXIF orientation says.
/// Empty when the file is no JPEG, is damaged beyond use or is of a kind that is not read
/// (arithmetic coding, 12 bits, lossless). A file that is cut short gives what it has when at
/// least a tenth of the picture is there.
std::optional<pictures::RgbPicture> ReadJpg(const pictures::PictureFile& file);

/// True when ReadJpg would turn the picture or mirror it.
bool IsJpgToBeTurned(const pictures::PictureFile& file);

/// The size of the picture, turned upright; its content is not looked at. Empty as for ReadJpg.
std::optional<pictures::PictureSize> SizeOfJpg(const pictures::PictureFile& file);

/// Decodes a JPEG file straight to `width` x `height` pixels, reading no more of it than the
/// result needs. fileWidth and fileHeight of the result are those of the upright picture.
/// Empty as for ReadJpg.
std::optional<pictures::ScaledPicture> ReadJpgScaled(const pictures::PictureFile& file, int width,
                                                     int height);

/// The same for a part of the upright picture, which must lie within it.
std::optional<pictures::RgbPicture> ReadJpgScaled(const pictures::PictureFile& file,
                                                  const pictures::PictureArea& area, int width,
                                                  int height);

}  // namespace vistrel::jpg
