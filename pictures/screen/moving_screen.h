// A screen whose colours move, as a user composes it, and the screen that is made of that.
#pragma once

#include <optional>

#include "pictures/screen/layer.h"

namespace vistrel::screen {

struct MovingPicture {
    IndexedScreen base;  ///< the screen that it began with, 320 x 400
    /// The picture that the screen was made of, 320 x 400, when it is at hand. Shown in place of
    /// `base`, whose movement stays.
    std::optional<pictures::RgbPicture> original;
    Ring ring;
    std::vector<Layer> layers;  ///< in the order of painting
    /// What is seen in gaps, between dots, drops and stars; empty: the picture, or a lower layer.
    std::optional<ScreenColor> ground;
};

/// What a screen is before anything is changed: when its colours move already they are the ring,
/// and the pixels that have them the one layer. Empty when a picture is not of 320 x 400 pixels.
std::optional<MovingPicture> BeginMoving(IndexedScreen base,
                                         std::optional<pictures::RgbPicture> original);

/// The picture before anything moves: the original, or the colours of the base. Areas of like
/// colour and RingOfArea take this one.
pictures::RgbPicture StillPicture(const MovingPicture& document);

/// What stands, in as many colours as the movement leaves.
struct StillPart {
    std::vector<ScreenColor> colors;
    std::vector<std::uint8_t> indices;  ///< one of `colors` for each pixel, also for what moves
};

/// Reduces what stands to as many colours as the movement leaves: anew from the original, where
/// moving pixels cost no colour, or by merging the nearest colours of the base, which keeps its
/// colours and their numbers when they fit. Takes as long as a conversion. Empty when memory runs
/// out.
std::optional<StillPart> ReduceStill(const MovingPicture& document);

/// The screen; what moves has the last entries and shares none with what stands. Fast. `still` may
/// be of an earlier state of the document: where it then has too many colours, the nearest are
/// taken.
IndexedScreen Compose(const MovingPicture& document, const StillPart& still);

/// Both. Empty when memory runs out.
std::optional<IndexedScreen> MakeMovingScreen(const MovingPicture& document);

}  // namespace vistrel::screen
