// Colour conversion by the formulas of JFIF 1.02 in fixed point, rounded as most decoders do.
#include "pictures/jpg/color.h"

#include <algorithm>
#include <array>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace vistrel::jpg {
namespace {

// The weights of JFIF, less the nearest whole numbers, times 65,536: so no product of theirs with a
// number of 16 bits overflows.
constexpr int kRedOfCr = 91881 - 65536;        // 1.402
constexpr int kGreenOfCb = -22554;             // -0.34414
constexpr int kGreenOfCr = 65536 - 46802;      // -0.71414
constexpr int kBlueOfCb = 116130 - 2 * 65536;  // 1.772
constexpr int kShift = 16;
constexpr int kHalf = 1 << (kShift - 1);

struct Rgb {
    int red, green, blue;
};

// `cb` and `cr` count from the middle of their range, in the same units as `y`.
inline Rgb YccToRgb(int y, int cb, int cr) {
    return {y + cr + ((kRedOfCr * cr + kHalf) >> kShift),
            y - cr + ((kGreenOfCb * cb + kGreenOfCr * cr + kHalf) >> kShift),
            y + 2 * cb + ((kBlueOfCb * cb + kHalf) >> kShift)};
}

inline int Clamp(int value) { return std::clamp(value, 0, 255); }

inline void Put(std::uint8_t* pixel, int red, int green, int blue) {
    pixel[0] = static_cast<std::uint8_t>(Clamp(red));
    pixel[1] = static_cast<std::uint8_t>(Clamp(green));
    pixel[2] = static_cast<std::uint8_t>(Clamp(blue));
}

// Light that ink amounts leave over: those of a colour and of black, both 255 where there is none.
inline int Through(int ink, int black) { return (ink * black + 127) / 255; }

inline void PutInks(std::uint8_t* pixel, bool inverted, Rgb inks, int black) {
    if (!inverted) {
        inks = {255 - inks.red, 255 - inks.green, 255 - inks.blue};
        black = 255 - black;
    }
    Put(pixel, Through(inks.red, black), Through(inks.green, black), Through(inks.blue, black));
}

// The three colours of a pixel, or the inks in their place, from samples that count from the middle
// of their range where they are differences of colour.
template <JpgColor kColor>
Rgb Mix(int a, int b, int c) {
    if constexpr (kColor == JpgColor::Grey) return {a, a, a};
    if constexpr (kColor == JpgColor::Ycc || kColor == JpgColor::Ycck) return YccToRgb(a, b, c);
    return {a, b, c};
}

template <JpgColor kColor>
void PutMixed(std::uint8_t* pixel, bool inverted, const Rgb& color, int black) {
    if constexpr (kColor == JpgColor::Cmyk) {
        PutInks(pixel, inverted, color, black);
    } else if constexpr (kColor == JpgColor::Ycck) {
        const Rgb inks{255 - Clamp(color.red), 255 - Clamp(color.green), 255 - Clamp(color.blue)};
        PutInks(pixel, inverted, inks, black);
    } else {
        Put(pixel, color.red, color.green, color.blue);
    }
}

template <JpgColor kColor>
void Convert(bool inverted, const std::uint8_t* const* rows, int width, std::uint8_t* rgb) {
    constexpr bool kIsInk = kColor == JpgColor::Cmyk || kColor == JpgColor::Ycck;
    constexpr bool kIsYcc = kColor == JpgColor::Ycc || kColor == JpgColor::Ycck;
    constexpr int kMiddle = kIsYcc ? 128 : 0;
    // A grey picture has one row only; what is taken from its others is not used.
    const std::uint8_t* b = kColor == JpgColor::Grey ? rows[0] : rows[1];
    const std::uint8_t* c = kColor == JpgColor::Grey ? rows[0] : rows[2];
    for (int x = 0; x < width; ++x, rgb += 3) {
        const Rgb color = Mix<kColor>(rows[0][x], b[x] - kMiddle, c[x] - kMiddle);
        PutMixed<kColor>(rgb, inverted, color, kIsInk ? rows[3][x] : 0);
    }
}

int ToSample(int fine) { return (fine + (128 << kFineBits) + (1 << (kFineBits - 1))) >> kFineBits; }

#ifdef __SSE2__
struct RgbBy8 {
    __m128i red, green, blue;
};

// The rounded sum of a's and b's weights (of 65,536) of two numbers, eight times.
template <int a, int b>
__m128i Weighed(__m128i ofA, __m128i ofB) {
    static_assert(a == static_cast<std::int16_t>(a) && b == static_cast<std::int16_t>(b));
    const __m128i weights = _mm_set1_epi32((a & 0xFFFF) | b * (1 << 16));
    const __m128i half = _mm_set1_epi32(kHalf);
    const auto sum = [&](__m128i pairs) {
        return _mm_srai_epi32(_mm_add_epi32(_mm_madd_epi16(pairs, weights), half), kShift);
    };
    return _mm_packs_epi32(sum(_mm_unpacklo_epi16(ofA, ofB)), sum(_mm_unpackhi_epi16(ofA, ofB)));
}

// The whole parts of the weights come first: where a sum stops at the limit of 16 bits, what
// follows leaves it far outside the range of bytes, as it should be.
RgbBy8 YccToRgb(__m128i y, __m128i cb, __m128i cr) {
    return {
        _mm_adds_epi16(_mm_adds_epi16(y, cr), Weighed<kRedOfCr, 0>(cr, cr)),
        _mm_adds_epi16(_mm_subs_epi16(y, cr), Weighed<kGreenOfCb, kGreenOfCr>(cb, cr)),
        _mm_adds_epi16(_mm_adds_epi16(_mm_adds_epi16(y, cb), cb), Weighed<kBlueOfCb, 0>(cb, cb))};
}

// Fine samples as bytes, in the lower half.
__m128i ToSamples(__m128i fine) {
    const __m128i offset = _mm_set1_epi16((128 << kFineBits) + (1 << (kFineBits - 1)));
    const __m128i samples = _mm_srai_epi16(_mm_adds_epi16(fine, offset), kFineBits);
    return _mm_packus_epi16(samples, samples);
}

// Four pixels of three bytes and a zero become twelve bytes.
void Put4(__m128i pixels, std::uint8_t* rgb) {
    const __m128i even = _mm_and_si128(pixels, _mm_set_epi32(0, -1, 0, -1));
    const __m128i pairs = _mm_or_si128(even, _mm_slli_epi64(_mm_srli_epi64(pixels, 32), 24));
    _mm_storel_epi64(reinterpret_cast<__m128i*>(rgb),
                     _mm_or_si128(pairs, _mm_slli_si128(_mm_srli_si128(pairs, 8), 6)));
    const int last = _mm_cvtsi128_si32(_mm_srli_si128(pairs, 10));
    std::memcpy(rgb + 8, &last, sizeof last);
}

void Put8(const RgbBy8& fine, std::uint8_t* rgb) {
    const __m128i redGreen = _mm_unpacklo_epi8(ToSamples(fine.red), ToSamples(fine.green));
    const __m128i blue = _mm_unpacklo_epi8(ToSamples(fine.blue), _mm_setzero_si128());
    Put4(_mm_unpacklo_epi16(redGreen, blue), rgb);
    Put4(_mm_unpackhi_epi16(redGreen, blue), rgb + 12);
}

/// Eight pixels at a time; returns how many are done.
template <JpgColor kColor>
int ConvertFineBy8(const std::int16_t* const* rows, int width, std::uint8_t* rgb) {
    const auto load = [&](int row, int x) {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(rows[row] + x));
    };
    int x = 0;
    for (; x + 8 <= width; x += 8, rgb += 24) {
        const __m128i a = load(0, x);
        if constexpr (kColor == JpgColor::Grey) {
            Put8({a, a, a}, rgb);
        } else if constexpr (kColor == JpgColor::Ycc) {
            Put8(YccToRgb(a, load(1, x), load(2, x)), rgb);
        } else {
            Put8({a, load(1, x), load(2, x)}, rgb);
        }
    }
    return x;
}
#else
template <JpgColor kColor>
int ConvertFineBy8(const std::int16_t* const*, int, std::uint8_t*) {
    return 0;
}
#endif

