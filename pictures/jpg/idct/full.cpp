// The exact 8 x 8 IDCT.
#include "pictures/jpg/idct/full.h"

#include <algorithm>

#include "pictures/jpg/idct/block.h"
#include "pictures/loops/loops.h"

namespace vistrel::jpg {

DequantTable DequantTableOf(const QuantTable& quant) {
    DequantTable steps;
    for (std::size_t k = 0; k < quant.size(); ++k) steps.numbers[kZigzag[k]] = quant[k];
    steps.forVectors = VectorDequantTable(steps.numbers);
    return steps;
}

void IdctFull(const std::int16_t* block, const DequantTable& steps, std::uint8_t* samples,
              std::ptrdiff_t stride) {
    const VectorDequantTable& narrow = steps.forVectors;
    if (loops::Chosen().transformToBytes(narrow.numbers.data(), narrow.most, block, samples,
                                         stride))
        return;
    constexpr std::int32_t kMiddle = 128, kHighest = 255;
    IdctBlock(block, steps.numbers.data(), [=](int row, const Wrapping* sums) {
        std::uint8_t* to = samples + row * stride;
        std::int32_t values[8], all = 0;
        for (int x = 0; x < 8; ++x) {
            values[x] = Descale(sums[x], kSumBits) + kMiddle;
            all |= values[x];
        }
        // Bits outside of a byte mean that some value is outside of its range.
        if ((all & ~kHighest) != 0) {
            for (std::int32_t& value : values) value = std::clamp(value, 0, kHighest);
        }
        for (int x = 0; x < 8; ++x) to[x] = static_cast<std::uint8_t>(values[x]);
    });
}

}  // namespace vistrel::jpg
