// The rows of an uncompressed bitmap as they lie in its file.
#pragma once

#include <optional>
#include <vector>

#include "pictures/bmp/header.h"
#include "pictures/picture_file.h"

namespace vistrel::bmp {

/// Reads rows a few at a time: quick where they are asked for one after the other, from the top or
/// from the bottom.
class StoredRows {
 public:
    StoredRows(const pictures::PictureFile& file, const BmpHeader& header);

    /// The bytes of row `y`, counted from the top. What the file does not have is zeros. They stay
    /// until the next call.
    const std::uint8_t* Row(int y);

 private:
    static constexpr std::size_t kBytesAtOnce = 16384;

    const pictures::PictureFile file_;
    const std::size_t offset_;  // of the first row in the file
    const std::size_t rowBytes_;
    const int height_;
    const bool topDown_;
    const std::size_t rowsAtOnce_;
    std::vector<std::uint8_t> held_;
    std::optional<std::size_t> firstHeld_;  // by its place in the file
};

}  // namespace vistrel::bmp
