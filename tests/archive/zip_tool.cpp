// zip_tool pack ARCHIVE FILE...: puts files into an archive by the names that they are called by.
// zip_tool unpack ARCHIVE FOLDER: unpacks all files into a folder, as 1, 2, ... in the archive's
// order; prints each name, or the fault that ends it.
#include <cstdio>
#include <fstream>
#include <iostream>
#include <iterator>

#include "archive/zip_reader.h"
#include "archive/zip_writer.h"

namespace {

using namespace vistrel::archive;
using Bytes = std::vector<std::uint8_t>;

constexpr std::uint32_t kModified = (31u << 25 | 5u << 21 | 17u << 16) | (13u << 11 | 37u << 5);

Bytes ReadAll(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return Bytes(std::istreambuf_iterator<char>(in), {});
}

int Pack(const std::string& archive, int count, char** files) {
    std::ofstream out(archive, std::ios::binary);
    ZipWriter writer([&](std::span<const std::uint8_t> bytes) {
        out.write(reinterpret_cast<const char*>(bytes.data()),
                  static_cast<std::streamsize>(bytes.size()));
        return out.good();
    });
    for (int i = 0; i < count; ++i) {
        const Bytes content = ReadAll(files[i]);
        if (!writer.Add(files[i], kModified, content)) return 1;
    }
    return writer.Finish() ? 0 : 1;
}

int UnpackAll(const std::string& archive, const std::string& folder) {
    const Bytes file = ReadAll(archive);
    const Directory all = ReadDirectory(file, [](const std::string& name) { return name; });
    std::cout << InWords(all.fault);
    int number = 0;
    for (const Entry& entry : all.entries) {
        if (entry.IsFolder()) continue;
        std::ofstream out(folder + "/" + std::to_string(++number), std::ios::binary);
        const ArchiveFault fault = Unpack(file, entry, [&](std::span<const std::uint8_t> bytes) {
            out.write(reinterpret_cast<const char*>(bytes.data()),
                      static_cast<std::streamsize>(bytes.size()));
            return out.good();
        });
        std::cout << entry.name << InWords(fault) << "\n";
    }
    return 0;
}

}  // namespace

int main(int count, char** arguments) {
    const std::string verb = count > 3 ? arguments[1] : "";
    if (verb == "pack") return Pack(arguments[2], count - 3, arguments + 3);
    if (verb == "unpack") return UnpackAll(arguments[2], arguments[3]);
    return 2;
}
