// Which part of a picture comes to which part of the screen, before any pixel is read.
//
// A screen has 320 x 400 pixels and is shown 4:3: a pixel is 5/3 times as wide as it is high. The
// pixels of a picture are square, unless it is a finished screen.
#pragma once

#include "pictures/compose/composition.h"
#include "pictures/rgb_picture.h"

namespace vistrel::compose {

/// A rectangle of the screen, in its pixels.
struct ScreenRectangle {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const ScreenRectangle&) const = default;
};

/// The size of a picture that is turned, its pixels with it.
pictures::PictureSize SizeWhenTurned(const pictures::PictureSize& size,
                                     const Orientation& orientation);

/// The part of the turned picture that is framed: all of it, or the crop as far as it lies within.
/// At least a pixel: of a crop that lies wholly outside it is the nearest one.
pictures::PictureArea AreaOfCrop(const pictures::PictureSize& turned,
                                 const std::optional<Crop>& crop);

/// The part of the turned picture that is seen: never empty, never beyond the picture.
pictures::PictureArea SourceRectFor(const pictures::PictureSize& turned,
                                    const Composition& composition);

/// Where on the screen it is seen: everywhere, or for Fit the part that the picture reaches.
ScreenRectangle ScreenRectFor(const pictures::PictureSize& turned, const Composition& composition);

/// The same area of the picture as it lies in its file (upright, not turned).
pictures::PictureArea AreaBeforeTurning(const pictures::PictureArea& area,
                                        const pictures::PictureSize& turned,
                                        const Orientation& orientation);

/// Fill's framing after the picture has been dragged by so many pixels of the screen, to the right
/// and down, as far as it can be. Other kinds of framing stay as they are.
Framing MovedBy(const pictures::PictureSize& turned, const Composition& composition, double across,
                double down);

/// Fill's framing with another zoom (taken within its bounds) so that what is at a point of the
/// screen (its pixels; 160, 200 is the middle) stays there if it can. Other kinds stay as they are.
Framing ZoomedAt(const pictures::PictureSize& turned, const Composition& composition, int zoom,
                 double x, double y);

}  // namespace vistrel::compose
