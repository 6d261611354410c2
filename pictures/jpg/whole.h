// What reading a JPEG file whole takes.
#pragma once

#include "pictures/jpg/frame.h"

namespace vistrel::jpg {

/// The memory that ReadJpg takes at most for a file with this frame, the picture included.
std::int64_t BytesToReadWhole(const JpgFrame& frame);

}  // namespace vistrel::jpg
