// Brightness, contrast, gamma, saturation, and levels from a histogram.
//
// With c a channel's value from 0 to 1, each step in turn:
//   levels      c' = (c - black) / (white - black)
//   brightness  c' = c + brightness / 200
//   contrast    c' = (c - 1/2) * (100 + contrast) / (100 - contrast) + 1/2
//   gamma       c' = c ^ (100 / gamma), after cutting to 0..1
//   saturation  c' = l + (c - l) * (100 + saturation) / 100, l the luma of the three channels
// The contrast is a line through middle grey as in the W3C's Filter Effects (contrast()), gamma
// that of the PNG standard's appendix on gamma, saturation the one of Haeberli and Voorhies,
// "Image Processing by Interpolation and Extrapolation" (1994), with the luma of ITU-R BT.601. All
// but the last is a table of 256 entries. Everything is computed in integers and is the same
// everywhere.
#pragma once

#include <array>
#include <cstdint>

#include "pictures/compose/composition.h"
#include "pictures/compose/geometry.h"
#include "pictures/rgb_picture.h"

namespace vistrel::compose {

/// The values that become black and white. 0 and 255 change nothing.
struct Levels {
    int black = 0;
    int white = 255;
    bool operator==(const Levels&) const = default;
};

/// The darkest and the lightest value of any channel within a rectangle of a screen, but for half a
/// hundredth of them at either end; 0 and 255 for a picture with no range to speak of.
Levels LevelsOf(const pictures::RgbPicture& screen, const ScreenRectangle& within);

/// What becomes of each value of a channel, saturation aside.
std::array<std::uint8_t, 256> ToneTable(const Light& light, const Levels& levels);

/// Applies `light` within a rectangle of a screen.
void ApplyLight(const Light& light, const ScreenRectangle& within, pictures::RgbPicture& screen);

/// The same to colours that go with another picture, by the levels of that one.
void ApplyLight(const Light& light, const Levels& levels, const ScreenRectangle& within,
                pictures::RgbPicture& screen);

}  // namespace vistrel::compose
