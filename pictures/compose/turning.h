// A user's turn in the words in which photographs tell theirs.
#pragma once

#include "pictures/compose/composition.h"
#include "pictures/jpg/exif_orientation.h"

namespace vistrel::compose {

/// The same turn: swapping the sides and then mirroring across is a quarter clockwise.
inline jpg::Turning TurningOf(const Orientation& orientation) {
    const int quarters = (orientation.quarterTurns % 4 + 4) % 4;
    jpg::Turning turning;
    turning.swapSides = quarters % 2 == 1;
    turning.mirrorAcross = (quarters == 1 || quarters == 2) != orientation.mirrored;
    turning.mirrorDown = quarters >= 2;
    return turning;
}

}  // namespace vistrel::compose
