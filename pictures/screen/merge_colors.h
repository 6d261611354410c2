// Makes do with fewer colours of a palette.
#pragma once

#include "pictures/screen/ring.h"

namespace vistrel::screen {

struct MergedColors {
    std::vector<ScreenColor> colors;        ///< as many as there was room for
    std::array<std::uint8_t, 256> entry{};  ///< which of `colors` each old entry has become
};

/// Merges those of 256 colours that are the least loss, until those that pixels have (`counts`
/// above 0) fit into `room` (1 to 256) entries. Where they fit each keeps its colour, and its
/// number when that is below `room`. Entries that no pixel has become the nearest.
MergedColors MergeColors(const std::array<ScreenColor, 256>& palette,
                         const std::array<std::uint32_t, 256>& counts, int room);

/// The number of the nearest of `colors`, of which there are up to 256.
std::uint8_t NearestColor(const std::vector<ScreenColor>& colors, const ScreenColor& color);

}  // namespace vistrel::screen
