// Four 16-bit numbers in a register of MMX. What runs has to end with Four::End.
#pragma once

#include <mmintrin.h>

#include <cstdint>
#include <cstring>

#include "pictures/loops/loops.h"

namespace vistrel::loops::mmx {

struct Four {
    static constexpr int kCount = 4;
    __m64 v;

    static Four Load(const void* at) {
        Four four;
        std::memcpy(&four.v, at, sizeof four.v);
        return four;
    }
    void Store(void* at) const { std::memcpy(at, &v, sizeof v); }
    /// A point is as long as this vector.
    static Four LoadPoint(const void* at) { return Load(at); }
    void StorePoint(void* at) const { Store(at); }
    static Four All(int number) { return {_mm_set1_pi16(static_cast<short>(number))}; }
    /// 32-bit numbers.
    static Four AllWide(std::int32_t number) { return {_mm_set1_pi32(number)}; }

    Four operator+(Four other) const { return {_mm_add_pi16(v, other.v)}; }
    Four operator-(Four other) const { return {_mm_sub_pi16(v, other.v)}; }
    Four operator|(Four other) const { return {_mm_or_si64(v, other.v)}; }
    Four AddWide(Four other) const { return {_mm_add_pi32(v, other.v)}; }
    Four Times(Four other) const { return {_mm_mullo_pi16(v, other.v)}; }
    /// The upper halves of the products.
    Four TimesHigh(Four other) const { return {_mm_mulhi_pi16(v, other.v)}; }
    /// The sums of two products each, as 32-bit numbers.
    Four TimesSummed(Four other) const { return {_mm_madd_pi16(v, other.v)}; }
    template <int kBits>
    Four Up() const {
        return {_mm_slli_pi16(v, kBits)};
    }
    /// Without the lowest bits: of numbers with a sign, and of such without one.
    template <int kBits>
    Four Down() const {
        return {_mm_srai_pi16(v, kBits)};
    }
    template <int kBits>
    Four DownUnsigned() const {
        return {_mm_srli_pi16(v, kBits)};
    }
    /// The first or second 32 bits of a point, everywhere.
    Four FirstPair() const { return {_mm_unpacklo_pi32(v, v)}; }
    Four SecondPair() const { return {_mm_unpackhi_pi32(v, v)}; }
    /// The sum of a point's two 32-bit numbers.
    std::uint32_t PointSum() const {
        return static_cast<std::uint32_t>(_mm_cvtsi64_si32(_mm_add_pi32(v, _mm_srli_si64(v, 32))));
    }
    /// Whether any 32-bit number is below 0.
    bool AnyWideNegative() const { return _mm_cvtsi64_si32(_mm_packs_pi16(Signs(), Signs())) != 0; }

    /// What is loaded of samples, and pairs of neighbouring weights.
    static Four LoadSamples(const std::int16_t* at) { return Load(at); }
    static Four LoadSamples(const std::uint8_t* at) {
        int four;
        std::memcpy(&four, at, sizeof four);
        return {_mm_unpacklo_pi8(_mm_cvtsi32_si64(four), _mm_setzero_si64())};
    }
    static Four AllPairs(const std::int16_t* at) {
        int pair;
        std::memcpy(&pair, at, sizeof pair);
        return AllWide(pair);
    }
    /// Numbers of the lower or upper half and those of another vector in turn.
    Four LowWith(Four other) const { return {_mm_unpacklo_pi16(v, other.v)}; }
    Four HighWith(Four other) const { return {_mm_unpackhi_pi16(v, other.v)}; }
    Four DownWide(int bits) const { return {_mm_srai_pi32(v, bits)}; }
    /// 32-bit numbers of two vectors in 16 bits each, or the nearest that fit.
    Four PackedWith(Four other) const { return {_mm_packs_pi32(v, other.v)}; }

    /// The totals of four vectors, rounded.
    static Four Totals(Four a, Four b, Four c, Four d, Four half, int shift) {
        const Four ab = a.PairTotals(b).AddWide(half).DownWide(shift);
        const Four cd = c.PairTotals(d).AddWide(half).DownWide(shift);
        return ab.PackedWith(cd);
    }

