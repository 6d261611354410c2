// Reads JPEG files: whole, or only as far as a small picture of them needs.
#pragma once

#include "pictures/rgb_picture.h"

namespace vistrel::jpg {

/// Decodes a JPEG file, baseline or progressive, turned upright as its EXIF orientation says.
/// Empty when the file is no JPEG, is damaged beyond use or is of a kind that is not read
/// (arithmetic coding, 12 bits, lossless). A file that is cut short gives what it has when at
/// least a tenth of the picture is there.
std::optional<pictures::RgbPicture> ReadJpg(pictures::FileBytes file);

/// True when ReadJpg would turn the picture or mirror it.
bool IsJpgToBeTurned(pictures::FileBytes file);

/// Decodes a JPEG file straight to `width` x `height` pixels, reading no more of it than the
/// result needs. fileWidth and fileHeight of the result are those of the upright picture.
/// Empty as for ReadJpg.
std::optional<pictures::ScaledPicture> ReadJpgScaled(pictures::FileBytes file, int width,
                                                     int height);

}  // namespace vistrel::jpg
