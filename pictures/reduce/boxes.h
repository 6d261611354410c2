// The start palette: the cells of a histogram parted into as many groups as there are colours.
#pragma once

#include "pictures/reduce/histogram.h"

namespace vistrel::reduce {

/// Parts the cells into at most `colors` boxes, always cutting the box with the largest squared
/// error across its principal axis, where the errors of both halves add up to the least. Writes the
/// number of its box into each cell's `color`. Returns the number of boxes, which is less than
/// `colors` when all boxes are single cells.
int PartIntoBoxes(Histogram& histogram, int colors);

}  // namespace vistrel::reduce
