// Night Sky: stars, moon and a dark wood.
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

const Hand kThin{1.05, 0, 2, .7, false, 0};
const Hand kText{1.15, 0, 1.8, 1, false, 0};

// A pale band of far stars from the lower left to the upper right.
void MilkyWay(Painting& painting, double strength) {
    painting.Change([strength](double x, double y, const Tint& tint) {
        const double across = (y - 330 + x * .55) / 95;
        const double band = std::exp(-across * across);
        const double dust = Clouds(x / 55 + 9, y / 40, 5, 21);
        const double light =
            strength * band * Clamp01(.15 + 1.3 * dust - .5 * std::exp(-across * across * 9));
        return tint + Hex(0x707898) * light;
    });
}

void Wood(Painting& painting) {
    const auto far = Ridge(420, 70, 260, 31), near = Ridge(452, 46, 150, 32);
    painting.Fill(Below(far, 0, kWidth, kHeight),
                  Vertical({{370, Hex(0x14223C)}, {450, Hex(0x0A1222)}}));
    Dice dice(33);
    for (double x = -5; x < kWidth + 5; x += dice.Roll(5, 16)) {
        painting.Fill(Fir(x, near(x) + 8, dice.Roll(24, 62)), Hex(0x040810));
    }
    painting.Fill(Below(near, 0, kWidth, kHeight), Hex(0x040810));
}

void Crescent(Painting& painting, double x, double y, double radius) {
    painting.Glow(x, y, radius * 5, Hex(0x383C48));
    const Shape moon =
        Without(Disc(x, y, radius), Disc(x + radius * .48, y - radius * .22, radius * .9));
    painting.Fill(moon, [=](double px, double py) {
        return Mix(Hex(0xFFF8E0), Hex(0xD8CCA8), Clouds(px / 12, py / 12, 3, 41));
    });
}

void FullMoon(Painting& painting, double x, double y, double radius) {
    painting.Glow(x, y, radius * 4, Hex(0x484848));
    painting.Fill(Disc(x, y, radius), [=](double px, double py) {
        const double plains = Clouds(px / 30, py / 30, 3, 44);
        const double round = std::hypot(px - x, py - y) / radius;
        return Mix(Hex(0xFFF6DC), Hex(0xB0A488), Smooth((plains - .45) * 4)) *
               (1 - .12 * round * round);
    });
}

// A hut with a lit window, starlight on its roof.
void Hut(Painting& painting, double x, double y) {
    painting.Glow(x + 4, y - 14, 90, Hex(0x382408));
    painting.Fill(
        Polygon(
            {{x - 30, y + 30}, {x - 30, y - 22}, {x, y - 42}, {x + 30, y - 22}, {x + 30, y + 30}}),
        Hex(0x04060C));
    painting.Fill(Stroke({{x - 37, y - 18}, {x, y - 44}, {x + 37, y - 18}}, 5), Hex(0x34466C));
    painting.Fill(Box(x - 4, y - 20, x + 12, y - 4), Hex(0xFFC860));
    painting.Fill(Box(x + 3, y - 20, x + 5, y - 4), Hex(0x201004));
    painting.Fill(Box(x - 4, y - 13, x + 12, y - 11), Hex(0x201004));
}

}  // namespace

void NightSky(Painting& painting, Screen screen) {
    const double late = screen == Screen::Startup ? 0 : screen == Screen::Wait ? .35 : .6;
    painting.Fill(Vertical({{0, Mix(Hex(0x060A24), Hex(0x02030C), late)},
                            {200, Mix(Hex(0x101C50), Hex(0x060A20), late)},
                            {330, Mix(Hex(0x284078), Hex(0x0C1430), late)},
                            {430, Mix(Hex(0x6878A0), Hex(0x18244C), late)}}));
    MilkyWay(painting, screen == Screen::Shutdown ? 1.15 : .9);
    Stars(painting, 420, 430, 7);
    if (screen == Screen::Startup) Crescent(painting, 520, 92, 44);
    if (screen == Screen::Wait) FullMoon(painting, 320, 330, 66);
    Wood(painting);
    if (screen == Screen::Startup) {
        Letter(painting, WriteAround(262, 232, 60, "Night Sky", kThin),
               Vertical({{160, Hex(0xFFFFFF)}, {240, Hex(0xB8CCF8)}}), 3);
    } else if (screen == Screen::Wait) {
        Letter(painting, WriteAround(320, 150, 44, "Please wait", kThin), Plain(Hex(0xF0ECD8)), 3);
        Letter(painting, WriteAround(320, 196, 24, "the moon is going down", kText),
               Plain(Hex(0xA8B4D0)), 2);
    } else {
        Hut(painting, 452, 446);
        Letter(painting, WriteAround(300, 170, 58, "Good night", kThin), Plain(Hex(0xE8ECFF)), 3);
        Letter(painting, WriteAround(300, 230, 24, "You may switch off now", kText),
               Plain(Hex(0xA8B8E0)), 2);
    }
}

}  // namespace vistrel::samples
