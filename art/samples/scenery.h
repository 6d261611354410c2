// What several scenes have in common.
#pragma once

#include "art/brush/lettering.h"
#include "art/brush/noise.h"
#include "art/samples/scene.h"

namespace vistrel::samples {

/// Stars of all sizes above `bottom`.
void Stars(Painting& painting, int count, double bottom, unsigned seed);

/// A line of hills: its height at x, around `base`, `rise` high and about `length` long.
std::function<double(double x)> Ridge(double base, double rise, double length, unsigned seed);

/// A fir tree standing at x, y.
Shape Fir(double x, double y, double size);

/// A fluffy cloud, about four times `size` wide, its flat bottom at y.
Shape Cloud(double x, double y, double size);

}  // namespace vistrel::samples
