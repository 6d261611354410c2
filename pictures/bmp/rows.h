// Uncompressed rows of a bitmap file.
#pragma once

#include "pictures/bmp/header.h"
#include "pictures/picture_file.h"
#include "pictures/picture_rows.h"

namespace vistrel::bmp {

/// The rows of an uncompressed bitmap. Pixels that the file does not have any more are read as if
/// their bytes were 0. Null when more than nine tenths of the pixels are not in the file: then
/// the picture would not be recognisable. What `file` reads from must outlive the rows.
std::unique_ptr<pictures::PictureRows> OpenBmpRows(const pictures::PictureFile& file,
                                                   const BmpHeader& header);

}  // namespace vistrel::bmp
