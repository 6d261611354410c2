// Stars that come from a point: each flies on a ray of its own, which is a row of dots.
#include "pictures/screen/patterns.h"
#include "pictures/screen/seen.h"

namespace vistrel::screen {
namespace {

using pictures::kLogoHeight;
using pictures::kLogoWidth;

/// Paints a dot; points and radius in sixths of a row.
void PaintDot(int middleX, int middleY, int radius, RingPlace place, const Area& area,
              std::vector<RingPlace>& places) {
    const auto paint = [&](int column, int row) {
        if (column < 0 || column >= kLogoWidth || row < 0 || row >= kLogoHeight) return;
        if (area.Has(column, row)) places[Area::At(column, row)] = place;
    };
    paint(middleX / kAcross, middleY / kDown);
    for (int row = (middleY - radius) / kDown; row <= (middleY + radius) / kDown; ++row)
        for (int column = (middleX - radius) / kAcross; column <= (middleX + radius) / kAcross;
             ++column) {
            const int x = column * kAcross + kAcross / 2 - middleX;
            const int y = row * kDown + kDown / 2 - middleY;
            if (x * x + y * y <= radius * radius) paint(column, row);
        }
}

}  // namespace

std::vector<RingPlace> AsStars(const Layer& layer, int count) {
    std::vector<RingPlace> places(kScreenPixels, kStands);
    for (std::size_t i = 0; i < kScreenPixels; ++i)
        if (layer.area.in[i]) places[i] = kGap;
    const ScreenBounds bounds = BoundsOf(layer.area);
    const ScreenPoint centre = layer.centre.value_or(
        ScreenPoint{(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2});
    const int centreX = std::clamp(centre.x, -400, 800) * kAcross;
    const int centreY = std::clamp(centre.y, -400, 800) * kDown;
    const int farthest = 334 * kRow;  // from the middle of the screen to a corner
    const int stars = layer.size > 0 ? std::min(layer.size, 1000) : 120;
    for (int star = 0; star < stars; ++star) {
        const std::uint32_t noise = NoiseAt(static_cast<std::uint32_t>(star) + 77);
        const int angle = static_cast<int>(noise >> 16);
        const int begin = static_cast<int>(noise & 0xFFFF) % count;
        for (int step = 0; step < count; ++step) {
            // As it is seen when something comes nearer by the same way at every step.
            const int way = farthest * (count / 6 + 1) / (count / 6 + 1 + (count - 1 - step));
            const int x =
                centreX + static_cast<int>(std::int64_t{way} * CosineOf(angle) / kSineOne);
            const int y = centreY + static_cast<int>(std::int64_t{way} * SineOf(angle) / kSineOne);
            if (x < 0 || y < 0) continue;
            const int radius = kRow / 2 + way / 120;
            PaintDot(x, y, radius, static_cast<RingPlace>((2 * count - begin - step) % count),
                     layer.area, places);
        }
    }
    return places;
}

}  // namespace vistrel::screen
