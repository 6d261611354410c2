// Green Hills: a poster of fields at three times of the day.
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

const Hand kTitle{1.7, 0, 1.6, 1, false, 0};
const Hand kText{1.3, 0, 1.8, 1, false, 0};

// The tints of one time of the day.
struct Light {
    Tint skyTop, skyBottom, disc, ring;
    Tint far, near;    // hills
    Tint leaf, shade;  // trees
    Tint letters, under;
};

Light LightOf(Screen screen) {
    switch (screen) {
        case Screen::Startup:
            return {Hex(0x9CDCD4), Hex(0xFFF2C4), Hex(0xFFF9DC), Hex(0xFFF0B0), Hex(0x9CC87C),
                    Hex(0x2C7838), Hex(0x58A040), Hex(0x205C30), Hex(0x185028), Hex(0xFFF8D8)};
        case Screen::Wait:
            return {Hex(0x8C6CB0), Hex(0xFFBC70), Hex(0xFFE0A0), Hex(0xFFC880), Hex(0xC08C68),
                    Hex(0x3C5C38), Hex(0x788848), Hex(0x2C4430), Hex(0xFFF4D8), Hex(0x503060)};
        default:
            return {Hex(0x10204C), Hex(0x4C7898), Hex(0xF4F4E0), Hex(0x6088A8), Hex(0x38708C),
                    Hex(0x0C2C3C), Hex(0x1C5060), Hex(0x0A2430), Hex(0xF0F4E4), Hex(0x0C1C38)};
    }
}

// A field on a hillside, ploughed in furrows that run down the slope.
void Field(Painting& painting, const std::function<double(double)>& ridge, const Tint& tint,
           double furrow, double lean) {
    painting.Fill(Below(ridge, 0, kWidth, kHeight), [=](double x, double y) {
        const double depth = y - ridge(x);
        const double across = (x - 320 + lean * depth) / (furrow * (1 + depth / 120));
        const double stripe = .5 + .5 * std::sin(across * 6.2832);
        return Mix(tint * 1.1, tint * .8, depth / 150) * (.95 + .08 * Smooth(stripe));
    });
}

void Tree(Painting& painting, const Light& light, double x, double y, double size) {
    painting.Fill(Ellipse(x + size * .5, y, size * .9, size * .13), light.shade, .5, 3);
    painting.Fill(Box(x - size * .06, y - size * .8, x + size * .06, y), light.shade * .7);
    painting.Fill(Ellipse(x, y - size * 1.15, size * .5, size * .72), light.shade);
    painting.Fill(Ellipse(x - size * .08, y - size * 1.2, size * .4, size * .6), light.leaf);
    painting.Fill(Ellipse(x - size * .16, y - size * 1.36, size * .2, size * .3), light.leaf * 1.2,
                  .8);
}

void Road(Painting& painting, const Light& light) {
    std::vector<Point> left, right;
    for (const Point& p :
         Curve({{392, 356}, {378, 372}, {330, 388}, {312, 410}, {348, 440}, {330, 482}})) {
        const double half = 2 + (p.y - 352) * .17;
        left.push_back({p.x - half, p.y});
        right.push_back({p.x + half, p.y});
    }
    left.insert(left.end(), right.rbegin(), right.rend());
    painting.Fill(Polygon(left), Mix(light.skyBottom, light.far, .3));
}

}  // namespace

void GreenHills(Painting& painting, Screen screen) {
    const Light light = LightOf(screen);
    painting.Fill(Vertical({{0, light.skyTop}, {290, light.skyBottom}}));
    const double sunX = 520, sunY = screen == Screen::Wait ? 230 : 132;
    for (double radius : {150., 116., 86.})
        painting.Fill(Disc(sunX, sunY, radius), light.ring, .22);
    painting.Fill(Disc(sunX, sunY, 58), light.disc);
    for (int i = 0; i < 5; ++i) {
        const auto ridge = Ridge(292 + 40 * i, 90 - 9 * i, 290 - 22 * i, 61 + i);
        Field(painting, ridge, Mix(light.far, light.near, i / 4.), 26 + 9 * i, i % 2 ? .5 : -.6);
        if (i == 4) Road(painting, light);
        Dice dice(70 + i);
        for (int tree = 0; tree < 3; ++tree) {
            const double x = dice.Roll(20, 620);
            Tree(painting, light, x, ridge(x) + 7, 10 + 9 * i + dice.Roll(0, 6));
        }
    }
    if (screen == Screen::Startup) {
        Letter(painting, WriteAround(216, 106, 50, "Green Hills", kTitle), Plain(light.letters), 0);
    } else if (screen == Screen::Wait) {
        Letter(painting, WriteAround(320, 104, 48, "Just a moment", kTitle), Plain(light.letters),
               3, light.under);
    } else {
        Letter(painting, WriteAround(216, 104, 48, "Sleep well", kTitle), Plain(light.letters), 3,
               light.under);
        Letter(painting, WriteAround(216, 152, 23, "You may switch off now", kText),
               Plain(light.letters), 2, light.under);
    }
}

}  // namespace vistrel::samples
