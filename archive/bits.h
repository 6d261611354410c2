// Bits of a part of a file, the lowest of each byte first.
#pragma once

#include <cstdint>

#include "pictures/picture_file.h"

namespace vistrel::archive {

class BitReader {
 public:
    /// The bytes from `begin` to before `end`.
    BitReader(const pictures::PictureFile& file, std::size_t begin, std::size_t end)
        : window_(file), next_(begin), end_(end) {}

    /// The next `count` (0 to 16) bits as a number, the first of them the lowest. Behind the end
    /// are zeros.
    std::uint32_t Take(int count) {
        while (held_ < count) Fill();
        const std::uint32_t bits = bits_ & ((1u << count) - 1);
        bits_ >>= count;
        held_ -= count;
        return bits;
    }

    /// Goes on with the next whole byte.
    void SkipToByte() { Take(held_ % 8); }

    /// True when more bits were taken than there are.
    bool IsBeyondEnd() const { return missing_ * 8 > held_; }

 private:
    void Fill() {
        if (next_ < end_)
            bits_ |= std::uint32_t{window_[next_++]} << held_;
        else
            ++missing_;
        held_ += 8;
    }

    pictures::FileWindow window_;
    std::size_t next_;
    std::size_t end_;
    std::uint32_t bits_ = 0;
    int held_ = 0;     ///< how many bits_ holds
    int missing_ = 0;  ///< bytes made up behind the end
};

}  // namespace vistrel::archive
