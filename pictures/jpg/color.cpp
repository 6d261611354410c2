// Colour conversion by the formulas of JFIF 1.02 in fixed point, rounded as most decoders do.
#include "pictures/jpg/color.h"

#include <algorithm>
#include <array>

#include "pictures/loops/loops.h"

namespace vistrel::jpg {
namespace {

using loops::kBlueOfCb;
using loops::kGreenOfCb;
using loops::kGreenOfCr;
using loops::kRedOfCr;
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

template <JpgColor kColor>
void ConvertFine(const std::int16_t* const* rows, int width, std::uint8_t* rgb) {
    const std::int16_t* b = kColor == JpgColor::Grey ? rows[0] : rows[1];
    const std::int16_t* c = kColor == JpgColor::Grey ? rows[0] : rows[2];
    const int done = kColor == JpgColor::Ycc ? loops::Chosen().yccToRgb(rows, width, rgb) : 0;
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
