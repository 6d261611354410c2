// Two passes over a block, each of which transforms eight columns at once: the second one over the
// rows, which stand upright then.
#include "pictures/jpg/idct/vectors.h"

#include <algorithm>

#ifdef __SSE2__
#include <emmintrin.h>

#include "pictures/jpg/color.h"
#include "pictures/jpg/idct/idct_1d.h"
#endif

namespace vistrel::jpg {
namespace {

constexpr std::int32_t kMost16 = 32767;

#ifdef __SSE2__

// Rows of up to eight 16-bit numbers. Those that a shape lacks are not used, or zero.
struct VectorBlock {
    __m128i rows[8];
};

// weight[k][n]: what term k adds to sample n, by the very arithmetic of single numbers.
template <int N>
constexpr auto kWeights = [] {
    std::array<std::array<std::int16_t, 8>, 8> weights{};
    for (std::size_t k = 0; k < N; ++k) {
        Wrapping in[N] = {}, out[N] = {};
        in[k] = 1;
        Idct1d<N>(in, out);
        for (std::size_t n = 0; n < N; ++n) {
            weights[k][n] = static_cast<std::int16_t>(static_cast<std::int32_t>(out[n]));
        }
    }
    return weights;
}();

// Two terms of each of eight columns, side by side.
struct TermPairs {
    __m128i low, high;

