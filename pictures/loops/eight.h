// Eight 16-bit numbers in a register of SSE2.
#pragma once

#include <emmintrin.h>

#include <cstdint>
#include <cstring>

#include "pictures/loops/loops.h"

namespace vistrel::loops::sse2 {

struct Eight {
    static constexpr int kCount = 8;
    __m128i v;

    static Eight Load(const void* at) { return {_mm_loadu_si128(static_cast<const __m128i*>(at))}; }
    void Store(void* at) const { _mm_storeu_si128(static_cast<__m128i*>(at), v); }
    /// A point is half as long as this vector.
    static Eight LoadPoint(const void* at) {
        return {_mm_loadl_epi64(static_cast<const __m128i*>(at))};
    }
    void StorePoint(void* at) const { _mm_storel_epi64(static_cast<__m128i*>(at), v); }
    static Eight All(int number) { return {_mm_set1_epi16(static_cast<short>(number))}; }
    /// 32-bit numbers.
    static Eight AllWide(std::int32_t number) { return {_mm_set1_epi32(number)}; }

    Eight operator+(Eight other) const { return {_mm_add_epi16(v, other.v)}; }
    Eight operator-(Eight other) const { return {_mm_sub_epi16(v, other.v)}; }
    Eight operator|(Eight other) const { return {_mm_or_si128(v, other.v)}; }
    Eight AddWide(Eight other) const { return {_mm_add_epi32(v, other.v)}; }
    Eight Times(Eight other) const { return {_mm_mullo_epi16(v, other.v)}; }
    /// The upper halves of the products.
    Eight TimesHigh(Eight other) const { return {_mm_mulhi_epi16(v, other.v)}; }
    /// The sums of two products each, as 32-bit numbers.
    Eight TimesSummed(Eight other) const { return {_mm_madd_epi16(v, other.v)}; }
    template <int kBits>
    Eight Up() const {
        return {_mm_slli_epi16(v, kBits)};
    }
    /// Without the lowest bits: of numbers with a sign, and of such without one.
    template <int kBits>
    Eight Down() const {
        return {_mm_srai_epi16(v, kBits)};
    }
    template <int kBits>
    Eight DownUnsigned() const {
        return {_mm_srli_epi16(v, kBits)};
    }
    /// The first or second 32 bits of a point, everywhere.
    Eight FirstPair() const { return {_mm_shuffle_epi32(v, _MM_SHUFFLE(0, 0, 0, 0))}; }
    Eight SecondPair() const { return {_mm_shuffle_epi32(v, _MM_SHUFFLE(1, 1, 1, 1))}; }
    /// The sum of a point's two 32-bit numbers.
    std::uint32_t PointSum() const {
        return static_cast<std::uint32_t>(
            _mm_cvtsi128_si32(_mm_add_epi32(v, _mm_srli_si128(v, 4))));
    }
    /// Whether any 32-bit number is below 0.
    bool AnyWideNegative() const { return _mm_movemask_ps(_mm_castsi128_ps(v)) != 0; }

