// Turns whole blocks of coefficients back into samples, exactly as most decoders do.
#pragma once

#include "pictures/jpg/frame.h"
#include "pictures/jpg/idct/vectors.h"

namespace vistrel::jpg {

/// Quantisation steps in the order of a block's rows.
struct BlockSteps {
    std::array<std::int32_t, kBlockSize> numbers = {};
    VectorSteps forVectors;
};

/// `quant` (in the file's order) in the order of a block's rows.
BlockSteps StepsOf(const QuantTable& quant);

/// Writes the 8 x 8 samples of a block of coefficients (in the order of its rows), `stride` bytes
/// from row to row.
void InverseFull(const std::int16_t* block, const BlockSteps& steps, std::uint8_t* samples,
                 std::ptrdiff_t stride);

}  // namespace vistrel::jpg
