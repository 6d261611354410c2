// Where a window stands on the screen, to be kept from one start to the next.
#pragma once

#include "controls/geometry.h"
#include "platform/handles.h"

namespace vistrel::controls {

struct WindowPlace {
    Rect normal;  ///< while it is neither maximised nor minimised
    bool maximized = false;
};

WindowPlace PlaceOf(platform::WindowHandle window);

/// Gives a window its place while it is not maximised, moved and made smaller so that it lies in
/// `area`: the screen may have been larger when the place was kept.
void PlaceWithin(platform::WindowHandle window, Rect place, const Rect& area);

void Maximize(platform::WindowHandle window);
void BringToFront(platform::WindowHandle window);

}  // namespace vistrel::controls
