// Which way up a photograph is to be shown, as its camera noted it in the file.
#pragma once

#include "pictures/rgb_picture.h"

namespace vistrel::jpg {

/// How a stored picture is turned upright: the sides are swapped first (the pixel of column x and
/// row y goes to column y and row x), then the result is mirrored left to right and top to bottom.
struct Turning {
    bool swapSides = false;
    bool mirrorAcross = false;
    bool mirrorDown = false;
};

/// The turning for the orientation numbers 1 to 8 of EXIF 2.3 (4.6.4, tag 0x0112); none for others.
Turning TurningOf(int orientation);

/// The orientation that the content of an APP1 segment gives, 1 to 8; 0 when the segment is not
/// EXIF data or gives none.
int ReadExifOrientation(pictures::FileBytes segment);

/// Where the pixels of a stored picture go in the upright one.
class UprightPlace {
 public:
    /// `width` and `height` are those of the stored picture.
    UprightPlace(const Turning& turning, int width, int height);

    /// The size of the upright picture.
    int width() const { return width_; }
    int height() const { return height_; }

    /// Writes one stored row (width pixels of three bytes) into the upright picture's pixels.
    void PutRow(const std::uint8_t* row, int y, std::uint8_t* pixels) const;

 private:
    int storedWidth_;
    int width_;
    int height_;
    std::ptrdiff_t origin_;  // of the stored picture's first pixel, in pixels
    std::ptrdiff_t stepX_;   // from a stored pixel to its right neighbour
    std::ptrdiff_t stepY_;   // to the one below
};

}  // namespace vistrel::jpg
