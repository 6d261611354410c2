// The pieces of an area, each of which moves by itself.
#include "pictures/screen/patterns.h"
#include "pictures/screen/seen.h"

namespace vistrel::screen {
namespace {

using pictures::kLogoHeight;
using pictures::kLogoWidth;

/// Gives the place to all that hangs together with a point, by sides and corners of pixels.
void GivePlace(ScreenPoint first, RingPlace place, const Area& area,
               std::vector<RingPlace>& places) {
    std::vector<ScreenPoint> open{first};
    places[Area::At(first.x, first.y)] = place;
    while (!open.empty()) {
        const ScreenPoint point = open.back();
        open.pop_back();
        for (int y = std::max(0, point.y - 1); y <= std::min(kLogoHeight - 1, point.y + 1); ++y)
            for (int x = std::max(0, point.x - 1); x <= std::min(kLogoWidth - 1, point.x + 1);
                 ++x) {
                if (!area.Has(x, y) || places[Area::At(x, y)] != kStands) continue;
                places[Area::At(x, y)] = place;
                open.push_back({x, y});
            }
    }
}

}  // namespace

std::vector<RingPlace> ByPieces(const Area& area, int count) {
    std::vector<RingPlace> places(kScreenPixels, kStands);
    // Parts of the golden section: neighbours are far from each other, and no place is left out.
    std::uint32_t turn = 0;
    for (int y = 0; y < kLogoHeight; ++y) {
        for (int x = 0; x < kLogoWidth; ++x) {
            if (!area.Has(x, y) || places[Area::At(x, y)] != kStands) continue;
            GivePlace({x, y}, static_cast<RingPlace>(Share(turn, std::uint32_t(count))), area,
                      places);
            turn += 2654435769u;
        }
    }
    return places;
}

}  // namespace vistrel::screen
