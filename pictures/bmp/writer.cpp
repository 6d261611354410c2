// The file is made in memory first: it is small, and then only one thing can go wrong with writing.
#include "pictures/bmp/writer.h"

#include <cstdio>
#include <memory>
#include <utility>

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

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

File Open(const std::string& path, const char* how) { return File(std::fopen(path.c_str(), how)); }

/// A file beside `path` that is new. What already has its name, a file or something that cannot be
/// opened, is left alone; of so many names one is free where files can be made at all.
struct NewFile {
    std::string path;
    File file;
};

NewFile MakeFileBeside(const std::string& path) {
    constexpr unsigned kNames = 50;
    const std::size_t slash = path.find_last_of("\\/:");
    const std::string folder = slash == std::string::npos ? "" : path.substr(0, slash + 1);
    for (unsigned number = 0; number < kNames; ++number) {
        char name[16];  // short enough for every file system
        std::snprintf(name, sizeof name, "~vs%05u.tmp", number);
        if (Open(folder + name, "rb")) continue;
        if (File file = Open(folder + name, "wb")) return {folder + name, std::move(file)};
    }
    return {};
}

bool WriteInto(File file, const std::vector<std::uint8_t>& bytes) {
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file.get()) == bytes.size();
    // Closing writes what is still buffered: the disk may turn out to be full only here.
    return std::fclose(file.release()) == 0 && written;
}

bool Rename(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}

#ifdef _WIN32
// There the C library does not rename onto a file that exists: the former one steps aside, and
// comes back if the new one cannot take its place.
bool MoveOver(const std::string& from, const std::string& to) {
    if (Rename(from, to)) return true;
    // A folder, or a file that must not be written to, would step aside as readily.
    if (!Open(to, "r+b")) return false;
    const std::string aside = MakeFileBeside(to).path;
    if (aside.empty()) return false;
    std::remove(aside.c_str());
    if (!Rename(to, aside)) return false;
    const bool moved = Rename(from, to);
    if (moved) {
        std::remove(aside.c_str());
    } else {
        Rename(aside, to);
    }
    return moved;
}
#else
bool MoveOver(const std::string& from, const std::string& to) { return Rename(from, to); }
#endif

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

bool WriteWholeFile(const std::string& path, const std::vector<std::uint8_t>& bytes) {
    NewFile temporary = MakeFileBeside(path);
    if (!temporary.file) return false;
    if (WriteInto(std::move(temporary.file), bytes) && MoveOver(temporary.path, path)) return true;
    std::remove(temporary.path.c_str());
    return false;
}

}  // namespace vistrel::bmp
