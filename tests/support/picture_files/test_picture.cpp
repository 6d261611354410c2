// Makes up pictures for tests.
#include "tests/support/picture_files/test_picture.h"

#include <algorithm>

namespace vistrel::test {

using namespace pictures;

std::uint32_t Numbers::Next(std::uint32_t below) {
    state_ ^= state_ << 13;
    state_ ^= state_ >> 17;
    state_ ^= state_ << 5;
    return state_ % below;
}

RgbPicture MakePicture(int width, int height) {
    Numbers numbers(static_cast<std::uint32_t>(width * 1000 + height));
    RgbPicture picture{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const int noise = static_cast<int>(numbers.Next(16));
            picture.pixels.push_back(static_cast<std::uint8_t>(240 * x / width + noise));
            picture.pixels.push_back(static_cast<std::uint8_t>(240 * y / height + 15 - noise));
            picture.pixels.push_back(
                static_cast<std::uint8_t>(240 * (x + y) / (width + height) + noise / 2));
        }
    }
    return picture;
}

Bytes MakeIndices(int width, int height, int colors) {
    Numbers numbers(static_cast<std::uint32_t>(width * 1000 + height + colors));
    const std::size_t pixels = std::size_t(width) * height;
    Bytes indices;
    while (indices.size() < pixels) {
        const std::size_t longest = numbers.Next(3) == 0 ? 300 : 4;
        const std::size_t run = 1 + numbers.Next(static_cast<std::uint32_t>(longest));
        const auto index = static_cast<std::uint8_t>(numbers.Next(colors));
        indices.insert(indices.end(), std::min(run, pixels - indices.size()), index);
    }
    return indices;
}

}  // namespace vistrel::test
