// Sunny Day: the sun in a good mood.
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

const Hand kBubbly{2.6, 0, 1.8, 1, false, 0};
const Hand kText{1.5, 0, 1.8, 1, false, 0};

void Rays(Painting& painting, double x, double y, const Tint& a, const Tint& b, const Tint& far) {
    painting.Fill([=](double px, double py) {
        const double distance = std::hypot(px - x, py - y);
        const double wave = std::sin(std::atan2(py - y, px - x) * 16);
        // The edge between two rays is one unit wide wherever it is.
        const double side = Clamp01(.5 + wave * distance / 16);
        return Mix(Mix(a, b, side), far, distance / 620);
    });
}

void Face(Painting& painting, double x, double y, double size, bool asleep) {
    const Tint ink = Hex(0x803808);
    for (double side : {-1., 1.}) {
        const double eyeX = x + side * size * .34, eyeY = y - size * .16;
        if (asleep) {
            painting.Fill(Stroke(Curve({{eyeX - size * .15, eyeY},
                                        {eyeX, eyeY + size * .1},
                                        {eyeX + size * .15, eyeY}}),
                                 size * .07),
                          ink);
        } else {
            painting.Fill(Ellipse(eyeX, eyeY, size * .085, size * .15), ink);
            painting.Fill(Disc(eyeX + size * .03, eyeY - size * .06, size * .035), Hex(0xFFFFFF));
        }
        painting.Fill(Ellipse(x + side * size * .56, y + size * .16, size * .16, size * .11),
                      Hex(0xFF7848), .7, size * .1);
    }
    const double smile = asleep ? .18 : .42;
    painting.Fill(Stroke(Curve({{x - size * smile, y + size * .22},
                                {x - size * smile * .5, y + size * (.3 + smile * .3)},
                                {x, y + size * (.32 + smile * .42)},
                                {x + size * smile * .5, y + size * (.3 + smile * .3)},
                                {x + size * smile, y + size * .22}}),
                         size * .08),
                  ink);
}

void Sun(Painting& painting, double x, double y, double size, bool asleep) {
    for (int i = 0; i < 16; ++i) {
        const double angle = i * 3.14159265 / 8, wide = .13, reach = size * (i % 2 ? 1.34 : 1.52);
        painting.Fill(Polygon({{x + std::cos(angle - wide) * size * 1.08,
                                y + std::sin(angle - wide) * size * 1.08},
                               {x + std::cos(angle) * reach, y + std::sin(angle) * reach},
                               {x + std::cos(angle + wide) * size * 1.08,
                                y + std::sin(angle + wide) * size * 1.08}}),
                      Hex(0xFFA820));
    }
    painting.Fill(Disc(x, y, size), [=](double px, double py) {
        return Mix(Hex(0xFFF080), Hex(0xFFB828),
                   std::hypot(px - x + size * .3, py - y + size * .35) / (size * 1.5));
    });
    Face(painting, x, y, size, asleep);
}

void Sea(Painting& painting, double top, const Tint& bright, const Tint& deep) {
    for (int i = 0; i < 5; ++i) {
        const double base = top + 20 * i + 4 * i * i;
        const auto wave = [=](double x) {
            return base + (4 + i) * std::sin(x / (30 + 9 * i) + i * 1.7);
        };
        painting.Fill(Below(wave, 0, kWidth, kHeight), Mix(bright, deep, i / 4.));
        painting.Fill(Without(Below(wave, 0, kWidth, kHeight),
                              Below([=](double x) { return wave(x) + 2.5; }, 0, kWidth, kHeight)),
                      Hex(0xFFFFFF), .55);
    }
}

void Boat(Painting& painting, double x, double y) {
    painting.Fill(Box(x - 1.5, y - 96, x + 1.5, y - 8), Hex(0x704020));
    painting.Fill(
        Polygon(Curve({{x + 4, y - 92}, {x + 30, y - 56}, {x + 44, y - 16}, {x + 4, y - 18}})),
        Hex(0xE83838));
    painting.Fill(
        Polygon(Curve({{x - 4, y - 80}, {x - 24, y - 46}, {x - 32, y - 18}, {x - 4, y - 20}})),
        Hex(0xFFFFFF));
    painting.Fill(Polygon({{x - 44, y - 12}, {x + 50, y - 12}, {x + 36, y + 10}, {x - 32, y + 10}}),
                  Hex(0x2858A8));
    painting.Fill(Box(x - 44, y - 14, x + 50, y - 8, 2), Hex(0xF8F8F0));
}

void Outlined(Painting& painting, double x, double y, double size, const std::string& text,
              const Tint& tint, const Tint& edge) {
    const std::vector<Shape> letters = WriteAround(x, y, size, text, kBubbly);
    for (const Shape& letter : letters) painting.Fill(Moved(Grown(letter, size * .07), 2, 3), edge);
    for (const Shape& letter : letters) painting.Fill(Grown(letter, size * .07), edge);
    for (const Shape& letter : letters) painting.Fill(letter, tint);
}

}  // namespace

void SunnyDay(Painting& painting, Screen screen) {
    if (screen == Screen::Startup) {
        Rays(painting, 320, 244, Hex(0xFFE468), Hex(0xFFF4A8), Hex(0xFFC048));
        Sun(painting, 320, 244, 96, false);
        Sea(painting, 372, Hex(0x50D0D0), Hex(0x1080A8));
        Boat(painting, 520, 392);
        Outlined(painting, 320, 78, 50, "Hello!", Hex(0xFFFFFF), Hex(0xE05820));
    } else if (screen == Screen::Wait) {
        Rays(painting, 320, 250, Hex(0xA8E4E8), Hex(0xC4F0EC), Hex(0x68BCD8));
        Sun(painting, 320, 250, 104, false);
        painting.Fill(Moved(Cloud(250, 352, 62), 4, 6), Hex(0x4890B0), .4, 8);
        painting.Fill(Cloud(250, 352, 62), Vertical({{230, Hex(0xFFFFFF)}, {352, Hex(0xC8DCEC)}}));
        painting.Fill(Cloud(520, 200, 34), Vertical({{130, Hex(0xFFFFFF)}, {200, Hex(0xD0E4F0)}}),
                      .95);
        Sea(painting, 386, Hex(0x48C0D0), Hex(0x1070A0));
        Outlined(painting, 320, 82, 44, "Just a minute", Hex(0xFFFFFF), Hex(0x2070A0));
    } else {
        Rays(painting, 320, 380, Hex(0xF89060), Hex(0xFFA870), Hex(0x9050A0));
        Sun(painting, 320, 318, 98, true);
        Sea(painting, 372, Hex(0x6868B8), Hex(0x282868));
        Outlined(painting, 320, 84, 46, "See you soon", Hex(0xFFFFFF), Hex(0x803070));
        Letter(painting, WriteAround(320, 142, 25, "You may switch off now", kText),
               Plain(Hex(0xFFFFFF)), 2, Hex(0x602060));
    }
}

}  // namespace vistrel::samples
