// Balloons: a morning flight over misty hills.
#include <algorithm>
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

void Balloon(Painting& painting, double x, double y, double size, const Tint& a, const Tint& b) {
    const Shape hull = Union(Disc(x, y, size), Polygon({{x - size * .776, y + size * .631},
                                                        {x + size * .776, y + size * .631},
                                                        {x + size * .2, y + size * 1.34},
                                                        {x - size * .2, y + size * 1.34}}));
    for (double side : {-.17, .17})
        painting.Fill(
            Stroke({{x + side * size, y + size * 1.3}, {x + side * size * .8, y + size * 1.66}},
                   size * .025),
            Hex(0x403020));
    painting.Fill(hull, [=](double px, double py) {
        const double v = (py - y) / size, half = v < .631 ? std::sqrt(std::max(.02, 1 - v * v))
                                                          : .776 - (v - .631) * .812;
        const double u = std::clamp((px - x) / size / half, -1., 1.);
        const double gore = std::sin(std::asin(u) * 6 + .4);
        return Mix(a, b, Clamp01(.5 + gore * 5)) * (1.04 - .42 * Smooth((u + .35) / 1.35));
    });
    painting.Fill(Ellipse(x - size * .36, y - size * .4, size * .2, size * .34), Hex(0xFFFFFF), .3,
                  size * .25);
    painting.Fill(Box(x - size * .15, y + size * 1.64, x + size * .15, y + size * 1.88, size * .04),
                  Vertical({{y + size * 1.64, Hex(0xA87038)}, {y + size * 1.88, Hex(0x603818)}}));
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

}  // namespace vistrel::samples
