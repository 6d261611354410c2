// Facts about the screen, and the keys that handlers tell apart.
#pragma once

#include "controls/geometry.h"

namespace vistrel::controls {

/// Dots of an inch across, 96 with small fonts.
int PixelsPerInch();
/// The part of the screen that the taskbar leaves.
Rect WorkArea();
/// Where the mouse pointer is on the screen.
Point PointerPosition();

inline constexpr int kKeyDelete = 46;
inline constexpr int kKeyF1 = 112;
inline constexpr int kKeyF2 = 113;
inline constexpr int kKeyF5 = 116;

}  // namespace vistrel::controls
