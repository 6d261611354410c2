// Run-length-encoded bitmaps (RLE8 and RLE4).
#pragma once

#include "pictures/bmp_header.h"

namespace vistrel {

/// Decodes the pixels of a run-length-encoded bitmap. Pixels that the file skips, or that it ends
/// before, have the colour of palette entry 0; what lies outside the picture is left out. Empty
/// when the picture is large and the file far too small for it.
std::optional<RgbPicture> DecodeBmpRle(FileBytes file, const BmpHeader& header);

}  // namespace vistrel
