// What is seen beside a picture that does not reach over the whole screen.
#pragma once

#include "pictures/compose/composition.h"
#include "pictures/compose/geometry.h"
#include "pictures/rgb_picture.h"

namespace vistrel::compose {

/// Fills the screen in one colour.
void PaintPlain(const Color& color, pictures::RgbPicture& screen);

/// Draws the picture's outermost lines out to the screen's edges, the softer the farther out.
/// `picture` reaches over the whole width or the whole height.
void DrawOutEdges(const ScreenRectangle& picture, pictures::RgbPicture& screen);

}  // namespace vistrel::compose
