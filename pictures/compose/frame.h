// Brings a part of a picture to its place on the screen.
#pragma once

#include "pictures/compose/stages.h"
#include "pictures/compose/turning.h"

namespace vistrel::compose {

/// Where a picture's part is, and where on the screen it goes.
struct Placement {
    pictures::PictureArea stored;  ///< in the picture as it lies in its file, in that one's pixels
    jpg::Turning turning;          ///< from there to the screen
    pictures::PictureSize target;  ///< the size of the part on the screen before it is turned
    ScreenRectangle screen;        ///< where it goes
};

Placement PlacementOf(const pictures::PictureSize& file, const Composition& composition);

/// The screen with that part on it, which has been scaled to `target`, and its border.
Framed PutOnScreen(const pictures::RgbPicture& part, const Placement& placement,
                   const Framing& framing);

}  // namespace vistrel::compose
