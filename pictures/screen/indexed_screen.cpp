#include "pictures/screen/indexed_screen.h"

#include <algorithm>

#include "pictures/bmp/header.h"
#include "pictures/bmp/writer.h"
#include "pictures/little_endian.h"

namespace vistrel::screen {
namespace {

constexpr std::size_t kImportantColorsOffset = 50;
constexpr std::uint32_t kWindowsHeaderSize = 40;

}  // namespace

std::optional<IndexedScreen> ReadIndexedScreen(pictures::FileBytes file) {
    const auto header = bmp::ReadBmpHeader(file);
    if (!header || header->bitsPerPixel != 8 || header->compression != bmp::BmpCompression::None)
        return std::nullopt;
    const std::size_t needed = header->RowBytes() * static_cast<std::size_t>(header->height);
    if (header->pixelOffset > file.size() || file.size() - header->pixelOffset < needed)
        return std::nullopt;

    IndexedScreen screen;
    screen.width = header->width;
    screen.height = header->height;
    screen.palette = header->palette;
    for (int y = 0; y < screen.height; ++y) {
        const int row = header->topDown ? y : screen.height - 1 - y;
        const auto pixels = file.subspan(header->pixelOffset + header->RowBytes() * row,
                                         static_cast<std::size_t>(screen.width));
        screen.indices.insert(screen.indices.end(), pixels.begin(), pixels.end());
    }
    // Older headers have no such field.
    if (pictures::DoubleWord(file, 14) >= kWindowsHeaderSize) {
        const std::uint32_t first = pictures::DoubleWord(file, kImportantColorsOffset);
        screen.firstAnimated = first <= 255 ? static_cast<int>(first) : 0;
    }
    return screen;
}

std::vector<std::uint8_t> ScreenFile(const IndexedScreen& screen) {
    std::vector<std::uint8_t> palette;
    for (const auto& [red, green, blue] : screen.palette)
        palette.insert(palette.end(), {blue, green, red, 0});
    std::vector<std::uint8_t> file = bmp::ColormappedBmp(screen.indices.data(), screen.width,
                                                         screen.height, 256, palette.data());
    SetFirstAnimated(file, screen.firstAnimated);
    return file;
}

void SetFirstAnimated(std::vector<std::uint8_t>& file, int first) {
    file[kImportantColorsOffset] = static_cast<std::uint8_t>(first);
    std::fill_n(file.begin() + kImportantColorsOffset + 1, 3, std::uint8_t{0});
}

void RotateColors(IndexedScreen& screen) {
    if (!screen.IsAnimated()) return;
    std::rotate(screen.palette.begin() + screen.firstAnimated,
                screen.palette.begin() + screen.firstAnimated + 1, screen.palette.end());
}

}  // namespace vistrel::screen
