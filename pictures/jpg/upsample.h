// Brings a colour plane of fewer samples to the picture's size, row by row.
#pragma once

#include <cstdint>
#include <vector>

#include "pictures/jpg/frame.h"

namespace vistrel::jpg {

/// The samples of one component, 8 bits each.
struct SamplePlane {
    int stride = 0;  ///< bytes from row to row
    std::vector<std::uint8_t> samples;

    const std::uint8_t* Row(int y) const {
        return samples.data() + static_cast<std::ptrdiff_t>(y) * stride;
    }
};

/// Gives rows of a component at the picture's width. Where a side has half the samples, neighbours
/// are mixed 3 to 1 as most decoders do; other factors repeat samples.
class Upsampler {
 public:
    /// The plane must outlive the upsampler.
    Upsampler(const JpgFrame& frame, const JpgComponent& component, const SamplePlane& plane);

    /// Row `y` of the picture: frame.width samples, valid until the next call.
    const std::uint8_t* Row(int y);

 private:
    void MixRows(int y);
    void DoubleAcross(int leftRounding, int rightRounding);
    void Repeat(const std::uint8_t* row);

    const JpgComponent& component_;
    const SamplePlane& plane_;
    int width_;
    int maxAcross_;
    int maxDown_;
    bool isHalfAcross_;
    bool isHalfDown_;
    std::vector<std::uint16_t> mixed_;  // two rows mixed, four times the samples; at half width
    std::vector<std::uint8_t> row_;
};

}  // namespace vistrel::jpg
