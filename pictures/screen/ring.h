// The colours that move: a screen has one ring of them, since the system turns all of them at once.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "pictures/screen/area.h"
#include "pictures/screen/indexed_screen.h"

namespace vistrel::screen {

using ScreenColor = std::array<std::uint8_t, 3>;  ///< red, green, blue

/// How many colours of a ring may be asked for; a screen that comes with a ring may have up to 255.
inline constexpr int kFewestMoving = 2;
inline constexpr int kMostMoving = 64;

/// How the chosen colours lie round the ring.
enum class RingShape {
    Smooth,   ///< each passes into the next, the last into the first
    Pulse,    ///< the first one stands, the others swell out of it in turn
    Stripes,  ///< each its part of the ring, with hard edges
    Comet     ///< the last one shines, passes backwards through the others, and into the first
};

struct Ring {
    RingShape shape = RingShape::Smooth;
    std::vector<ScreenColor> keys{{0, 0, 0}, {255, 255, 255}};  ///< one or more; 2 to 4 look well
    int count = 20;  ///< kFewestMoving to kMostMoving; the nearest of these is taken
    std::vector<ScreenColor> exact;  ///< when not empty the ring itself; the rest does not count
    bool operator==(const Ring&) const = default;
};

/// The colours in the order of the screen's entries, 2 to 255 of them.
std::vector<ScreenColor> RingColors(const Ring& ring);

/// The colours of an area of the picture (320 x 400), from dark to light and back: with
/// Pattern::Brightness the area then has the colours that it had, and glitters. `count` as in Ring.
Ring RingOfArea(const pictures::RgbPicture& screen, const Area& area, int count);

/// The ring of a screen whose colours move; the one of a new Ring when none do.
Ring RingOfScreen(const IndexedScreen& screen);

}  // namespace vistrel::screen
