// The splash screen: dawn over the sea, with the program's name in the sky.
#include <cmath>

#include "art/brush/kestrel.h"
#include "art/brush/lettering.h"
#include "art/brush/noise.h"
#include "art/resources/pictures.h"
#include "pictures/reduce/quantize.h"
#include "pictures/scale/resize.h"

namespace vistrel::art {
namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 240;
constexpr double kHorizon = 176;
constexpr double kSunX = 118;

void PaintSky(Painting& painting) {
    painting.Fill(Vertical({{0, Hex(0x0E1450)},
                            {60, Hex(0x3A2A78)},
                            {115, Hex(0x96488C)},
                            {150, Hex(0xE87868)},
                            {176, Hex(0xFFC070)}}));
    painting.Glow(kSunX, kHorizon, 190, Hex(0x583808));
    painting.Glow(kSunX, kHorizon, 90, Hex(0x604820));
    // Thin clouds that catch the light from below.
    painting.Change([](double x, double y, const Tint& tint) {
        const double cloud = Clouds(x / 90, y / 9, 4, 5) - .52;
        if (cloud < 0 || y > kHorizon) return tint;
        return Mix(tint, Mix(Hex(0x6A4A90), Hex(0xFFD8A0), y / kHorizon), cloud * 2.2);
    });
    Dice dice(8);
    for (int i = 0; i < 40; ++i) {
        const double x = dice.Roll(0, kWidth), y = dice.Roll(0, 70);
        painting.Glow(x, y, dice.Roll(.8, 1.8), Hex(0xC0C0E0) * (1 - y / 80));
    }
    painting.Fill(Disc(kSunX, kHorizon + 4, 46),
                  Vertical({{130, Hex(0xFFFDE0)}, {kHorizon, Hex(0xFFD060)}}));
}

void PaintSea(Painting& painting) {
    painting.Fill(
        Box(0, kHorizon, kWidth, kHeight),
        Vertical({{kHorizon, Hex(0x7A5878)}, {196, Hex(0x34386C)}, {240, Hex(0x12183C)}}));
    // The sun's path on the water, broken into waves that widen towards the viewer.
    for (int row = 0; row < 26; ++row) {
        const double depth = row / 25.;
        const double y = kHorizon + 2 + 62 * depth * std::sqrt(depth);
        Dice dice(100 + row);
        for (int i = 0; i < 9; ++i) {
            const double reach = 46 + 30 * depth;
            const double x = kSunX + dice.Roll(-reach, reach),
                         length = dice.Roll(4, 9 + 20 * depth);
            const double strength =
                .75 * (1 - std::abs(x - kSunX) / (reach * 1.3)) * (1 - .45 * depth);
            painting.Fill(Ellipse(x, y, length, .7 + 1.1 * depth), Hex(0xFFD88C), strength, 1);
        }
    }
}

}  // namespace

Pixels SplashPicture() {
    Painting painting(kWidth, kHeight, kWidth * 3, kHeight * 3);
    PaintSky(painting);
    PaintSea(painting);
    painting.Fill(Kestrel(66, 66, 6.5), Hex(0x1A1440));
    const Hand hand{1.45, 1.4, 1.2, .55, false, 0};
    Letter(painting, WriteFrom(132, 99, 55, "Vistrel", hand),
           Vertical({{40, Hex(0xFFFFFF)}, {112, Hex(0xFFE8B8)}}), 3, Hex(0x140C34));
    const Hand small{.9, 0, 1.4, 1, false, 0};
    Letter(painting, WriteFrom(143, 125, 9.6, "Logo sets for startup and shutdown", small),
           Plain(Hex(0xFFF4E0)), 1, Hex(0x40204C));
    // A fine bevel closes the picture, since the splash screen has no border of its own.
    painting.Fill(Box(0, 0, kWidth, 1), Hex(0xFFFFFF), .5);
    painting.Fill(Box(0, 0, 1, kHeight), Hex(0xFFFFFF), .5);
    painting.Fill(Box(0, kHeight - 1, kWidth, kHeight), Hex(0x000000), .6);
    painting.Fill(Box(kWidth - 1, 0, kWidth, kHeight), Hex(0x000000), .6);

    const pictures::RgbPicture picture = scale::Resize(painting.Picture(), kWidth, kHeight);
    std::vector<std::uint8_t> indices(kWidth * kHeight), palette(256 * 4);
    reduce::QuantizeRgb(picture.pixels.data(), kWidth, kHeight, 256, indices.data(),
                        palette.data());
    Pixels pixels{kWidth, kHeight, {}};
    for (std::uint8_t index : indices) {
        const std::uint8_t* entry = &palette[index * 4];
        pixels.colors.push_back(entry[2] << 16 | entry[1] << 8 | entry[0]);
    }
    return pixels;
}

}  // namespace vistrel::art
