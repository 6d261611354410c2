// What a user has made of a screen so far.
#pragma once

#include <optional>
#include <vector>

#include "pictures/screen/moving_screen.h"

namespace vistrel::animate {

struct Document {
    screen::MovingPicture picture;
    /// Set while the screen is taken as it is and not made of `picture`: at the beginning, and when
    /// its colours were changed by hand. `picture` has then begun with it.
    std::optional<screen::IndexedScreen> byHand;
    bool areaColors = false;   ///< the ring follows the colours of the selected area
    std::size_t selected = 0;  ///< the layer that is worked on; as many as there are: none
};

/// A screen as it is opened. `original` is the picture that it was made of, when it is at hand.
/// Empty when one of them is not of 320 x 400 pixels.
std::optional<Document> BeginDocument(screen::IndexedScreen base,
                                      std::optional<pictures::RgbPicture> original);

/// What the kinds of movement have in common, as a user tells them apart.
enum class LayerKind { Bar, Shimmer, Background, Screen };

LayerKind KindOf(screen::Pattern pattern);

/// The patterns of a kind, in the order of their list.
struct PatternName {
    screen::Pattern pattern;
    const char* name;
};
const std::vector<PatternName>& PatternsOf(LayerKind kind);

/// What the list of all that moves says of a layer.
std::string NameOf(const screen::Layer& layer);

/// A layer of a kind as it is when it is added, in a place where `layers` leave room.
screen::Layer NewLayer(LayerKind kind, const Document& document);

/// Gives the ring the colours of the selected layer's area.
void TakeAreaColors(Document& document);

/// The area moved; what leaves the screen is lost.
screen::Area Shifted(const screen::Area& area, int across, int down);

}  // namespace vistrel::animate
