// The IDCT of blocks by vectors of eight 16-bit numbers, where the compiler has them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "pictures/jpg/tables.h"

namespace vistrel::jpg {

/// A quantisation table for the transforms below.
struct VectorDequantTable {
    std::array<std::int16_t, kBlockSize> numbers = {};
    int most = 0;  ///< coefficients up to this times any of the steps fit into 16 bits

    VectorDequantTable() = default;

    /// `steps` has one to 64 of them (0 to 65,535) in the order of a block's numbers.
    explicit VectorDequantTable(std::span<const std::int32_t> steps);
};

/// How blocks lie in memory: `down` rows of `across` coefficients; `stride` numbers from block to
/// block.
struct BlockShape {
    int across;
    int down;
    int stride;
};

/// Dequantizes and transforms blocks that lie side by side, from the first on, as
/// ReducedIdct::Transform does, and returns how many are done. That is none where there are no
/// vectors, or none for the shape, and fewer than `count` when a block's numbers do not fit into 16
/// bits on the way, as in damaged files. Samples are those that arithmetic on single numbers gives.
int IdctByVectors(const VectorDequantTable& steps, const BlockShape& shape,
                  const std::int16_t* blocks, int count, std::int16_t* samples,
                  std::ptrdiff_t stride);

/// Does what IdctFull does, for one block. False when it cannot.
bool IdctFullByVectors(const VectorDequantTable& steps, const std::int16_t* block,
                       std::uint8_t* samples, std::ptrdiff_t stride);

}  // namespace vistrel::jpg
