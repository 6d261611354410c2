// Drawing on a window itself.
#pragma once

#include "controls/geometry.h"
#include "platform/handles.h"

namespace vistrel::controls {

/// Draws a separator, a dark line with a light one below, between two points in twips (1,440 of
/// them an inch).
void DrawSeparator(platform::DeviceContext target, Point from, Point to);

}  // namespace vistrel::controls
