// Lengths, angles and chance on a screen as it is seen, at 4 to 3: in whole numbers, so that every
// machine makes the same of them.
#pragma once

#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "pictures/rgb_picture.h"

namespace vistrel::screen {

/// Lengths are sixths of a row's height: so even half a pixel is a whole number.
inline constexpr int kAcross = 2 * pictures::kScreenPixel.width;
inline constexpr int kDown = 2 * pictures::kScreenPixel.height;
inline constexpr int kRow = kDown;

/// A whole turn, of a circle and of the ring of colours.
inline constexpr int kTurn = 65536;

/// The whole part of the square root.
inline std::uint32_t RootOf(std::uint32_t number) {
    std::uint32_t root = 0;
    for (std::uint32_t bit = 1u << 15; bit != 0; bit >>= 1)
        if ((root + bit) * (root + bit) <= number) root += bit;
    return root;
}

/// The length of a way with parts of up to 30,000 each.
inline int LengthOf(int across, int down) {
    const auto square = [](int side) { return static_cast<std::uint32_t>(side * side); };
    return static_cast<int>(RootOf(square(across) + square(down)));
}

inline constexpr int kSineOne = 16384;

/// The sine of an angle, by the fraction that Bhaskara gave for it: right to a five-hundredth.
inline int SineOf(int angle) {
    const int half = angle & (kTurn / 2 - 1);
    const std::int64_t part = std::int64_t{half} * (kTurn / 2 - half) >> 14;
    const auto sine = static_cast<int>(16 * kSineOne * part / (5 * kTurn - 4 * part));
    return (angle & kTurn / 2) ? -sine : sine;
}

inline int CosineOf(int angle) { return SineOf(angle + kTurn / 4); }

/// The angle of a direction, clockwise from the right, as an arc of the tangent that is right to a
/// quarter of a degree.
inline int AngleOf(int across, int down) {
    const std::int64_t x = std::abs(across), y = std::abs(down);
    if (x == 0 && y == 0) return 0;
    const std::int64_t tangent = std::min(x, y) * kTurn / std::max(x, y);
    int angle =
        static_cast<int>(tangent * (kTurn / 8 + (2847 * (kTurn - tangent) / kTurn)) / kTurn);
    if (y > x) angle = kTurn / 4 - angle;
    if (across < 0) angle = kTurn / 2 - angle;
    return (down < 0 ? -angle : angle) & (kTurn - 1);
}

/// A number that shows no order, always the same for the same `number`.
inline std::uint32_t NoiseAt(std::uint32_t number) {
    number = (number ^ number >> 16) * 0x7FEB352Du;
    number = (number ^ number >> 15) * 0x846CA68Bu;
    return number ^ number >> 16;
}

/// As much of `whole` as `noise` is of all that it can be: 0 to whole - 1.
inline std::uint32_t Share(std::uint32_t noise, std::uint32_t whole) {
    return static_cast<std::uint32_t>(std::uint64_t{noise} * whole >> 32);
}

}  // namespace vistrel::screen