    TermPairs(__m128i first, __m128i second)
        : low(_mm_unpacklo_epi16(first, second)), high(_mm_unpackhi_epi16(first, second)) {}
};

// 32-bit sums of eight columns.
struct Sums {
    __m128i low, high;
};

inline Sums operator+(Sums a, Sums b) {
    return {_mm_add_epi32(a.low, b.low), _mm_add_epi32(a.high, b.high)};
}

inline Sums operator-(Sums a, Sums b) {
    return {_mm_sub_epi32(a.low, b.low), _mm_sub_epi32(a.high, b.high)};
}

// What terms a and b of N add to sample n.
template <int N, int a, int b, int n>
inline Sums Weighed(const TermPairs& terms) {
    constexpr std::int16_t one = kWeights<N>[a][n], two = kWeights<N>[b][n];
    const __m128i weights = _mm_set_epi16(two, one, two, one, two, one, two, one);
    return {_mm_madd_epi16(terms.low, weights), _mm_madd_epi16(terms.high, weights)};
}

// The sums without their lowest bits, rounded; what does not fit becomes the nearest that does.
template <int kBits>
inline __m128i Descaled(Sums sums) {
    const __m128i half = _mm_set1_epi32(1 << (kBits - 1));
    return _mm_packs_epi32(_mm_srai_epi32(_mm_add_epi32(sums.low, half), kBits),
                           _mm_srai_epi32(_mm_add_epi32(sums.high, half), kBits));
}

// The columns' samples n and N - 1 - n, to which even terms add the same and odd ones the opposite.
template <int N, int kBits, int n>
inline void MakePair(const TermPairs (&pairs)[4], VectorBlock& out) {
    if constexpr (2 * n < N) {
        Sums even = Weighed<N, 0, 2, n>(pairs[0]);
        if constexpr (N > 4) even = even + Weighed<N, 4, 6, n>(pairs[1]);
        Sums odd = Weighed<N, 1, 3, n>(pairs[2]);
        if constexpr (N > 5) odd = odd + Weighed<N, 5, 7, n>(pairs[3]);
        out.rows[n] = Descaled<kBits>(even + odd);
        out.rows[N - 1 - n] = Descaled<kBits>(even - odd);
    }
}

// Transforms all columns, of N terms; results lose kBits of the kTermBits behind the point.
template <int N, int kBits>
inline VectorBlock Columns(const VectorBlock& in) {
    const __m128i* const v = in.rows;
    const TermPairs pairs[4] = {{v[0], v[2]}, {v[4], v[6]}, {v[1], v[3]}, {v[5], v[7]}};
    VectorBlock out = {};
    MakePair<N, kBits, 0>(pairs, out);
    MakePair<N, kBits, 1>(pairs, out);
    MakePair<N, kBits, 2>(pairs, out);
    MakePair<N, kBits, 3>(pairs, out);
    return out;
}

// Pairs, then fours, then eights of numbers from one column come together.
inline VectorBlock Transposed(const VectorBlock& in) {
    const __m128i* const v = in.rows;
    const __m128i a0 = _mm_unpacklo_epi16(v[0], v[1]), a1 = _mm_unpackhi_epi16(v[0], v[1]);
    const __m128i a2 = _mm_unpacklo_epi16(v[2], v[3]), a3 = _mm_unpackhi_epi16(v[2], v[3]);
    const __m128i a4 = _mm_unpacklo_epi16(v[4], v[5]), a5 = _mm_unpackhi_epi16(v[4], v[5]);
    const __m128i a6 = _mm_unpacklo_epi16(v[6], v[7]), a7 = _mm_unpackhi_epi16(v[6], v[7]);
    const __m128i b0 = _mm_unpacklo_epi32(a0, a2), b1 = _mm_unpackhi_epi32(a0, a2);
    const __m128i b2 = _mm_unpacklo_epi32(a1, a3), b3 = _mm_unpackhi_epi32(a1, a3);
    const __m128i b4 = _mm_unpacklo_epi32(a4, a6), b5 = _mm_unpackhi_epi32(a4, a6);
    const __m128i b6 = _mm_unpacklo_epi32(a5, a7), b7 = _mm_unpackhi_epi32(a5, a7);
    return {{_mm_unpacklo_epi64(b0, b4), _mm_unpackhi_epi64(b0, b4), _mm_unpacklo_epi64(b1, b5),
             _mm_unpackhi_epi64(b1, b5), _mm_unpacklo_epi64(b2, b6), _mm_unpackhi_epi64(b2, b6),
             _mm_unpacklo_epi64(b3, b7), _mm_unpackhi_epi64(b3, b7)}};
}

// True when all numbers lie within -most..most.
inline bool IsWithin(const VectorBlock& block, int most) {
    __m128i largest = block.rows[0], least = block.rows[0];
    for (const __m128i row : block.rows) {
        largest = _mm_max_epi16(largest, row);
        least = _mm_min_epi16(least, row);
    }
    const __m128i above = _mm_cmpgt_epi16(largest, _mm_set1_epi16(static_cast<short>(most)));
    const __m128i below = _mm_cmplt_epi16(least, _mm_set1_epi16(static_cast<short>(-most)));
    return _mm_movemask_epi8(_mm_or_si128(above, below)) == 0;
}

// True when a block has nothing but its constant term.
inline bool IsConstant(const VectorBlock& block) {
    __m128i others = _mm_srli_si128(block.rows[0], 2);
    for (int row = 1; row < 8; ++row) others = _mm_or_si128(others, block.rows[row]);
    return _mm_movemask_epi8(_mm_cmpeq_epi16(others, _mm_setzero_si128())) == 0xFFFF;
}

template <int kCount>
inline __m128i LoadRow(const std::int16_t* numbers) {
    const auto* from = reinterpret_cast<const __m128i*>(numbers);
    if constexpr (kCount == 8) return _mm_loadu_si128(from);
    __m128i row = _mm_loadl_epi64(from);
    if constexpr (kCount == 5) row = _mm_insert_epi16(row, numbers[4], 4);
    return row;
}

template <int kCount>
inline void StoreRow(__m128i row, std::int16_t* numbers) {
    auto* to = reinterpret_cast<__m128i*>(numbers);
    if constexpr (kCount == 8) return _mm_storeu_si128(to, row);
    _mm_storel_epi64(to, row);
    if constexpr (kCount == 5) numbers[4] = static_cast<std::int16_t>(_mm_extract_epi16(row, 4));
}

// Transforms a block to samples from the middle of their range with kFraction bits behind the
// point; what does not fit becomes the nearest that does. False when not done.
template <int kAcross, int kDown, int kFraction>
inline bool Transform(const VectorDequantTable& steps, const std::int16_t* block,
                      VectorBlock& samples) {
    constexpr int kRowBits = kSumBits - kFraction;
    VectorBlock terms = {};
    for (int y = 0; y < kDown; ++y) terms.rows[y] = LoadRow<kAcross>(block + y * kAcross);
    if (!IsWithin(terms, steps.most)) return false;
    if (IsConstant(terms)) {
        const int sum = block[0] * steps.numbers[0] * (1 << (kTermBits + kColumnBits));
        const __m128i all = _mm_set1_epi32(Descale(static_cast<Wrapping>(sum), kRowBits));
        std::fill_n(samples.rows, 8, _mm_packs_epi32(all, all));
        return true;
    }
    for (int y = 0; y < kDown; ++y) {  // dequantize
        terms.rows[y] =
            _mm_mullo_epi16(terms.rows[y], LoadRow<kAcross>(&steps.numbers[y * kAcross]));
    }
    const VectorBlock between = Columns<kDown, kTermBits - kColumnBits>(terms);
    // Those at the very limit may have been beyond it.
    if (!IsWithin(between, kMost16 - 1)) return false;
    samples = Transposed(Columns<kAcross, kRowBits>(Transposed(between)));
    return true;
}

template <int kAcross, int kDown>
int Idct(const VectorDequantTable& steps, const std::int16_t* blocks, int blockStride, int count,
         std::int16_t* samples, std::ptrdiff_t stride) {
    constexpr short kLeast = -(128 << kFineBits), kMost = (128 << kFineBits) - 1;
    const __m128i least = _mm_set1_epi16(kLeast), most = _mm_set1_epi16(kMost);
    for (int i = 0; i < count; ++i, blocks += blockStride, samples += kAcross) {
        VectorBlock block;
        if (!Transform<kAcross, kDown, kFineBits>(steps, blocks, block)) return i;
        for (int y = 0; y < kDown; ++y) {
            StoreRow<kAcross>(_mm_max_epi16(_mm_min_epi16(block.rows[y], most), least),
                              samples + y * stride);
        }
    }
    return count;
}

#endif

}  // namespace

VectorDequantTable::VectorDequantTable(std::span<const std::int32_t> steps) {
    const std::int32_t largest = *std::max_element(steps.begin(), steps.end());
    most = largest > kMost16 ? 0 : kMost16 / std::max(largest, 1);
    std::transform(steps.begin(), steps.end(), numbers.begin(),
                   [](std::int32_t step) { return static_cast<std::int16_t>(step); });
}

#ifdef __SSE2__

int IdctByVectors(const VectorDequantTable& steps, const BlockShape& shape,
                  const std::int16_t* blocks, int count, std::int16_t* samples,
                  std::ptrdiff_t stride) {
    const auto with = [&](auto idct) {
        return idct(steps, blocks, shape.stride, count, samples, stride);
    };
    // Of fewer columns or rows, vectors would be half empty.
    switch (shape.across * 10 + shape.down) {
        case 44:
            return with(Idct<4, 4>);
        case 45:
            return with(Idct<4, 5>);
        case 48:
            return with(Idct<4, 8>);
        case 54:
            return with(Idct<5, 4>);
        case 55:
            return with(Idct<5, 5>);
        case 58:
            return with(Idct<5, 8>);
        case 84:
            return with(Idct<8, 4>);
        case 85:
            return with(Idct<8, 5>);
        case 88:
            return with(Idct<8, 8>);
        default:
            return 0;
    }
}

bool IdctFullByVectors(const VectorDequantTable& steps, const std::int16_t* block,
                       std::uint8_t* samples, std::ptrdiff_t stride) {
    VectorBlock rows;
    if (!Transform<8, 8, 0>(steps, block, rows)) return false;
    for (int y = 0; y < 8; ++y) {
        const __m128i moved = _mm_adds_epi16(rows.rows[y], _mm_set1_epi16(128));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(samples + y * stride),
                         _mm_packus_epi16(moved, moved));
    }
    return true;
}

#else

int IdctByVectors(const VectorDequantTable&, const BlockShape&, const std::int16_t*, int,
                  std::int16_t*, std::ptrdiff_t) {
    return 0;
}

bool IdctFullByVectors(const VectorDequantTable&, const std::int16_t*, std::uint8_t*,
                       std::ptrdiff_t) {
    return false;
}

#endif

}  // namespace vistrel::jpg
