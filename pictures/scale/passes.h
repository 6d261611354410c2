// The two inner loops of a scaling: rows into a row, and a row into a shorter or longer row.
#pragma once

#include <cstddef>
#include <cstdint>

#include "pictures/scale/weights.h"

namespace vistrel::scale {

/// Adds up `count` rows of `length` samples, each times its weight, and writes the sums shifted
/// right by `shift`, rounded. The results must fit into 16 bits. Behind an odd number of rows and
/// weights stand a further row, which one does not matter, and a weight of 0.
void WeighRows(const std::uint8_t* const* rows, const std::int16_t* weights, int count, int length,
               int shift, std::int16_t* sums);
void WeighRows(const std::int16_t* const* rows, const std::int16_t* weights, int count, int length,
               int shift, std::int16_t* sums);

/// Rows are filtered along themselves by so many at once, which share the weights.
inline constexpr int kRowsAtOnce = 4;

/// kRowsAtOnce rows, `apart` samples from each other.
template <class Sample>
struct RowGroup {
    Sample* first;
    std::size_t apart;

    Sample* Row(int i) const { return first + static_cast<std::size_t>(i) * apart; }
};

/// Filters rows along themselves: sample i * stride of each result is target sample i, in the unit
/// of the source. Rows must be readable (any values) for kTapGroup samples after their end.
void WeighAlong(const FilterAxis& filter, RowGroup<const std::int16_t> rows,
                RowGroup<std::int16_t> results, int stride);

}  // namespace vistrel::scale
