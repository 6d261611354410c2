// The filter of one axis of a scaling: which source samples make a target sample, and how much.
#pragma once

#include <cstdint>
#include <vector>

#include "pictures/loops/loops.h"
#include "pictures/scale/resize.h"

namespace vistrel::scale {

/// The taps of one target sample: weights[offset + i] belongs to source sample first + i.
using FilterTaps = loops::Taps;
using loops::kTapGroup;

/// A Lanczos3 filter in fixed point. The weights of each target sample add up to exactly 1 <<
/// shift.
struct FilterAxis {
    std::vector<FilterTaps> taps;       ///< one per target sample, `first` never decreasing
    std::vector<std::int16_t> weights;  ///< those of a target sample are followed by zeros
    int shift = 0;
    int mostTaps = 0;  ///< the largest count

    const std::int16_t* WeightsOf(const FilterTaps& of) const { return &weights[of.offset]; }
};

/// The filter of an axis. When shrinking, the kernel is widened by the reduction; at the edges it
/// is cut and what is left is brought to a sum of 1.
FilterAxis MakeFilterAxis(const ScaleAxis& axis);

}  // namespace vistrel::scale
