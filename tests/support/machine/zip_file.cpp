#include "tests/support/machine/zip_file.h"

#include "archive/zip_writer.h"

namespace vistrel::test {

std::string ZipOf(const std::vector<Packed>& files) {
    std::string zip;
    archive::ZipWriter writer([&](std::span<const std::uint8_t> bytes) {
        zip.append(bytes.begin(), bytes.end());
        return true;
    });
    for (const Packed& file : files)
        writer.Add(file.name, kPackedAt,
                   std::vector<std::uint8_t>(file.contents.begin(), file.contents.end()));
    writer.Finish();
    return zip;
}

}  // namespace vistrel::test
