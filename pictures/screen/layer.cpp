#include "pictures/screen/layer.h"

#include <algorithm>

#include "pictures/screen/brightness.h"
#include "pictures/screen/patterns.h"
#include "pictures/screen/seen.h"

namespace vistrel::screen {
namespace {

/// Where pixels stand that are to have the colours of their brightness: half of those of a group on
/// the way up, the others on the way down, and both go on from there.
std::vector<RingPlace> ByBrightness(const Area& area, const pictures::RgbPicture& screen,
                                    int count) {
    const std::vector<std::uint8_t> group = BrightnessGroups(screen, area, count / 2 + 1);
    std::vector<RingPlace> places(kScreenPixels, kStands);
    for (std::size_t i = 0; i < kScreenPixels; ++i) {
        if (!area.in[i]) continue;
        const bool down = NoiseAt(~static_cast<std::uint32_t>(i)) & 1;
        places[i] = static_cast<RingPlace>(down ? (count - group[i]) % count : group[i]);
    }
    return places;
}

std::vector<RingPlace> AsOnItsScreen(const Layer& layer, int count) {
    std::vector<RingPlace> places(kScreenPixels, kStands);
    if (layer.places.size() != kScreenPixels) return places;
    const int size = layer.size > 0 ? layer.size : count;
    for (std::size_t i = 0; i < kScreenPixels; ++i)
        if (layer.area.in[i])
            places[i] = static_cast<RingPlace>(layer.places[i] % size * count / size);
    return places;
}

std::vector<RingPlace> Forward(const Layer& layer, const pictures::RgbPicture& screen, int count) {
    switch (layer.pattern) {
        case Pattern::Brightness:
            return ByBrightness(layer.area, screen, count);
        case Pattern::OfAScreen:
            return AsOnItsScreen(layer, count);
        case Pattern::Pieces:
            return ByPieces(layer.area, count);
        case Pattern::Stars:
            return AsStars(layer, count);
        default:
            return ByPoint(layer, count);
    }
}

}  // namespace

Layer LayerOfScreen(const IndexedScreen& other) {
    Layer layer;
    layer.pattern = Pattern::OfAScreen;
    if (!other.IsAnimated() || other.width != pictures::kLogoWidth ||
        other.height != pictures::kLogoHeight)
        return layer;
    layer.size = 256 - other.firstAnimated;
    layer.places.resize(kScreenPixels);
    for (std::size_t i = 0; i < kScreenPixels; ++i) {
        if (other.indices[i] < other.firstAnimated) continue;
        layer.area.in[i] = 1;
        layer.places[i] = static_cast<std::uint8_t>(other.indices[i] - other.firstAnimated);
    }
    return layer;
}

std::vector<RingPlace> PlacesOf(const Layer& layer, const pictures::RgbPicture& screen, int count) {
    std::vector<RingPlace> places = Forward(layer, screen, count);
    if (!layer.reversed) return places;
    for (RingPlace& place : places)
        if (place > 0) place = static_cast<RingPlace>(count - place);
    return places;
}

}  // namespace vistrel::screen
