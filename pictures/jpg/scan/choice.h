// Which scans of a progressive file are worth reading for a small picture.
#pragma once

#include <span>
#include <vector>

#include "pictures/jpg/frame.h"
#include "pictures/jpg/scan/coefficients.h"

namespace vistrel::jpg {

/// Walks through all scan headers of a file and tells of each scan, in the file's order, whether it
/// has to be read for the frequencies in `kept`, which has an entry per component. A scan that
/// refines coefficients is coded by which of them the scans before it had, and so needs those too.
/// What is not told of, behind more scans than coefficients have bits, is not worth reading.
std::vector<bool> ChooseScans(const pictures::PictureFile& file,
                              std::span<const KeptFrequencies> kept);

}  // namespace vistrel::jpg
