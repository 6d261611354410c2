#include "thumbnails/packed_pixels.h"

namespace vistrel::thumbnails {
namespace {

/// A channel's upper bits, rounded to the nearest of `most` steps.
unsigned Step(unsigned value, unsigned most) { return (value * most + 127) / 255; }

std::uint8_t Value(unsigned step, unsigned most) {
    return static_cast<std::uint8_t>((step * 255 + most / 2) / most);
}

}  // namespace

std::vector<std::uint8_t> PackPixels(const pictures::RgbPicture& picture) {
    std::vector<std::uint8_t> packed;
    packed.reserve(picture.pixels.size() / 3 * 2);
    for (std::size_t i = 0; i + 2 < picture.pixels.size(); i += 3) {
        const unsigned word = Step(picture.pixels[i], 31) << 11 |
                              Step(picture.pixels[i + 1], 63) << 5 |
                              Step(picture.pixels[i + 2], 31);
        packed.push_back(static_cast<std::uint8_t>(word & 0xff));
        packed.push_back(static_cast<std::uint8_t>(word >> 8));
    }
    return packed;
}

pictures::RgbPicture UnpackPixels(pictures::FileBytes packed, int width, int height) {
    pictures::RgbPicture picture{width, height, {}};
    picture.pixels.reserve(packed.size() / 2 * 3);
    for (std::size_t i = 0; i + 1 < packed.size(); i += 2) {
        const unsigned word = packed[i] | unsigned{packed[i + 1]} << 8;
        picture.pixels.push_back(Value(word >> 11, 31));
        picture.pixels.push_back(Value(word >> 5 & 63, 63));
        picture.pixels.push_back(Value(word & 31, 31));
    }
    return picture;
}

}  // namespace vistrel::thumbnails
