// The colour numbers of a bitmap, also of one that the system would not show.
#pragma once

#include "pictures/bmp/header.h"

namespace vistrel::screen {

/// Whether the pixels of a bitmap with this header can be read.
bool CanBeRead(pictures::FileBytes file, const bmp::BmpHeader& header);

/// The colour numbers of a bitmap of up to 8 bits a pixel, run-length encoded or not, at 320 x 400
/// pixels, rows from the top: one of another size gives the nearest pixels, so that no number is
/// mixed with another. What the file lacks is 0. Empty when it cannot be read.
std::optional<std::vector<std::uint8_t>> ReadAnyIndices(pictures::FileBytes file,
                                                        const bmp::BmpHeader& header);

/// What stands where the first moving colour belongs, which may be any number; 0 in a header that
/// has no such field.
std::uint32_t FirstAnimated(pictures::FileBytes file);

}  // namespace vistrel::screen
