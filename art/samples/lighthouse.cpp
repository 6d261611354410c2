// Lighthouse: a rock in the evening sea.
#include <algorithm>
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {

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
