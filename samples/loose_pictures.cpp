// Pictures to try the editor with.
#include <algorithm>
#include <cmath>

#include "samples/scenery.h"

namespace vistrel::samples {
namespace {

void Balloon(Painting& painting, double x, double y, double size, const Tint& a, const Tint& b) {
    const Shape hull = Union(Disc(x, y, size), Polygon({{x - size * .93, y + size * .36},
                                                        {x + size * .93, y + size * .36},
                                                        {x + size * .2, y + size * 1.34},
                                                        {x - size * .2, y + size * 1.34}}));
    for (double side : {-.17, .17})
        painting.Fill(
            Stroke({{x + side * size, y + size * 1.3}, {x + side * size * .8, y + size * 1.66}},
                   size * .025),
            Hex(0x403020));
    painting.Fill(hull, [=](double px, double py) {
        const double v = (py - y) / size,
                     half = v < .36 ? std::sqrt(std::max(.02, 1 - v * v)) : .93 - (v - .36) * .745;
        const double u = std::clamp((px - x) / size / half, -1., 1.);
        const double gore = std::sin(std::asin(u) * 6 + .4);
        return Mix(a, b, Clamp01(.5 + gore * 5)) * (1.04 - .42 * Smooth((u + .35) / 1.35));
    });
    painting.Fill(Ellipse(x - size * .36, y - size * .4, size * .2, size * .34), Hex(0xFFFFFF), .3,
                  size * .25);
    painting.Fill(Box(x - size * .15, y + size * 1.64, x + size * .15, y + size * 1.88, size * .04),
                  Vertical({{y + size * 1.64, Hex(0xA87038)}, {y + size * 1.88, Hex(0x603818)}}));
}

void Tulip(Painting& painting, double x, double ground, double tall, double size,
           const Tint& petal) {
    const double y = ground - tall;
    painting.Fill(Stroke(Curve({{x, y}, {x + 3, (y + ground) / 2}, {x - 2, ground}}), size * .12),
                  Hex(0x2C7830));
    for (double side : {-1., 1.}) {
        painting.Fill(Polygon(Curve({{x, ground},
                                     {x + side * size * .5, ground - tall * .34},
                                     {x + side * size * .75, ground - tall * .66},
                                     {x + side * size * .3, ground - tall * .36},
                                     {x, ground}})),
                      Mix(Hex(0x3C9038), Hex(0x205C28), side * .5 + .5));
    }
    for (double side : {-1., 1.}) {
        painting.Fill(Polygon(Curve({{x, y + size * .1},
                                     {x + side * size * .5, y - size * .1},
                                     {x + side * size * .56, y - size * .6},
                                     {x + side * size * .44, y - size * 1.05},
                                     {x + side * size * .1, y - size * .5},
                                     {x, y + size * .1}})),
                      petal * (side < 0 ? .95 : .78));
    }
    painting.Fill(Polygon(Curve({{x, y + size * .12},
                                 {x - size * .36, y - size * .2},
                                 {x - size * .26, y - size * .7},
                                 {x, y - size * 1.1},
                                 {x + size * .26, y - size * .7},
                                 {x + size * .36, y - size * .2},
                                 {x, y + size * .12}})),
                  Vertical({{y - size, petal * 1.25}, {y, petal * .9}}));
}

}  // namespace

void Balloons(Painting& painting) {
    const double width = painting.width(), height = painting.height();
    painting.Fill(Vertical(
        {{0, Hex(0x5C88C8)}, {height * .5, Hex(0xC8D8E8)}, {height * .72, Hex(0xFFE4C0)}}));
    for (int i = 0; i < 5; ++i) {
        const auto ridge = Ridge(height * (.7 + .07 * i), height * .17, 190 - 10 * i, 301 + i);
        painting.Fill(Below(ridge, 0, width, height), Mix(Hex(0xB8B0C8), Hex(0x384C48), i / 4.));
        painting.Change([=](double x, double y, const Tint& tint) {
            const double mist = Clamp01((y - ridge(x)) / 60) * (1 - i / 4.) * .5;
            return y > ridge(x) ? Mix(tint, Hex(0xFFE8D0), mist) : tint;
        });
    }
    Balloon(painting, width * .3, height * .33, 96, Hex(0xE84030), Hex(0xFFD040));
    Balloon(painting, width * .68, height * .24, 58, Hex(0x2878C0), Hex(0xF8F8F0));
    Balloon(painting, width * .84, height * .52, 36, Hex(0x60A840), Hex(0xF8E060));
    Balloon(painting, width * .53, height * .58, 22, Hex(0xA050A8), Hex(0xFFC0D8));
}

void Tulips(Painting& painting) {
    const double width = painting.width(), height = painting.height();
    painting.Fill(
        Vertical({{0, Hex(0xFFF4D8)}, {height * .6, Hex(0xF8D8A8)}, {height, Hex(0x98B058)}}));
    const Tint petals[] = {Hex(0xD83038), Hex(0xF0A020), Hex(0xE86090), Hex(0x8040A0),
                           Hex(0xF8E8D8)};
    Dice dice(310);
    for (int row = 0; row < 5; ++row) {
        for (double x = -20 + row % 2 * 24; x < width + 30; x += 44 + row * 9) {
            const double size = 20 + row * 9 + dice.Roll(0, 5);
            Tulip(painting, x + dice.Roll(-9, 9), height * (.72 + .09 * row),
                  70 + row * 22 + dice.Roll(0, 26), size, petals[int(dice.Roll(0, 5))]);
        }
    }
}

void StainedGlass(Painting& painting) {
    const double width = painting.width(), height = painting.height();
    std::vector<Point> seeds;
    Dice dice(320);
    for (int i = 0; i < 110; ++i)
        seeds.push_back({dice.Roll(-20, width + 20), dice.Roll(-20, height + 20)});
    painting.Fill([&](double x, double y) {
        double first = 1e9, second = 1e9;
        int nearest = 0;
        for (int i = 0; i < int(seeds.size()); ++i) {
            const double distance = std::hypot(x - seeds[i].x, y - seeds[i].y);
            if (distance < first) {
                second = first;
                first = distance;
                nearest = i;
            } else if (distance < second) {
                second = distance;
            }
        }
        const Point seed = seeds[nearest];
        const double ring = std::hypot(seed.x - width / 2, seed.y - height / 2) / (height * .75);
        const Tint wheel[] = {Hex(0xFFE890), Hex(0xF09830), Hex(0xC83040),
                              Hex(0x6830A0), Hex(0x2050B0), Hex(0x18808C)};
        const double step = std::clamp(ring * 5, 0., 4.999);
        const Tint glass = Mix(wheel[int(step)], wheel[int(step) + 1], step - int(step)) *
                           (.8 + .35 * Chance(nearest, 1, 321));
        const double light = 1.05 - .25 * first / 30 + .1 * (Clouds(x / 14, y / 14, 2, 322) - .5);
        return Mix(Hex(0x14141C), glass * light, Smooth((second - first - 1.6) / 1.6));
    });
}

void Lighthouse(Painting& painting) {
    const double width = painting.width(), height = painting.height(), sea = height * .7,
                 x = width * .66, lamp = height * .27;
    painting.Fill(
        Vertical({{0, Hex(0x182458)}, {height * .4, Hex(0x5C4C8C)}, {sea, Hex(0xF8A878)}}));
    painting.Change([=](double px, double py, const Tint& tint) {
        const double cloud = Clouds(px / 130, py / 22, 4, 331) - .5;
        return cloud > 0 && py < sea
                   ? Mix(tint, Mix(Hex(0x483C70), Hex(0xFFC8A0), py / sea), cloud * 2)
                   : tint;
    });
    painting.Fill(
        Polygon({{x, lamp}, {-60, lamp - 150}, {-60, lamp + 60}}),
        [=](double px, double) {
            return Mix(Hex(0xFFF8D0), Hex(0x8070A0), (x - px) / (width * .75));
        },
        .4, 14);
    painting.Fill(Box(0, sea, width, height), [=](double px, double py) {
        const double wave =
            Clouds(px / (14 + (py - sea) * .5), py / (2 + (py - sea) * .05), 3, 333);
        return Mix(Mix(Hex(0xC08080), Hex(0x203060), (py - sea) / (height * .14)), Hex(0xFFE0C0),
                   Smooth((wave - .56) * 5) * .5);
    });
    const auto rock = Ridge(height * .84, height * .1, 90, 335);
    painting.Fill(Below([=](double px) { return rock(px) + std::pow((px - x - 20) / 15, 2) * .55; },
                        0, width, height),
                  [](double px, double py) {
                      return Mix(Hex(0x584850), Hex(0x18141C), Clouds(px / 18, py / 9, 4, 336));
                  });
    const double foot = height * .83;
    painting.Fill(
        Polygon({{x - 17, lamp + 22}, {x + 17, lamp + 22}, {x + 29, foot}, {x - 29, foot}}),
        [=](double px, double py) {
            const bool red = int((py - lamp) / 44) % 2 == 0;
            return (red ? Hex(0xD03830) : Hex(0xF8F4EC)) *
                   (1.05 - .55 * Smooth((px - x + 14) / 36));
        });
    painting.Fill(Box(x - 23, lamp + 16, x + 23, lamp + 23, 2), Hex(0x282830));
    painting.Fill(Box(x - 12, lamp - 14, x + 12, lamp + 17), Hex(0xFFF4B8));
    for (double bar : {-12., -4., 4., 12.})
        painting.Fill(Box(x + bar - 1, lamp - 14, x + bar + 1, lamp + 17), Hex(0x282830));
    painting.Fill(Polygon({{x - 17, lamp - 13}, {x, lamp - 34}, {x + 17, lamp - 13}}),
                  Hex(0xA02820));
    painting.Glow(x, lamp, 90, Hex(0x806838));
}

}  // namespace vistrel::samples
