// Deep Sea: down from the reef to where no light comes.
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

const Hand kTitle{1.6, 1.2, 1.9, .6, false, 0};
const Hand kText{1.3, 0, 1.8, 1, false, 0};

void Water(Painting& painting, const Tint& top, const Tint& middle, const Tint& bottom,
           double rays) {
    painting.Fill(Vertical({{0, top}, {200, middle}, {480, bottom}}));
    painting.Change([rays](double x, double y, const Tint& tint) {
        // Shafts of light fan out from a point above the surface.
        const double angle = (x - 260) / (y + 260);
        const double shaft = Smooth((Clouds(angle * 11 + 5, .3, 2, 51) - .5) * 3);
        return tint + Hex(0x508080) * (rays * shaft * Clamp01(1 - y / 430));
    });
}

void Fish(Painting& painting, double x, double y, double size, const Tint& body, const Tint& fin,
          double heading) {
    const double h = heading;
    painting.Fill(Polygon(Curve({{x - h * size * .8, y},
                                 {x - h * size * 1.5, y - size * .55},
                                 {x - h * size * 1.32, y},
                                 {x - h * size * 1.5, y + size * .55},
                                 {x - h * size * .8, y}})),
                  fin);
    painting.Fill(Polygon(Curve({{x + h * size * .4, y - size * .35},
                                 {x - h * size * .1, y - size * .85},
                                 {x - h * size * .6, y - size * .3}})),
                  fin);
    painting.Fill(Ellipse(x, y, size, size * .52), [=](double px, double py) {
        const double stripe = Smooth(2.2 * std::sin((px - x) / size * 5.5 + .6));
        return Mix(Mix(body, fin, .55 * stripe), Hex(0xFFFFFF),
                   .35 * Clamp01((y - py) / size + .1));
    });
    painting.Fill(Polygon(Curve({{x + h * size * .1, y + size * .1},
                                 {x - h * size * .35, y + size * .45},
                                 {x - h * size * .1, y + size * .05}})),
                  fin * .9);
    painting.Fill(Disc(x + h * size * .62, y - size * .1, size * .13), Hex(0xFFFFFF));
    painting.Fill(Disc(x + h * size * .65, y - size * .1, size * .075), Hex(0x101820));
}

void Bubbles(Painting& painting, double x, double y, int count, unsigned seed) {
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const double radius = dice.Roll(2.5, 10), px = x + dice.Roll(-24, 24),
                     py = y - 26 * i + dice.Roll(-9, 9);
        painting.Fill(Disc(px, py, radius), Hex(0xD8FFFF), .16);
        painting.Fill(Ring(px, py, radius, 1.6), Hex(0xE8FFFF), .75);
        painting.Fill(Disc(px - radius * .35, py - radius * .4, radius * .24), Hex(0xFFFFFF), .95);
    }
}

void Weeds(Painting& painting, double ground, const Tint& dark, const Tint& light, unsigned seed) {
    Dice dice(seed);
    for (int i = 0; i < 26; ++i) {
        const double x = i % 2 ? dice.Roll(-10, 190) : dice.Roll(450, 650),
                     tall = dice.Roll(50, 170), sway = dice.Roll(10, 24);
        std::vector<Point> line;
        for (int k = 0; k <= 6; ++k)
            line.push_back({x + sway * std::sin(k * 1.1 + i), ground + 20 - tall * k / 6});
        const std::vector<Point> curve = Curve(line);
        const Tint tint = Mix(dark, light, dice.Roll());
        painting.Fill(Stroke(curve, dice.Roll(5, 9)), tint);
    }
}

void Sand(Painting& painting, const Tint& tint) {
    const auto ground = Ridge(452, 34, 190, 53);
    painting.Fill(Below(ground, 0, kWidth, kHeight), [=](double x, double y) {
        const double ripple =
            std::sin((y - ground(x)) * .55 + 2.2 * Clouds(x / 60, y / 30, 2, 54) * 6);
        return tint * (1 + .07 * ripple - .25 * (y - 430) / 60);
    });
}

void Jellyfish(Painting& painting, double x, double y, double size, const Tint& tint) {
    for (int i = -3; i <= 3; ++i) {
        std::vector<Point> line;
        for (int k = 0; k <= 6; ++k) {
            line.push_back({x + i * size * .24 + size * .11 * std::sin(k * 1.25 + i),
                            y + size * (.1 + k * (.3 - .02 * i * i))});
        }
        painting.Fill(Stroke(Curve(line), size * .05), tint, .6);
    }
    painting.Glow(x, y, size * 2.2, tint * .25);
    const Shape dome = Common(Ellipse(x, y + size * .25, size, size * 1.05),
                              Box(x - size, y - size, x + size, y + size * .32, size * .1));
    painting.Fill(
        dome,
        [=](double px, double py) {
            return Mix(Hex(0xFFFFFF), tint,
                       Clamp01(std::hypot(px - x + size * .3, py - y + size * .35) / size));
        },
        .8);
    for (double side : {-.45, -.15, .15, .45})
        painting.Fill(Ellipse(x + side * size, y - size * .05, size * .1, size * .17),
                      Hex(0xFFFFFF), .5, 4);
}

