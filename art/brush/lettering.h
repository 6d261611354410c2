// Letters drawn with a pen: skeletons of lines and arcs, and what a pen makes of them.
#pragma once

#include <string>
#include <vector>

#include "art/brush/shapes.h"

namespace vistrel::art {

/// How letters are written. Lengths are in tenths of a capital's height.
struct Hand {
    double weight = 1;     ///< width of the pen's stroke
    double slant = 0;      ///< how far a capital's top leans to the right
    double spacing = 1.7;  ///< between letters, on top of the pen's width
    double contrast = 1;   ///< under 1 the pen is broad and held aslant: thinner in one direction
    bool slabs = false;    ///< short cross strokes at the ends of upright lines
    double pitch = 0;      ///< when not 0 each letter takes this much room, as on a typewriter
};

/// One shape a letter of `text` (letters, blanks and . , ! ' - only). `baseline` is y of the line
/// that letters stand on, `size` the height of a capital.
std::vector<Shape> WriteFrom(double left, double baseline, double size, const std::string& text,
                             const Hand& hand);

/// The same with the middle of the text at `middle`.
std::vector<Shape> WriteAround(double middle, double baseline, double size, const std::string& text,
                               const Hand& hand);

/// Paints letters in one tint, with a soft shadow of another below when `shadow` is over 0 units.
void Letter(Painting& painting, const std::vector<Shape>& letters, const Brush& brush,
            double shadow = 0, const Tint& shade = {0, 0, 0});

}  // namespace vistrel::art
