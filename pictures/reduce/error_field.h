// The blurred errors that the descent works on.
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "pictures/loops/loops.h"
#include "pictures/reduce/palette.h"

namespace vistrel::reduce {

/// A colour's point, as a machine word, in the unit of errors, a sixth of a level.
inline std::uint64_t InErrorUnits(std::uint64_t point) {
    constexpr std::uint64_t kHalf = 0x0004000400040004u, kKept = 0x1FFF1FFF1FFF1FFFu;
    return (point * 3 + kHalf) >> 3 & kKept;
}

/// A palette in that unit.
using ErrorPalette = std::array<std::uint16_t, kMostColors * loops::kPoint>;
ErrorPalette InErrorUnits(const Palette& palette);

/// Keeps the error of each pixel, chosen less wanted colour, and makes the field of them row by
/// row: the blurred error G e plus lambda times the own error, times some factor. G is 1 2 3 2 1
/// along rows and down them, which is near to a Gaussian of sigma 1.2, and takes no multiplication.
/// Errors outside the picture are 0.
class ErrorField {
 public:
    /// `lambda` in 1/256, at most 196.
    ErrorField(int width, int height, int lambda);

    /// The errors of a row, to be written first of all, and with GrowErrors.
    std::uint16_t* Errors(int y) { return &errors_[std::size_t(y) * stride_ + kMargin]; }

    /// To be called for rows from 0 on: blurs a row's errors along itself.
    void BlurAlong(int y);

    /// The same for a row that was blurred, whose errors have changed at some places, in order.
    void BlurAgain(int y, std::span<const int> changed);

    /// The field of row `y`, with a place for two pixels more. Of the rows up to two below it
    /// BlurAlong must have been called; rows outside the picture count as blurred.
    std::uint16_t* Field(int y);

    int ownWeight() const { return ownWeight_; }

    /// How far a palette colour moves against the sum of the field over `pixels` pixels of it, in
    /// sixteenths of a level.
    std::int32_t Step(std::int64_t sum, std::int64_t pixels) const;

    /// A squared difference in the unit of errors, times what a pixel's own error counts in the
    /// field.
    std::int64_t Weighed(std::int64_t squared) const;

 private:
    static constexpr int kReach = 2;
    static constexpr int kSide = 2 * kReach + 1;
    /// Numbers beside each row.
    static constexpr int kMargin = kReach * loops::kPoint;

    std::uint16_t* Along(int y) { return &along_[std::size_t(y % kSide) * stride_]; }

    int width_;
    int height_;
    int stride_;
    int ownWeight_;  ///< of the own error, in eighths, see loops::Loops::blurDown
    std::vector<std::uint16_t> errors_;
    std::vector<std::uint16_t> along_;  ///< the last rows, blurred
    std::vector<std::uint16_t> none_;   ///< a row without errors, blurred
    std::vector<std::uint16_t> field_;
};

}  // namespace vistrel::reduce
