// Turns BMP files into the pictures of a help file: other headers, the same palette and rows.
#include "help/compiler/pictures.h"

#include "help/compiler/bytes.h"

namespace vistrel::help {
namespace {

// Of a BMP file.
constexpr std::size_t kHeadersSize = 14 + 40;
constexpr std::uint32_t kLargestSide = 4096;

constexpr unsigned kDotsPerInch = 96;

std::uint32_t GetNumber(const std::string& bytes, std::size_t offset, int width) {
    std::uint32_t value = 0;
    for (int i = width - 1; i >= 0; --i)
        value =
            value << 8 | static_cast<unsigned char>(bytes[offset + static_cast<std::size_t>(i)]);
    return value;
}

struct Bmp {
    std::uint32_t width, height, bits, colours, rowsOffset, rowsSize;
};

// Takes the headers apart; a reason when the file is not one that can be taken over.
const char* ReadHeaders(const std::string& file, Bmp& bmp) {
    if (file.size() < kHeadersSize || file.compare(0, 2, "BM") != 0 || GetNumber(file, 14, 4) != 40)
        return "is not a Windows BMP file";
    bmp.width = GetNumber(file, 18, 4);
    bmp.height = GetNumber(file, 22, 4);
    bmp.bits = GetNumber(file, 28, 2);
    if (bmp.bits != 1 && bmp.bits != 4 && bmp.bits != 8) return "has more than 256 colours";
    if (GetNumber(file, 30, 4) != 0) return "is compressed";
    if (bmp.width - 1 >= kLargestSide || bmp.height - 1 >= kLargestSide)
        return "is empty, too large or stored from the top down";
    bmp.colours = GetNumber(file, 46, 4);
    if (bmp.colours == 0) bmp.colours = 1u << bmp.bits;
    if (bmp.colours > 1u << bmp.bits) return "has a damaged palette";
    bmp.rowsOffset = GetNumber(file, 10, 4);
    bmp.rowsSize = (bmp.width * bmp.bits + 31) / 32 * 4 * bmp.height;
    if (kHeadersSize + bmp.colours * 4 > file.size() || bmp.rowsOffset > file.size() ||
        bmp.rowsSize > file.size() - bmp.rowsOffset)
        return "is cut short";
    return nullptr;
}

}  // namespace

bool PictureFile(const std::string& bmpFile, std::string& file, std::string& problem) {
    Bmp bmp;
    if (const char* reason = ReadHeaders(bmpFile, bmp)) {
        problem = reason;
        return false;
    }
    std::string picture;
    PutU8(picture, 6);  // a device-independent bitmap
    PutU8(picture, 0);  // not packed
    PutLong(picture, kDotsPerInch);
    PutLong(picture, kDotsPerInch);
    PutShort(picture, 1);  // planes
    PutShort(picture, bmp.bits);
    PutLong(picture, bmp.width);
    PutLong(picture, bmp.height);
    PutLong(picture, bmp.colours);
    PutLong(picture, 0);  // all colours matter
    PutLong(picture, bmp.rowsSize);
    PutLong(picture, 0);  // no hotspots
    const std::size_t headerSize = picture.size() + 8;
    PutU32(picture, static_cast<std::uint32_t>(headerSize + bmp.colours * 4));
    PutU32(picture, 0);
    picture += bmpFile.substr(kHeadersSize, bmp.colours * 4);
    picture += bmpFile.substr(bmp.rowsOffset, bmp.rowsSize);

    file.clear();
    PutU16(file, 0x506C);
    PutU16(file, 1);  // one picture
    PutU32(file, 8);  // which starts here
    file += picture;
    return true;
}

unsigned Pictures::NumberOf(const std::string& name, const SourcePlace& place) {
    const auto [found, isNew] = numbers_.emplace(name, static_cast<unsigned>(files_.size()));
    if (!isNew) return found->second;
    std::string file, problem = "cannot be read";
    const std::optional<std::string> bmp = load_(name);
    if (!bmp || !PictureFile(*bmp, file, problem))
        errors_.push_back({place, "picture '" + name + "' " + problem});
    files_.push_back(file);
    return found->second;
}

}  // namespace vistrel::help
