// Reads the headers of a bitmap file.
#include "pictures/bmp/header.h"

#include <algorithm>

#include "pictures/little_endian.h"

namespace vistrel::bmp {

namespace {

constexpr std::size_t kFileHeader = 14;
constexpr std::uint32_t kCoreHeader = 12;  // OS/2 1.x: 16-bit sizes, palette entries of 3 bytes
constexpr std::uint32_t kInfoHeader = 40;
constexpr std::uint32_t kSmallestOs2Header = 16;  // OS/2 2.x headers may end after any field
constexpr std::uint32_t kLargestHeader = 124;
constexpr std::size_t kMostMasks = 16;  // bytes between header and palette

// The values of biCompression.
constexpr std::uint32_t kRgb = 0;
constexpr std::uint32_t kRle8 = 1;
constexpr std::uint32_t kRle4 = 2;
constexpr std::uint32_t kBitFields = 3;
constexpr std::uint32_t kAlphaBitFields = 6;

// The header's fields as they stand in the file.
struct Fields {
    std::uint32_t headerSize = 0;
    std::int64_t width = 0;
    std::int64_t height = 0;
    std::uint32_t bitsPerPixel = 0;
    std::uint32_t compression = kRgb;
    std::uint32_t colorsUsed = 0;

    bool HasMasks() const { return compression == kBitFields || compression == kAlphaBitFields; }
    std::size_t PaletteEntryBytes() const { return headerSize == kCoreHeader ? 3 : 4; }
};

std::optional<Fields> ReadFields(pictures::FileBytes file) {
    Fields fields;
    fields.headerSize = pictures::DoubleWord(file, kFileHeader);
    if (fields.headerSize == kCoreHeader) {
        fields.width = pictures::Word(file, 18);
        fields.height = pictures::Word(file, 20);
        fields.bitsPerPixel = pictures::Word(file, 24);
        return fields;
    }
    if (fields.headerSize < kSmallestOs2Header || fields.headerSize > kLargestHeader ||
        file.size() < kFileHeader + fields.headerSize) {
        return std::nullopt;
    }
    const pictures::FileBytes header = file.first(kFileHeader + fields.headerSize);
    fields.width = static_cast<std::int32_t>(pictures::DoubleWord(header, 18));
    fields.height = static_cast<std::int32_t>(pictures::DoubleWord(header, 22));
    fields.bitsPerPixel = pictures::Word(header, 28);
    fields.compression = pictures::DoubleWord(header, 30);
    fields.colorsUsed = pictures::DoubleWord(header, 46);
    return fields;
}

bool IsWindowsHeader(std::uint32_t size) {
    return size == kInfoHeader || size == 52 || size == 56 || size == 108 || size == kLargestHeader;
}

bool IsReadable(const Fields& fields) {
    const std::uint32_t bits = fields.bitsPerPixel;
    switch (fields.compression) {
        case kRgb:
            return bits == 1 || bits == 2 || bits == 4 || bits == 8 || bits == 16 || bits == 24 ||
                   bits == 32;
        case kRle8:
            return bits == 8;
        case kRle4:
            return bits == 4;
        case kBitFields:
        case kAlphaBitFields:
            // In an OS/2 2.x header the same number stands for a facsimile code.
            return (bits == 16 || bits == 32) && IsWindowsHeader(fields.headerSize);
        default:
            return false;
    }
}

std::array<std::uint32_t, 3> Masks(pictures::FileBytes file, const Fields& fields) {
    // Behind a 40-byte header or within a longer one: the masks lie at the same place.
    constexpr std::size_t offset = kFileHeader + kInfoHeader;
    if (fields.HasMasks()) {
        return {pictures::DoubleWord(file, offset), pictures::DoubleWord(file, offset + 4),
                pictures::DoubleWord(file, offset + 8)};
    }
    if (fields.bitsPerPixel == 16) return {0x7C00, 0x03E0, 0x001F};
    return {0xFF0000, 0x00FF00, 0x0000FF};
}

std::size_t PaletteOffset(const Fields& fields) {
    std::size_t offset = kFileHeader + fields.headerSize;
    if (fields.headerSize == kInfoHeader && fields.HasMasks()) {
        offset += fields.compression == kAlphaBitFields ? kMostMasks : 12;
    }
    return offset;
}

std::size_t PaletteEntries(const Fields& fields) {
    if (fields.bitsPerPixel > 8) return fields.colorsUsed;  // a hint for 256-colour displays
    return fields.colorsUsed != 0 ? fields.colorsUsed : std::size_t{1} << fields.bitsPerPixel;
}

// The pixels' place as the file gives it, or behind the palette where that cannot be right: when
// the header counts palette colours, at least one of them comes before the pixels.
std::size_t PixelOffset(std::size_t fileSize, std::size_t given, const Fields& fields) {
    const std::size_t palette = PaletteOffset(fields);
    const std::size_t entry = fields.PaletteEntryBytes();
    const bool hasPalette = fields.bitsPerPixel <= 8 && fields.colorsUsed > 0;
    const std::size_t least = hasPalette ? palette + entry : palette;
    if (given >= least && given < fileSize) return given;
    const std::size_t room = fileSize - std::min(fileSize, palette);
    return palette + std::min(PaletteEntries(fields), room / entry) * entry;
}

std::array<RgbColor, 256> Palette(pictures::FileBytes file, const Fields& fields,
                                  std::size_t pixelOffset) {
    std::array<RgbColor, 256> palette{};
    if (fields.bitsPerPixel > 8) return palette;
    const std::size_t bytes = fields.PaletteEntryBytes();
    const std::size_t offset = PaletteOffset(fields);
    const std::size_t end = std::min(pixelOffset, file.size());
    const std::size_t entries = std::min(
        {PaletteEntries(fields), palette.size(), end > offset ? (end - offset) / bytes : 0});
    for (std::size_t i = 0; i < entries; ++i) {
        const pictures::FileBytes entry = file.subspan(offset + i * bytes, bytes);
        palette[i] = {entry[2], entry[1], entry[0]};  // stored as blue, green, red
    }
    return palette;
}

}  // namespace

std::optional<BmpHeader> ReadBmpHeader(const pictures::PictureFile& whole) {
    // As far as a palette can reach.
    std::array<std::uint8_t, kFileHeader + kLargestHeader + kMostMasks + 256 * 4> start;
    whole.Copy(0, start);
    const pictures::FileBytes file =
        pictures::FileBytes(start).first(std::min(start.size(), whole.size()));
    if (file.size() < kFileHeader + kCoreHeader || file[0] != 'B' || file[1] != 'M') {
        return std::nullopt;
    }
    const std::optional<Fields> fields = ReadFields(file);
    if (!fields || !IsReadable(*fields)) return std::nullopt;
    // A negative height stands for rows from the top.
    const std::int64_t height = fields->height < 0 ? -fields->height : fields->height;
    if (!pictures::IsPlausibleSize(fields->width, height)) return std::nullopt;

    BmpHeader header;
    header.width = static_cast<int>(fields->width);
    header.height = static_cast<int>(height);
    header.topDown = fields->height < 0;
    header.bitsPerPixel = static_cast<int>(fields->bitsPerPixel);
    if (fields->compression == kRle8) header.compression = BmpCompression::Rle8;
    if (fields->compression == kRle4) header.compression = BmpCompression::Rle4;
    header.masks = Masks(file, *fields);
    header.pixelOffset = PixelOffset(whole.size(), pictures::DoubleWord(file, 10), *fields);
    header.palette = Palette(file, *fields, header.pixelOffset);
    return header;
}

}  // namespace vistrel::bmp