void Angler(Painting& painting, double x, double y) {
    const double lampX = x - 132, lampY = y - 72;
    painting.Glow(lampX, lampY, 190, Hex(0x307068));
    painting.Glow(lampX, lampY, 60, Hex(0x80B8A0));
    painting.Fill(
        Stroke(Curve({{x - 20, y - 58}, {x - 60, y - 122}, {x - 116, y - 116}, {lampX, lampY}}), 4),
        Hex(0x203840));
    painting.Fill(Disc(lampX, lampY, 9), Hex(0xF0FFE0));
    painting.Fill(
        Polygon(
            Curve({{x + 84, y}, {x + 146, y - 44}, {x + 130, y}, {x + 146, y + 46}, {x + 84, y}})),
        Hex(0x142830));
    painting.Fill(Ellipse(x, y, 104, 70), [=](double px, double py) {
        return Mix(Hex(0x4C7470), Hex(0x0C1A22), std::hypot(px - lampX, py - lampY) / 200);
    });
    painting.Fill(Polygon(Curve({{x - 104, y + 6},
                                 {x - 70, y + 2},
                                 {x - 34, y + 22},
                                 {x - 62, y + 42},
                                 {x - 92, y + 40},
                                 {x - 104, y + 6}})),
                  Hex(0x04080C));
    for (int i = 0; i < 5; ++i) {
        const double t = x - 94 + i * 13;
        painting.Fill(
            Polygon({{t, y + 4 + i * 3}, {t + 8, y + 4 + i * 3.4}, {t + 4, y + 20 + i * 2}}),
            Hex(0xE8F0E0));
    }
    painting.Fill(Disc(x - 44, y - 24, 13), Hex(0xF0F4D8));
    painting.Fill(Disc(x - 47, y - 23, 6), Hex(0x081014));
}

}  // namespace

void DeepSea(Painting& painting, Screen screen) {
    if (screen == Screen::Startup) {
        Water(painting, Hex(0x58D0D0), Hex(0x1878A8), Hex(0x083868), 1);
        Weeds(painting, 450, Hex(0x085048), Hex(0x30A060), 55);
        Sand(painting, Hex(0xC8B078));
        Dice dice(57);
        for (int i = 0; i < 11; ++i) {
            Fish(painting, 90 + dice.Roll(0, 200), 270 + dice.Roll(0, 110), 9 + dice.Roll(0, 4),
                 Hex(0xA8E0E8), Hex(0x4898B8), 1);
        }
        Fish(painting, 470, 322, 52, Hex(0xFF9838), Hex(0xFFF0E0), -1);
        Bubbles(painting, 398, 296, 5, 58);
        Letter(painting, WriteAround(310, 156, 78, "Deep Sea", kTitle),
               Vertical({{80, Hex(0xFFFFFF)}, {160, Hex(0xC0F8F0)}}), 4, Hex(0x043050));
    } else if (screen == Screen::Wait) {
        Water(painting, Hex(0x1870A0), Hex(0x0C3C74), Hex(0x041434), .55);
        Jellyfish(painting, 160, 250, 64, Hex(0xE880C0));
        Jellyfish(painting, 500, 176, 42, Hex(0x80B0F0));
        Jellyfish(painting, 420, 346, 30, Hex(0xC090F0));
        Bubbles(painting, 300, 450, 12, 59);
        Letter(painting, WriteAround(320, 92, 50, "Please wait", kTitle), Plain(Hex(0xE8FCFF)), 3,
               Hex(0x042040));
    } else {
        Water(painting, Hex(0x0A2C50), Hex(0x04142C), Hex(0x01040C), .12);
        Angler(painting, 420, 300);
        Bubbles(painting, 150, 430, 6, 60);
        Letter(painting, WriteAround(300, 100, 50, "All quiet now", kTitle), Plain(Hex(0xD0F0E8)),
               3, Hex(0x000810));
        Letter(painting, WriteAround(290, 152, 25, "You may switch off", kText),
               Plain(Hex(0x90C0C0)), 2, Hex(0x000810));
    }
}

}  // namespace vistrel::samples
