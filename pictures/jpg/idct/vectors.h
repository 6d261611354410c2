// Inverse transforms of blocks by vectors of eight 16-bit numbers, where the compiler has them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "pictures/jpg/tables.h"

namespace vistrel::jpg {

/// Quantisation steps for the transforms below.
struct VectorSteps {
    std::array<std::int16_t, kBlockSize> numbers = {};
    int most = 0;  ///< coefficients up to this times any of the steps fit into 16 bits

    VectorSteps() = default;

    /// `steps` has one to 64 of them (0 to 65,535) in the order of a block's numbers.
    explicit VectorSteps(std::span<const std::int32_t> steps);
};

/// How blocks lie in memory: `down` rows of `across` coefficients; `stride` numbers from block to
/// block.
struct BlockShape {
    int across;
    int down;
    int stride;
};

/// Transforms blocks that lie side by side, from the first on, as ReducedInverse::Transform does,
/// and returns how many are done. That is none where there are no vectors, or none for the shape,
/// and fewer than `count` when a block's numbers do not fit into 16 bits on the way, as in damaged
/// files. Samples are those that arithmetic on single numbers gives.
int InverseByVectors(const VectorSteps& steps, const BlockShape& shape, const std::int16_t* blocks,
                     int count, std::int16_t* samples, std::ptrdiff_t stride);

/// Does what InverseFull does, for one block. False when it cannot.
bool InverseFullByVectors(const VectorSteps& steps, const std::int16_t* block,
                          std::uint8_t* samples, std::ptrdiff_t stride);

}  // namespace vistrel::jpg
