// How bright the pixels of an area are among themselves.
#pragma once

#include "pictures/screen/area.h"

namespace vistrel::screen {

/// 0 to 65,535.
inline int BrightnessOf(const std::uint8_t* rgb) {
    return (77 * rgb[0] + 150 * rgb[1] + 29 * rgb[2]) * 257 / 256;
}

/// For each pixel of the area the group that it belongs to when the area is parted into `groups`
/// (up to 256) of about the same size, 0 the darkest; 0 outside. Pixels of the same brightness may
/// belong to several groups, in no visible order.
std::vector<std::uint8_t> BrightnessGroups(const pictures::RgbPicture& screen, const Area& area,
                                           int groups);

}  // namespace vistrel::screen
