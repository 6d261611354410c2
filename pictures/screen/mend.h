// Makes a screen file that the operating system shows as it is meant.
#pragma once

#include "pictures/rgb_picture.h"

namespace vistrel::screen {

/// The bytes of a screen file without the faults that FaultsOfScreen finds in `file`. What is right
/// stays: the same bytes when nothing is wrong, colour numbers, their order and what moves wherever
/// the file has such. A bitmap of more than 256 colours, and one of another size in which nothing
/// moves, is scaled and reduced as a picture is. Empty when it is no bitmap, or memory runs out.
std::optional<std::vector<std::uint8_t>> MendScreen(pictures::FileBytes file);

}  // namespace vistrel::screen
