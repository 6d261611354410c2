// Letters over a picture, and what makes them stand out from any: an outline or a shadow.
#pragma once

#include "pictures/compose/composition.h"
#include "pictures/rgb_picture.h"

namespace vistrel::compose {

/// The letters grown by about one and a half lines on every side, as wide as high on a 4:3 screen.
Mask OutlineOf(const Mask& letters);

/// The letters moved to the right and down, as far as seen on a 4:3 screen, and made softer.
Mask ShadowOf(const Mask& letters);

/// Paints the edge and the letters of each over a screen.
void PaintText(const std::vector<TextMask>& text, pictures::RgbPicture& screen);

}  // namespace vistrel::compose
