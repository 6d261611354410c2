// City Lights: windows, neon and their reflection in the river.
#include <algorithm>
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

constexpr double kQuay = 372;
const Hand kNeon{1, 1.6, 2, 1, false, 0};
const Hand kText{1.25, 0, 1.8, 1, false, 0};

// One row of houses; `lit` is how many of a hundred windows have light.
void Houses(Painting& painting, double low, double high, const Tint& wall, int lit, double pane,
            unsigned seed) {
    Dice dice(seed);
    for (double x = -14; x < kWidth;) {
        const double width = dice.Roll(34, 70), top = kQuay - dice.Roll(low, high);
        painting.Fill(Box(x, top, x + width - 2, kQuay),
                      Vertical({{top, wall * 1.25}, {kQuay, wall * .8}}));
        if (dice.Roll() < .35)
            painting.Fill(Box(x + width * .45, top - 26, x + width * .45 + 3, top), wall);
        if (dice.Roll() < .3)
            painting.Fill(Box(x + width * .2, top - 9, x + width * .75, top), wall * 1.1);
        for (double y = top + 9; y < kQuay - 12; y += pane * 2.1) {
            for (double px = x + 6; px + pane < x + width - 6; px += pane * 1.8) {
                if (dice.Roll() * 100 >= lit) continue;
                const Tint glass = Mix(Mix(Hex(0xFFD070), Hex(0xFFF4C8), dice.Roll()),
                                       Hex(0x90D0FF), dice.Roll() < .12 ? .8 : 0);
                painting.Fill(Box(px, y, px + pane, y + pane * 1.25), glass, dice.Roll(.55, 1));
            }
        }
        x += width;
    }
}

// The river shows the town upside down, shaken by the waves.
void River(Painting& painting) {
    const pictures::RgbPicture town = painting.Picture();
    painting.Fill(Box(0, kQuay, kWidth, kHeight), [&town](double x, double y) {
        const double depth = y - kQuay;
        const double shift = (Clouds(x / 26, y / 3.2, 3, 91) - .5) * (6 + depth * .35);
        Tint sum;
        for (int i = -3; i <= 3; ++i) {  // smeared upright, as wet streets and rivers do
            const double mirrored = kQuay - 4 - depth * 2.9 + i * (1.6 + depth * .08);
            const int column =
                std::clamp(int((x + shift) / kWidth * town.width), 0, town.width - 1);
            const int row = std::clamp(int(mirrored / kHeight * town.height), 0, town.height - 1);
            const std::uint8_t* pixel = &town.pixels[(std::size_t(row) * town.width + column) * 3];
            sum = sum + Tint{double(pixel[0]), double(pixel[1]), double(pixel[2])} * (1 / 7.);
        }
        return sum * (1.02 - depth * .003) + Hex(0x040814);
    });
    painting.Fill(Box(0, kQuay - 3, kWidth, kQuay + 1), Hex(0x0A0C18));
    for (double x = 18; x < kWidth; x += 54) {
        painting.Fill(Box(x - 1, kQuay - 18, x + 1, kQuay), Hex(0x181C28));
        painting.Glow(x, kQuay - 19, 26, Hex(0x805820));
        painting.Fill(Disc(x, kQuay - 19, 2.4), Hex(0xFFF0C0));
    }
}

void Neon(Painting& painting, double x, double y, double size, const std::string& text,
          const Tint& gas) {
    const std::vector<Shape> tubes = WriteAround(x, y, size, text, kNeon);
    for (const Shape& tube : tubes) painting.Glow(tube, size * .42, gas * .55);
    for (const Shape& tube : tubes) painting.Fill(tube, gas);
    for (const Shape& tube : tubes)
        painting.Fill(Grown(tube, -size * .028), Mix(gas, Hex(0xFFFFFF), .85));
}

}  // namespace

void CityLights(Painting& painting, Screen screen) {
    const int lit = screen == Screen::Startup ? 52 : screen == Screen::Wait ? 24 : 5;
    const double dark = screen == Screen::Startup ? 0 : screen == Screen::Wait ? .3 : .6;
    painting.Fill(Vertical({{0, Mix(Hex(0x0C0A30), Hex(0x020208), dark)},
                            {180, Mix(Hex(0x3C1C5C), Hex(0x0A0818), dark)},
                            {320, Mix(Hex(0xB0406C), Hex(0x241838), dark)},
                            {372, Mix(Hex(0xF08860), Hex(0x382048), dark)}}));
    Stars(painting, screen == Screen::Shutdown ? 160 : 70, 190, 92);
    if (screen == Screen::Shutdown) {
        painting.Glow(562, 74, 110, Hex(0x303848));
        painting.Fill(Disc(562, 74, 28), Hex(0xF4F0DC));
    }
    Houses(painting, 90, 205, Mix(Hex(0x382050), Hex(0x0C0A1C), dark), lit * 7 / 10, 3.6, 93);
    Houses(painting, 46, 140, Mix(Hex(0x1C1434), Hex(0x06060F), dark), lit, 5.2, 94);
    if (screen == Screen::Startup) Neon(painting, 320, 130, 66, "City Lights", Hex(0xFF50A8));
    if (screen == Screen::Wait) Neon(painting, 310, 120, 52, "One moment", Hex(0x40D8F0));
    if (screen == Screen::Shutdown) Neon(painting, 270, 114, 54, "Lights out", Hex(0x60A0FF));
    River(painting);
    if (screen == Screen::Shutdown) {
        Letter(painting, WriteAround(320, 448, 25, "You may switch off now", kText),
               Plain(Hex(0xC8D0F0)), 2);
    }
}

}  // namespace vistrel::samples
