// Which of a block's coefficients are kept, and rows of blocks to keep them in.
#pragma once

#include <algorithm>
#include <array>
#include <cstdint>
#include <vector>

#include "pictures/jpg/frame.h"

namespace vistrel::jpg {

/// The positions first..last of the file's order as a set of bits.
inline std::uint64_t PositionBand(int first, int last) {
    const std::uint64_t upToLast = ~std::uint64_t{0} >> (kBlockSize - 1 - last);
    return upToLast & ~std::uint64_t{0} << first;
}

/// The low frequencies of a block that are needed: `across` of the eight horizontal and `down`
/// of the eight vertical ones. They are kept as a matrix of `down` rows.
struct KeptFrequencies {
    /// Positions that a damaged file can make a run of zeros end at: 15 beyond the last.
    static constexpr std::size_t kPositions = kBlockSize + 16;

    int across = 8;
    int down = 8;
    int last = kBlockSize - 1;  ///< position in the file's order of the last one needed
    int stride = kBlockSize;    ///< numbers per block
    std::array<std::uint8_t, kPositions> slot = {};  ///< where each position goes in its block

    /// True when the coefficient at a position of the file's order is one of those needed.
    bool IsKept(int position) const {
        const int place = kZigzag[static_cast<std::size_t>(position)];
        return place / 8 < down && place % 8 < across;
    }

    /// The positions needed as a set of bits.
    std::uint64_t Positions() const {
        std::uint64_t positions = 0;
        for (int k = 0; k < kBlockSize; ++k) positions |= std::uint64_t{IsKept(k)} << k;
        return positions;
    }

    /// The frequencies 0..across-1 and 0..down-1 (both 1 to 8).
    static KeptFrequencies Of(int across, int down) {
        KeptFrequencies kept;
        kept.across = across;
        kept.down = down;
        // Needless positions share one slot behind the matrix; a whole block needs none, as what
        // lies beyond its end is damage anyway.
        const int spare = std::min(across * down, kBlockSize - 1);
        kept.stride = spare + 1;
        kept.slot.fill(static_cast<std::uint8_t>(spare));
        for (int k = 0; k < kBlockSize; ++k) {
            if (!kept.IsKept(k)) continue;
            const int place = kZigzag[static_cast<std::size_t>(k)];
            kept.slot[static_cast<std::size_t>(k)] =
                static_cast<std::uint8_t>(place / 8 * across + place % 8);
            kept.last = k;
        }
        return kept;
    }
};

/// Blocks with those that fill up the interleaved MCUs.
inline std::int64_t BlocksOf(const JpgComponent& component) {
    return static_cast<std::int64_t>(component.paddedAcross) * component.paddedDown;
}

/// Rows of blocks of one component.
struct BlockRows {
    int across = 0;  ///< blocks in a row
    int stride = 0;  ///< numbers per block
    std::vector<std::int16_t> numbers;

    BlockRows(int blocksAcross, int rows, int numbersPerBlock)
        : across(blocksAcross),
          stride(numbersPerBlock),
          numbers(static_cast<std::size_t>(blocksAcross) * static_cast<std::size_t>(rows) *
                  static_cast<std::size_t>(numbersPerBlock)) {}

    std::int16_t* Block(int column, int row) {
        return numbers.data() + (static_cast<std::ptrdiff_t>(row) * across + column) * stride;
    }
};

/// Receives the coefficients of a picture row by row, not yet dequantized.
class BlockRowSink {
 public:
    virtual ~BlockRowSink() = default;

    /// The blocks of a component's row `row`, as many as the component has across. Each component's
    /// rows come in order, each once.
    virtual void AddBlockRow(int component, int row, const std::int16_t* blocks) = 0;
};

}  // namespace vistrel::jpg
