// Means along lines, by sums: a mean is the difference of two of them.
#include "pictures/compose/border.h"

#include <algorithm>
#include <vector>

namespace vistrel::compose {
namespace {

/// One side of a picture, in bytes of the screen.
struct Side {
    std::uint8_t* edge;    ///< first pixel of the picture's outermost line
    std::ptrdiff_t along;  ///< from a pixel of that line to the next
    std::ptrdiff_t out;    ///< from a line to the next one outwards
    int length;            ///< of a line
    int inside;            ///< lines of the picture
    int outside;           ///< lines to be drawn
};

/// The sums of one channel of the outermost few lines' means: sums[i] is that of i pixels.
std::vector<std::uint32_t> SumsAlong(const Side& side, int channel) {
    const int lines = std::clamp(side.inside / 16, 1, 8);
    std::vector<std::uint32_t> sums{0};
    for (int i = 0; i < side.length; ++i) {
        unsigned total = 0;
        for (int line = 0; line < lines; ++line)
            total += side.edge[i * side.along - line * side.out + channel];
        sums.push_back(sums.back() + (total + static_cast<unsigned>(lines) / 2) / lines);
    }
    return sums;
}

void DrawOut(const Side& side, int channel) {
    const std::vector<std::uint32_t> sums = SumsAlong(side, channel);
    for (int line = 1; line <= side.outside; ++line) {
        const int reach = std::min(1 + line / 2, side.length / 2);
        std::uint8_t* to = side.edge + line * side.out + channel;
        for (int i = 0; i < side.length; ++i, to += side.along) {
            const int first = std::max(i - reach, 0);
            const int end = std::min(i + reach + 1, side.length);
            const auto count = static_cast<std::uint32_t>(end - first);
            *to = static_cast<std::uint8_t>((sums[end] - sums[first] + count / 2) / count);
        }
    }
}

}  // namespace

void PaintPlain(const Color& color, pictures::RgbPicture& screen) {
    for (std::size_t i = 0; i < screen.pixels.size(); i += 3) {
        screen.pixels[i] = color.red;
        screen.pixels[i + 1] = color.green;
        screen.pixels[i + 2] = color.blue;
    }
}

void DrawOutEdges(const ScreenRectangle& picture, pictures::RgbPicture& screen) {
    const std::ptrdiff_t row = std::ptrdiff_t{3} * screen.width;
    const int right = picture.left + picture.width;
    const int bottom = picture.top + picture.height;
    const auto at = [&](int x, int y) { return screen.pixels.data() + y * row + x * 3; };
    const Side sides[] = {
        {at(0, picture.top), 3, -row, screen.width, picture.height, picture.top},
        {at(0, bottom - 1), 3, row, screen.width, picture.height, screen.height - bottom},
        {at(picture.left, 0), row, -3, screen.height, picture.width, picture.left},
        {at(right - 1, 0), row, 3, screen.height, picture.width, screen.width - right}};
    for (const Side& side : sides) {
        if (side.outside <= 0) continue;
        for (int channel = 0; channel < 3; ++channel) DrawOut(side, channel);
    }
}

}  // namespace vistrel::compose
