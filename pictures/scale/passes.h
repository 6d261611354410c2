// The inner loops of a scaling: the vertical pass makes a row of several, the horizontal pass a
// shorter or longer row of one.
#pragma once

#include <cstddef>
#include <cstdint>

#include "pictures/scale/weights.h"

namespace vistrel::scale {

/// The vertical pass for one target row: adds up `count` rows of `length` samples, each times its
/// weight, and writes the sums shifted right by `shift`, rounded. The results must fit into 16
/// bits. Behind an odd number of rows and weights stand a further row, which one does not matter,
/// and a weight of 0.
void VerticalPass(const std::uint8_t* const* rows, const std::int16_t* weights, int count,
                  int length, int shift, std::int16_t* sums);
void VerticalPass(const std::int16_t* const* rows, const std::int16_t* weights, int count,
                  int length, int shift, std::int16_t* sums);

/// The horizontal pass takes so many rows at once, which share the weights.
inline constexpr int kRowsAtOnce = 4;

/// kRowsAtOnce rows, `apart` samples from each other.
template <class Sample>
struct RowGroup {
    Sample* first;
    std::size_t apart;

    Sample* Row(int i) const { return first + static_cast<std::size_t>(i) * apart; }
};

/// The horizontal pass: sample i * stride of each result is target sample i, in the unit
/// of the source. Rows must be readable (any values) for kTapGroup samples after their end.
void HorizontalPass(const FilterAxis& filter, RowGroup<const std::int16_t> rows,
                    RowGroup<std::int16_t> results, int stride);

}  // namespace vistrel::scale
