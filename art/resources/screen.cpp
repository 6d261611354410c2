// Draws the monitor with the sunrise and colours it for 16 and for 256 colours.
#include "art/resources/screen.h"

#include <algorithm>

namespace vistrel::art {
namespace {

// A colour between two others; `part` of `whole` on the way.
Color Between(Color from, Color to, int part, int whole) {
    Color result = 0;
    for (int shift : {16, 8, 0}) {
        const int a = from >> shift & 255;
        const int b = to >> shift & 255;
        result |= (a * (whole - part) + b * part + whole / 2) / whole << shift;
    }
    return result;
}

// clang-format off

// A kestrel seen from afar: two wings.
const Rows kBird = {
    "ww.....ww",
    "..ww.ww..",
    "....w....",
};
const Rows kSmallBird = {
    "w...w",
    ".w.w.",
    "..w..",
};

const Rows kSmallMonitor = {
    "ddddddddddddddd.",
    "dwwwwwwwwwwwwsk.",
    "dwkkkkkkkkkkwsk.",
    "dwk11111111swsk.",
    "dwk33333333swsk.",
    "dwk444YY444swsk.",
    "dwk77YYYY77swsk.",
    "dwk9YYYYYY9swsk.",
    "dwkccccccccswsk.",
    "dwkssssssssswsk.",
    "dwwwwwwwwwwwwsk.",
    "dsssssssssssGsk.",
    "dkkkkkkkkkkkkkk.",
    "....dssssssk....",
    "..dssssssssssk..",
    "..kkkkkkkkkkkk..",
};
// clang-format on

void DrawSun(Grid& grid, int centerX2, int horizon, int radius2) {
    // Everything is counted in half pixels, so that the disc may be centred between two columns.
    for (int y = horizon - radius2 / 2 - 1; y < horizon; ++y) {
        for (int x = (centerX2 - radius2) / 2; x <= (centerX2 + radius2) / 2; ++x) {
            const int dx = 2 * x + 1 - centerX2;
            const int dy = 2 * y + 1 - 2 * horizon;
            if (dx * dx + dy * dy <= radius2 * radius2) grid.Put(x, y, 'Y');
        }
    }
}

// How far down the sky a letter stands, 0 at the top to 63 at the horizon, or -1 for other letters.
// Hand-drawn pictures use digits; DrawSunrise has a letter for each of the 64 steps.
int SkyLevel(char letter) {
    const int code = static_cast<unsigned char>(letter);
    if (letter >= '0' && letter <= '9') return (letter - '0') * 7;
    return code >= 128 && code < 192 ? code - 128 : -1;
}

char SkyLetter(int level) { return static_cast<char>(128 + level); }

Color VgaSky(int level, int x, int y) {
    const bool odd = (x + y) % 2 != 0;
    if (level < 30) return VgaColor('b');
    if (level < 40) return VgaColor(odd ? 'b' : 'm');
    if (level < 52) return VgaColor('m');
    if (level < 61) return VgaColor(odd ? 'm' : 'R');
    return VgaColor('R');
}

Color DeepSky(int level) {
    const Color night = 0x101858, violet = 0x7A3C8C, dawn = 0xF88850;
    return level < 36 ? Between(night, violet, level, 36) : Between(violet, dawn, level - 36, 27);
}

}  // namespace

void DrawSunrise(Grid& grid, int x, int y, int width, int height) {
    const int sea = std::max(1, height / 5);
    const int horizon = y + height - sea;
    for (int row = y; row < horizon; ++row) {
        grid.Fill(x, row, width, 1, SkyLetter((row - y) * 63 / (horizon - y - 1)));
    }
    grid.Fill(x, horizon, width, sea, 'c');
    const int radius2 = std::min(width * 5 / 8, (horizon - y) * 3 / 2);
    DrawSun(grid, 2 * x + width, horizon, radius2);
    // The sun's light on the water narrows towards the viewer.
    for (int row = 1; row < sea; ++row) {
        const int half = std::max(1, radius2 * (sea - row) / sea / 2);
        for (int i = -half; i < half; ++i) {
            const int fromMiddle = i < 0 ? -1 - i : i;
            if ((fromMiddle + row) % 2 == 0) grid.Put(x + width / 2 + i, horizon + row, 'Y');
        }
    }
    if (width >= 26)
        grid.Lay(Grid(kBird), x + width - 11, y + 2);
    else if (width >= 18)
        grid.Lay(Grid(kSmallBird), x + width - 7, y + 2);
}

void DrawMonitor(Grid& grid, int x, int y, int width, int height) {
    const int edge = width >= 28 ? 3 : 2;
    const int foot = std::max(3, height / 6);
    const int body = height - foot;
    // The case: light from the upper left.
    grid.Fill(x, y, width, body, 's');
    grid.Frame(x, y, width, body, 'd', 'k');
    grid.Frame(x + 1, y + 1, width - 2, body - 2, 'w', 'd');
    const int chin = edge >= 3 ? 2 : 1;
    const int left = x + edge + 1, top = y + edge;
    const int inner = width - 2 * edge - 2, tall = body - 2 * edge - chin;
    grid.Frame(left, top, inner, tall, 'd', 'w');
    grid.Frame(left + 1, top + 1, inner - 2, tall - 2, 'k', 'k');
    DrawSunrise(grid, left + 2, top + 2, inner - 4, tall - 4);
    grid.Fill(x + width - edge - 3, y + body - 3, edge >= 3 ? 2 : 1, 1, 'G');
    // The neck and the plate it stands on.
    const int neck = width / 2 / 2 * 2;
    grid.Fill(x + (width - neck) / 2, y + body, neck, foot - 2, 'd');
    const int inset = width / 8;
    const int thick = foot > 4 ? 4 : 3;
    grid.Fill(x + inset, y + height - thick, width - 2 * inset, thick, 's');
    grid.Frame(x + inset, y + height - thick, width - 2 * inset, thick, 'w', 'k');
}

Grid SmallMonitor() { return Grid(kSmallMonitor); }

Pixels PaintVga(const Grid& grid) {
    return Paint(grid, [](char letter, int x, int y) {
        const int level = SkyLevel(letter);
        return level >= 0 ? VgaSky(level, x, y) : VgaColor(letter);
    });
}

Pixels PaintDeep(const Grid& grid) {
    const int height = grid.height();
    return Paint(grid, [height](char letter, int, int y) {
        switch (letter) {
            case 's':
                return Between(0xE4E0D4, 0xA8A498, y, height);
            case 'w':
                return Between(0xFFFFFF, 0xF0ECE0, y, height);
            case 'd':
                return Between(0x9C988C, 0x706C64, y, height);
            case 'Y':
                return Between(0xFFFCD0, 0xFFB030, y, height);
            case 'c':
                return Between(0x28506C, 0x183850, y, height);
        }
        const int level = SkyLevel(letter);
        return level >= 0 ? DeepSky(level) : VgaColor(letter);
    });
}

}  // namespace vistrel::art
