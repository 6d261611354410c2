// A file whose bytes are handed over in pieces, as those of a file on a disk.
#pragma once

#include <algorithm>

#include "pictures/picture_file.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

class Pieces : public pictures::ByteSource {
 public:
    /// What `bytes` are of must outlive this.
    explicit Pieces(pictures::FileBytes bytes) : bytes_(bytes) {}

    std::size_t size() const override { return bytes_.size(); }

    void Read(std::size_t at, std::span<std::uint8_t> to) override {
        const pictures::FileBytes piece = bytes_.subspan(at, to.size());
        std::copy(piece.begin(), piece.end(), to.begin());
        largest_ = std::max(largest_, to.size());
    }

    pictures::PictureFile File() { return pictures::PictureFile(*this); }

    /// Bytes that were asked for at once.
    std::size_t largest() const { return largest_; }

 private:
    const pictures::FileBytes bytes_;
    std::size_t largest_ = 0;
};

}  // namespace vistrel::test
