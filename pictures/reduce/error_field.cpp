// The field of errors.
#include "pictures/reduce/error_field.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace vistrel::reduce {
namespace {

/// What an error counts in the field for the blur alone, at its own place and over all pixels; in
/// sixteenths, of which `ownWeight_` adds two.
constexpr int kOwnBlurred = 9;
constexpr int kWholeBlur = 81;
/// Points are in sixteenths of a level, errors in sixths.
constexpr int kUnitsOfPoints = 8;
constexpr int kUnitsOfErrors = 3;

}  // namespace

ErrorPalette InErrorUnits(const Palette& palette) {
    ErrorPalette result{};
    for (int i = 0; i < palette.size; ++i) {
        const auto point = std::bit_cast<std::uint64_t>(palette.colors[i]);
        const std::uint64_t inUnits = InErrorUnits(point);
        std::memcpy(&result[i * loops::kPoint], &inUnits, sizeof inUnits);
    }
    return result;
}

ErrorField::ErrorField(int width, int height, int lambda)
    : width_(width),
      height_(height),
      stride_((width + 2 * kReach + 1) * loops::kPoint),
      ownWeight_((kWholeBlur * lambda + 256) / 512),
      errors_(std::size_t(height) * stride_),
      along_(std::size_t(kSide) * stride_),
      none_(stride_, std::uint16_t{loops::kNoneAlong}),
      field_(stride_) {
    for (int y = 0; y < height; ++y) {
        std::uint16_t* const row = Errors(y);
        std::fill_n(row - kMargin, kMargin, std::uint16_t{loops::kNoError});
        std::fill_n(row + width * loops::kPoint, stride_ - kMargin - width * loops::kPoint,
                    std::uint16_t{loops::kNoError});
    }
}

void ErrorField::BlurAlong(int y) { loops::Chosen().blurAlong(Errors(y), width_, Along(y)); }

void ErrorField::BlurAgain(int y, std::span<const int> changed) {
    // Many small stretches take longer than the row.
    constexpr int kFew = 6;
    if (static_cast<int>(changed.size()) > width_ / kFew) return BlurAlong(y);
    for (std::size_t i = 0; i < changed.size();) {
        const int first = std::max(changed[i] - kReach, 0);
        int end = changed[i] + kReach + 1;
        while (++i < changed.size() && changed[i] - kReach <= end) end = changed[i] + kReach + 1;
        loops::Chosen().blurAlong(Errors(y) + first * loops::kPoint, std::min(end, width_) - first,
                                  Along(y) + first * loops::kPoint);
    }
}

std::uint16_t* ErrorField::Field(int y) {
    std::array<const std::uint16_t*, kSide> rows;
    for (int i = 0; i < kSide; ++i) {
        const int row = y + i - kReach;
        rows[i] = row < 0 || row >= height_ ? none_.data() : Along(row);
    }
    loops::Chosen().blurDown(rows, Errors(y), width_, ownWeight_, field_.data());
    return field_.data();
}

// Twice the mean of the blurred errors over what all of them together weigh, 1 + lambda.
std::int32_t ErrorField::Step(std::int64_t sum, std::int64_t pixels) const {
    constexpr std::int64_t kTwice = std::int64_t{2} * 16 * kUnitsOfPoints;
    return static_cast<std::int32_t>(sum * kTwice /
                                     (pixels * kUnitsOfErrors * (kWholeBlur + 2 * ownWeight_)));
}

std::int64_t ErrorField::Weighed(std::int64_t squared) const {
    return squared * (kOwnBlurred + 2 * ownWeight_) / 16;
}

}  // namespace vistrel::reduce
