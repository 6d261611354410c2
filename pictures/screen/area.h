// The pixels of a screen that something is to happen to.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "pictures/rgb_picture.h"

namespace vistrel::screen {

inline constexpr std::size_t kScreenPixels =
    std::size_t{pictures::kLogoWidth} * pictures::kLogoHeight;

/// A pixel of the screen: x from the left, y from the top. Points outside are allowed.
struct ScreenPoint {
    int x = 0;
    int y = 0;
    bool operator==(const ScreenPoint&) const = default;
};

/// Columns from `left` to before `right`, rows from `top` to before `bottom`.
struct ScreenBounds {
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;
    bool operator==(const ScreenBounds&) const = default;

    bool IsEmpty() const { return right <= left || bottom <= top; }
};

struct Area {
    /// For each of the 320 x 400 pixels, rows from the top, 1 when it belongs to the area, else 0.
    std::vector<std::uint8_t> in = std::vector<std::uint8_t>(kScreenPixels);
    bool operator==(const Area&) const = default;

    static std::size_t At(int x, int y) {
        return static_cast<std::size_t>(y) * pictures::kLogoWidth + static_cast<std::size_t>(x);
    }
    bool Has(int x, int y) const { return in[At(x, y)] != 0; }
    bool IsEmpty() const;
};

/// The smallest rectangle with all of the area; an empty one for an empty area.
ScreenBounds BoundsOf(const Area& area);

/// What the screen has of a rectangle.
Area RectangleArea(int left, int top, int width, int height);

/// The inside of a line through these points, which closes by itself; what it goes round twice is
/// outside again. A pixel belongs to it when its middle does, where points are middles of pixels.
Area LassoArea(std::span<const ScreenPoint> corners);

/// The pixels of about the colour that the picture (320 x 400) has at `at`: with a tolerance of 0
/// of just that colour, with one of 100 all. `connected`: those alone that are reached from it by
/// sides of pixels. Empty when `at` is outside.
Area LikeColorArea(const pictures::RgbPicture& screen, ScreenPoint at, int tolerance,
                   bool connected);

void Invert(Area& area);
void Add(Area& area, const Area& other);
void Remove(Area& area, const Area& other);

}  // namespace vistrel::screen
