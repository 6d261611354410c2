// Steps of quantisation in 16 bits.
#include "pictures/jpg/idct/vectors.h"

#include <algorithm>

namespace vistrel::jpg {

VectorDequantTable::VectorDequantTable(std::span<const std::int32_t> steps) {
    constexpr std::int32_t kMost16 = 32767;
    const std::int32_t largest = *std::max_element(steps.begin(), steps.end());
    most = largest > kMost16 ? 0 : kMost16 / std::max(largest, 1);
    std::transform(steps.begin(), steps.end(), numbers.begin(),
                   [](std::int32_t step) { return static_cast<std::int16_t>(step); });
}

}  // namespace vistrel::jpg
