// When and where the mouse was at a message: whether two presses are one double click.
#pragma once

#include "controls/geometry.h"

namespace vistrel::controls {

struct MouseMoment {
    long time = 0;  ///< in the system's milliseconds
    Point at;       ///< on the screen
};

/// That of the message that is being handled.
MouseMoment MomentOfMessage();

/// Whether a press at `second` belongs to the double click that has begun at `first`.
bool IsOneDoubleClick(const MouseMoment& first, const MouseMoment& second);

}  // namespace vistrel::controls
