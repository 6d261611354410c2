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

/// The whole part of the square root, bit by bit.
inline std::uint32_t RootOf(std::uint32_t number) {
    std::uint32_t root = 0;
    std::uint32_t bit = 1u << 30;
    while (bit > number) bit >>= 2;
    for (; bit != 0; bit >>= 2) {
        const std::uint32_t tried = root + bit;
        root >>= 1;
        if (number < tried) continue;
        number -= tried;
        root += bit;
    }
    return root;
}

/// The length of a way with parts of up to 30,000 each.
inline int LengthOf(int across, int down) {
    const auto square = [](int side) { return static_cast<std::uint32_t>(side * side); };
    return static_cast<int>(RootOf(square(across) + square(down)));
}

inline constexpr int kSineOne = 8192;

/// The sine of an angle, by the fraction that Bhaskara gave for it: right to a five-hundredth.
inline int SineOf(int angle) {
    const unsigned half = angle & (kTurn / 2 - 1);
    const unsigned part = half * (kTurn / 2 - half) >> 14;
    const auto sine = static_cast<int>(16 * kSineOne * part / (5 * kTurn - 4 * part));
    return (angle & kTurn / 2) ? -sine : sine;
}

inline int CosineOf(int angle) { return SineOf(angle + kTurn / 4); }

/// The angle of a direction, clockwise from the right, right to a quarter of a degree; parts of up
/// to 30,000.
inline int AngleOf(int across, int down) {
    const int x = std::abs(across), y = std::abs(down);
    if (x == 0 && y == 0) return 0;
    const int tangent = std::min(x, y) * kTurn / std::max(x, y);
    constexpr int kBend = 2847;  // 0.273 of a radian
    const int slope = kTurn / 8 + kBend * (kTurn - tangent) / kTurn;
    int angle = tangent / 4 * slope / (kTurn / 4);
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
