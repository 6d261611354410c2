// Triangle-filter upsampling of colour planes.
#include "pictures/jpg/upsample.h"

#include <algorithm>

namespace vistrel::jpg {

Upsampler::Upsampler(const JpgFrame& frame, const JpgComponent& component, const SamplePlane& plane)
    : component_(component),
      plane_(plane),
      width_(frame.width),
      maxAcross_(frame.maxAcross),
      maxDown_(frame.maxDown),
      isHalfAcross_(component.across * 2 == frame.maxAcross),
      isHalfDown_(component.down * 2 == frame.maxDown) {
    const bool isFullDown = component.down == frame.maxDown;
    const bool isFullAcross = component.across == frame.maxAcross;
    // Mixing across takes three samples, and is for sides of half or all the samples only.
    if (isHalfAcross_ && (component.width <= 2 || !(isFullDown || isHalfDown_))) {
        isHalfAcross_ = isHalfDown_ = false;
    }
    if (!isHalfAcross_ && !isFullAcross) isHalfDown_ = false;
    mixed_.resize(static_cast<std::size_t>(component.width));
    row_.resize(static_cast<std::size_t>(component.width) * 2 + static_cast<std::size_t>(width_));
}

const std::uint8_t* Upsampler::Row(int y) {
    if (isHalfAcross_) {
        if (isHalfDown_) {
            MixRows(y);
        } else {
            const std::uint8_t* row = plane_.Row(y);
            for (std::size_t x = 0; x < mixed_.size(); ++x) {
                mixed_[x] = static_cast<std::uint16_t>(row[x] * 4);
            }
        }
        isHalfDown_ ? DoubleAcross(8, 7) : DoubleAcross(4, 8);
        return row_.data();
    }
    if (isHalfDown_) {
        MixRows(y);
        const int rounding = (y & 1) ? 2 : 1;
        for (std::size_t x = 0; x < mixed_.size(); ++x) {
            row_[x] = static_cast<std::uint8_t>((mixed_[x] + rounding) >> 2);
        }
        return row_.data();
    }
    const std::uint8_t* row = plane_.Row(y * component_.down / maxDown_);
    if (component_.across == maxAcross_) return row;
    Repeat(row);
    return row_.data();
}

// Three parts of the nearer row and one of the farther.
void Upsampler::MixRows(int y) {
    const int near = y / 2;
    const int far = std::clamp(near + ((y & 1) ? 1 : -1), 0, component_.height - 1);
    const std::uint8_t* nearRow = plane_.Row(near);
    const std::uint8_t* farRow = plane_.Row(far);
    for (std::size_t x = 0; x < mixed_.size(); ++x) {
        mixed_[x] = static_cast<std::uint16_t>(nearRow[x] * 3 + farRow[x]);
    }
}

// The same across, from `mixed_` into `row_`. The roundings of neighbours differ so that they do
// not add up to a brighter picture.
void Upsampler::DoubleAcross(int leftRounding, int rightRounding) {
    const std::size_t last = mixed_.size() - 1;
    for (std::size_t x = 0; x <= last; ++x) {
        const int here = mixed_[x] * 3;
        const int left = mixed_[x == 0 ? 0 : x - 1];
        const int right = mixed_[x == last ? last : x + 1];
        row_[x * 2] = static_cast<std::uint8_t>((here + left + leftRounding) >> 4);
        row_[x * 2 + 1] = static_cast<std::uint8_t>((here + right + rightRounding) >> 4);
    }
}

void Upsampler::Repeat(const std::uint8_t* row) {
    for (int x = 0; x < width_; ++x) {
        row_[static_cast<std::size_t>(x)] = row[x * component_.across / maxAcross_];
    }
}

}  // namespace vistrel::jpg
