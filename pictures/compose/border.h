// What is seen beside a picture that does not reach over the whole screen.
#pragma once

#include "pictures/compose/composition.h"
#include "pictures/compose/geometry.h"
#include "pictures/rgb_picture.h"

namespace vistrel::compose {

/// Fills the screen in one colour.
void PaintPlain(const Color& color, pictures::RgbPicture& screen);

/// Fills what lies beside `picture` with its colours there, blurred so much that no line or stripe
/// of it is left. The picture reaches over the whole width or the whole height.
void PaintBlurred(const ScreenRectangle& picture, pictures::RgbPicture& screen);

}  // namespace vistrel::compose
