// Gathers the coefficients of a progressive JPEG file from its scans, row by row.
#pragma once

#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "pictures/jpg/scan/coefficients.h"
#include "pictures/jpg/scan/walk.h"

namespace vistrel::jpg {

/// The coefficients of one component in one row of MCUs, while its scans come in. Later scans are
/// coded by what earlier ones had, so of every coefficient it is known whether it is 0, even where
/// its value is not kept.
struct ProgressiveComponent {
    KeptFrequencies kept;
    int rows;                            ///< of blocks
    BlockRows blocks;                    ///< so many rows
    std::vector<std::uint64_t> nonZero;  ///< of each block: a bit per position in the file's order

    ProgressiveComponent(const JpgComponent& component, const KeptFrequencies& keptFrequencies);

    /// A block of the component, by its place in the picture.
    std::int16_t* Block(int column, int row) { return blocks.Block(column, row % rows); }

    std::uint64_t& NonZero(int column, int row) {
        return nonZero[static_cast<std::size_t>(row % rows) *
                           static_cast<std::size_t>(blocks.across) +
                       static_cast<std::size_t>(column)];
    }

    /// Makes all of them 0, for the next row of MCUs.
    void Clear();
};

/// One scan. Those of a file are read side by side, each a row of MCUs at a time: so no more than
/// this row of the picture is kept.
class ProgressiveScan {
 public:
    virtual ~ProgressiveScan() = default;

    /// Reads what the scan has of the picture's next row of interleaved MCUs.
    virtual void ReadNext() = 0;

    /// True when ReadNext has read all rows of the scan.
    virtual bool IsAtEnd() const = 0;

    /// How much of it was there, once it has been read.
    virtual ScanOutcome Outcome() = 0;
};

/// Opens a scan that is read into `components`, which has an entry per component of the frame. Both
/// and what the file reads from must outlive it, the tables need not.
std::unique_ptr<ProgressiveScan> OpenProgressiveScan(const pictures::PictureFile& file,
                                                     const JpgFrame& frame, const JpgScan& scan,
                                                     const JpgTables& tables,
                                                     std::span<ProgressiveComponent> components);

}  // namespace vistrel::jpg
