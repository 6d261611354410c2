// Fills parts of a picture so that they cost no colour when it is reduced.
#pragma once

#include "pictures/screen/area.h"

namespace vistrel::screen {

/// Gives pixels of the area what lies as far from its nearest edge on the other side: colours that
/// the rest of the picture (320 x 400) has, and no edge. An area of all the screen stays as it is.
void FillIn(pictures::RgbPicture& screen, const Area& area);

}  // namespace vistrel::screen
