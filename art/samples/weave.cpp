// Weave: ribbons plaited over and under each other.
#include <cmath>

#include "art/samples/scenery.h"

namespace vistrel::samples {
namespace {

const Hand kTitle{1.5, 0, 2, .6, false, 0};
const Hand kText{1.25, 0, 1.8, 1, false, 0};

struct Yarn {
    Tint warp[4];
    Tint weft[4];
    Tint plate, letters;
};

Yarn YarnOf(Screen screen) {
    switch (screen) {
        case Screen::Startup:
            return {{Hex(0x1C7C80), Hex(0x2C9890), Hex(0x1C7C80), Hex(0xE0B050)},
                    {Hex(0x145C6C), Hex(0x145C6C), Hex(0xD09838), Hex(0x208088)},
                    Hex(0x0C3844),
                    Hex(0xFFE8A8)};
        case Screen::Wait:
            return {{Hex(0xA03048), Hex(0xB84858), Hex(0xA03048), Hex(0xE8C890)},
                    {Hex(0x702038), Hex(0x702038), Hex(0xC89860), Hex(0x903048)},
                    Hex(0x401020),
                    Hex(0xFFE8C8)};
        default:
            return {{Hex(0x304890), Hex(0x4864A8), Hex(0x304890), Hex(0xB0C0D8)},
                    {Hex(0x203068), Hex(0x203068), Hex(0x90A0C0), Hex(0x304488)},
                    Hex(0x101838),
                    Hex(0xE8F0FF)};
    }
}

// The ribbons lie aslant, so the cloth is worked out in coordinates turned by an eighth of a
// circle.
Tint Cloth(const Yarn& yarn, double x, double y) {
    const double cell = 44, ribbon = .44;
    const double u = (x + y) * .7071 / cell + 40.3, v = (x - y) * .7071 / cell + 40.1;
    const int column = int(u), row = int(v);
    const double du = u - column - .5, dv = v - row - .5;  // from the crossing's middle
    const bool upright = (column + row) % 2 == 0;
    const double across = upright ? du : dv, along = upright ? dv : du;
    const bool onTop = std::abs(across) < ribbon;
    if (!onTop && std::abs(along) >= ribbon) return yarn.plate * .35;
    const double side = onTop ? across : along, length = onTop ? along : across;
    const Tint& color = upright == onTop ? yarn.warp[column % 4] : yarn.weft[row % 4];
    // A ribbon is a little round, shines where it bends over, and dips into shadow at the edge.
    const double round = 1 - .35 * std::pow(std::abs(side) / ribbon, 3);
    const double thread = 1 + .05 * std::sin(side * 2 * 3.14159 * 11);
    const double height = onTop ? 1.08 - .5 * length * length : .62 - .4 * (.5 - std::abs(length));
    const double gleam = onTop ? .16 * std::exp(-std::pow((length + .12) / .13, 2)) : 0;
    return (color * (round * height) + Hex(0xFFFFFF) * (gleam * round)) * thread;
}

void Plate(Painting& painting, const Yarn& yarn, double top, double bottom) {
    painting.Fill(Box(70, top + 8, 580, bottom + 10, 26), Hex(0x000000), .65, 24);
    painting.Fill(Box(64, top, 576, bottom, 24), yarn.letters);
    painting.Fill(Box(69, top + 5, 571, bottom - 5, 20),
                  Vertical({{top, yarn.plate * 1.6}, {bottom, yarn.plate * .8}}));
}

}  // namespace

void Weave(Painting& painting, Screen screen) {
    const Yarn yarn = YarnOf(screen);
    painting.Fill([&yarn](double x, double y) {
        // Four looks a point: the ribbons' edges are the only ones here that no shape smooths.
        Tint sum;
        for (double dx : {-.12, .12}) {
            for (double dy : {-.15, .15}) sum = sum + Cloth(yarn, x + dx, y + dy);
        }
        return sum * (.25 * (1.08 - .35 * std::pow(std::hypot(x - 320, (y - 240) * 1.2) / 400, 2)));
    });
    if (screen == Screen::Startup) {
        Plate(painting, yarn, 172, 308);
        Letter(painting, WriteAround(320, 268, 58, "Welcome", kTitle), Plain(yarn.letters), 3);
    } else if (screen == Screen::Wait) {
        Plate(painting, yarn, 172, 308);
        Letter(painting, WriteAround(320, 264, 48, "Please wait", kTitle), Plain(yarn.letters), 3);
    } else {
        Plate(painting, yarn, 158, 322);
        Letter(painting, WriteAround(320, 236, 48, "Finished", kTitle), Plain(yarn.letters), 3);
        Letter(painting, WriteAround(320, 290, 26, "You may switch off now", kText),
               Plain(yarn.letters), 2);
    }
}

}  // namespace vistrel::samples
