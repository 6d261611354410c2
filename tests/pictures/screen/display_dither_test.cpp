// Dithering for displays of 256 colours.
#include "pictures/screen/display_dither.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

#include "platform/display_colors.h"

namespace vistrel {
namespace {

using platform::kDisplayLevels;

/// The same as plainly as it can be written: each error goes to the neighbours when it is made.
std::vector<std::uint8_t> PlainlyDithered(const std::vector<std::uint8_t>& rgb, int width,
                                          int height) {
    const int stride = (width + 3) / 4 * 4;
    std::vector<std::uint8_t> numbers(static_cast<std::size_t>(stride) * height);
    for (int c = 0; c < 3; ++c) {
        // A column more on either side, and a row below.
        const int across = width + 2;
        std::vector<int> errors(static_cast<std::size_t>(across) * (height + 1));
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                int* const error = &errors[static_cast<std::size_t>(y) * across + x + 1];
                const int wanted =
                    rgb[(static_cast<std::size_t>(y) * width + x) * 3 + c] + ((*error + 8) >> 4);
                const int steps = kDisplayLevels[c] - 1;
                const int level = (std::clamp(wanted, 0, 255) * steps + 127) / 255;
                const int off = wanted - platform::DisplayLevel(c, level);
                error[1] += 7 * off;
                error[across - 1] += 3 * off;
                error[across] += 5 * off;
                error[across + 1] += off;
                std::uint8_t& number = numbers[static_cast<std::size_t>(y) * stride + x];
                number = static_cast<std::uint8_t>(number * kDisplayLevels[c] + level);
            }
    }
    return numbers;
}

std::vector<std::uint8_t> Pixels(int width, int height,
                                 const std::function<int(int x, int y, int c)>& value) {
    std::vector<std::uint8_t> rgb;
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            for (int c = 0; c < 3; ++c) rgb.push_back(static_cast<std::uint8_t>(value(x, y, c)));
    return rgb;
}

TEST(DisplayDither, HandsEachErrorToTheNeighbours) {
    unsigned noise = 1;
    const std::function<int(int, int, int)> kinds[] = {
        [](int x, int y, int c) { return x * 3 + y * (c + 1); },
        [](int x, int, int c) { return x * (c + 2) % 2 * 255; },
        [](int x, int y, int) { return (x ^ y) / 4 % 2 * 255; },
        [](int, int, int c) { return 223 + c * 16; },
        [](int, int, int c) { return 31 - c * 15; },
        [&](int, int, int) { return (noise = noise * 1664525 + 1013904223) >> 24; },
    };
    for (const auto& kind : kinds)
        for (const auto& [width, height] : {std::pair{61, 40}, {4, 9}, {1, 5}, {6, 1}}) {
            const auto rgb = Pixels(width, height, kind);
            ASSERT_EQ(screen::DitherToDisplayColors(rgb.data(), width, height),
                      PlainlyDithered(rgb, width, height))
                << &kind - kinds << ": " << width;
        }
}

}  // namespace
}  // namespace vistrel