    /// What is loaded of samples, and pairs of neighbouring weights.
    static Eight LoadSamples(const std::int16_t* at) { return Load(at); }
    static Eight LoadSamples(const std::uint8_t* at) {
        return {_mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(at)),
                                  _mm_setzero_si128())};
    }
    static Eight AllPairs(const std::int16_t* at) {
        int pair;
        std::memcpy(&pair, at, sizeof pair);
        return AllWide(pair);
    }
    /// Numbers of the lower or upper half and those of another vector in turn.
    Eight LowWith(Eight other) const { return {_mm_unpacklo_epi16(v, other.v)}; }
    Eight HighWith(Eight other) const { return {_mm_unpackhi_epi16(v, other.v)}; }
    Eight DownWide(int bits) const { return {_mm_sra_epi32(v, _mm_cvtsi32_si128(bits))}; }
    /// 32-bit numbers of two vectors in 16 bits each, or the nearest that fit.
    Eight PackedWith(Eight other) const { return {_mm_packs_epi32(v, other.v)}; }

    /// The totals of four vectors, rounded.
    static Eight Totals(Eight a, Eight b, Eight c, Eight d, Eight half, int shift) {
        const __m128i ab = a.PairTotals(b);
        const __m128i cd = c.PairTotals(d);
        const Eight all = {_mm_add_epi32(_mm_unpacklo_epi64(ab, cd), _mm_unpackhi_epi64(ab, cd))};
        const Eight rounded = all.AddWide(half).DownWide(shift);
        return rounded.PackedWith(rounded);
    }

    Eight AddSaturated(Eight other) const { return {_mm_adds_epi16(v, other.v)}; }
    Eight SubtractSaturated(Eight other) const { return {_mm_subs_epi16(v, other.v)}; }
    /// Of numbers without a sign, 0 where the other one is larger.
    Eight SubtractUnsigned(Eight other) const { return {_mm_subs_epu16(v, other.v)}; }
    Eight SubtractWide(Eight other) const { return {_mm_sub_epi32(v, other.v)}; }
    bool IsZero() const {
        return _mm_movemask_epi8(_mm_cmpeq_epi16(v, _mm_setzero_si128())) == 0xFFFF;
    }
    /// All numbers one place down, the first one lost; and with 0 for the fourth.
    Eight WithoutFirst() const { return {_mm_srli_si128(v, 2)}; }
    Eight WithoutFourth() const { return {_mm_and_si128(v, _mm_set_epi32(0, 0, 0xFFFF, -1))}; }
    /// What lies outside of -most - 1..most becomes the nearest within.
    template <int kMost>
    Eight Clamped() const {
        return {_mm_max_epi16(_mm_min_epi16(v, All(kMost).v), All(-kMost - 1).v)};
    }
    /// Numbers as bytes, or the nearest that fit: in the lower half, or to memory.
    Eight PackedBytes() const { return {_mm_packus_epi16(v, v)}; }
    void StoreAsBytes(std::uint8_t* at) const { PackedBytes().StorePoint(at); }
    Eight LowBytesWith(Eight other) const { return {_mm_unpacklo_epi8(v, other.v)}; }
    /// The fifth number of eight.
    static void SetFifth(Eight* parts, std::int16_t number) {
        parts->v = _mm_insert_epi16(parts->v, number, 4);
    }
    static std::int16_t Fifth(const Eight* parts) {
        return static_cast<std::int16_t>(_mm_extract_epi16(parts->v, 4));
    }
    /// Columns become rows: pairs, then fours, then eights of numbers from one column come
    /// together.
    template <int kAcross, int kDown, class Block>
    static void Transpose(const Block& from, Block& to) {
        __m128i a[8], b[8];
        for (int i = 0; i < 4; ++i) {
            a[2 * i] = _mm_unpacklo_epi16(from.rows[2 * i][0].v, from.rows[2 * i + 1][0].v);
            a[2 * i + 1] = _mm_unpackhi_epi16(from.rows[2 * i][0].v, from.rows[2 * i + 1][0].v);
        }
        for (int i = 0; i < 8; i += 4) {
            b[i] = _mm_unpacklo_epi32(a[i], a[i + 2]);
            b[i + 1] = _mm_unpackhi_epi32(a[i], a[i + 2]);
            b[i + 2] = _mm_unpacklo_epi32(a[i + 1], a[i + 3]);
            b[i + 3] = _mm_unpackhi_epi32(a[i + 1], a[i + 3]);
        }
        for (int i = 0; i < 4; ++i) {
            to.rows[2 * i][0].v = _mm_unpacklo_epi64(b[i], b[i + 4]);
            to.rows[2 * i + 1][0].v = _mm_unpackhi_epi64(b[i], b[i + 4]);
        }
    }

    static void End() {}

    class Eighths;

 private:
    __m128i PairTotals(Eight other) const {
        return _mm_add_epi32(_mm_unpacklo_epi32(v, other.v), _mm_unpackhi_epi32(v, other.v));
    }
};

/// Multiplies errors as they stand in error rows by some eighths.
class Eight::Eighths {
 public:
    explicit Eighths(int count)
        : none_(All(kNoError)), factor_(All(count << 10)), added_(All(kNoError / 8 * count)) {}

    /// The products of numbers with a sign.
    Eight OfSigned(Eight numbers) const { return numbers.Up<3>().TimesHigh(factor_); }

    Eight Of(Eight errors) const { return OfSigned(errors - none_) + added_; }

 private:
    Eight none_, factor_, added_;
};

}  // namespace vistrel::loops::sse2
