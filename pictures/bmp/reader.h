// Reads Windows and OS/2 bitmaps of every kind that Windows 98 could show.
#pragma once

#include "pictures/picture_file.h"
#include "pictures/picture_rows.h"

namespace vistrel::bmp {

/// The rows of a bitmap file: 1, 2, 4, 8, 16, 24 and 32 bits per pixel, RLE4, RLE8, bit fields,
/// OS/2 headers, rows from the bottom or the top. Alpha bits are ignored. Null when the file is no
/// bitmap, is damaged beyond use or is of a kind that is not read. Pixels that a run-length-encoded
/// file skips have the colour of palette entry 0; a palette entry that the file does not have is
/// black. What `file` reads
/// from must outlive the rows.
std::unique_ptr<pictures::PictureRows> OpenBmp(const pictures::PictureFile& file);

/// The size of a bitmap file's picture. One that is a finished screen, by its size and its 256
/// colours, has the pixels of a screen.
std::optional<pictures::PictureSize> SizeOfBmp(const pictures::PictureFile& file);

/// All of its pixels.
std::optional<pictures::RgbPicture> ReadBmp(const pictures::PictureFile& file);

}  // namespace vistrel::bmp