    Four AddSaturated(Four other) const { return {_mm_adds_pi16(v, other.v)}; }
    Four SubtractSaturated(Four other) const { return {_mm_subs_pi16(v, other.v)}; }
    /// Of numbers without a sign, 0 where the other one is larger.
    Four SubtractUnsigned(Four other) const { return {_mm_subs_pu16(v, other.v)}; }
    Four SubtractWide(Four other) const { return {_mm_sub_pi32(v, other.v)}; }
    bool IsZero() const { return _mm_cvtsi64_si32(_mm_or_si64(v, _mm_srli_si64(v, 32))) == 0; }
    /// All numbers one place down, the first one lost; and with 0 for the fourth.
    Four WithoutFirst() const { return {_mm_srli_si64(v, 16)}; }
    Four WithoutFourth() const { return {_mm_srli_si64(_mm_slli_si64(v, 16), 16)}; }
    /// What lies outside of -most - 1..most becomes the nearest within.
    template <int kMost>
    Four Clamped() const {
        const Four above = All(32767 - kMost);
        return AddSaturated(above).SubtractSaturated(above).SubtractSaturated(above).AddSaturated(
            above);
    }
    /// Numbers as bytes, or the nearest that fit: in the lower half, or to memory.
    Four PackedBytes() const { return {_mm_packs_pu16(v, v)}; }
    void StoreAsBytes(std::uint8_t* at) const {
        const int bytes = _mm_cvtsi64_si32(PackedBytes().v);
        std::memcpy(at, &bytes, sizeof bytes);
    }
    Four LowBytesWith(Four other) const { return {_mm_unpacklo_pi8(v, other.v)}; }
    /// The fifth number of eight in two vectors.
    static void SetFifth(Four* parts, std::int16_t number) {
        parts[1] = {_mm_cvtsi32_si64(static_cast<std::uint16_t>(number))};
    }
    static std::int16_t Fifth(const Four* parts) {
        return static_cast<std::int16_t>(_mm_cvtsi64_si32(parts[1].v));
    }
    /// Columns become rows: `from` has kDown rows of kAcross numbers that matter.
    template <int kAcross, int kDown, class Block>
    static void Transpose(const Block& from, Block& to) {
        for (int down = 0; down < kDown; down += 4) {
            for (int across = 0; across < kAcross; across += 4) {
                const auto row = [&](int y) { return from.rows[down + y][across / 4]; };
                const Four a = row(0).LowWith(row(1)), b = row(0).HighWith(row(1));
                const Four c = row(2).LowWith(row(3)), d = row(2).HighWith(row(3));
                const auto put = [&](int y, __m64 made) { to.rows[across + y][down / 4].v = made; };
                put(0, _mm_unpacklo_pi32(a.v, c.v));
                put(1, _mm_unpackhi_pi32(a.v, c.v));
                put(2, _mm_unpacklo_pi32(b.v, d.v));
                put(3, _mm_unpackhi_pi32(b.v, d.v));
            }
        }
    }

    /// Gives the registers back to floating-point numbers.
    static void End() { _mm_empty(); }

    class Eighths;

 private:
    Four PairTotals(Four other) const {
        return {_mm_add_pi32(_mm_unpacklo_pi32(v, other.v), _mm_unpackhi_pi32(v, other.v))};
    }
    __m64 Signs() const { return _mm_srai_pi32(v, 31); }
};

/// Multiplies errors as they stand in error rows by some eighths.
class Four::Eighths {
 public:
    explicit Eighths(int count)
        : none_(All(kNoError)), factor_(All(count << 10)), added_(All(kNoError / 8 * count)) {}

    /// The products of numbers with a sign.
    Four OfSigned(Four numbers) const { return numbers.Up<3>().TimesHigh(factor_); }

    Four Of(Four errors) const { return OfSigned(errors - none_) + added_; }

 private:
    Four none_, factor_, added_;
};

}  // namespace vistrel::loops::mmx
