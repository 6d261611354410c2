// Opens bitmap files.
#include "pictures/bmp/reader.h"

#include "pictures/bmp/rle.h"
#include "pictures/bmp/rows.h"

namespace vistrel::bmp {

std::unique_ptr<pictures::PictureRows> OpenBmp(const pictures::PictureFile& file) {
    const std::optional<BmpHeader> header = ReadBmpHeader(file);
    if (!header) return nullptr;
    return header->compression == BmpCompression::None ? OpenBmpRows(file, *header)
                                                       : OpenBmpRle(file, *header);
}

std::optional<pictures::PictureSize> SizeOfBmp(const pictures::PictureFile& file) {
    const std::optional<BmpHeader> header = ReadBmpHeader(file);
    if (!header) return std::nullopt;
    pictures::PictureSize size{header->width, header->height};
    const bool isScreen = size.width == pictures::kLogoWidth &&
                          size.height == pictures::kLogoHeight && header->bitsPerPixel == 8;
    if (isScreen) size.pixel = pictures::kScreenPixel;
    return size;
}

std::optional<pictures::RgbPicture> ReadBmp(const pictures::PictureFile& file) {
    const std::unique_ptr<pictures::PictureRows> rows = OpenBmp(file);
    if (!rows) return std::nullopt;
    return pictures::ReadAll(*rows);
}

}  // namespace vistrel::bmp
