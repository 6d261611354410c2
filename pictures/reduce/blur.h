// The field of blurred errors that the descent works on.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "pictures/reduce/space.h"

namespace vistrel::reduce {

/// For every pixel the blurred error plus lambda times its own error, (G e + lambda e) / c with
/// c = G(0) + lambda: so divided, a pixel's own error counts just once, and taking the field's
/// value from a pixel's colour gives the colour that would suit its surroundings best. G is a
/// Gaussian of sigma sqrt 2, cut to 5 x 5 pixels; errors outside the picture are 0.
class ErrorField {
 public:
    /// `lambda` in 1/256, at least 16.
    ErrorField(int width, int height, int lambda);

    const ColorPoint& At(int x, int y) const { return field_[Place(x, y)]; }
    const ColorPoint* Row(int y) const { return &field_[Place(0, y)]; }

    /// Tells the field that the error at (x, y) has grown by `change`.
    void Add(int x, int y, const ColorPoint& change);

    /// Computes the field from the errors that `errorsOfRow(y, errors)` writes for each row.
    template <class ErrorsOfRow>
    void Fill(ErrorsOfRow errorsOfRow) {
        ClearRow(-2);
        ClearRow(-1);
        for (int y = 0; y < height_ + kReach; ++y) {
            if (y < height_) {
                errorsOfRow(y, ErrorsAt(y));
                BlurAlong(y);
            } else {
                ClearRow(y);
            }
            if (y >= kReach) BlurDown(y - kReach);
        }
    }

    /// 2 c / (1 + lambda) in 1/65,536: how far a palette colour moves against the mean of the field
    /// over its pixels.
    std::int32_t step() const { return step_; }

 private:
    static constexpr int kReach = 2;
    static constexpr int kSide = 2 * kReach + 1;
    /// Free points beside each row: Add may write up to three to the right of a pixel.
    static constexpr int kMargin = 3;

    std::size_t Place(int x, int y) const {
        return std::size_t(y + kReach) * stride_ + kMargin + x;
    }
    ColorPoint* ErrorsAt(int y) { return &errors_[std::size_t(y % kSide) * stride_ + kMargin]; }
    ColorPoint* AlongAt(int y) {
        return &along_[std::size_t((y + kSide) % kSide) * stride_ + kMargin];
    }
    void ClearRow(int y);
    void BlurAlong(int y);
    void BlurDown(int y);

    int width_;
    int height_;
    int stride_;
    std::int32_t step_;
    std::array<std::int16_t, 4> down_{};  ///< weights of rows at distance 2, 1, 0 and of the error
    std::array<std::array<std::int16_t, 24>, kSide> spread_{};  ///< of a change, four to a point
    std::vector<ColorPoint> field_;
    std::vector<ColorPoint> errors_;  ///< the last rows of errors
    std::vector<ColorPoint> along_;   ///< and the same, blurred along the row
};

}  // namespace vistrel::reduce