template <JpgColor kColor>
void ConvertFine(const std::int16_t* const* rows, int width, std::uint8_t* rgb) {
    const std::int16_t* b = kColor == JpgColor::Grey ? rows[0] : rows[1];
    const std::int16_t* c = kColor == JpgColor::Grey ? rows[0] : rows[2];
    const int done = ConvertFineBy8<kColor>(rows, width, rgb);
    for (int x = done; x < width; ++x) {
        const Rgb fine = Mix<kColor>(rows[0][x], b[x], c[x]);
        Put(rgb + 3 * x, ToSample(fine.red), ToSample(fine.green), ToSample(fine.blue));
    }
}

}  // namespace

void ConvertRow(const JpgColorKind& kind, const std::uint8_t* const* rows, int width,
                std::uint8_t* rgb) {
    switch (kind.color) {
        case JpgColor::Grey:
            return Convert<JpgColor::Grey>(kind.inverted, rows, width, rgb);
        case JpgColor::Ycc:
            return Convert<JpgColor::Ycc>(kind.inverted, rows, width, rgb);
        case JpgColor::Rgb:
            return Convert<JpgColor::Rgb>(kind.inverted, rows, width, rgb);
        case JpgColor::Cmyk:
            return Convert<JpgColor::Cmyk>(kind.inverted, rows, width, rgb);
        case JpgColor::Ycck:
            return Convert<JpgColor::Ycck>(kind.inverted, rows, width, rgb);
    }
}

namespace {

void ConvertFineInks(const JpgColorKind& kind, const std::int16_t* const* rows, int width,
                     std::uint8_t* rgb) {
    constexpr int kAtOnce = 64;
    std::array<std::array<std::uint8_t, kAtOnce>, 4> inks;
    const std::array<const std::uint8_t*, 4> samples = {inks[0].data(), inks[1].data(),
                                                        inks[2].data(), inks[3].data()};
    for (int x = 0; x < width; x += kAtOnce) {
        const int count = std::min(kAtOnce, width - x);
        for (int i = 0; i < 4; ++i) {
            for (int k = 0; k < count; ++k)
                inks[i][k] = static_cast<std::uint8_t>(Clamp(ToSample(rows[i][x + k])));
        }
        ConvertRow(kind, samples.data(), count, rgb + 3 * x);
    }
}

}  // namespace

void ConvertFineRow(const JpgColorKind& kind, const std::int16_t* const* rows, int width,
                    std::uint8_t* rgb) {
    switch (kind.color) {
        case JpgColor::Grey:
            return ConvertFine<JpgColor::Grey>(rows, width, rgb);
        case JpgColor::Ycc:
            return ConvertFine<JpgColor::Ycc>(rows, width, rgb);
        case JpgColor::Rgb:
            return ConvertFine<JpgColor::Rgb>(rows, width, rgb);
        case JpgColor::Cmyk:
        case JpgColor::Ycck:
            return ConvertFineInks(kind, rows, width, rgb);
    }
}

}  // namespace vistrel::jpg
