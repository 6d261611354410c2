// Where the pixels of an area stand on the ring, one function for each family of patterns. All take
// what shines forward (see Pattern), with `count` places on the ring.
#pragma once

#include "pictures/screen/layer.h"

namespace vistrel::screen {

/// Patterns that follow from where a pixel is: bars, orders, and backgrounds.
std::vector<RingPlace> ByPoint(const Layer& layer, int count);

std::vector<RingPlace> ByPieces(const Area& area, int count);

std::vector<RingPlace> AsStars(const Layer& layer, int count);

}  // namespace vistrel::screen
