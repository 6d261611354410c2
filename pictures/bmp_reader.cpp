// Decodes bitmap files.
#include "pictures/bmp_reader.h"

#include "pictures/bmp_rle.h"
#include "pictures/bmp_rows.h"

namespace vistrel {

std::optional<RgbPicture> ReadBmp(FileBytes file) {
    const std::optional<BmpHeader> header = ReadBmpHeader(file);
    if (!header) return std::nullopt;
    if (header->compression != BmpCompression::None) return DecodeBmpRle(file, *header);

    BmpRows rows(file, *header);
    if (rows.HopelesslyShort()) return std::nullopt;
    RgbPicture picture{header->width, header->height, {}};
    const std::size_t rowBytes = std::size_t{3} * picture.width;
    picture.pixels.resize(rowBytes * picture.height);
    for (int y = 0; y < picture.height; ++y) rows.Read(y, &picture.pixels[y * rowBytes]);
    return picture;
}

}  // namespace vistrel
