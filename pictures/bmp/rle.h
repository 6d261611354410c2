// Run-length-encoded bitmaps (RLE8 and RLE4).
#pragma once

#include "pictures/bmp/header.h"
#include "pictures/picture_file.h"
#include "pictures/picture_rows.h"

namespace vistrel::bmp {

/// The rows of a run-length-encoded bitmap. Pixels that the file skips, or that it ends before,
/// have the colour of palette entry 0; what lies outside the picture is left out. Null when the
/// picture is large and the file far too small for it. What `file` reads from must outlive the
/// rows.
std::unique_ptr<pictures::PictureRows> OpenBmpRle(const pictures::PictureFile& file,
                                                  const BmpHeader& header);

}  // namespace vistrel::bmp
