// The two inner loops of a scaling: rows into a row, and a row into a shorter or longer row.
#pragma once

#include <cstdint>

#include "pictures/resize_weights.h"

namespace vistrel {

/// Adds up `count` rows of `length` samples, each times its weight, and writes the sums shifted
/// right by `shift`, rounded. The results must fit into 16 bits.
void WeighRows(const std::uint8_t* const* rows, const std::int16_t* weights, int count, int length,
               int shift, std::int16_t* sums);
void WeighRows(const std::int16_t* const* rows, const std::int16_t* weights, int count, int length,
               int shift, std::int16_t* sums);

/// Filters one row along itself: result[i * stride] for each target sample i, in the unit of the
/// source. The row must be readable (any values) for kTapGroup samples after its end.
void WeighAlong(const FilterAxis& filter, const std::int16_t* row, int stride,
                std::int16_t* result);

}  // namespace vistrel
