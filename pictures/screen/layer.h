// One thing that moves on a screen: an area, and where each of its pixels stands on the ring.
#pragma once

#include <optional>

#include "pictures/screen/ring.h"

namespace vistrel::screen {

/// In which order the pixels of an area take the colours of the ring. Unless `reversed`, what
/// shines goes to the right, down, outwards, clockwise.
enum class Pattern {
    // A bar.
    Along,  ///< from the left to the right, as LeftToRight
    Dots,   ///< round dots, one colour each; gaps between them
    // An order for a part of the picture.
    Brightness,  ///< dark to light, half of the pixels on the way back: see RingOfArea
    LeftToRight,
    TopToBottom,
    Rings,     ///< by their distance from the centre
    Rays,      ///< by their angle round the centre
    Diagonal,  ///< from the upper left to the lower right
    Noise,     ///< each pixel by itself
    Pieces,    ///< each connected piece by itself: windows that are lit in turn, stars that twinkle
    // A background.
    Waves,    ///< rolling down the screen
    Ripples,  ///< rings round several points
    Plasma,   ///< clouds
    Rain,     ///< drops; gaps between them
    Stars,    ///< that come from the centre; gaps between them
    // As another screen has it.
    OfAScreen
};

struct Layer {
    Pattern pattern = Pattern::Along;
    Area area;
    bool reversed = false;
    /// After how many rows' heights the colours come again (the screen is seen 400 rows high and
    /// 533 wide); Dots: from dot to dot; Rays and Stars: how many there are. 0 or less: what suits
    /// the area. It means nothing to Brightness, Noise and Pieces.
    int size = 0;
    std::optional<ScreenPoint> centre;  ///< of Rings, Rays, Stars; else the middle of the bounds
    /// OfAScreen: where each of the 320 x 400 pixels stands on the ring, of `size` places.
    std::vector<std::uint8_t> places;
    bool operator==(const Layer&) const = default;
};

/// The moving part of another screen, which goes with its RingOfScreen. One with an empty area when
/// nothing moves on it, or when it is not of 320 x 400 pixels.
Layer LayerOfScreen(const IndexedScreen& other);

/// Where a pixel stands on the ring; or, when negative, one of these.
using RingPlace = std::int16_t;
inline constexpr RingPlace kStands = -1;  ///< it is not of the area
inline constexpr RingPlace kGap = -2;     ///< it is, and between what moves

/// The place of each of the 320 x 400 pixels on a ring of `count` colours. `screen` is the picture,
/// 320 x 400; Brightness alone looks at it.
std::vector<RingPlace> PlacesOf(const Layer& layer, const pictures::RgbPicture& screen, int count);

}  // namespace vistrel::screen
