// The plain screens that a fresh machine has installed: a compass rose.
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

const Hand kTitle{1.25, 0, 2.2, .62, false, 0};
const Hand kText{1.3, 0, 1.9, 1, false, 0};

// Each point of the star has a bright and a dark half, as engravers draw it.
void Star(Painting& painting, double x, double y, double reach, double waist, double turned,
          const Tint& bright, const Tint& dark) {
    const double quarter = 3.14159265 / 2;
    for (int i = 0; i < 4; ++i) {
        const double angle = turned + i * quarter;
        const Point tip{x + std::cos(angle) * reach, y + std::sin(angle) * reach}, middle{x, y};
        for (double side : {-1., 1.}) {
            const double corner = angle + side * quarter / 2;
            painting.Fill(
                Polygon(
                    {middle, tip, {x + std::cos(corner) * waist, y + std::sin(corner) * waist}}),
                side < 0 ? bright : dark);
        }
    }
}

void Rose(Painting& painting, double x, double y, double size, double glow) {
    painting.Glow(x, y, size * 2.2, Hex(0x284848) * glow);
    painting.Fill(Ring(x, y, size * .8, 2.5), Hex(0xD8C890), .9);
    painting.Fill(Ring(x, y, size * .72, 1.5), Hex(0xD8C890), .6);
    for (int i = 0; i < 72; ++i) {
        const double angle = i * 3.14159265 / 36, from = i % 6 ? .74 : .72;
        painting.Fill(
            Stroke({{x + std::cos(angle) * size * from, y + std::sin(angle) * size * from},
                    {x + std::cos(angle) * size * .79, y + std::sin(angle) * size * .79}},
                   i % 6 ? 1.2 : 3),
            Hex(0xD8C890), .8);
    }
    Star(painting, x, y, size * .7, size * .16, 3.14159265 / 4, Hex(0x88A8A0), Hex(0x3C5C5C));
    Star(painting, x, y, size, size * .2, 0, Hex(0xFFF4D0), Hex(0xB08840));
    painting.Fill(Disc(x, y, size * .07), Hex(0x183438));
    painting.Fill(Disc(x, y, size * .04), Hex(0xFFF4D0));
}

}  // namespace

void CompassRose(Painting& painting, Screen screen) {
    const double dim = screen == Screen::Startup ? 1 : screen == Screen::Wait ? .75 : .45;
    painting.Fill([dim](double x, double y) {
        return Mix(Hex(0x2C6868) * dim, Hex(0x081C24), Smooth(std::hypot(x - 320, y - 196) / 420));
    });
    if (screen == Screen::Startup) {
        Rose(painting, 320, 190, 146, 1);
        Letter(painting, WriteAround(320, 416, 46, "Starting up", kTitle), Plain(Hex(0xFFF4D0)), 3);
    } else if (screen == Screen::Wait) {
        Rose(painting, 320, 168, 112, .7);
        Letter(painting, WriteAround(320, 370, 46, "Please wait", kTitle), Plain(Hex(0xFFF4D0)), 3);
        Letter(painting, WriteAround(320, 420, 25, "while everything is put away", kText),
               Plain(Hex(0xB8CCC0)), 2);
    } else {
        Rose(painting, 320, 168, 112, .4);
        Letter(painting, WriteAround(320, 370, 46, "All is done", kTitle), Plain(Hex(0xFFF4D0)), 3);
        Letter(painting, WriteAround(320, 420, 25, "You may switch off now", kText),
               Plain(Hex(0xB8CCC0)), 2);
    }
}

}  // namespace vistrel::samples
