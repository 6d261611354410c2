// Typewriter: a sheet of paper in the machine.
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

const Hand kType{1.35, 0, 1.2, 1, true, 10};
const Hand kKey{1.5, 0, 1.2, 1, false, 0};

void Desk(Painting& painting) {
    painting.Fill([](double x, double y) {
        const double grain = Clouds(x / 160, y / 5, 4, 11);
        return Mix(Hex(0x6C4428), Hex(0x40260F), grain) * (1.05 - y / 1100);
    });
}

void Paper(Painting& painting) {
    painting.Fill(Box(76, -20, 580, 372), Hex(0x000000), .45, 26);
    painting.Fill(Box(70, -20, 570, 372), [](double x, double y) {
        const double fibre = Clouds(x / 3, y / 3, 2, 13) - .5;
        // The sheet bends back over the roller at its lower end.
        const double bend = Smooth((y - 250) / 110);
        return (Hex(0xF8F2E0) + Hex(0x141410) * fibre) * (1 - .3 * bend * bend);
    });
}

// Each letter sits a little off its place and is a little too dark or too light.
void TypeLine(Painting& painting, double y, const std::string& text, const Tint& ink,
              unsigned seed) {
    const std::vector<Shape> letters = WriteFrom(100, y, 27, text, kType);
    Dice dice(seed);
    for (const Shape& letter : letters) {
        const double dx = dice.Roll(-.5, .5), dy = dice.Roll(-1, 1);
        painting.Fill(Moved(letter, dx, dy), ink, dice.Roll(.8, 1));
    }
}

void Roller(Painting& painting) {
    const auto round = [](double top, double bottom, const Tint& dark, const Tint& bright) {
        return [=](double, double y) {
            const double t = (y - top) / (bottom - top);
            return Mix(dark, bright, std::exp(-std::pow((t - .28) / .17, 2))) * (1 - .4 * t);
        };
    };
    for (const auto& [left, right] : {std::pair(0., 26.), std::pair(614., 640.)}) {
        painting.Fill(Box(left - 8, 338, right + 8, 404, 8),
                      round(338, 404, Hex(0x30302E), Hex(0xA0A098)));
        for (double x = left; x < right; x += 6) {
            painting.Fill(Box(x, 338, x + 2, 404), Hex(0x000000), .35);
        }
    }
    painting.Fill(Box(30, 346, 610, 398, 5), round(346, 398, Hex(0x24262A), Hex(0x8C9098)));
    painting.Fill(Box(60, 358, 580, 362, 2), round(356, 363, Hex(0x707478), Hex(0xFFFFFF)));
    for (double x : {150., 320., 490.}) {
        painting.Fill(Box(x - 13, 350, x + 13, 370, 6),
                      round(350, 370, Hex(0x101010), Hex(0x70757C)));
    }
}

void Keys(Painting& painting) {
    painting.Fill(Box(0, 396, kWidth, kHeight),
                  Vertical({{396, Hex(0x101214)}, {412, Hex(0x2A2E32)}, {480, Hex(0x16181A)}}));
    const std::string text = "VISTREL";
    for (int i = 0; i < 9; ++i) {
        const double x = 320 + (i - 4) * 66, y = 444;
        painting.Fill(Disc(x + 3, y + 5, 27), Hex(0x000000), .6, 8);
        painting.Fill(Disc(x, y, 27), [=](double px, double py) {
            return Mix(Hex(0xFFFFFF), Hex(0x606468), .5 + ((px - x) + (py - y)) / 60);
        });
        painting.Fill(Disc(x, y, 22.5), [=](double, double py) {
            return Mix(Hex(0x40444A), Hex(0x101214), .5 + (py - y) / 44);
        });
        if (i >= 1 && i <= 7) {
            Letter(painting, WriteAround(x, y + 10, 20, text.substr(i - 1, 1), kKey),
                   Plain(Hex(0xFFFBEA)));
        }
    }
}

}  // namespace

void Typewriter(Painting& painting, Screen screen) {
    const Tint black = Hex(0x26242A), red = Hex(0xB02820);
    Desk(painting);
    Paper(painting);
    if (screen == Screen::Startup) {
        TypeLine(painting, 96, "Good morning!", red, 1);
        TypeLine(painting, 176, "A new page", black, 2);
        TypeLine(painting, 232, "is on its way...", black, 3);
    } else if (screen == Screen::Wait) {
        TypeLine(painting, 96, "Just a moment,", black, 4);
        TypeLine(painting, 152, "please.", black, 5);
        TypeLine(painting, 232, "Last lines...", red, 6);
    } else {
        TypeLine(painting, 96, "    The end.", red, 7);
        TypeLine(painting, 176, "You may now", black, 8);
        TypeLine(painting, 232, "switch me off.", black, 9);
    }
    Roller(painting);
    Keys(painting);
}

}  // namespace vistrel::samples
