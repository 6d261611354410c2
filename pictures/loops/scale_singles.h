// The loops of scaling on single numbers.
#pragma once

#include "pictures/loops/loops.h"

namespace vistrel::loops::singles {

inline std::int16_t Narrow(std::int32_t value) {
    if (value < -32768) return -32768;
    if (value > 32767) return 32767;
    return static_cast<std::int16_t>(value);
}

/// Columns `from` to `to`, in strips that are narrow enough for their sums to stay in the
/// first-level cache.
template <class Sample>
void Mix(const Sample* const* rows, const std::int16_t* weights, int count, int from, int to,
         int shift, std::int16_t* sums) {
    constexpr int kStrip = 256;
    const std::int32_t half = 1 << (shift - 1);
    std::int32_t strip[kStrip];
    for (int start = from; start < to; start += kStrip) {
        const int length = to - start < kStrip ? to - start : kStrip;
        for (int x = 0; x < length; ++x) strip[x] = half;
        for (int k = 0; k < count; k += 2) {
            const Sample* const one = rows[k] + start;
            const Sample* const two = rows[k + 1] + start;
            const std::int32_t weightOne = weights[k];
            const std::int32_t weightTwo = weights[k + 1];
            int x = 0;
            for (; x + 1 < length; x += 2) {
                strip[x] += weightOne * one[x] + weightTwo * two[x];
                strip[x + 1] += weightOne * one[x + 1] + weightTwo * two[x + 1];
            }
            if (x < length) strip[x] += weightOne * one[x] + weightTwo * two[x];
        }
        for (int x = 0; x < length; ++x) sums[start + x] = Narrow(strip[x] >> shift);
    }
}

template <class Sample>
void MixAll(const Sample* const* rows, const std::int16_t* weights, int count, int length,
            int shift, std::int16_t* sums) {
    Mix(rows, weights, count, 0, length, shift, sums);
}

}  // namespace vistrel::loops::singles
