// Sums of products in 32-bit integers. Where the compiler has SSE2, eight at a time: integer sums
// do not depend on their order, so both ways give the same result.
#include "pictures/scale/passes.h"

#include <algorithm>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vistrel::scale {
namespace {

std::int16_t Narrow(std::int32_t value) {
    return static_cast<std::int16_t>(std::clamp(value, -32768, 32767));
}

template <class Sample>
void VerticalPassBySingles(const Sample* const* rows, const std::int16_t* weights, int count,
                           int from, int to, int shift, std::int16_t* sums) {
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

/// Two neighbouring weights, four times.
__m128i LoadPair(const std::int16_t* weights) {
    std::int32_t pair;
    std::memcpy(&pair, weights, sizeof pair);
    return _mm_set1_epi32(pair);
}

/// Weighted sums of eight columns.
template <class Sample>
struct SumsOf8 {
    __m128i low, high;

    void Add(const Sample* one, const Sample* two, __m128i weights) {
        const __m128i first = Load8(one), second = Load8(two);
        low = _mm_add_epi32(low, _mm_madd_epi16(_mm_unpacklo_epi16(first, second), weights));
        high = _mm_add_epi32(high, _mm_madd_epi16(_mm_unpackhi_epi16(first, second), weights));
    }

    void Store(__m128i places, std::int16_t* sums) const {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(sums),
                         _mm_packs_epi32(_mm_sra_epi32(low, places), _mm_sra_epi32(high, places)));
    }
};

/// Sixteen and then eight columns at a time; returns how many columns are done.
template <class Sample>
int VerticalPassBy8(const Sample* const* rows, const std::int16_t* weights, int count, int length,
                    int shift, std::int16_t* sums) {
    const __m128i half = _mm_set1_epi32(1 << (shift - 1));
    const __m128i places = _mm_cvtsi32_si128(shift);
    int x = 0;
    for (; x + 16 <= length; x += 16) {
        SumsOf8<Sample> left{half, half}, right{half, half};
        for (int k = 0; k < count; k += 2) {
            const __m128i weight = LoadPair(weights + k);
            left.Add(rows[k] + x, rows[k + 1] + x, weight);
            right.Add(rows[k] + x + 8, rows[k + 1] + x + 8, weight);
        }
        left.Store(places, sums + x);
        right.Store(places, sums + x + 8);
    }
    for (; x + 8 <= length; x += 8) {
        SumsOf8<Sample> eight{half, half};
        for (int k = 0; k < count; k += 2) {
            eight.Add(rows[k] + x, rows[k + 1] + x, LoadPair(weights + k));
        }
        eight.Store(places, sums + x);
    }
    return x;
}

/// The totals of four vectors, as one.
__m128i TotalsOf(__m128i a, __m128i b, __m128i c, __m128i d) {
    const __m128i ab = _mm_add_epi32(_mm_unpacklo_epi32(a, b), _mm_unpackhi_epi32(a, b));
    const __m128i cd = _mm_add_epi32(_mm_unpacklo_epi32(c, d), _mm_unpackhi_epi32(c, d));
    return _mm_add_epi32(_mm_unpacklo_epi64(ab, cd), _mm_unpackhi_epi64(ab, cd));
}
#else
template <class Sample>
int VerticalPassBy8(const Sample* const*, const std::int16_t*, int, int, int, std::int16_t*) {
    return 0;
}

std::int32_t WeightedSum(const std::int16_t* samples, const std::int16_t* weights, int count) {
    static_assert(kTapGroup % 2 == 0);
    std::int32_t sum = 0;
    for (int k = 0; k < count; k += 2) {
        sum += samples[k] * weights[k] + samples[k + 1] * weights[k + 1];
    }
    return sum;
}
#endif

}  // namespace

void VerticalPass(const std::uint8_t* const* rows, const std::int16_t* weights, int count,
                  int length, int shift, std::int16_t* sums) {
    const int done = VerticalPassBy8(rows, weights, count, length, shift, sums);
    VerticalPassBySingles(rows, weights, count, done, length, shift, sums);
}

void VerticalPass(const std::int16_t* const* rows, const std::int16_t* weights, int count,
                  int length, int shift, std::int16_t* sums) {
    const int done = VerticalPassBy8(rows, weights, count, length, shift, sums);
    VerticalPassBySingles(rows, weights, count, done, length, shift, sums);
}

#ifdef __SSE2__
void HorizontalPass(const FilterAxis& filter, RowGroup<const std::int16_t> rows,
                    RowGroup<std::int16_t> results, int stride) {
    static_assert(kRowsAtOnce == 4);
    const __m128i half = _mm_set1_epi32(1 << (filter.shift - 1));
    const __m128i places = _mm_cvtsi32_si128(filter.shift);
    const std::size_t apart = rows.apart;
    std::int16_t* to = results.first;
    for (const FilterTaps& taps : filter.taps) {
        const std::int16_t* weights = filter.WeightsOf(taps);
        const std::int16_t* from = rows.first + taps.first;
        __m128i a = _mm_setzero_si128(), b = a, c = a, d = a;
        for (int left = taps.count; left > 0; left -= kTapGroup) {
            const __m128i weight = Load8(weights);
            a = _mm_add_epi32(a, _mm_madd_epi16(Load8(from), weight));
            b = _mm_add_epi32(b, _mm_madd_epi16(Load8(from + apart), weight));
            c = _mm_add_epi32(c, _mm_madd_epi16(Load8(from + 2 * apart), weight));
            d = _mm_add_epi32(d, _mm_madd_epi16(Load8(from + 3 * apart), weight));
            weights += kTapGroup;
            from += kTapGroup;
        }
        const __m128i sums = _mm_sra_epi32(_mm_add_epi32(TotalsOf(a, b, c, d), half), places);
        const __m128i narrow = _mm_packs_epi32(sums, sums);
        to[0] = static_cast<std::int16_t>(_mm_extract_epi16(narrow, 0));
        to[results.apart] = static_cast<std::int16_t>(_mm_extract_epi16(narrow, 1));
        to[2 * results.apart] = static_cast<std::int16_t>(_mm_extract_epi16(narrow, 2));
        to[3 * results.apart] = static_cast<std::int16_t>(_mm_extract_epi16(narrow, 3));
        to += stride;
    }
}
#else
void HorizontalPass(const FilterAxis& filter, RowGroup<const std::int16_t> rows,
                    RowGroup<std::int16_t> results, int stride) {
    const std::int32_t half = 1 << (filter.shift - 1);
    std::int16_t* to = results.first;
    for (const FilterTaps& taps : filter.taps) {
        const std::int16_t* const weights = filter.WeightsOf(taps);
        for (int i = 0; i < kRowsAtOnce; ++i) {
            const std::int32_t sum = WeightedSum(rows.Row(i) + taps.first, weights, taps.count);
            to[static_cast<std::size_t>(i) * results.apart] = Narrow((sum + half) >> filter.shift);
        }
        to += stride;
    }
}
#endif

}  // namespace vistrel::scale
