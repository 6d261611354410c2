#include "pictures/screen/display_dither.h"

#include <algorithm>

#include "platform/display_colors.h"

namespace vistrel::screen {
namespace {

constexpr int kChannels = 3;

/// Values that dithering may ask for lie so far outside of 0..255 at most: errors are never larger
/// than half the way from a level to the next, which is 32 for the five levels of blue.
constexpr int kOutside = 40;

/// The nearest level to each value that dithering may ask for.
struct Channel {
    /// What the level adds to a colour's number, and its value.
    struct Level {
        std::uint8_t number = 0;
        std::uint8_t value = 0;
    };
    Level nearest[kOutside + 256 + kOutside];

    constexpr explicit Channel(int channel) {
        const int levels = platform::kDisplayLevels[channel];
        int unit = 1;
        for (int c = channel + 1; c < kChannels; ++c) unit *= platform::kDisplayLevels[c];
        for (int i = 0; i < kOutside + 256 + kOutside; ++i) {
            const int value = std::clamp(i - kOutside, 0, 255);
            const int level = (value * (levels - 1) + 127) / 255;
            nearest[i] = {static_cast<std::uint8_t>(level * unit),
                          platform::DisplayLevel(channel, level)};
        }
    }
};
constexpr Channel kScales[kChannels] = {Channel(0), Channel(1), Channel(2)};

/// Dithers a row of one channel, whose samples are three bytes apart, and adds its levels to the
/// colours' numbers. `errors` are those of the row above and become those for the row below, in
/// sixteenths, with one more in front of them, which is never read. A function by itself, with all
/// of a Pentium's few registers.
[[gnu::noinline]] void DitherRow(const Channel& scale, const std::uint8_t* sample, int width,
                                 int* errors, std::uint8_t* numbers) {
    const Channel::Level* const nearest = scale.nearest + kOutside;
    int next = 0;    // from the pixel to the left
    int corner = 0;  // for the pixel below, from the one to its left
    int below = 0;   // for the pixel below the one to the left, but for this one's part
    for (int x = 0; x < width; ++x, sample += kChannels) {
        const int wanted = *sample + ((errors[x + 1] + next + 8) >> 4);
        const Channel::Level level = nearest[wanted];
        const int off = wanted - level.value;
        numbers[x] = static_cast<std::uint8_t>(numbers[x] + level.number);
        next = 7 * off;
        errors[x] = below + 3 * off;
        below = corner + 5 * off;
        corner = off;
    }
    errors[width] = below;
}

}  // namespace

// Error diffusion of Floyd and Steinberg (1976), each channel by itself: what a pixel is too bright
// is taken from its neighbours, 7/16 from the next, 3, 5 and 1/16 from those below.
std::vector<std::uint8_t> DitherToDisplayColors(const std::uint8_t* rgb, int width, int height) {
    const std::size_t stride = (static_cast<std::size_t>(width) + 3) & ~std::size_t{3};
    std::vector<std::uint8_t> numbers(stride * height);
    for (int channel = 0; channel < kChannels; ++channel) {
        std::vector<int> errors(static_cast<std::size_t>(width) + 1);
        for (int y = 0; y < height; ++y)
            DitherRow(kScales[channel],
                      rgb + static_cast<std::size_t>(y) * width * kChannels + channel, width,
                      errors.data(), &numbers[y * stride]);
    }
    return numbers;
}

}  // namespace vistrel::screen
