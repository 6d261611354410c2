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

namespace {

/// The first column whose middle is not to the left of a line, in a row that the line crosses.
int FirstBeside(const ScreenPoint& from, const ScreenPoint& to, int y) {
    const std::int64_t down = to.y - from.y;
    const std::int64_t way = std::int64_t{to.x - from.x} * (y - from.y) + from.x * down;
    const std::int64_t x = way <= 0 ? 0 : (way + down - 1) / down;
    return static_cast<int>(std::min<std::int64_t>(x, kLogoWidth));
}

/// Sides that are far too long keep to where numbers are exact.
ScreenPoint Near(const ScreenPoint& point) {
    constexpr int kFar = 1'000'000;
    return {std::clamp(point.x, -kFar, kFar), std::clamp(point.y, -kFar, kFar)};
}

}  // namespace

// In each row every side that crosses its middle turns over all that lies to the right of it.
Area LassoArea(std::span<const ScreenPoint> corners) {
    Area area;
    for (std::size_t i = 0; i < corners.size(); ++i) {
        ScreenPoint from = Near(corners[i]);
        ScreenPoint to = Near(corners[(i + 1) % corners.size()]);
        if (from.y > to.y) std::swap(from, to);
        for (int y = std::max(from.y, 0); y < std::min(to.y, kLogoHeight); ++y)
            for (int x = FirstBeside(from, to, y); x < kLogoWidth; ++x)
                area.in[Area::At(x, y)] ^= 1;
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
