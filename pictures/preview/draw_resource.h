// Draws pictures from the program's resources.
#pragma once

#include "controls/picture_box.h"

namespace vistrel::preview {

/// Shows the bitmap resource of this name in a box, at its own size.
void ShowPictureResource(const char* name, controls::PictureBox& box);

}  // namespace vistrel::preview
