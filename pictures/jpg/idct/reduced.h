// The IDCT of the low frequencies of blocks alone: to fewer samples per block, or to all of them
// with a fraction.
#pragma once

#include <cstddef>
#include <vector>

#include "pictures/jpg/frame.h"
#include "pictures/jpg/idct/idct_1d.h"
#include "pictures/jpg/idct/vectors.h"
#include "pictures/jpg/scan/coefficients.h"

namespace vistrel::jpg {

/// The most frequencies of an axis, short of all eight, that there is an IDCT for.
inline constexpr int kMostReduced = 5;

/// Makes kept.across * kept.down samples of each block (both 1 to kMostReduced, or 8): the same
/// picture with fewer samples. Samples count 64 (1 << kFineBits) for a step of the file's 256, from
/// the middle of their range, and stay within it.
class ReducedIdct {
 public:
    /// `quant` has the steps in the file's order.
    ReducedIdct(const KeptFrequencies& kept, const QuantTable& quant);

    /// Dequantizes and transforms `count` blocks that lie side by side. Sample (x, y) of the first
    /// one goes to samples[y * stride + x]; the others follow to its right.
    void Transform(const std::int16_t* blocks, int count, std::int16_t* samples,
                   std::ptrdiff_t stride);

 private:
    void TransformBySingles(const std::int16_t* blocks, int count, std::int16_t* samples,
                            std::ptrdiff_t stride);

    // The columns' results of a few blocks, not so many that they leave the processor's cache.
    static constexpr int kBlocksAtOnce = 16;

    BlockShape shape_;
    std::vector<std::int32_t> steps_;
    VectorDequantTable vectorSteps_;
    std::vector<Wrapping> between_;
};

}  // namespace vistrel::jpg
