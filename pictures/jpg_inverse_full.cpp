// The exact 8 x 8 inverse transform.
#include "pictures/jpg_inverse_full.h"

#include <algorithm>

#include "pictures/jpg_inverse_block.h"

namespace vistrel {

BlockSteps StepsOf(const QuantTable& quant) {
    BlockSteps steps;
    for (std::size_t k = 0; k < quant.size(); ++k) steps[kZigzag[k]] = quant[k];
    return steps;
}

void InverseFull(const std::int16_t* block, const BlockSteps& steps, std::uint8_t* samples,
                 std::ptrdiff_t stride) {
    constexpr std::int32_t kMiddle = 128;
    InverseBlock(block, steps.data(), [=](int row, const Wrapping* sums) {
        std::uint8_t* to = samples + row * stride;
        for (int x = 0; x < 8; ++x) {
            to[x] =
                static_cast<std::uint8_t>(std::clamp(Descale(sums[x], kSumBits) + kMiddle, 0, 255));
        }
    });
}

}  // namespace vistrel
