// The area that has about one colour.
#include <algorithm>

#include "pictures/screen/area.h"

namespace vistrel::screen {
namespace {

using pictures::kLogoHeight;
using pictures::kLogoWidth;

/// How different two colours look, squared: an eye sees green best and red least of the rest.
int Difference(const std::uint8_t* a, const std::uint8_t* b) {
    const int red = a[0] - b[0], green = a[1] - b[1], blue = a[2] - b[2];
    return 2 * red * red + 4 * green * green + 3 * blue * blue;
}

/// What of `area` is reached from `at` by sides of pixels.
Area ReachedFrom(ScreenPoint at, const Area& area) {
    Area reached;
    std::vector<ScreenPoint> open;
    const auto reach = [&](int x, int y) {
        if (x < 0 || x >= kLogoWidth || y < 0 || y >= kLogoHeight) return;
        if (!area.Has(x, y) || reached.Has(x, y)) return;
        reached.in[Area::At(x, y)] = 1;
        open.push_back({x, y});
    };
    reach(at.x, at.y);
    while (!open.empty()) {
        const auto [x, y] = open.back();
        open.pop_back();
        reach(x - 1, y);
        reach(x + 1, y);
        reach(x, y - 1);
        reach(x, y + 1);
    }
    return reached;
}

}  // namespace

Area LikeColorArea(const pictures::RgbPicture& screen, ScreenPoint at, int tolerance,
                   bool connected) {
    Area area;
    if (at.x < 0 || at.x >= kLogoWidth || at.y < 0 || at.y >= kLogoHeight) return area;
    if (screen.width != kLogoWidth || screen.height != kLogoHeight) return area;
    const int levels = std::clamp(tolerance, 0, 100) * 255;
    const int most = 9 * (levels / 100) * (levels / 100);
    const std::uint8_t* const wanted = &screen.pixels[Area::At(at.x, at.y) * 3];
    for (std::size_t i = 0; i < kScreenPixels; ++i)
        area.in[i] = Difference(&screen.pixels[i * 3], wanted) <= most;
    return connected ? ReachedFrom(at, area) : area;
}

}  // namespace vistrel::screen
