// Carrying something with the mouse from one control of a window to another.
#pragma once

#include <optional>

#include "controls/geometry.h"
#include "platform/handles.h"

namespace vistrel::controls {

/// The program's icon resource of this name, as a pointer for dragging.
platform::IconHandle LoadDragIcon(const char* resource);

/// True when a pointer that was pressed at `from` and is at `to` has moved so far that the user
/// means to drag and not to click.
bool IsDrag(Point from, Point to);

/// Shows `pointer` until the left button, which is down over `source`, is let go; other windows go
/// on working meanwhile. The point of the screen where that was, or empty when the user broke off
/// with Esc or the right button, or another window took the mouse.
std::optional<Point> DragUntilLetGo(platform::WindowHandle source, platform::IconHandle pointer);

}  // namespace vistrel::controls
