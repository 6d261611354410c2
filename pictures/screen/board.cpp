#include "pictures/screen/board.h"

#include <algorithm>
#include <numeric>

#include "pictures/screen/brightness.h"

namespace vistrel::screen {
namespace {

constexpr int kEntries = 256;

bool IsEntry(int number) { return number >= 0 && number < kEntries; }

/// Greys come first; then 1 to 1,536 round the circle of colours.
int HueOf(const ScreenColor& color) {
    const auto [least, most] = std::minmax({color[0], color[1], color[2]});
    const int range = most - least;
    if (range == 0) return 0;
    constexpr int kSixth = 256;
    const auto part = [&](int a, int b) { return (a - b) * (kSixth - 1) / range; };
    if (most == color[0]) return 1 + (part(color[1], color[2]) + 6 * kSixth) % (6 * kSixth);
    if (most == color[1]) return 1 + 2 * kSixth + part(color[2], color[0]);
    return 1 + 4 * kSixth + part(color[0], color[1]);
}

/// Puts the colour of entry from[i] into entry i, and gives its pixels that number.
void Rearrange(IndexedScreen& screen, const std::array<int, kEntries>& from) {
    const auto palette = screen.palette;
    std::array<std::uint8_t, kEntries> to{};
    for (int i = 0; i < kEntries; ++i) {
        screen.palette[i] = palette[from[i]];
        to[from[i]] = static_cast<std::uint8_t>(i);
    }
    for (std::uint8_t& index : screen.indices) index = to[index];
}

std::array<int, kEntries> AsTheyAre() {
    std::array<int, kEntries> order{};
    std::iota(order.begin(), order.end(), 0);
    return order;
}

}  // namespace

void SetFirstMoving(IndexedScreen& screen, int first) {
    if (IsEntry(first)) screen.firstAnimated = first;
}

void ExchangeEntries(IndexedScreen& screen, int a, int b) {
    if (!IsEntry(a) || !IsEntry(b)) return;
    std::array<int, kEntries> order = AsTheyAre();
    std::swap(order[a], order[b]);
    Rearrange(screen, order);
}

void SortEntries(IndexedScreen& screen, int from, int to, ColorOrder by) {
    if (!IsEntry(from) || !IsEntry(to) || from > to) return;
    std::array<int, kEntries> order = AsTheyAre();
    const auto key = [&](int entry) {
        const ScreenColor& color = screen.palette[entry];
        const int brightness = BrightnessOf(color.data());
        return std::pair(by == ColorOrder::Hue ? HueOf(color) : 0, brightness);
    };
    std::stable_sort(order.begin() + from, order.begin() + to + 1,
                     [&](int a, int b) { return key(a) < key(b); });
    Rearrange(screen, order);
}

void SetEntry(IndexedScreen& screen, int entry, ScreenColor color) {
    if (IsEntry(entry)) screen.palette[entry] = color;
}

}  // namespace vistrel::screen
