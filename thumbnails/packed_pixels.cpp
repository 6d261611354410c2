#include "thumbnails/packed_pixels.h"

#include <array>

namespace vistrel::thumbnails {
namespace {

/// A channel's upper bits, rounded to the nearest of `most` steps.
unsigned Step(unsigned value, unsigned most) { return (value * most + 127) / 255; }

/// The value of each step, looked up: an old processor divides for longer than all else takes.
template <unsigned kMost>
constexpr std::array<std::uint8_t, kMost + 1> Values() {
    std::array<std::uint8_t, kMost + 1> values{};
    for (unsigned step = 0; step <= kMost; ++step)
        values[step] = static_cast<std::uint8_t>((step * 255 + kMost / 2) / kMost);
    return values;
}
constexpr auto kFiveBits = Values<31>();
constexpr auto kSixBits = Values<63>();

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
    picture.pixels.resize(packed.size() / 2 * 3);
    std::uint8_t* out = picture.pixels.data();
    for (std::size_t i = 0; i + 1 < packed.size(); i += 2) {
        const unsigned word = packed[i] | unsigned{packed[i + 1]} << 8;
        *out++ = kFiveBits[word >> 11];
        *out++ = kSixBits[word >> 5 & 63];
        *out++ = kFiveBits[word & 31];
    }
    return picture;
}

}  // namespace vistrel::thumbnails
