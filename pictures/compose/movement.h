// A screen whose colours move and that is adjusted: what of it goes on moving.
#pragma once

#include "pictures/compose/light.h"
#include "pictures/compose/stages.h"

namespace vistrel::compose {

/// With fewer colours for all that stands no picture is worth looking at: its movement is given up.
inline constexpr int kFewestStanding = 16;

/// The screen in a file when its colours move: one of 320 x 400 pixels that the system shows as it
/// is. Empty for any other picture.
std::optional<screen::IndexedScreen> ReadMovingScreen(const std::string& path);

/// Whether each of its pixels stays where it is: neither turned nor framed otherwise.
bool StaysInPlace(const Composition& composition);
/// Whether it leaves colours enough for what stands.
bool LeavesColors(const screen::IndexedScreen& moving);

/// The levels that this light gives a framed picture.
Levels LevelsFor(const Light& light, const Framed& framed);

/// Reduce for a picture that was made of `moving`, where there is such a screen: its pixels go on
/// moving, in the entries that they had, but for those under the text. What stands gets the rest of
/// the colours, what moves the same light, by the levels of the framed picture. Where the movement
/// cannot be kept all stands still.
std::optional<screen::IndexedScreen> ReduceMoving(
    const std::optional<screen::IndexedScreen>& moving, const Levels& levels,
    const pictures::RgbPicture& adjusted, const Composition& composition);

}  // namespace vistrel::compose
