// Opens bitmap files.
#include "pictures/bmp/reader.h"

#include "pictures/bmp/rle.h"
#include "pictures/bmp/rows.h"

namespace vistrel {

std::unique_ptr<PictureRows> OpenBmp(FileBytes file) {
    const std::optional<BmpHeader> header = ReadBmpHeader(file);
    if (!header) return nullptr;
    return header->compression == BmpCompression::None ? OpenBmpRows(file, *header)
                                                       : OpenBmpRle(file, *header);
}

std::optional<RgbPicture> ReadBmp(FileBytes file) {
    const std::unique_ptr<PictureRows> rows = OpenBmp(file);
    if (!rows) return std::nullopt;
    return ReadAll(*rows);
}

}  // namespace vistrel
