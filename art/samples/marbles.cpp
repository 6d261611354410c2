// Marbles: glass balls on a wooden table.
#include <algorithm>
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

const Hand kTitle{1.8, 0, 1.9, 1, false, 0};

struct Marble {
    double x, y, radius;
    Tint glass, swirl;
};

const Marble kMarbles[] = {
    {118, 240, 62, Hex(0x2060C0), Hex(0xA0E0FF)}, {330, 214, 52, Hex(0x208850), Hex(0xE8FFA0)},
    {520, 248, 66, Hex(0xB02848), Hex(0xFFD8C0)}, {226, 330, 84, Hex(0xE09018), Hex(0xFFFFE0)},
    {410, 362, 92, Hex(0x7038A8), Hex(0xF8C8FF)}, {66, 404, 54, Hex(0x18A0A0), Hex(0xFFFFFF)},
    {582, 404, 46, Hex(0x404858), Hex(0xFFFFFF)},
};

void Table(Painting& painting) {
    painting.Fill([](double x, double y) {
        // Boards that run away from the viewer towards a point high above the picture.
        const double along = 900 / (y + 240), across = (x - 320) * along / 150 + 8;
        const int board = int(across);
        const double seam = std::min(across - board, board + 1 - across) * 150 / along;
        const double grain = Clouds(across * 9, along * 3 + board * 7.7, 4, 81);
        const Tint wood =
            Mix(Hex(0xC89058), Hex(0x8C5428), grain) * (.86 + .2 * Chance(board, 3, 82));
        return wood * (.55 + .45 * Clamp01(seam / 2.5)) * (.55 + y / 900);
    });
}

// The shadow lies to the lower right; the light that the glass gathers brightens its middle.
void Shadow(Painting& painting, const Marble& m) {
    painting.Fill(
        Ellipse(m.x + m.radius * .42, m.y + m.radius * .84, m.radius * 1.05, m.radius * .36),
        Hex(0x180800), .72, m.radius * .5);
    painting.Fill(
        Ellipse(m.x + m.radius * .62, m.y + m.radius * .9, m.radius * .44, m.radius * .13),
        Mix(m.glass, m.swirl, .5), .75, m.radius * .3);
}

void Glass(Painting& painting, const Marble& m) {
    painting.Fill(Disc(m.x, m.y, m.radius), [&m](double x, double y) {
        const double u = (x - m.x) / m.radius, v = (y - m.y) / m.radius;
        const double r2 = std::min(1., u * u + v * v), depth = std::sqrt(1 - r2);
        // Ribbons of colour twisted through the ball.
        const double turn =
            std::atan2(v, u) * 2 + 2.6 * depth + 3 * Hills(u * 1.5 + 5, v * 1.5 + m.x, 83);
        const double ribbon = Smooth(1.6 * std::sin(turn) - .2) * Clamp01(depth * 1.7 - .3);
        Tint tint = Mix(m.glass * (.45 + .5 * depth), m.swirl, .8 * ribbon);
        tint =
            tint + m.glass * (.75 * std::exp(-((u - .42) * (u - .42) + (v - .5) * (v - .5)) / .09));
        tint = tint * (1 - .5 * r2 * r2 * r2);
        const double shine = std::exp(-((u + .38) * (u + .38) + (v + .44) * (v + .44)) / .035);
        return tint + Hex(0xFFFFFF) * (.95 * shine) +
               Hex(0x303848) * (.8 * Clamp01(-v) * Clamp01(r2 * 2 - 1));
    });
    painting.Fill(
        Ellipse(m.x - m.radius * .36, m.y - m.radius * .43, m.radius * .15, m.radius * .1),
        Hex(0xFFFFFF), 1, 2);
}

}  // namespace

void Marbles(Painting& painting, Screen) {
    Table(painting);
    for (const Marble& marble : kMarbles) Shadow(painting, marble);
    for (const Marble& marble : kMarbles) Glass(painting, marble);
    Letter(painting, WriteAround(320, 108, 48, "Ready to play", kTitle),
           Vertical({{50, Hex(0xFFFBE8)}, {112, Hex(0xFFD890)}}), 4, Hex(0x1C0C00));
}

}  // namespace vistrel::samples
