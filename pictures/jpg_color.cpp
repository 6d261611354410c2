// Colour conversion by the formulas of JFIF 1.02 in fixed point, rounded as most decoders do.
#include "pictures/jpg_color.h"

#include <algorithm>

namespace vistrel {
namespace {

// The weights of JFIF times 65,536.
constexpr int kRedOfCr = 91881;    // 1.402
constexpr int kGreenOfCb = 22554;  // 0.34414
constexpr int kGreenOfCr = 46802;  // 0.71414
constexpr int kBlueOfCb = 116130;  // 1.772
constexpr int kShift = 16;
constexpr int kHalf = 1 << (kShift - 1);

struct Rgb {
    int red, green, blue;
};

// `cb` and `cr` count from the middle of their range, in the same units as `y`.
inline Rgb YccToRgb(int y, int cb, int cr) {
    return {y + ((kRedOfCr * cr + kHalf) >> kShift),
            y + ((-kGreenOfCb * cb - kGreenOfCr * cr + kHalf) >> kShift),
            y + ((kBlueOfCb * cb + kHalf) >> kShift)};
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

}  // namespace

void ConvertRow(const JpgColorKind& kind, const std::uint8_t* const* rows, int width,
                std::uint8_t* rgb) {
    constexpr int kMiddle = 128;
    const std::uint8_t* a = rows[0];
    const std::uint8_t* b = rows[1];
    const std::uint8_t* c = rows[2];
    const std::uint8_t* d = rows[3];
    for (int x = 0; x < width; ++x, rgb += 3) {
        switch (kind.color) {
            case JpgColor::Grey:
                Put(rgb, a[x], a[x], a[x]);
                break;
            case JpgColor::Rgb:
                Put(rgb, a[x], b[x], c[x]);
                break;
            case JpgColor::Ycc: {
                const Rgb color = YccToRgb(a[x], b[x] - kMiddle, c[x] - kMiddle);
                Put(rgb, color.red, color.green, color.blue);
                break;
            }
            case JpgColor::Cmyk:
                PutInks(rgb, kind.inverted, {a[x], b[x], c[x]}, d[x]);
                break;
            case JpgColor::Ycck: {
                const Rgb color = YccToRgb(a[x], b[x] - kMiddle, c[x] - kMiddle);
                PutInks(rgb, kind.inverted,
                        {255 - Clamp(color.red), 255 - Clamp(color.green), 255 - Clamp(color.blue)},
                        d[x]);
                break;
            }
        }
    }
}

void ConvertFineRow(const JpgColorKind& kind, const std::int16_t* const* rows, int width,
                    std::uint8_t* rgb) {
    const bool isYcc = kind.color == JpgColor::Ycc || kind.color == JpgColor::Ycck;
    const auto toSample = [](int fine) {
        return Clamp((fine + (128 << kFineBits) + (1 << (kFineBits - 1))) >> kFineBits);
    };
    for (int x = 0; x < width; ++x, rgb += 3) {
        Rgb color{rows[0][x], rows[0][x], rows[0][x]};
        if (isYcc) {
            color = YccToRgb(rows[0][x], rows[1][x], rows[2][x]);
        } else if (kind.color != JpgColor::Grey) {
            color = {rows[0][x], rows[1][x], rows[2][x]};
        }
        color = {toSample(color.red), toSample(color.green), toSample(color.blue)};
        if (kind.color == JpgColor::Ycck) {
            color = {255 - color.red, 255 - color.green, 255 - color.blue};
        }
        if (kind.color == JpgColor::Cmyk || kind.color == JpgColor::Ycck) {
            PutInks(rgb, kind.inverted, color, toSample(rows[3][x]));
        } else {
            Put(rgb, color.red, color.green, color.blue);
        }
    }
}

}  // namespace vistrel
