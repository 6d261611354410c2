// The startup screens of the single-logo sets Sunrise and Circuit, and the two screens they share.
#include <algorithm>
#include <cmath>

#include "art/brush/kestrel.h"
#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

const Hand kTitle{1.4, 0, 2, .6, false, 0};
const Hand kText{1.3, 0, 1.8, 1, false, 0};
const Hand kPrint{1.3, 0, 2, 1, false, 0};

// A conductor that runs along, turns by 45 degrees and ends in a soldered hole.
void Conductor(Painting& painting, const std::vector<Point>& line) {
    painting.Fill(Moved(Stroke(line, 5), 1.5, 2), Hex(0x02180C), .6, 3);
    painting.Fill(Stroke(line, 5), Hex(0x38A060));
    painting.Fill(Stroke(line, 2), Hex(0x60C880), .7);
    const Point end = line.back();
    painting.Fill(Disc(end.x, end.y, 7.5), [=](double x, double y) {
        return Mix(Hex(0xFFF0B0), Hex(0xA87828), .5 + (x - end.x + y - end.y) / 18);
    });
    painting.Fill(Disc(end.x, end.y, 3), Hex(0x0A1008));
}

void Chip(Painting& painting, double x, double y, double halfWidth, double halfHeight,
          double pitch) {
    for (double px = x - halfWidth + pitch; px < x + halfWidth - pitch / 2; px += pitch) {
        for (double side : {-1., 1.}) {
            const double from = y + side * halfHeight, to = from + side * 13;
            painting.Fill(Box(px - 3, std::min(from, to), px + 3, std::max(from, to), 1.5),
                          Vertical({{from - 13, Hex(0xF0F4F8)}, {from + 13, Hex(0x889098)}}));
        }
    }
    painting.Fill(
        Box(x - halfWidth + 5, y - halfHeight + 7, x + halfWidth + 7, y + halfHeight + 9, 5),
        Hex(0x000000), .5, 10);
    painting.Fill(Box(x - halfWidth, y - halfHeight, x + halfWidth, y + halfHeight, 5),
                  Vertical({{y - halfHeight, Hex(0x484C54)},
                            {y - halfHeight + 8, Hex(0x24262C)},
                            {y + halfHeight, Hex(0x101114)}}));
    painting.Fill(Disc(x - halfWidth + 16, y + halfHeight - 16, 5), Hex(0x3C4048));
}

}  // namespace

void Sunrise(Painting& painting, Screen) {
    const double horizon = 352, sunX = 320;
    painting.Fill(Vertical({{0, Hex(0x101650)},
                            {120, Hex(0x44307C)},
                            {235, Hex(0xA84C88)},
                            {305, Hex(0xF07C60)},
                            {352, Hex(0xFFC870)}}));
    painting.Glow(sunX, horizon, 330, Hex(0x583808));
    painting.Glow(sunX, horizon, 170, Hex(0x604818));
    painting.Change([=](double x, double y, const Tint& tint) {
        const double cloud = Clouds(x / 150, y / 15, 4, 15) - .52;
        if (cloud < 0 || y > horizon) return tint;
        return Mix(tint, Mix(Hex(0x6A4A90), Hex(0xFFE0A8), y / horizon), cloud * 2.2);
    });
    painting.Fill(Disc(sunX, horizon + 6, 88),
                  Vertical({{264, Hex(0xFFFDE0)}, {horizon, Hex(0xFFD060)}}));
    painting.Fill(Box(0, horizon, kWidth, kHeight),
                  Vertical({{horizon, Hex(0x9A6078)}, {392, Hex(0x443C74)}, {480, Hex(0x141A44)}}));
    for (int row = 0; row < 30; ++row) {
        const double depth = row / 29.;
        Dice dice(200 + row);
        for (int i = 0; i < 9; ++i) {
            const double reach = 86 + 50 * depth, x = sunX + dice.Roll(-reach, reach);
            const double strength =
                .75 * (1 - std::abs(x - sunX) / (reach * 1.3)) * (1 - .4 * depth);
            painting.Fill(Ellipse(x, horizon + 3 + 122 * depth * std::sqrt(depth),
                                  dice.Roll(6, 14 + 30 * depth), 1.2 + 2 * depth),
                          Hex(0xFFDC94), strength, 1.5);
        }
    }
    painting.Fill(Kestrel(150, 190, 11), Hex(0x1A1440));
    painting.Fill(Kestrel(226, 240, 5), Hex(0x2A1C50));
    Letter(painting, WriteAround(330, 112, 56, "A new day", kTitle), Plain(Hex(0xFFF8E8)), 3,
           Hex(0x180C38));
}

void Circuit(Painting& painting, Screen) {
    painting.Fill([](double x, double y) {
        return Mix(Hex(0x0C5030), Hex(0x063420), std::hypot(x - 320, y - 240) / 400) *
               (.96 + .08 * Clouds(x / 4, y / 4, 2, 16));
    });
    Dice dice(17);
    for (int i = 0; i < 15; ++i) {
        const double x = 148 + i * 24.6, out = dice.Roll(30, 78), slope = (i - 7) * 6.;
        for (double side : {-1., 1.}) {
            const double y = 240 + side * 84, turn = y + side * (14 + std::abs(7 - i) * 5);
            Conductor(painting, {{x, y},
                                 {x, turn},
                                 {x + slope, turn + side * std::abs(slope)},
                                 {x + slope, turn + side * (std::abs(slope) + out)}});
        }
    }
    for (int i = 0; i < 5; ++i) {
        for (double side : {-1., 1.}) {
            const double y = 188 + i * 26;
            Conductor(painting, {{320 + side * 200, y},
                                 {320 + side * (230 + i % 2 * 14), y},
                                 {320 + side * (250 + i % 2 * 14), y + (i - 2) * 10},
                                 {320 + side * (278 + i % 2 * 14), y + (i - 2) * 10}});
        }
    }
    Chip(painting, 320, 240, 200, 72, 24.6);
    Letter(painting, WriteAround(320, 252, 38, "POWER ON", kPrint), Plain(Hex(0xE8ECF0)), 0);
    Letter(painting, WriteAround(320, 290, 20, "please stand by", kPrint), Plain(Hex(0xA8B0B8)), 0);
    painting.Glow(500, 190, 26, Hex(0x10A040));
    painting.Fill(Disc(500, 190, 5), Hex(0x90FFA8));
}

void Shared(Painting& painting, Screen screen) {
    painting.Fill([](double x, double y) {
        const double far = std::hypot(x - 320, (y - 190) * 1.1) / 430;
        return Mix(Hex(0x486088), Hex(0x0C1428), Smooth(far));
    });
    for (double radius : {92., 104.})
        painting.Fill(Ring(320, 186, radius, 3), Hex(0xE8DCB8), radius < 100 ? .9 : .4);
    painting.Fill(Disc(320, 186, 88),
                  Vertical({{100, Hex(0x283C68)}, {200, Hex(0xB07880)}, {270, Hex(0xFFD090)}}));
    painting.Fill(Kestrel(320, 196, 15), Hex(0x101830));
    if (screen == Screen::Wait) {
        Letter(painting, WriteAround(320, 388, 50, "Please wait", kTitle), Plain(Hex(0xFFF4DC)), 3);
    } else {
        Letter(painting, WriteAround(320, 372, 46, "That was all", kTitle), Plain(Hex(0xFFF4DC)),
               3);
        Letter(painting, WriteAround(320, 424, 25, "You may switch off now", kText),
               Plain(Hex(0xD8DCE8)), 2);
    }
}

}  // namespace vistrel::samples
