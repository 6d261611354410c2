#include "thumbnails/packed_pixels.h"

namespace vistrel::thumbnails {
namespace {

/// A channel's values in fewer steps, 0 to `kMost`: looked up, since dividing takes a Pentium
/// longer than all else here.
template <unsigned kMost>
struct Channel {
    std::uint8_t steps[256] = {};  ///< the nearest to each value
    std::uint8_t values[kMost + 1] = {};

    constexpr Channel() {
        for (unsigned value = 0; value < 256; ++value)
            steps[value] = static_cast<std::uint8_t>((value * kMost + 127) / 255);
        for (unsigned step = 0; step <= kMost; ++step)
            values[step] = static_cast<std::uint8_t>((step * 255 + kMost / 2) / kMost);
    }
};
constexpr Channel<31> kRedOrBlue;
constexpr Channel<63> kGreen;

}  // namespace

std::vector<std::uint8_t> PackPixels(const pictures::RgbPicture& picture) {
    const std::size_t count = picture.pixels.size() / 3;
    std::vector<std::uint8_t> packed(count * 2);
    const std::uint8_t* in = picture.pixels.data();
    std::uint8_t* out = packed.data();
    for (std::size_t left = count; left > 0; --left, in += 3, out += 2) {
        const unsigned word = unsigned{kRedOrBlue.steps[in[0]]} << 11 |
                              unsigned{kGreen.steps[in[1]]} << 5 | kRedOrBlue.steps[in[2]];
        out[0] = static_cast<std::uint8_t>(word & 0xff);
        out[1] = static_cast<std::uint8_t>(word >> 8);
    }
    return packed;
}

pictures::RgbPicture UnpackPixels(pictures::FileBytes packed, int width, int height) {
    const std::size_t count = packed.size() / 2;
    pictures::RgbPicture picture{width, height, std::vector<std::uint8_t>(count * 3)};
    const std::uint8_t* in = packed.data();
    std::uint8_t* out = picture.pixels.data();
    for (std::size_t left = count; left > 0; --left, in += 2, out += 3) {
        const unsigned word = in[0] | unsigned{in[1]} << 8;
        out[0] = kRedOrBlue.values[word >> 11];
        out[1] = kGreen.values[word >> 5 & 63];
        out[2] = kRedOrBlue.values[word & 31];
    }
    return picture;
}

}  // namespace vistrel::thumbnails
