#include "pictures/screen/check.h"

#include <algorithm>

#include "pictures/bmp/header.h"
#include "pictures/convert.h"
#include "pictures/little_endian.h"
#include "pictures/screen/any_indices.h"
#include "pictures/screen/indexed_screen.h"

namespace vistrel::screen {
namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::size_t kHeaderSizeOffset = 14;
constexpr std::size_t kColorsUsedOffset = 46;
constexpr std::uint32_t kWindowsHeader = 40;
constexpr std::size_t kColors = 256;

bool HasShortPalette(pictures::FileBytes file, const bmp::BmpHeader& header,
                     std::uint32_t headerSize) {
    if (header.bitsPerPixel != 8) return false;
    const std::uint32_t used =
        headerSize >= kWindowsHeader ? pictures::DoubleWord(file, kColorsUsedOffset) : 0;
    const std::size_t entry = headerSize < 16 ? 3 : 4;
    const std::size_t room =
        header.pixelOffset - std::min(header.pixelOffset, kFileHeader + headerSize);
    return (used > 0 && used < kColors) || room < kColors * entry;
}

bool HasShortPixels(pictures::FileBytes file, const bmp::BmpHeader& header) {
    const std::size_t pixels = header.RowBytes() * header.height;
    return file.size() - std::min(file.size(), header.pixelOffset) < pixels;
}

/// Whether no pixel has one of the colours that move.
bool AllStand(pictures::FileBytes file, const bmp::BmpHeader& header, std::uint32_t first) {
    const auto indices = ReadAnyIndices(file, header);
    return indices && std::all_of(indices->begin(), indices->end(),
                                  [&](std::uint8_t index) { return index < first; });
}

}  // namespace

std::vector<ScreenFault> FaultsOfScreen(pictures::FileBytes file) {
    const auto header = bmp::ReadBmpHeader(file);
    if (!header || !CanBeRead(file, *header)) return {ScreenFault::NotABitmap};

    std::vector<ScreenFault> faults;
    const auto note = [&](bool wrong, ScreenFault fault) {
        if (wrong) faults.push_back(fault);
    };
    const bool encoded = header->compression != bmp::BmpCompression::None;
    const std::uint32_t headerSize = pictures::DoubleWord(file, kHeaderSizeOffset);
    const std::uint32_t first = FirstAnimated(file);
    note(encoded, ScreenFault::RunLengthEncoded);
    note(header->bitsPerPixel != 8, ScreenFault::NotEightBits);
    note(header->width != pictures::kLogoWidth || header->height != pictures::kLogoHeight,
         ScreenFault::WrongSize);
    note(headerSize < kWindowsHeader, ScreenFault::Os2Header);
    note(headerSize > kWindowsHeader, ScreenFault::LongHeader);
    note(header->topDown, ScreenFault::TopDown);
    note(HasShortPalette(file, *header, headerSize), ScreenFault::ShortPalette);
    note(!encoded && HasShortPixels(file, *header), ScreenFault::ShortPixels);
    note(first >= kColors, ScreenFault::CountOfColors);
    note(
        first > 0 && first < kColors && header->bitsPerPixel <= 8 && AllStand(file, *header, first),
        ScreenFault::NothingMoves);
    return faults;
}

const char* InWords(ScreenFault fault) {
    switch (fault) {
        case ScreenFault::NotABitmap:
            return "is no bitmap";
        case ScreenFault::RunLengthEncoded:
            return "is run-length encoded";
        case ScreenFault::NotEightBits:
            return "does not have 8 bits a pixel";
        case ScreenFault::WrongSize:
            return "does not have 320 x 400 pixels";
        case ScreenFault::Os2Header:
            return "has a header of OS/2";
        case ScreenFault::LongHeader:
            return "has a header that is too new";
        case ScreenFault::TopDown:
            return "has its rows from the top";
        case ScreenFault::ShortPalette:
            return "has fewer than 256 colours";
        case ScreenFault::ShortPixels:
            return "ends before its last pixels";
        case ScreenFault::CountOfColors:
            return "gives a count where the first moving colour belongs";
        case ScreenFault::NothingMoves:
            return "moves colours that no pixel has";
    }
    return "";
}

}  // namespace vistrel::screen
