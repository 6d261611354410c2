// The one-dimensional inverse discrete cosine transform (IDCT) of one to eight terms in integers.
#pragma once

#include <array>
#include <cstdint>
#include <numbers>
#include <utility>

namespace vistrel::jpg {

/// Sums are made modulo 2^32: whatever a damaged file asks for, no sum overflows in the language's
/// sense, and sound files stay far within.
using Wrapping = std::uint32_t;

/// Results of Idct1d carry this many bits behind the point.
inline constexpr int kTermBits = 13;
/// Bits behind the point that the results of columns keep for the rows.
inline constexpr int kColumnBits = 2;
/// The two ways of a block together make eight times its samples.
inline constexpr int kBlockBits = 3;
/// Bits that the sums of rows have more than samples.
inline constexpr int kSumBits = kTermBits + kColumnBits + kBlockBits;

/// `sum` without its lowest `bits` bits, rounded.
inline std::int32_t Descale(Wrapping sum, int bits) {
    return static_cast<std::int32_t>(sum + (Wrapping{1} << (bits - 1))) >> bits;
}

/// A coefficient as the encoder had it, but for its rounding.
inline Wrapping Dequantize(std::int16_t coefficient, std::int32_t step) {
    return static_cast<Wrapping>(coefficient * step);
}

namespace idct_1d {

// The cosine of `angle` (0 to 16 quarter turns or so) by its power series; for tables made while
// compiling.
consteval double Cosine(double angle) {
    double term = 1, sum = 1;
    for (int n = 1; n < 60; ++n) {
        term *= -angle * angle / ((2.0 * n - 1) * (2.0 * n));
        sum += term;
    }
    return sum;
}

consteval Wrapping Fixed(double value) {
    const double scaled = value * (1 << kTermBits);
    return static_cast<Wrapping>(static_cast<std::int32_t>(scaled + (scaled < 0 ? -0.5 : 0.5)));
}

// weight[k][n]: what term k adds to sample n.
template <int N>
consteval std::array<std::array<Wrapping, N>, N> Weights() {
    std::array<std::array<Wrapping, N>, N> weight{};
    for (int k = 0; k < N; ++k) {
        for (int n = 0; n < N; ++n) {
            const double angle = (2 * n + 1) * k * std::numbers::pi / (2 * N);
            weight[static_cast<std::size_t>(k)][static_cast<std::size_t>(n)] =
                Fixed(k == 0 ? 1 : std::numbers::sqrt2 * Cosine(angle));
        }
    }
    return weight;
}

template <int N>
inline constexpr auto kWeights = Weights<N>();

// The sum of the even (kOdd 0) or odd terms at sample n.
template <int N, int kOdd, int n>
constexpr Wrapping HalfSum(const Wrapping* in) {
    return [in]<int... I>(std::integer_sequence<int, I...>) {
        return (Wrapping{0} + ... + (kWeights<N>[2 * I + kOdd][n] * in[2 * I + kOdd]));
    }(std::make_integer_sequence<int, (N + 1 - kOdd) / 2>{});
}

template <int N, int n>
constexpr void SamplePair(const Wrapping* in, Wrapping* out) {
    const Wrapping even = HalfSum<N, 0, n>(in);
    const Wrapping odd = HalfSum<N, 1, n>(in);
    out[n] = even + odd;
    out[N - 1 - n] = even - odd;
}

}  // namespace idct_1d

/// The N samples of which `in` has the terms: out[n] = sum over k of c(k) in[k] cos((2n+1) k pi /
/// 2N), c(0) = 1, else the square root of 2; times 2^kTermBits. Both ways of a block together make
/// eight times the samples of an 8 x 8 transform (T.81, A.3.3), whatever N is, so that the low
/// frequencies of a block give the same picture with fewer samples.
template <int N>
constexpr void Idct1d(const Wrapping* in, Wrapping* out) {
    [=]<int... I>(std::integer_sequence<int, I...>) {
        (idct_1d::SamplePair<N, I>(in, out), ...);
    }(std::make_integer_sequence<int, (N + 1) / 2>{});
}

/// The same for all eight terms with fewer multiplications, after C. Loeffler, A. Ligtenberg and
/// G. Moschytz, "Practical fast 1-D DCT algorithms with 11 multiplications" (1989). Its roundings
/// are those of most decoders, so that they give the same samples.
template <>
constexpr void Idct1d<8>(const Wrapping* in, Wrapping* out) {
    using idct_1d::Fixed;
    const Wrapping turned = (in[2] + in[6]) * Fixed(0.541196100);
    const Wrapping inner = turned - in[6] * Fixed(1.847759065);
    const Wrapping outer = turned + in[2] * Fixed(0.765366865);
    const Wrapping sum = (in[0] + in[4]) << kTermBits;
    const Wrapping difference = (in[0] - in[4]) << kTermBits;
    const Wrapping even0 = sum + outer, even3 = sum - outer;
    const Wrapping even1 = difference + inner, even2 = difference - inner;

    const Wrapping all = (in[7] + in[3] + in[5] + in[1]) * Fixed(1.175875602);
    const Wrapping ends = (in[7] + in[1]) * Fixed(0.899976223);
    const Wrapping middle = (in[5] + in[3]) * Fixed(2.562915447);
    const Wrapping upper = all - (in[7] + in[3]) * Fixed(1.961570560);
    const Wrapping lower = all - (in[5] + in[1]) * Fixed(0.390180644);
    const Wrapping odd0 = in[1] * Fixed(1.501321110) - ends + lower;
    const Wrapping odd1 = in[3] * Fixed(3.072711026) - middle + upper;
    const Wrapping odd2 = in[5] * Fixed(2.053119869) - middle + lower;
    const Wrapping odd3 = in[7] * Fixed(0.298631336) - ends + upper;

    out[0] = even0 + odd0;
    out[7] = even0 - odd0;
    out[1] = even1 + odd1;
    out[6] = even1 - odd1;
    out[2] = even2 + odd2;
    out[5] = even2 - odd2;
    out[3] = even3 + odd3;
    out[4] = even3 - odd3;
}

}  // namespace vistrel::jpg
