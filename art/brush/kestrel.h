// The bird of the program's pictures.
#pragma once

#include "art/brush/shapes.h"

namespace vistrel::art {

/// A kestrel gliding, seen from below; about ten times `size` across, its breast at x, y.
Shape Kestrel(double x, double y, double size);

}  // namespace vistrel::art
