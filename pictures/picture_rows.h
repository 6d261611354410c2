// Pictures that are read row by row, so that no more of them is in memory than is needed.
#pragma once

#include <memory>

#include "pictures/rgb_picture.h"

namespace vistrel::pictures {

/// A picture whose rows are read one after the other. What it reads from must outlive it.
class PictureRows {
 public:
    PictureRows(int width, int height) : width_(width), height_(height) {}
    virtual ~PictureRows() = default;

    int width() const { return width_; }
    int height() const { return height_; }

    /// Writes the next row, from the top, to `rgb`: 3 bytes per pixel. To be called up to height()
    /// times.
    virtual void ReadNext(std::uint8_t* rgb) = 0;

 private:
    int width_;
    int height_;
};

/// The whole picture.
RgbPicture ReadAll(PictureRows& rows);

/// The picture scaled to `width` x `height` pixels; of its rows only those are kept that a row of
/// the result is made of.
ScaledPicture ReadScaled(PictureRows& rows, int width, int height);

/// The same for a part of the picture, which must lie within it: what is below it is not read.
RgbPicture ReadScaled(PictureRows& rows, const PictureArea& area, int width, int height);

}  // namespace vistrel::pictures
