// Masks: grown, softened, painted.
#include "pictures/compose/text.h"

#include <algorithm>
#include <array>

namespace vistrel::compose {
namespace {

/// An empty mask around another one, `across` and `down` pixels larger on each side.
Mask Around(const Mask& inner, int across, int down) {
    Mask mask{inner.left - across,
              inner.top - down,
              inner.width + 2 * across,
              inner.height + 2 * down,
              {}};
    mask.cover.resize(std::size_t(mask.width) * mask.height);
    return mask;
}

/// Makes every pixel of `to` at least `quarters` / 4 of that of `from`, moved so far.
void Spread(const Mask& from, int across, int down, int quarters, Mask& to) {
    const std::uint8_t* cover = from.cover.data();
    for (int y = 0; y < from.height; ++y) {
        const std::size_t row = std::size_t(from.top + y + down - to.top) * to.width;
        std::uint8_t* grown = &to.cover[row + (from.left + across - to.left)];
        for (int x = 0; x < from.width; ++x, ++cover, ++grown)
            *grown = std::max(*grown, static_cast<std::uint8_t>(*cover * quarters / 4));
    }
}

/// A quarter of each neighbour and half of the pixel itself; beyond the ends is nothing.
void Soften(std::uint8_t* first, int count, std::size_t apart) {
    int before = 0;
    for (int i = 0; i < count; ++i, first += apart) {
        const int here = *first;
        const int after = i + 1 < count ? first[apart] : 0;
        *first = static_cast<std::uint8_t>((before + 2 * here + after + 2) / 4);
        before = here;
    }
}

/// `cover` / 255 of the way from one value to the other.
std::uint8_t Mixed(int from, int to, int cover) {
    return static_cast<std::uint8_t>((from * (255 - cover) + to * cover + 127) / 255);
}

void PaintRow(const std::uint8_t* cover, int count, const Color& color, std::uint8_t* rgb) {
    for (int x = 0; x < count; ++x, rgb += 3) {
        if (cover[x] == 0) continue;
        rgb[0] = Mixed(rgb[0], color.red, cover[x]);
        rgb[1] = Mixed(rgb[1], color.green, cover[x]);
        rgb[2] = Mixed(rgb[2], color.blue, cover[x]);
    }
}

/// Paints what of the mask lies on the screen.
void Paint(const Mask& mask, const Color& color, pictures::RgbPicture& screen) {
    if (mask.IsEmpty()) return;
    const auto right = std::min<std::int64_t>(std::int64_t{mask.left} + mask.width, screen.width);
    const auto bottom = std::min<std::int64_t>(std::int64_t{mask.top} + mask.height, screen.height);
    const std::int64_t left = std::max(mask.left, 0);
    for (std::int64_t y = std::max(mask.top, 0); y < bottom && left < right; ++y) {
        const std::uint8_t* const cover =
            &mask.cover[static_cast<std::size_t>((y - mask.top) * mask.width + left - mask.left)];
        PaintRow(cover, static_cast<int>(right - left), color,
                 &screen.pixels[static_cast<std::size_t>(y * screen.width + left) * 3]);
    }
}

}  // namespace

Mask OutlineOf(const Mask& letters) {
    if (letters.IsEmpty()) return {};
    // A pixel across is seen as 1 2/3 lines: two lines down are a little more than that.
    struct Step {
        int across, down, quarters;
    };
    constexpr std::array<Step, 11> kSteps = {{{0, 0, 4},
                                              {-1, 0, 4},
                                              {1, 0, 4},
                                              {0, -1, 4},
                                              {0, 1, 4},
                                              {0, -2, 3},
                                              {0, 2, 3},
                                              {-1, -1, 3},
                                              {1, -1, 3},
                                              {-1, 1, 3},
                                              {1, 1, 3}}};
    Mask outline = Around(letters, 1, 2);
    for (const Step& step : kSteps) Spread(letters, step.across, step.down, step.quarters, outline);
    return outline;
}

Mask ShadowOf(const Mask& letters) {
    if (letters.IsEmpty()) return {};
    constexpr int kAcross = 2, kDown = 3;  // both 3 lines and a third, as seen
    Mask shadow = Around(letters, 1, 1);
    Spread(letters, 0, 0, 4, shadow);
    const std::size_t width = std::size_t(shadow.width);
    for (int y = 0; y < shadow.height; ++y) Soften(&shadow.cover[width * y], shadow.width, 1);
    for (int x = 0; x < shadow.width; ++x) Soften(&shadow.cover[x], shadow.height, width);
    shadow.left += kAcross;
    shadow.top += kDown;
    return shadow;
}

void PaintText(const std::vector<TextMask>& text, pictures::RgbPicture& screen) {
    for (const TextMask& line : text) {
        Paint(line.edge, line.edgeColor, screen);
        Paint(line.letters, line.color, screen);
    }
}

}  // namespace vistrel::compose
