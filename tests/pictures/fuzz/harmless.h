// What a fuzzer demands of a picture beyond not being stopped by the checks.
#pragma once

#include <cstdlib>

#include "pictures/rgb_picture.h"

namespace vistrel::fuzz {

/// Stops the program unless a decoded picture has as many pixels as it says.
inline void Demand(const pictures::RgbPicture& picture) {
    const bool sound = pictures::IsPlausibleSize(picture.width, picture.height) &&
                       picture.pixels.size() == std::size_t{3} * picture.width * picture.height;
    if (!sound) std::abort();
}

}  // namespace vistrel::fuzz
