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
    BlockRows blocks;
    std::vector<std::uint64_t>
        nonZero;  ///< a bit per position in the file's order, a number a block

    ProgressiveComponent(const JpgComponent& component, const KeptFrequencies& keptFrequencies);

    /// The memory that the coefficients of a component take.
    static std::int64_t BytesFor(const JpgComponent& component, const KeptFrequencies& kept);
};

/// Reads one scan into `components`, which has an entry per component of the frame.
ScanOutcome ReadProgressiveScan(pictures::FileBytes file, const JpgFrame& frame,
                                const JpgScan& scan, const JpgTables& tables,
                                std::span<ProgressiveComponent> components);

}  // namespace vistrel::jpg
