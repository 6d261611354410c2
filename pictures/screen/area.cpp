#include "pictures/screen/area.h"

#include <algorithm>

namespace vistrel::screen {

using pictures::kLogoHeight;
using pictures::kLogoWidth;

bool Area::IsEmpty() const { return std::find(in.begin(), in.end(), 1) == in.end(); }

ScreenBounds BoundsOf(const Area& area) {
    ScreenBounds bounds{kLogoWidth, kLogoHeight, 0, 0};
    for (int y = 0; y < kLogoHeight; ++y) {
        const auto row = area.in.begin() + static_cast<std::ptrdiff_t>(Area::At(0, y));
        const auto first = std::find(row, row + kLogoWidth, 1);
        if (first == row + kLogoWidth) continue;
        int last = kLogoWidth - 1;
        while (row[last] == 0) --last;
        bounds = {std::min(bounds.left, static_cast<int>(first - row)), std::min(bounds.top, y),
                  std::max(bounds.right, last + 1), y + 1};
    }
    return bounds.IsEmpty() ? ScreenBounds{} : bounds;
}

Area RectangleArea(int left, int top, int width, int height) {
    const auto cut = [](int from, int length, int side) {
        const std::int64_t end = std::int64_t{from} + length;
        return std::pair(std::clamp(from, 0, side),
                         static_cast<int>(std::clamp<std::int64_t>(end, 0, side)));
    };
    const auto [firstX, endX] = cut(left, width, kLogoWidth);
    const auto [firstY, endY] = cut(top, height, kLogoHeight);
    Area area;
    for (int y = firstY; y < endY; ++y)
        for (int x = firstX; x < endX; ++x) area.in[Area::At(x, y)] = 1;
    return area;
}

// In each row every side that crosses its middle turns over all that lies to the right of it.
Area LassoArea(std::span<const ScreenPoint> corners) {
    Area area;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        ScreenPoint from = corners[i];
        ScreenPoint to = corners[(i + 1) % corners.size()];
        if (from.y > to.y) std::swap(from, to);
        for (int y = std::max(from.y, 0); y < std::min(to.y, kLogoHeight); ++y) {
            // Differences of any two numbers of 32 bits, and no product beyond 64.
            const std::int64_t down = std::int64_t{to.y} - from.y;
            const std::int64_t across = std::int64_t{to.x} - from.x;
            const std::int64_t part = (std::int64_t{y} - from.y) * 65536 / down;
            const std::int64_t x = from.x + (across * part + 65535) / 65536;
            const int first = static_cast<int>(std::clamp<std::int64_t>(x, 0, kLogoWidth));
            for (int turned = first; turned < kLogoWidth; ++turned)
                area.in[Area::At(turned, y)] ^= 1;
        }
    }
    return area;
}

void Invert(Area& area) {
    for (std::uint8_t& in : area.in) in ^= 1;
}

void Add(Area& area, const Area& other) {
    for (std::size_t i = 0; i < kScreenPixels; ++i) area.in[i] |= other.in[i];
}

void Remove(Area& area, const Area& other) {
    for (std::size_t i = 0; i < kScreenPixels; ++i) area.in[i] &= other.in[i] ^ 1;
}

}  // namespace vistrel::screen
