#include "pictures/screen/fill_in.h"

#include <algorithm>

namespace vistrel::screen {
namespace {

using pictures::kLogoHeight;
using pictures::kLogoWidth;

constexpr std::int32_t kNone = -1;

/// For each pixel the number of the pixel outside the area from which it is reached first.
std::vector<std::int32_t> NearestOutside(const Area& area) {
    std::vector<std::int32_t> nearest(kScreenPixels, kNone);
    std::vector<std::int32_t> reached;  // in the order of their distance
    reached.reserve(kScreenPixels);
    for (std::size_t i = 0; i < kScreenPixels; ++i) {
        if (area.in[i]) continue;
        nearest[i] = static_cast<std::int32_t>(i);
        reached.push_back(nearest[i]);
    }
    for (std::size_t next = 0; next < reached.size(); ++next) {
        const std::int32_t at = reached[next];
        const auto reach = [&](bool there, std::int32_t neighbor) {
            if (!there || nearest[neighbor] != kNone) return;
            nearest[neighbor] = nearest[at];
            reached.push_back(neighbor);
        };
        reach(at % kLogoWidth > 0, at - 1);
        reach(at % kLogoWidth < kLogoWidth - 1, at + 1);
        reach(at >= kLogoWidth, at - kLogoWidth);
        reach(at < kLogoWidth * (kLogoHeight - 1), at + kLogoWidth);
    }
    return nearest;
}

}  // namespace

void FillIn(pictures::RgbPicture& screen, const Area& area) {
    const std::vector<std::int32_t> nearest = NearestOutside(area);
    for (std::int32_t i = 0; i < static_cast<std::int32_t>(kScreenPixels); ++i) {
        const std::int32_t edge = nearest[i];
        if (!area.in[i] || edge == kNone) continue;
        const int x = std::clamp(2 * (edge % kLogoWidth) - i % kLogoWidth, 0, kLogoWidth - 1);
        const int y = std::clamp(2 * (edge / kLogoWidth) - i / kLogoWidth, 0, kLogoHeight - 1);
        const std::size_t mirrored = area.Has(x, y) ? std::size_t(edge) : Area::At(x, y);
        std::copy_n(&screen.pixels[mirrored * 3], 3, &screen.pixels[std::size_t(i) * 3]);
    }
}

}  // namespace vistrel::screen
