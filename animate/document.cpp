#include "animate/document.h"

#include <algorithm>
#include <string>
#include <utility>

namespace vistrel::animate {
namespace {

using pictures::kLogoHeight;
using pictures::kLogoWidth;
using screen::Pattern;

constexpr int kBarHeight = 20;
/// Above the lower edge, which a tube may hide, and above the bars that are there.
constexpr int kBarStep = 28;
/// How near the corner's colour the background of a picture is taken to be.
constexpr int kBackgroundTolerance = 12;

screen::Area AreaOfNewBar(const Document& document) {
    const auto bars = std::count_if(
        document.picture.layers.begin(), document.picture.layers.end(),
        [](const screen::Layer& layer) { return KindOf(layer.pattern) == LayerKind::Bar; });
    const int top = kLogoHeight - kBarStep * (static_cast<int>(bars) + 1);
    return screen::RectangleArea(0, std::max(top, 0), kLogoWidth, kBarHeight);
}

}  // namespace

std::optional<Document> BeginDocument(screen::IndexedScreen base,
                                      std::optional<pictures::RgbPicture> original) {
    auto picture = screen::BeginMoving(base, std::move(original));
    if (!picture) return std::nullopt;
    return Document{std::move(*picture), std::move(base)};
}

LayerKind KindOf(Pattern pattern) {
    switch (pattern) {
        case Pattern::Along:
        case Pattern::Dots:
            return LayerKind::Bar;
        case Pattern::Waves:
        case Pattern::Ripples:
        case Pattern::Plasma:
        case Pattern::Rain:
        case Pattern::Stars:
            return LayerKind::Background;
        case Pattern::OfAScreen:
            return LayerKind::Screen;
        default:
            return LayerKind::Shimmer;
    }
}

const std::vector<PatternName>& PatternsOf(LayerKind kind) {
    static const std::vector<PatternName> patterns[] = {
        {{Pattern::Along, "Running colours"}, {Pattern::Dots, "Dots"}},
        {{Pattern::Brightness, "By brightness"},
         {Pattern::LeftToRight, "Left to right"},
         {Pattern::TopToBottom, "Top to bottom"},
         {Pattern::Rings, "Rings"},
         {Pattern::Rays, "Rays"},
         {Pattern::Diagonal, "Diagonal"},
         {Pattern::Noise, "Dot by dot"},
         {Pattern::Pieces, "Piece by piece"}},
        {{Pattern::Waves, "Waves"},
         {Pattern::Ripples, "Rings on water"},
         {Pattern::Plasma, "Clouds"},
         {Pattern::Rain, "Rain"},
         {Pattern::Stars, "Stars"}},
        {{Pattern::OfAScreen, "As it moved there"}},
    };
    return patterns[static_cast<int>(kind)];
}

std::string NameOf(const screen::Layer& layer) {
    constexpr const char* kinds[] = {"Bar", "Shimmer", "Background", "From a screen"};
    const LayerKind kind = KindOf(layer.pattern);
    const std::string name = kinds[static_cast<int>(kind)];
    // The run of a bar's colours is that of all colours.
    if (kind == LayerKind::Screen || layer.pattern == Pattern::Along) return name;
    for (const PatternName& row : PatternsOf(kind))
        if (row.pattern == layer.pattern) return name + ": " + row.name;
    return name;
}

screen::Layer NewLayer(LayerKind kind, const Document& document) {
    screen::Layer layer;
    layer.pattern = PatternsOf(kind).front().pattern;
    if (kind == LayerKind::Bar) layer.area = AreaOfNewBar(document);
    if (kind == LayerKind::Shimmer)
        layer.area =
            screen::RectangleArea(kLogoWidth / 4, kLogoHeight / 4, kLogoWidth / 2, kLogoHeight / 2);
    if (kind == LayerKind::Background)
        layer.area = screen::LikeColorArea(screen::StillPicture(document.picture), {0, 0},
                                           kBackgroundTolerance, true);
    return layer;
}

void TakeAreaColors(Document& document) {
    screen::MovingPicture& picture = document.picture;
    if (document.selected >= picture.layers.size()) return;
    const screen::Area& area = picture.layers[document.selected].area;
    picture.ring.exact =
        screen::RingOfArea(screen::StillPicture(picture), area, picture.ring.count).exact;
}

screen::Area Shifted(const screen::Area& area, int across, int down) {
    screen::Area shifted;
    for (int y = 0; y < kLogoHeight; ++y) {
        for (int x = 0; x < kLogoWidth; ++x) {
            const int toX = x + across, toY = y + down;
            const bool seen = toX >= 0 && toX < kLogoWidth && toY >= 0 && toY < kLogoHeight;
            if (seen && area.Has(x, y)) shifted.in[screen::Area::At(toX, toY)] = 1;
        }
    }
    return shifted;
}

}  // namespace vistrel::animate
