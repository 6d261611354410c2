#include "pictures/screen/ring.h"

#include <algorithm>

#include "pictures/screen/brightness.h"

namespace vistrel::screen {
namespace {

using Colors = std::vector<ScreenColor>;

/// `part` of `whole` on the way from one colour to another.
ScreenColor Between(const ScreenColor& from, const ScreenColor& to, int part, int whole) {
    ScreenColor color;
    for (std::size_t c = 0; c < 3; ++c)
        color[c] = static_cast<std::uint8_t>((from[c] * (whole - part) + to[c] * part + whole / 2) /
                                             whole);
    return color;
}

ScreenColor SmoothAt(int place, int count, const Colors& keys) {
    const int size = static_cast<int>(keys.size());
    const int way = place * size;
    return Between(keys[way / count], keys[(way / count + 1) % size], way % count, count);
}

/// Each colour but the first swells in the middle two thirds of its part of the ring.
ScreenColor PulseAt(int place, int count, const Colors& keys) {
    const int size = static_cast<int>(keys.size());
    if (size == 1) return keys[0];
    constexpr int kOne = 256;
    const int way = place * (size - 1);
    const int fromMiddle = std::abs(2 * (way % count) - count) * kOne / count;
    const int height = std::max(0, kOne - fromMiddle * 3 / 2);
    const int swell = height * height * (3 * kOne - 2 * height) / (kOne * kOne);
    return Between(keys[0], keys[way / count + 1], swell, kOne);
}

ScreenColor StripeAt(int place, int count, const Colors& keys) {
    return keys[place * static_cast<int>(keys.size()) / count];
}

/// The tail takes two thirds of the ring.
ScreenColor CometAt(int place, int count, const Colors& keys) {
    const int last = static_cast<int>(keys.size()) - 1;
    const int tail = std::max(1, count * 2 / 3);
    if (place >= tail || last == 0) return keys[0];
    const int way = place * last;
    const int from = last - way / tail;
    return Between(keys[from], keys[from - 1], way % tail, tail);
}

ScreenColor ColorAt(RingShape shape, int place, int count, const Colors& keys) {
    switch (shape) {
        case RingShape::Smooth:
            break;
        case RingShape::Pulse:
            return PulseAt(place, count, keys);
        case RingShape::Stripes:
            return StripeAt(place, count, keys);
        case RingShape::Comet:
            return CometAt(place, count, keys);
    }
    return SmoothAt(place, count, keys);
}

int CountOf(const Ring& ring) { return std::clamp(ring.count, kFewestMoving, kMostMoving); }

}  // namespace

std::vector<ScreenColor> RingColors(const Ring& ring) {
    constexpr std::size_t kMostExact = 255;
    Colors colors = ring.exact;
    if (!colors.empty()) {
        // One colour alone is no ring, but some screens have it.
        colors.resize(std::min(colors.size(), kMostExact));
        return colors;
    }
    const Colors keys = ring.keys.empty() ? Colors{ScreenColor{}} : ring.keys;
    const int count = CountOf(ring);
    for (int i = 0; i < count; ++i) colors.push_back(ColorAt(ring.shape, i, count, keys));
    return colors;
}

Ring RingOfArea(const pictures::RgbPicture& screen, const Area& area, int count) {
    Ring ring;
    ring.count = std::clamp(count, kFewestMoving, kMostMoving);
    const int groups = ring.count / 2 + 1;
    std::vector<std::array<std::uint32_t, 4>> sums(groups);  // red, green, blue, and how many
    const std::vector<std::uint8_t> group = BrightnessGroups(screen, area, groups);
    for (std::size_t i = 0; i < kScreenPixels; ++i) {
        if (!area.in[i]) continue;
        for (std::size_t c = 0; c < 3; ++c) sums[group[i]][c] += screen.pixels[i * 3 + c];
        ++sums[group[i]][3];
    }
    Colors up;
    for (const auto& sum : sums) {
        ScreenColor color = up.empty() ? ScreenColor{} : up.back();
        for (std::size_t c = 0; c < 3 && sum[3] > 0; ++c)
            color[c] = static_cast<std::uint8_t>((sum[c] + sum[3] / 2) / sum[3]);
        up.push_back(color);
    }
    for (int i = 0; i < ring.count; ++i) ring.exact.push_back(up[std::min(i, ring.count - i)]);
    return ring;
}

Ring RingOfScreen(const IndexedScreen& screen) {
    Ring ring;
    if (!screen.IsAnimated()) return ring;
    ring.exact.assign(screen.palette.begin() + screen.firstAnimated, screen.palette.end());
    ring.count = static_cast<int>(ring.exact.size());
    return ring;
}

}  // namespace vistrel::screen
