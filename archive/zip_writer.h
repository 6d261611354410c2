// Writes ZIP files that any unzip unpacks: entries are stored as they are.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "archive/inflate.h"
#include "pictures/picture_file.h"

namespace vistrel::archive {

/// Add what is to be in the archive, then Finish. Each is false when `out`, which takes the
/// archive's bytes, was: the archive is then worth nothing.
class ZipWriter {
 public:
    explicit ZipWriter(Sink out) : out_(std::move(out)) {}

    /// A file by this name, which is UTF-8 with "/" between folders. `modified` as MS-DOS keeps it.
    /// The content is read twice. False too for more than a ZIP file has room for.
    bool Add(const std::string& name, std::uint32_t modified, const pictures::PictureFile& content);

    bool Finish();

 private:
    bool Write(std::span<const std::uint8_t> bytes);

    Sink out_;
    std::vector<std::uint8_t> directory_;
    std::uint32_t written_ = 0;
    std::uint16_t entries_ = 0;
};

}  // namespace vistrel::archive
