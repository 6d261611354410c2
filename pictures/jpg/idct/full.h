// Dequantizes and transforms whole blocks of coefficients back into samples, exactly as most
// decoders do.
#pragma once

#include "pictures/jpg/frame.h"
#include "pictures/jpg/idct/vectors.h"

namespace vistrel::jpg {

/// A quantisation table in the order of a block's rows.
struct DequantTable {
    std::array<std::int32_t, kBlockSize> numbers = {};
    VectorDequantTable forVectors;
};

DequantTable DequantTableOf(const QuantTable& quant);

/// Writes the 8 x 8 samples of a block of coefficients (in the order of its rows), `stride` bytes
/// from row to row.
void IdctFull(const std::int16_t* block, const DequantTable& steps, std::uint8_t* samples,
              std::ptrdiff_t stride);

}  // namespace vistrel::jpg
