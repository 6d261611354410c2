// Brings the coefficients of a JPEG file, of whatever kind it is, row by row to what makes a
// picture of them.
#pragma once

#include <span>

#include "pictures/jpg/markers.h"
#include "pictures/jpg/scan/coefficients.h"

namespace vistrel::jpg {

/// Reads the scans of the file from the one on at which `markers` stands, and hands over every row
/// of blocks of every component. `kept` has an entry per component. What the file lacks is zeros,
/// which stand for grey. False when the file has not even a tenth of the picture; `sink` has then
/// had some rows or none.
bool ReadCoefficients(const pictures::PictureFile& file, JpgMarkers& markers,
                      std::span<const KeptFrequencies> kept, BlockRowSink& sink);

/// Whether ReadCoefficients would find a tenth of the picture in a file: told without the memory
/// for all of it.
bool HasEnough(const pictures::PictureFile& file);

}  // namespace vistrel::jpg
