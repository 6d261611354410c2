// Gathers the coefficients of a progressive JPEG file from its scans.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "pictures/jpg/scan/coefficients.h"
#include "pictures/jpg/scan/walk.h"

namespace vistrel::jpg {

/// The coefficients of one component while its scans come in. Later scans are coded by what earlier
/// ones had, so of every coefficient it is known whether it is 0, even where its value is not kept.
struct ProgressiveComponent {
    KeptFrequencies kept;
    int rows;          ///< of blocks, that are kept from kept.firstRow on
    BlockRows blocks;  ///< these, and where others are not needed, one row in their place
    std::vector<std::uint64_t>
        nonZero;  ///< a bit per position in the file's order, a number a block

    ProgressiveComponent(const JpgComponent& component, const KeptFrequencies& keptFrequencies);

    /// A block of the component, by its place in the picture.
    std::int16_t* Block(int column, int row) {
        const int at = row - kept.firstRow;
        return blocks.Block(column, at >= 0 && at < rows ? at : rows);
    }

    /// The memory that the coefficients of a component take.
    static std::int64_t BytesFor(const JpgComponent& component, const KeptFrequencies& kept);
};

/// Reads one scan into `components`, which has an entry per component of the frame.
ScanOutcome ReadProgressiveScan(const pictures::PictureFile& file, const JpgFrame& frame,
                                const JpgScan& scan, const JpgTables& tables,
                                std::span<ProgressiveComponent> components);

}  // namespace vistrel::jpg
