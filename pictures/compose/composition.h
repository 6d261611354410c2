// What a user may ask of a picture before it becomes a screen. Plain values: a window keeps one and
// changes its fields, the stages in stages.h make a screen of it.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "pictures/reduce/quantize.h"

namespace vistrel::compose {

struct Color {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
    bool operator==(const Color&) const = default;
};

/// How a picture is turned: clockwise first, then mirrored left to right. Everything that follows
/// (crop, centre) is told in the picture as it is then seen.
struct Orientation {
    int quarterTurns = 0;  ///< any number; only its remainder by 4 counts
    bool mirrored = false;
    bool operator==(const Orientation&) const = default;
};

/// A part of the turned picture in whole pixels of it. What reaches beyond the picture is cut off.
struct Crop {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    bool operator==(const Crop&) const = default;
};

enum class FramingKind {
    Stretch,  ///< all of the picture over all of the screen; shapes grow fat or thin
    Fill,     ///< as much of the picture as fills the screen, shapes as they are
    Fit,      ///< all of the picture, shapes as they are, a border where it does not reach
};

enum class Border { Plain, BlurredEdge };

/// A zoom of 1: Fill shows as much as can be seen without a border.
inline constexpr int kZoomOne = 1000;
inline constexpr int kMostZoom = 16 * kZoomOne;

/// The whole width or height of a picture, in the unit of Framing's centre.
inline constexpr int kWhole = 1 << 30;

/// How the picture, or the part of it that Composition::crop leaves, comes onto the screen.
struct Framing {
    FramingKind kind = FramingKind::Stretch;
    /// For Fill, kZoomOne to kMostZoom; what lies outside is taken as the nearer end.
    int zoom = kZoomOne;
    /// For Fill: which point of the picture is in the middle of the screen, 0 to kWhole from its
    /// left and its upper edge. What would show something beyond an edge is taken as just not doing
    /// so.
    int centreX = kWhole / 2;
    int centreY = kWhole / 2;
    Border border = Border::Plain;  ///< for Fit
    Color borderColor;  ///< for Fit with a plain border: shown as it is, whatever the light
    bool operator==(const Framing&) const = default;
};

/// See light.h for the formulas. All zero (gamma: 100) leaves a picture as it is.
struct Light {
    int brightness = 0;       ///< -100 to 100
    int contrast = 0;         ///< -100 to 100
    int gamma = 100;          ///< hundredths, 10 to 500: above 100 the middle becomes lighter
    int saturation = 0;       ///< -100 (grey) to 100
    bool autoLevels = false;  ///< darkest and lightest of what is framed become black and white
    bool operator==(const Light&) const = default;
};

/// Letters, or anything else in one colour, that lie over the picture: how much of each pixel they
/// cover, 0 to 255. A mask may reach beyond the screen or lie outside.
struct Mask {
    int left = 0;  ///< on the screen, in its pixels; dragging changes these two alone
    int top = 0;
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> cover;  ///< width * height bytes, rows from the top

    bool IsEmpty() const { return width <= 0 || height <= 0; }
};

/// A mask and its colour. `edge` (see text.h) is painted first and may be empty.
struct TextMask {
    Mask letters;
    Color color;
    Mask edge;
    Color edgeColor;
};

struct Composition {
    Orientation orientation;
    std::optional<Crop> crop;
    Framing framing;
    Light light;
    reduce::Dither dither = reduce::Dither::On;  ///< On is the automatic one
    std::vector<TextMask> text;                  ///< in the order of painting
};

}  // namespace vistrel::compose
