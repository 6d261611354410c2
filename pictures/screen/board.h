// Changing the 256 colours of a finished screen by hand. Pixels follow their colours, so that the
// picture that stands still looks the same whatever is moved. Entries are 0 to 255; what is outside
// changes nothing.
#pragma once

#include "pictures/screen/ring.h"

namespace vistrel::screen {

enum class ColorOrder { Brightness, Hue };

/// 0: nothing moves.
void SetFirstMoving(IndexedScreen& screen, int first);

/// Both colours change places.
void ExchangeEntries(IndexedScreen& screen, int a, int b);

/// Orders the entries `from` to `to` (both included): dark to light, or red, yellow, green, blue,
/// violet, with greys first.
void SortEntries(IndexedScreen& screen, int from, int to, ColorOrder order);

/// Pixels of the entry take the new colour.
void SetEntry(IndexedScreen& screen, int entry, ScreenColor color);

}  // namespace vistrel::screen
