// Reads a picture file into memory in one piece, by the C library: it takes ANSI paths everywhere.
#include "pictures/whole_file.h"

#include <cstdio>
#include <memory>

namespace vistrel::pictures {

namespace {

struct CloseFile {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

// -1 for what has no size, such as a folder where the C library opens these.
long SizeOf(std::FILE* file) {
    if (std::fseek(file, 0, SEEK_END) != 0) return -1;
    const long size = std::ftell(file);
    return std::fseek(file, 0, SEEK_SET) == 0 ? size : -1;
}

}  // namespace

std::optional<std::vector<std::uint8_t>> ReadWholeFile(const std::string& path) {
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(path.c_str(), "rb"));
    if (!file) return std::nullopt;
    const long size = SizeOf(file.get());
    if (size < 0 || size > kLargestFile) return std::nullopt;
    std::vector<std::uint8_t> bytes(static_cast<std::size_t>(size));
    if (std::fread(bytes.data(), 1, bytes.size(), file.get()) != bytes.size()) return std::nullopt;
    return bytes;
}

}  // namespace vistrel::pictures
