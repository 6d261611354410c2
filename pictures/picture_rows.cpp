// Gathers the rows of a picture.
#include "pictures/picture_rows.h"

#include "pictures/scale/resize.h"

namespace vistrel::pictures {

RgbPicture ReadAll(PictureRows& rows) {
    RgbPicture picture{rows.width(), rows.height(), {}};
    const std::size_t rowBytes = std::size_t{3} * picture.width;
    picture.pixels.resize(rowBytes * picture.height);
    for (int y = 0; y < picture.height; ++y) rows.ReadNext(&picture.pixels[y * rowBytes]);
    return picture;
}

ScaledPicture ReadScaled(PictureRows& rows, int width, int height) {
    if (rows.width() == width && rows.height() == height) return {ReadAll(rows), width, height};
    scale::RgbScaler scaler(rows.width(), rows.height(), width, height);
    for (int y = 0; y < rows.height(); ++y) {
        rows.ReadNext(scaler.NextRow());
        scaler.EndRow();
    }
    return {scaler.TakePicture(), rows.width(), rows.height()};
}

}  // namespace vistrel::pictures
