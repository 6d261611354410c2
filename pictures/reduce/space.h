// The space in which colours are compared: distances there are differences as an eye weighs them.
#pragma once

#include <array>
#include <bit>
#include <cstdint>

namespace vistrel::reduce {

/// A colour or a difference of colours in the working space, in sixteenths of a level. `w` is 0: it
/// is there so that a point has the size of a machine word.
struct alignas(8) ColorPoint {
    std::int16_t x = 0;
    std::int16_t y = 0;
    std::int16_t z = 0;
    std::int16_t w = 0;
};

/// The difference of two points whose coordinates are not negative, in one subtraction: with the
/// sign bits set in `a` nothing is borrowed from one coordinate to the next.
inline ColorPoint operator-(const ColorPoint& a, const ColorPoint& b) {
    constexpr std::uint64_t kSigns = 0x8000800080008000u;
    const std::uint64_t biased = std::bit_cast<std::uint64_t>(a) | kSigns;
    return std::bit_cast<ColorPoint>((biased - std::bit_cast<std::uint64_t>(b)) ^ kSigns);
}

inline std::int32_t SquaredLength(std::int32_t x, std::int32_t y, std::int32_t z) {
    return x * x + y * y + z * z;
}

inline std::int32_t SquaredDistance(const ColorPoint& a, const ColorPoint& b) {
    return SquaredLength(a.x - b.x, a.y - b.y, a.z - b.z);
}

struct Rgb {
    std::uint8_t red = 0;
    std::uint8_t green = 0;
    std::uint8_t blue = 0;
};

/// What a squared distance is made of: the squared differences of red, green and blue, each times
/// its weight, plus the squared difference of luma times `luma`; all in 1/256.
struct DistanceWeights {
    int red = 256;
    int green = 256;
    int blue = 256;
    int luma = 0;
};

/// A linear map of red, green and blue in which the plain squared distance is the weighted one. The
/// matrix is the triangular square root (Cholesky) of the weighted sum's matrix.
class WorkingSpace {
 public:
    /// Weights of up to 1,024 each keep points within 0..16,383.
    explicit WorkingSpace(const DistanceWeights& weights);

    ColorPoint FromRgb(int red, int green, int blue) const {
        // No part and no sum is negative: four 16-bit sums can be had by one addition.
        return std::bit_cast<ColorPoint>(parts_[0][red] + parts_[1][green] + parts_[2][blue]);
    }
    ColorPoint FromRgb(const std::uint8_t* rgb) const { return FromRgb(rgb[0], rgb[1], rgb[2]); }

    /// The nearest colour in bytes, each channel rounded and clipped by itself.
    Rgb ToRgb(const ColorPoint& point) const;

 private:
    std::array<std::array<std::int32_t, 3>, 3> matrix_{};  ///< 16 fraction bits, upper triangle
    /// What each value of each channel adds: points as machine words.
    std::array<std::array<std::uint64_t, 256>, 3> parts_{};
};

}  // namespace vistrel::reduce
