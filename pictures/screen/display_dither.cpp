#include "pictures/screen/display_dither.h"

#include <algorithm>

#include "platform/display_colors.h"

namespace vistrel::screen {
namespace {

constexpr int kChannels = 3;

/// The values of a channel's levels, and the level that is nearest to each value.
struct Channel {
    std::uint8_t values[8] = {};
    std::uint8_t nearest[256] = {};

    constexpr explicit Channel(int channel) {
        const int levels = platform::kDisplayLevels[channel];
        for (int i = 0; i < levels; ++i) values[i] = platform::DisplayLevel(channel, i);
        for (int value = 0; value < 256; ++value)
            nearest[value] = static_cast<std::uint8_t>((value * (levels - 1) + 127) / 255);
    }
};
constexpr Channel kScales[kChannels] = {Channel(0), Channel(1), Channel(2)};

}  // namespace

// Error diffusion of Floyd and Steinberg (1976), each channel by itself: what a pixel is too bright
// is taken from its neighbours, 7/16 from the next, 3, 5 and 1/16 from those below.
std::vector<std::uint8_t> DitherToDisplayColors(const std::uint8_t* rgb, int width, int height) {
    const int stride = (width + 3) & ~3;
    std::vector<std::uint8_t> indices(static_cast<std::size_t>(stride) * height);
    // In sixteenths; one pixel more at either end, which is never read.
    std::vector<int> errors(static_cast<std::size_t>(width + 2) * kChannels);
    for (int y = 0; y < height; ++y) {
        std::uint8_t* out = &indices[static_cast<std::size_t>(y) * stride];
        int next[kChannels] = {};    // from the pixel to the left
        int corner[kChannels] = {};  // for the pixel below, from the one to its left
        int* error = errors.data() + kChannels;
        for (int x = 0; x < width; ++x, ++out) {
            int index = 0;
            for (int c = 0; c < kChannels; ++c, ++rgb, ++error) {
                const int wanted = *rgb + ((*error + next[c] + 8) >> 4);
                const int level = kScales[c].nearest[std::clamp(wanted, 0, 255)];
                const int off = wanted - kScales[c].values[level];
                index = index * platform::kDisplayLevels[c] + level;
                next[c] = 7 * off;
                error[-kChannels] += 3 * off;
                *error = corner[c] + 5 * off;
                corner[c] = off;
            }
            *out = static_cast<std::uint8_t>(index);
        }
    }
    return indices;
}

}  // namespace vistrel::screen
