// Gathers the rows of a picture.
#include "pictures/picture_rows.h"

#include <algorithm>

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

RgbPicture ReadScaled(PictureRows& rows, const PictureArea& area, int width, int height) {
    if (area == PictureArea::WholeOf(rows.width(), rows.height()))
        return ReadScaled(rows, width, height).picture;
    const scale::PixelSpan across = scale::PixelsTouched(area.left, area.width);
    const scale::PixelSpan down = scale::PixelsTouched(area.top, area.height);
    std::vector<std::uint8_t> row(std::size_t{3} * rows.width());
    scale::RgbScaler scaler(area, width, height);
    for (int y = 0; y < down.first + down.count; ++y) {
        rows.ReadNext(row.data());
        if (y < down.first) continue;
        std::copy_n(&row[std::size_t{3} * across.first], std::size_t{3} * across.count,
                    scaler.NextRow());
        scaler.EndRow();
    }
    return scaler.TakePicture();
}

}  // namespace vistrel::pictures
