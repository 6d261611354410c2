// Pictures that tests make up: varied enough that no two pixels, rows or channels can be mixed up
// without being noticed.
#pragma once

#include "pictures/rgb_picture.h"

namespace vistrel::test {

using Bytes = std::vector<std::uint8_t>;

/// Numbers that look random and are the same everywhere (an xorshift generator).
class Numbers {
 public:
    explicit Numbers(std::uint32_t start) : state_(start * 2654435769u + 1) {}

    /// The next number, 0 to `below` - 1.
    std::uint32_t Next(std::uint32_t below);

 private:
    std::uint32_t state_;
};

/// Gradients with some noise.
pictures::RgbPicture MakePicture(int width, int height);

/// width * height colour numbers below `colors`: runs of several lengths, and single pixels.
Bytes MakeIndices(int width, int height, int colors);

}  // namespace vistrel::test
