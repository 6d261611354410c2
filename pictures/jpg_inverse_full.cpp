// The exact 8 x 8 inverse transform.
#include "pictures/jpg_inverse_full.h"

#include <algorithm>

#include "pictures/jpg_inverse_terms.h"

namespace vistrel {
namespace {

// Bits behind the point that the columns' results keep.
constexpr int kColumnBits = 2;
// The two ways of a block make eight times its samples.
constexpr int kBlockBits = 3;

// True when only the first of a column's coefficients is not 0.
bool IsFlat(const std::int16_t* column) {
    return (column[8] | column[16] | column[24] | column[32] | column[40] | column[48] |
            column[56]) == 0;
}

std::uint8_t ClampToByte(std::int32_t value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0, 255));
}

}  // namespace

BlockSteps StepsOf(const QuantTable& quant) {
    BlockSteps steps;
    for (std::size_t k = 0; k < quant.size(); ++k) steps[kZigzag[k]] = quant[k];
    return steps;
}

void InverseFull(const std::int16_t* block, const BlockSteps& steps, std::uint8_t* samples,
                 std::ptrdiff_t stride) {
    Wrapping in[8], out[8];
    Wrapping between[kBlockSize];
    for (int column = 0; column < 8; ++column) {
        if (IsFlat(block + column)) {
            const Wrapping value =
                static_cast<Wrapping>(block[column] * steps[static_cast<std::size_t>(column)])
                << kColumnBits;
            for (int row = 0; row < 8; ++row) between[row * 8 + column] = value;
            continue;
        }
        for (int row = 0; row < 8; ++row) {
            const int at = row * 8 + column;
            in[row] = static_cast<Wrapping>(block[at] * steps[static_cast<std::size_t>(at)]);
        }
        InverseTerms<8>(in, out);
        for (int row = 0; row < 8; ++row) {
            between[row * 8 + column] =
                static_cast<Wrapping>(Descale(out[row], kTermBits - kColumnBits));
        }
    }
    constexpr std::int32_t kMiddle = 128;
    for (int row = 0; row < 8; ++row, samples += stride) {
        InverseTerms<8>(between + row * 8, out);
        for (int column = 0; column < 8; ++column) {
            samples[column] =
                ClampToByte(Descale(out[column], kTermBits + kColumnBits + kBlockBits) + kMiddle);
        }
    }
}

}  // namespace vistrel
