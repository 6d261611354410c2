// Tulips: fields in bloom below a windmill.
#include <algorithm>
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

constexpr double kField = 250;  // where the fields begin

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

void Windmill(Painting& painting, double x, double y, double size) {
    const Tint wall = Hex(0x604450), sail = Hex(0x4C3440);
    painting.Fill(Polygon({{x - size * .3, y},
                           {x - size * .17, y - size},
                           {x + size * .17, y - size},
                           {x + size * .3, y}}),
                  wall);
    painting.Fill(Ellipse(x, y - size, size * .19, size * .17), wall * .8);
    painting.Fill(Box(x - size * .42, y - size * .42, x + size * .42, y - size * .38), wall * .8);
    for (int i = 0; i < 4; ++i) {
        const double angle = .42 + i * 1.5707963, c = std::cos(angle), s = std::sin(angle);
        const auto at = [&](double along, double across) {
            return Point{x + size * (c * along - s * across),
                         y - size + size * (s * along + c * across)};
        };
        painting.Fill(Stroke({at(0, 0), at(.95, 0)}, size * .04), sail);
        painting.Fill(Polygon({at(.2, 0), at(.95, 0), at(.95, .17), at(.2, .15)}), Hex(0xFFF0DC),
                      .85);
        for (int k = 0; k <= 5; ++k) {
            painting.Fill(Stroke({at(.2 + .15 * k, 0), at(.2 + .15 * k, .16)}, size * .014), sail);
        }
    }
}

// Beds of one colour each, which run together in the distance.
void Fields(Painting& painting, const std::vector<Tint>& petals) {
    painting.Fill(Box(0, kField, kWidth, kHeight), [&petals](double x, double y) {
        const double near = (y - kField + 5) / 90;
        const double bed = (x - 250) / (46 * near) + 40;
        const int number = int(bed);
        const double row = bed - number;
        const Tint flowers =
            petals[number % petals.size()] * (.8 + .35 * Clouds(x / (3 * near), y / 2, 2, 312));
        return Mix(Hex(0x4C7838), flowers, Smooth((.5 - std::abs(row - .5) - .06) * 9));
    });
}

}  // namespace

void Tulips(Painting& painting) {
    const std::vector<Tint> petals = {Hex(0xD83038), Hex(0xF0A020), Hex(0xE86090), Hex(0xF8E8D8),
                                      Hex(0x8040A0)};
    painting.Fill(Vertical({{0, Hex(0x8CC0E0)}, {150, Hex(0xD8E8E8)}, {kField, Hex(0xFFE8C8)}}));
    painting.Fill(Cloud(140, 110, 30), Hex(0xFFFFFF), .8, 10);
    painting.Fill(Cloud(350, 70, 22), Hex(0xFFFFFF), .7, 8);
    painting.Fill(Below(Ridge(kField + 2, 14, 40, 311), 0, kWidth, kField + 2), Hex(0x88A090));
    Fields(painting, petals);
    Windmill(painting, 488, kField + 4, 120);
    Dice dice(310);
    for (int row = 0; row < 3; ++row) {
        for (double x = -20 + row % 2 * 30; x < kWidth + 40; x += 62 + row * 14) {
            const double size = 40 + row * 14 + dice.Roll(0, 8);
            Tulip(painting, x + dice.Roll(-12, 12), 486 + row * 30, 96 + dice.Roll(0, 40), size,
                  petals[int(dice.Roll(0, 5))]);
        }
    }
}

}  // namespace vistrel::samples
