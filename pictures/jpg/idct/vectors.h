// What the IDCT by vectors wants to know of a quantisation table.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "pictures/jpg/tables.h"

namespace vistrel::jpg {

/// A quantisation table for loops::Loops::transform.
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

}  // namespace vistrel::jpg
