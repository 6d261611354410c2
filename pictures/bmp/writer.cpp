// The file is made in memory first: it is small, and then only one thing can go wrong with writing.
#include "pictures/bmp/writer.h"

namespace vistrel::bmp {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kInfoHeader = 40;
constexpr std::size_t kPalette = 256 * 4;
constexpr std::size_t kPixelOffset = kFileHeader + kInfoHeader + kPalette;

void Put16(std::vector<std::uint8_t>& bytes, std::uint32_t value) {
    bytes.push_back(static_cast<std::uint8_t>(value));
    bytes.push_back(static_cast<std::uint8_t>(value >> 8));
}

void Put32(std::vector<std::uint8_t>& bytes, std::uint32_t value) {
    Put16(bytes, value);
    Put16(bytes, value >> 16);
}

}  // namespace

std::vector<std::uint8_t> ColormappedBmp(const std::uint8_t* indices, int width, int height,
                                         int colors, const std::uint8_t* palette) {
    const std::size_t rowBytes = (std::size_t(width) + 3) / 4 * 4;
    const std::size_t pixelBytes = rowBytes * height;
    std::vector<std::uint8_t> bytes;
    bytes.reserve(kPixelOffset + pixelBytes);
    Put16(bytes, 'B' | 'M' << 8);
    Put32(bytes, static_cast<std::uint32_t>(kPixelOffset + pixelBytes));
    Put32(bytes, 0);  // reserved
    Put32(bytes, kPixelOffset);
    Put32(bytes, kInfoHeader);
    Put32(bytes, width);
    Put32(bytes, height);  // positive: rows from the bottom
    Put16(bytes, 1);       // planes
    Put16(bytes, 8);       // bits per pixel
    Put32(bytes, 0);       // uncompressed
    Put32(bytes, static_cast<std::uint32_t>(pixelBytes));
    Put32(bytes, 0);  // pixels per metre, across and down: not given
    Put32(bytes, 0);
    Put32(bytes, 0);  // biClrUsed: all 256
    Put32(bytes, 0);  // biClrImportant: no entry moves
    bytes.insert(bytes.end(), palette, palette + std::size_t(colors) * 4);
    bytes.resize(kPixelOffset);
    for (int y = height - 1; y >= 0; --y) {
        const std::uint8_t* const row = indices + std::size_t(y) * width;
        bytes.insert(bytes.end(), row, row + width);
        bytes.resize((bytes.size() - kPixelOffset + 3) / 4 * 4 + kPixelOffset);
    }
    return bytes;
}

}  // namespace vistrel::bmp
