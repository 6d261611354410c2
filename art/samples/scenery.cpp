// Stars, hills, trees and clouds.
#include "art/samples/scenery.h"

#include <cmath>

namespace vistrel::samples {

void Stars(Painting& painting, int count, double bottom, unsigned seed) {
    Dice dice(seed);
    for (int i = 0; i < count; ++i) {
        const double x = dice.Roll(0, kWidth), y = dice.Roll(0, bottom);
        const double size = dice.Roll();
        const Tint color = Mix(Hex(0xFFE8C8), Hex(0xC8D8FF), dice.Roll());
        painting.Glow(x, y, 2 + 2.6 * size * size * size, color * (.35 + .65 * size * size));
    }
}

std::function<double(double x)> Ridge(double base, double rise, double length, unsigned seed) {
    return [=](double x) { return base - rise * Clouds(x / length + 3, .5, 3, seed); };
}

Shape Fir(double x, double y, double size) {
    std::vector<Point> right = {{x, y - size}};
    for (int i = 1; i <= 4; ++i) {
        const double level = y - size + size * .21 * i;
        right.push_back({x + size * .07 * i, level});
        right.push_back({x + size * .035 * i, level - size * .02});
    }
    std::vector<Point> corners = right;
    corners.push_back({x + size * .03, y});
    corners.push_back({x - size * .03, y});
    for (auto point = right.rbegin(); point != right.rend(); ++point) {
        corners.push_back({2 * x - point->x, point->y});
    }
    return Polygon(corners);
}

Shape Cloud(double x, double y, double size) {
    Shape shape = Box(x - 1.7 * size, y - .7 * size, x + 1.9 * size, y, .35 * size);
    shape = Union(shape, Disc(x - .8 * size, y - .8 * size, .65 * size));
    shape = Union(shape, Disc(x + .2 * size, y - 1.05 * size, .9 * size));
    return Union(shape, Disc(x + 1.15 * size, y - .75 * size, .6 * size));
}

}  // namespace vistrel::samples
