// Finds the orientation in EXIF data and turns pictures upright by it.
#include "pictures/jpg/exif_orientation.h"

#include <algorithm>
#include <cstring>
#include <utility>

namespace vistrel::jpg {
namespace {

constexpr std::uint8_t kExifMark[6] = {'E', 'x', 'i', 'f', 0, 0};
constexpr std::size_t kHeaderBytes = 8;
constexpr std::size_t kEntryBytes = 12;
constexpr unsigned kOrientationTag = 0x0112;
constexpr unsigned kShortType = 3;

// Numbers of a TIFF structure, in the byte order that its header names. Beyond the end they are 0.
struct TiffNumbers {
    pictures::FileBytes bytes;
    bool bigEndian;

    unsigned Byte(std::size_t at) const { return at < bytes.size() ? bytes[at] : 0; }
    unsigned Short(std::size_t at) const {
        return bigEndian ? Byte(at) << 8 | Byte(at + 1) : Byte(at + 1) << 8 | Byte(at);
    }
    std::size_t Long(std::size_t at) const {
        const std::size_t first = Short(at), second = Short(at + 2);
        return bigEndian ? first << 16 | second : second << 16 | first;
    }
};

}  // namespace

Turning TurningOf(int orientation) {
    switch (orientation) {
        case 2:
            return {false, true, false};
        case 3:
            return {false, true, true};
        case 4:
            return {false, false, true};
        case 5:
            return {true, false, false};
        case 6:
            return {true, true, false};
        case 7:
            return {true, true, true};
        case 8:
            return {true, false, true};
        default:
            return {};
    }
}

int ReadExifOrientation(pictures::FileBytes segment) {
    if (segment.size() < sizeof kExifMark + kHeaderBytes) return 0;
    if (std::memcmp(segment.data(), kExifMark, sizeof kExifMark) != 0) return 0;
    const pictures::FileBytes tiff = segment.subspan(sizeof kExifMark);
    if (tiff[0] != tiff[1] || (tiff[0] != 'I' && tiff[0] != 'M')) return 0;
    const TiffNumbers numbers{tiff, tiff[0] == 'M'};
    const std::size_t directory = numbers.Long(4);
    if (directory >= tiff.size()) return 0;
    const unsigned entries = numbers.Short(directory);
    for (unsigned i = 0; i < entries; ++i) {
        const std::size_t entry = directory + 2 + i * kEntryBytes;
        if (entry + kEntryBytes > tiff.size()) return 0;
        if (numbers.Short(entry) != kOrientationTag || numbers.Short(entry + 2) != kShortType) {
            continue;
        }
        const unsigned value = numbers.Short(entry + 8);
        return value >= 1 && value <= 8 ? static_cast<int>(value) : 0;
    }
    return 0;
}

UprightPlace::UprightPlace(const Turning& turning, int width, int height)
    : storedWidth_(width), width_(width), height_(height) {
    if (turning.swapSides) std::swap(width_, height_);
    std::ptrdiff_t across = 1, down = width_;
    origin_ = 0;
    if (turning.mirrorAcross) {
        origin_ += width_ - 1;
        across = -across;
    }
    if (turning.mirrorDown) {
        origin_ += static_cast<std::ptrdiff_t>(height_ - 1) * width_;
        down = -down;
    }
    stepX_ = turning.swapSides ? down : across;
    stepY_ = turning.swapSides ? across : down;
}

void UprightPlace::PutRow(const std::uint8_t* row, int y, std::uint8_t* pixels) const {
    std::uint8_t* to = pixels + (origin_ + y * stepY_) * 3;
    if (stepX_ == 1) {
        std::copy_n(row, static_cast<std::size_t>(storedWidth_) * 3, to);
        return;
    }
    for (int x = 0; x < storedWidth_; ++x, row += 3) {
        std::uint8_t* pixel = to + x * stepX_ * 3;
        pixel[0] = row[0];
        pixel[1] = row[1];
        pixel[2] = row[2];
    }
}

}  // namespace vistrel::jpg
