// The colours of a display that shows no more than 256 of them at once.
#pragma once

#include <cstdint>
#include <vector>

#include "platform/handles.h"

struct HPALETTE__;

namespace vistrel {

using PaletteHandle = HPALETTE__*;

/// True when this device context's device shows colours through a palette.
bool HasPalette(DeviceContext device);

/// The one palette that all pictures share on such a display, so that none takes another's colours:
/// 6 levels each of red, green and blue, entry number 36 * red + 6 * green + blue.
PaletteHandle DisplayPalette();

/// Dithers 24-bit pixels (red, green, blue, rows from the top, no padding) to numbers of
/// DisplayPalette's entries; rows from the top, padded to multiples of four.
std::vector<std::uint8_t> DitherToDisplayPalette(const std::uint8_t* rgb, int width, int height);

}  // namespace vistrel
