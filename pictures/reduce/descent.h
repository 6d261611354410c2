// Fits indices and palette to a picture as an eye sees it from afar: errors of neighbouring pixels
// may cancel, but no single error may be large.
//
// With e the error of each pixel (chosen minus wanted colour) and G a small normalised Gaussian,
// the sum over all pixels of e * (G e) + lambda * e * e is made small by changing one pixel's
// index at a time and by moving the palette's colours. Error diffusion does something like it in
// one pass, looking backwards only and leaving the palette alone.
#pragma once

#include <cstdint>

#include "pictures/reduce/palette.h"

namespace vistrel::reduce {

struct DescentSettings {
    /// How much a pixel's own error counts beside the blurred one, in 1/256: 100 trusts the eye to
    /// blend pixels, 400 hardly.
    int lambda = 80;
    int rounds = 5;
};

/// Improves `indices` (one per pixel, of `palette`) and `palette` together. Before the last round
/// the palette is brought to colours that bytes can hold, and stays.
void Descend(const std::uint8_t* rgb, int width, int height, const WorkingSpace& space,
             const DescentSettings& settings, std::uint8_t* indices, Palette& palette);

}  // namespace vistrel::reduce
