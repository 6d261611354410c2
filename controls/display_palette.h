// The colours of a display that shows no more than 256 of them at once.
#pragma once

#include "platform/handles.h"

struct HPALETTE__;

namespace vistrel::controls {

using PaletteHandle = HPALETTE__*;

/// True when this device context's device shows colours through a palette.
bool HasPalette(platform::DeviceContext device);
/// The same of the screen.
bool DisplayHasPalette();

/// The palette of the colours that all pictures share on such a display, so that none takes
/// another's colours.
PaletteHandle DisplayPalette();

/// A bitmap whose pixels are numbers of DisplayPalette's entries. It keeps its colours whatever
/// becomes of the display's: one of the display's own kind would hold places of the display's
/// table, in which other programs put other colours.
platform::BitmapHandle DisplayPaletteBitmap(int width, int height);

/// Paints such a bitmap on the display, stretched to width x height. `active`: its colours are
/// brought into the display's table; else those that are there stand for them.
void PaintThroughPalette(platform::DeviceContext target, platform::BitmapHandle bitmap, int width,
                         int height, bool active);

}  // namespace vistrel::controls
