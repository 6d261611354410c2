// The working space in fixed point.
#include "pictures/reduce/space.h"

#include <algorithm>

namespace vistrel::reduce {
namespace {

constexpr int kUnit = 16;  // a level is this many units of a point
constexpr int kBits = 16;  // fraction bits of the matrix
constexpr std::int64_t kOne = 1 << kBits;

std::int64_t SquareRoot(std::int64_t value) {
    std::int64_t root = 0;
    for (std::int64_t bit = std::int64_t{1} << 30; bit != 0; bit >>= 1) {
        if ((root + bit) * (root + bit) <= value) root += bit;
    }
    return root;
}

std::int16_t Times(std::int32_t factor, int level) {
    return static_cast<std::int16_t>((std::int64_t{factor} * level * kUnit + kOne / 2) >> kBits);
}

std::int32_t Divide(std::int64_t value, std::int64_t by) {
    return static_cast<std::int32_t>((value * kOne) / by);
}

std::uint8_t ToByte(std::int32_t units) {
    return static_cast<std::uint8_t>(std::clamp((units + kUnit / 2) >> 4, 0, 255));
}

}  // namespace

WorkingSpace::WorkingSpace(const DistanceWeights& weights) {
    // Luma's parts of red, green and blue (ITU-R BT.601), 16 fraction bits.
    constexpr std::array<std::int64_t, 3> kLuma = {19595, 38470, 7471};
    const std::array<int, 3> single = {weights.red, weights.green, weights.blue};
    for (int i = 0; i < 3; ++i) {
        for (int j = i; j < 3; ++j) {
            std::int64_t rest = (weights.luma * kLuma[i] * kLuma[j]) >> (kBits + 8);
            if (i == j) rest += std::int64_t{single[i]} << (kBits - 8);
            for (int k = 0; k < i; ++k) {
                rest -= (std::int64_t{matrix_[k][i]} * matrix_[k][j]) >> kBits;
            }
            matrix_[i][j] = static_cast<std::int32_t>(i == j ? SquareRoot(rest << kBits)
                                                             : (rest << kBits) / matrix_[i][i]);
        }
    }
    for (int level = 0; level < 256; ++level) {
        for (int channel = 0; channel < 3; ++channel) {
            parts_[channel][level] = std::bit_cast<std::uint64_t>(
                ColorPoint{Times(matrix_[0][channel], level), Times(matrix_[1][channel], level),
                           Times(matrix_[2][channel], level), 0});
        }
    }
}

Rgb WorkingSpace::ToRgb(const ColorPoint& point) const {
    const std::int32_t blue = Divide(point.z, matrix_[2][2]);
    const std::int64_t yRest = point.y - ((std::int64_t{matrix_[1][2]} * blue) >> kBits);
    const std::int32_t green = Divide(yRest, matrix_[1][1]);
    const std::int64_t xRest =
        point.x -
        ((std::int64_t{matrix_[0][1]} * green + std::int64_t{matrix_[0][2]} * blue) >> kBits);
    const std::int32_t red = Divide(xRest, matrix_[0][0]);
    return {ToByte(red), ToByte(green), ToByte(blue)};
}

}  // namespace vistrel::reduce
