// The sign that runs through the program's pictures: a monitor on which the sun rises.
#pragma once

#include "art/brush/grid.h"

namespace vistrel::art {

/// The rising sun over the sea in a rectangle of at least 6 x 5 pixels. The rows of the sky
/// have letters of their own, which each way of painting below colours differently.
void DrawSunrise(Grid& grid, int x, int y, int width, int height);

/// A monitor with its stand, the sunrise on its screen; at least 24 x 24 pixels.
void DrawMonitor(Grid& grid, int x, int y, int width, int height);

/// The same monitor at 16 x 16 pixels, every one of which was placed by hand.
Grid SmallMonitor();

/// For 16-colour displays: the VGA colours, the sky as dark blue turning to red.
Pixels PaintVga(const Grid& grid);

/// For 256-colour displays: the same picture with soft skies and shaded cases.
Pixels PaintDeep(const Grid& grid);

}  // namespace vistrel::art
