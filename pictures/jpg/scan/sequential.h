// Reads the scans of sequential JPEG files: whole blocks one after the other.
#pragma once

#include <span>

#include "pictures/jpg/scan/coefficients.h"
#include "pictures/jpg/scan/walk.h"

namespace vistrel::jpg {

/// Reads one scan and hands its blocks, row by row, to `sink`. `kept` has an entry per component
/// of the frame: what else a block holds is skipped as quickly as possible. Missing data give
/// zeros.
ScanOutcome ReadSequentialScan(const pictures::PictureFile& file, const JpgFrame& frame,
                               const JpgScan& scan, JpgTables& tables,
                               std::span<const KeptFrequencies> kept, BlockRowSink& sink);

}  // namespace vistrel::jpg
