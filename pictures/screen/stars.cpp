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
    if (middleX < 0 || middleY < 0) return;
    paint(middleX / kAcross, middleY / kDown);  // however small it is
    for (int row = (middleY - radius) / kDown; row <= (middleY + radius) / kDown; ++row)
        for (int column = (middleX - radius) / kAcross; column <= (middleX + radius) / kAcross;
             ++column) {
            const int x = column * kAcross + kAcross / 2 - middleX;
            const int y = row * kDown + kDown / 2 - middleY;
            if (x * x + y * y <= radius * radius) paint(column, row);
        }
}

/// How far from the middle a star is when `left` 256ths of a step are left to the edge of the
/// screen: as it is seen of something that comes nearer by the same way at every step.
int WayOf(int left, int count) {
    constexpr int kFarthest = 334 * kRow;  // from the middle of the screen to a corner
    const int nearest = 16 * count;
    return static_cast<int>(std::int64_t{kFarthest} * nearest / (nearest + left));
}

ScreenPoint CentreOf(const Layer& layer) {
    const ScreenBounds bounds = BoundsOf(layer.area);
    const ScreenPoint middle{(bounds.left + bounds.right) / 2, (bounds.top + bounds.bottom) / 2};
    const ScreenPoint centre = layer.centre.value_or(middle);
    return {std::clamp(centre.x, -400, 800) * kAcross, std::clamp(centre.y, -400, 800) * kDown};
}

}  // namespace

std::vector<RingPlace> AsStars(const Layer& layer, int count) {
    std::vector<RingPlace> places(kScreenPixels, kStands);
    for (std::size_t i = 0; i < kScreenPixels; ++i)
        if (layer.area.in[i]) places[i] = kGap;
    const ScreenPoint centre = CentreOf(layer);
    const int stars = layer.size > 0 ? std::min(layer.size, 1000) : 150;
    for (int star = 0; star < stars; ++star) {
        const std::uint32_t noise = NoiseAt(static_cast<std::uint32_t>(star));
        const int angle = static_cast<int>(noise >> 16);
        const int begin = static_cast<int>(noise & 0xFF) % count;
        const int ahead = static_cast<int>(noise >> 8 & 0xFF);
        for (int step = 0; step < count; ++step) {
            const int way = WayOf(256 * (count - step) - ahead, count);
            const auto part = [way](int of) {
                return static_cast<int>(std::int64_t{way} * of / kSineOne);
            };
            PaintDot(centre.x + part(CosineOf(angle)), centre.y + part(SineOf(angle)),
                     kRow / 2 + way / 120,
                     static_cast<RingPlace>((2 * count - begin - step) % count), layer.area,
                     places);
        }
    }
    return places;
}

}  // namespace vistrel::screen
