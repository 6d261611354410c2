// Facts about the screen, and the keys that handlers tell apart.
#pragma once

#include "controls/geometry.h"

namespace vistrel::controls {

/// Dots of an inch across, 96 with small fonts.
int PixelsPerInch();
/// All of the screen.
Rect WholeDisplay();
/// The part of the screen that the taskbar leaves.
Rect WorkArea();
/// Where the mouse pointer is on the screen.
Point PointerPosition();
/// Whether the key was down at the message that is being handled.
bool IsShiftDown();
bool IsControlDown();

inline constexpr int kKeyShift = 16;
inline constexpr int kKeyControl = 17;
inline constexpr int kKeyEscape = 27;
inline constexpr int kKeyLeft = 37;
inline constexpr int kKeyUp = 38;
inline constexpr int kKeyRight = 39;
inline constexpr int kKeyDown = 40;
inline constexpr int kKeyDelete = 46;
inline constexpr int kKeyY = 'Y';
inline constexpr int kKeyA = 'A';
inline constexpr int kKeyC = 'C';
inline constexpr int kKeyF = 'F';
inline constexpr int kKeyZ = 'Z';
inline constexpr int kKeyF1 = 112;
inline constexpr int kKeyF2 = 113;
inline constexpr int kKeyF5 = 116;
inline constexpr int kKeyF11 = 122;

}  // namespace vistrel::controls
