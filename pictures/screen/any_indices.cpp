#include "pictures/screen/any_indices.h"

#include "pictures/bmp/rle.h"
#include "pictures/bmp/rows.h"
#include "pictures/convert.h"
#include "pictures/little_endian.h"

namespace vistrel::screen {
namespace {

constexpr std::size_t kHeaderSizeOffset = 14;
constexpr std::size_t kImportantColorsOffset = 50;
constexpr std::uint32_t kWindowsHeader = 40;

std::unique_ptr<pictures::PictureRows> Open(pictures::FileBytes file,
                                            const bmp::BmpHeader& header) {
    return header.compression == bmp::BmpCompression::None ? bmp::OpenBmpRows(file, header)
                                                           : bmp::OpenBmpRle(file, header);
}

}  // namespace

bool CanBeRead(pictures::FileBytes file, const bmp::BmpHeader& header) {
    return Open(file, header) != nullptr;
}

std::optional<std::vector<std::uint8_t>> ReadAnyIndices(pictures::FileBytes file,
                                                        const bmp::BmpHeader& header) {
    if (header.bitsPerPixel > 8) return std::nullopt;
    // With each number as its own colour the reader of colours reads numbers.
    bmp::BmpHeader numbered = header;
    for (int i = 0; i < 256; ++i) numbered.palette[i].fill(static_cast<std::uint8_t>(i));
    const std::unique_ptr<pictures::PictureRows> rows = Open(file, numbered);
    if (!rows) return std::nullopt;

    const auto nearest = [](int to, int size, int from) {
        return static_cast<int>((2 * std::int64_t{to} + 1) * from / (2 * size));
    };
    std::vector<std::uint8_t> indices;
    indices.reserve(std::size_t{pictures::kLogoWidth} * pictures::kLogoHeight);
    std::vector<std::uint8_t> row(std::size_t(header.width) * 3);
    int read = 0;
    for (int y = 0; y < pictures::kLogoHeight; ++y) {
        for (; read <= nearest(y, pictures::kLogoHeight, header.height); ++read)
            rows->ReadNext(row.data());
        for (int x = 0; x < pictures::kLogoWidth; ++x)
            indices.push_back(row[std::size_t(nearest(x, pictures::kLogoWidth, header.width)) * 3]);
    }
    return indices;
}

std::uint32_t FirstAnimated(pictures::FileBytes file) {
    const bool hasIt = pictures::DoubleWord(file, kHeaderSizeOffset) >= kWindowsHeader;
    return hasIt ? pictures::DoubleWord(file, kImportantColorsOffset) : 0;
}

}  // namespace vistrel::screen
