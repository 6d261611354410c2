// A window with a picture beside its pages that takes the room which a large screen has.
#pragma once

#include "controls/picture_box.h"
#include "controls/window.h"

namespace vistrel::controls {

/// Makes the picture as large as the screen has room for beside the window, in the shape of a
/// monitor, and the window with it. `pages` stands at the right of the picture and becomes as
/// high; what lies within it and at its right moves along. `hint`, below the picture, becomes
/// wider. The window comes to stand in the middle of the screen.
void GrowPicture(Window& window, PictureBox& picture, const Control& pages, const Control& hint);

}  // namespace vistrel::controls
