// Sums of products in 32-bit integers. Where the compiler has SSE2, eight at a time: integer sums
// do not depend on their order, so both ways give the same result.
#include "pictures/resize_passes.h"

#include <algorithm>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vistrel {
namespace {

std::int16_t Narrow(std::int32_t value) {
    return static_cast<std::int16_t>(std::clamp(value, -32768, 32767));
}

template <class Sample>
void WeighColumns(const Sample* const* rows, const std::int16_t* weights, int count, int from,
                  int to, int shift, std::int16_t* sums) {
    // A strip is narrow enough for its sums to stay in the first-level cache.
    constexpr int kStrip = 256;
    const std::int32_t half = 1 << (shift - 1);
    std::int32_t strip[kStrip];
    for (int start = from; start < to; start += kStrip) {
        const int length = std::min(kStrip, to - start);
        std::fill_n(strip, length, half);
        int k = 0;
        for (; k + 1 < count; k += 2) {
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
        if (k < count) {
            const Sample* const last = rows[k] + start;
            for (int x = 0; x < length; ++x) strip[x] += weights[k] * last[x];
        }
        for (int x = 0; x < length; ++x) sums[start + x] = Narrow(strip[x] >> shift);
    }
}

#ifdef __SSE2__
__m128i Load8(const std::int16_t* at) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
}

__m128i Load8(const std::uint8_t* at) {
    return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(at)),
                             _mm_setzero_si128());
}

/// Eight columns at a time; returns how many columns are done.
template <class Sample>
int WeighColumnsBy8(const Sample* const* rows, const std::int16_t* weights, int count, int length,
                    int shift, std::int16_t* sums) {
    const __m128i half = _mm_set1_epi32(1 << (shift - 1));
    const __m128i places = _mm_cvtsi32_si128(shift);
    int x = 0;
    for (; x + 8 <= length; x += 8) {
        __m128i low = half;
        __m128i high = half;
        for (int k = 0; k < count; k += 2) {
            const bool pair = k + 1 < count;
            const __m128i one = Load8(rows[k] + x);
            const __m128i two = pair ? Load8(rows[k + 1] + x) : _mm_setzero_si128();
            const int second = pair ? weights[k + 1] : 0;
            const __m128i weight = _mm_set1_epi32((weights[k] & 0xFFFF) | (second << 16));
            low = _mm_add_epi32(low, _mm_madd_epi16(_mm_unpacklo_epi16(one, two), weight));
            high = _mm_add_epi32(high, _mm_madd_epi16(_mm_unpackhi_epi16(one, two), weight));
        }
        const __m128i result =
            _mm_packs_epi32(_mm_sra_epi32(low, places), _mm_sra_epi32(high, places));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(sums + x), result);
    }
    return x;
}

std::int32_t WeightedSum(const std::int16_t* samples, const std::int16_t* weights, int count) {
    __m128i sum = _mm_setzero_si128();
    for (int k = 0; k < count; k += kTapGroup) {
        sum = _mm_add_epi32(sum, _mm_madd_epi16(Load8(samples + k), Load8(weights + k)));
    }
    sum = _mm_add_epi32(sum, _mm_shuffle_epi32(sum, _MM_SHUFFLE(1, 0, 3, 2)));
    sum = _mm_add_epi32(sum, _mm_shuffle_epi32(sum, _MM_SHUFFLE(2, 3, 0, 1)));
    return _mm_cvtsi128_si32(sum);
}
#else
template <class Sample>
int WeighColumnsBy8(const Sample* const*, const std::int16_t*, int, int, int, std::int16_t*) {
    return 0;
}

std::int32_t WeightedSum(const std::int16_t* samples, const std::int16_t* weights, int count) {
    static_assert(kTapGroup % 4 == 0);
    std::int32_t sum = 0;
    for (int k = 0; k < count; k += 4) {
        sum += samples[k] * weights[k] + samples[k + 1] * weights[k + 1] +
               samples[k + 2] * weights[k + 2] + samples[k + 3] * weights[k + 3];
    }
    return sum;
}
#endif

}  // namespace

void WeighRows(const std::uint8_t* const* rows, const std::int16_t* weights, int count, int length,
               int shift, std::int16_t* sums) {
    const int done = WeighColumnsBy8(rows, weights, count, length, shift, sums);
    WeighColumns(rows, weights, count, done, length, shift, sums);
}

void WeighRows(const std::int16_t* const* rows, const std::int16_t* weights, int count, int length,
               int shift, std::int16_t* sums) {
    const int done = WeighColumnsBy8(rows, weights, count, length, shift, sums);
    WeighColumns(rows, weights, count, done, length, shift, sums);
}

void WeighAlong(const FilterAxis& filter, const std::int16_t* row, int stride,
                std::int16_t* result) {
    const std::int32_t half = 1 << (filter.shift - 1);
    for (const FilterTaps& taps : filter.taps) {
        const std::int32_t sum =
            WeightedSum(row + taps.first, filter.WeightsOf(taps), taps.count) + half;
        *result = Narrow(sum >> filter.shift);
        result += stride;
    }
}

}  // namespace vistrel
