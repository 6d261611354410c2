// Deterministic noise: the same on every machine and in every run.
#pragma once

#include <cmath>
#include <cstdint>

namespace vistrel::art {

/// A number from 0 to under 1 for each pair of numbers and seed.
inline double Chance(std::int32_t x, std::int32_t y, std::uint32_t seed) {
    std::uint32_t h =
        seed * 0x9E3779B1u + std::uint32_t(x) * 0x85EBCA77u + std::uint32_t(y) * 0xC2B2AE3Du;
    h = (h ^ h >> 15) * 0x2C1B3C6Du;
    h = (h ^ h >> 12) * 0x297A2D39u;
    return (h ^ h >> 15) / 4294967296.;
}

/// Smooth hills and valleys from 0 to 1, about one unit apart.
inline double Hills(double x, double y, std::uint32_t seed) {
    const double left = std::floor(x), top = std::floor(y);
    const int column = int(left), row = int(top);
    const double u = (x - left) * (x - left) * (3 - 2 * (x - left));
    const double v = (y - top) * (y - top) * (3 - 2 * (y - top));
    const double above = Chance(column, row, seed) * (1 - u) + Chance(column + 1, row, seed) * u;
    const double below =
        Chance(column, row + 1, seed) * (1 - u) + Chance(column + 1, row + 1, seed) * u;
    return above * (1 - v) + below * v;
}

/// Hills with smaller hills on them, `octaves` sizes in all, from 0 to 1.
inline double Clouds(double x, double y, int octaves, std::uint32_t seed) {
    double sum = 0, weight = .5, total = 0;
    for (int i = 0; i < octaves; ++i) {
        sum += weight * Hills(x, y, seed + i);
        total += weight;
        weight /= 2;
        x = x * 2 + 17.3;
        y = y * 2 + 9.7;
    }
    return sum / total;
}

/// Numbers in a row, for scattering things.
class Dice {
 public:
    explicit Dice(std::uint32_t seed) : seed_(seed) {}
    double Roll() { return Chance(count_++, 77, seed_); }
    double Roll(double from, double to) { return from + (to - from) * Roll(); }

 private:
    std::uint32_t seed_;
    std::int32_t count_ = 0;
};

}  // namespace vistrel::art
