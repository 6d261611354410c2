// Tables in fixed point: 24 bits of fraction, so that much contrast finds enough of them.
#include "pictures/compose/light.h"

#include <algorithm>
#include <bit>

namespace vistrel::compose {
namespace {

constexpr int kOneBits = 24;
constexpr std::int64_t kOne = 1 << kOneBits;

// Logarithms have so many bits of fraction, roots of two 30.
constexpr int kLogBits = 24;
constexpr int kRootBits = 30;

/// 2 to the power of 1/2, 1/4, 1/8 ...
constexpr auto kRootsOfTwo = [] {
    std::array<std::uint64_t, kLogBits> roots{};
    std::uint64_t square = std::uint64_t{2} << kRootBits;
    for (std::uint64_t& root : roots) {
        for (std::uint64_t bit = std::uint64_t{1} << (kRootBits + 1); bit != 0; bit >>= 1)
            if ((root + bit) * (root + bit) <= square << kRootBits) root += bit;
        square = root;
    }
    return roots;
}();

/// The logarithm to base 2 of value / kOne, for values above 0: bit by bit, by squaring.
std::int64_t LogOfTwo(std::uint64_t value) {
    const int highest = std::bit_width(value) - 1;
    std::uint64_t mantissa = value << (kRootBits - highest);
    std::int64_t log = highest - kOneBits;
    for (int i = 0; i < kLogBits; ++i) {
        mantissa = mantissa * mantissa >> kRootBits;
        const bool isTwo = mantissa >> (kRootBits + 1) != 0;
        if (isTwo) mantissa >>= 1;
        log = log * 2 + isTwo;
    }
    return log;
}

/// 2 to the power of `log`, which is not above 0, times kOne.
std::int64_t PowerOfTwo(std::int64_t log) {
    const std::int64_t whole = log >> kLogBits;  // rounded down
    if (whole < -kOneBits) return 0;
    std::uint64_t power = std::uint64_t{1} << kRootBits;
    for (int i = 0; i < kLogBits; ++i)
        if (log >> (kLogBits - 1 - i) & 1) power = power * kRootsOfTwo[i] >> kRootBits;
    return static_cast<std::int64_t>(power >> (kRootBits - kOneBits - whole));
}

/// value to the power of 100 / gamma.
std::int64_t WithGamma(std::int64_t value, int gamma) {
    if (gamma == 100 || value <= 0 || value >= kOne) return value;
    return PowerOfTwo(LogOfTwo(static_cast<std::uint64_t>(value)) * 100 / gamma);
}

/// What a channel's weight in luma adds for each value, times 65,536; the three weights make 1.
constexpr std::array<int, 3> kLumaWeights = {19595, 38470, 7471};

constexpr auto kLumaParts = [] {
    std::array<std::array<std::int32_t, 256>, 3> parts{};
    for (int c = 0; c < 3; ++c)
        for (int v = 0; v < 256; ++v) parts[c][v] = kLumaWeights[c] * v;
    return parts;
}();

/// What becomes of each difference, -255 to 255, between a channel and luma.
std::array<std::int16_t, 511> SaturationTable(int saturation) {
    std::array<std::int16_t, 511> table{};
    const int factor = 100 + std::clamp(saturation, -100, 100);
    for (int i = 0; i < 511; ++i) {
        const int times = (i - 255) * factor;
        table[i] = static_cast<std::int16_t>((times + (times < 0 ? -50 : 50)) / 100);
    }
    return table;
}

std::uint8_t* RowWithin(const ScreenRectangle& within, int y, pictures::RgbPicture& screen) {
    const std::size_t pixel = std::size_t(within.top + y) * screen.width + within.left;
    return screen.pixels.data() + pixel * 3;
}

void ApplyTone(const std::array<std::uint8_t, 256>& tone, std::uint8_t* rgb, int bytes) {
    for (int i = 0; i < bytes; ++i) rgb[i] = tone[rgb[i]];
}

void ApplyToneAndSaturation(const std::array<std::uint8_t, 256>& tone,
                            const std::array<std::int16_t, 511>& differences, std::uint8_t* rgb,
                            int bytes) {
    constexpr std::int32_t kHalf = 32768;
    for (const std::uint8_t* const end = rgb + bytes; rgb != end; rgb += 3) {
        const int red = tone[rgb[0]];
        const int green = tone[rgb[1]];
        const int blue = tone[rgb[2]];
        const int luma =
            (kLumaParts[0][red] + kLumaParts[1][green] + kLumaParts[2][blue] + kHalf) >> 16;
        const std::int16_t* const from = &differences[255] - luma;
        rgb[0] = static_cast<std::uint8_t>(std::clamp(luma + from[red], 0, 255));
        rgb[1] = static_cast<std::uint8_t>(std::clamp(luma + from[green], 0, 255));
        rgb[2] = static_cast<std::uint8_t>(std::clamp(luma + from[blue], 0, 255));
    }
}

}  // namespace

Levels LevelsOf(const pictures::RgbPicture& screen, const ScreenRectangle& within) {
    std::array<std::uint32_t, 256> counts{};
    for (int y = 0; y < within.height; ++y) {
        const std::uint8_t* const row =
            screen.pixels.data() +
            (std::size_t(within.top + y) * screen.width + within.left) * std::size_t{3};
        for (int i = 0; i < within.width * 3; ++i) ++counts[row[i]];
    }
    const std::uint32_t few = static_cast<std::uint32_t>(within.width * within.height) * 3 / 200;
    Levels levels;
    for (std::uint32_t sum = 0; levels.black < 255; ++levels.black)
        if ((sum += counts[levels.black]) > few) break;
    for (std::uint32_t sum = 0; levels.white > 0; --levels.white)
        if ((sum += counts[levels.white]) > few) break;
    // A picture of hardly more than one grey would come out as noise.
    constexpr int kLeastRange = 16;
    return levels.white - levels.black < kLeastRange ? Levels{} : levels;
}

std::array<std::uint8_t, 256> ToneTable(const Light& light, const Levels& levels) {
    const std::int64_t offset = std::clamp(light.brightness, -100, 100) * kOne / 200;
    const std::int64_t contrast = std::clamp(light.contrast, -100, 100);
    const std::int64_t divisor = std::max<std::int64_t>(100 - contrast, 1);
    const int gamma = std::clamp(light.gamma, 10, 500);
    std::array<std::uint8_t, 256> table{};
    for (int i = 0; i < 256; ++i) {
        std::int64_t value = (i - levels.black) * kOne / (levels.white - levels.black) + offset;
        value = (value - kOne / 2) * (100 + contrast) / divisor + kOne / 2;
        value = WithGamma(std::clamp<std::int64_t>(value, 0, kOne), gamma);
        table[i] = static_cast<std::uint8_t>((value * 255 + kOne / 2) / kOne);
    }
    return table;
}

void ApplyLight(const Light& light, const ScreenRectangle& within, pictures::RgbPicture& screen) {
    ApplyLight(light, light.autoLevels ? LevelsOf(screen, within) : Levels{}, within, screen);
}

void ApplyLight(const Light& light, const Levels& levels, const ScreenRectangle& within,
                pictures::RgbPicture& screen) {
    if (light == Light{}) return;
    const std::array<std::uint8_t, 256> tone = ToneTable(light, levels);
    const std::array<std::int16_t, 511> differences = SaturationTable(light.saturation);
    for (int y = 0; y < within.height; ++y) {
        std::uint8_t* const row = RowWithin(within, y, screen);
        if (light.saturation == 0)
            ApplyTone(tone, row, within.width * 3);
        else
            ApplyToneAndSaturation(tone, differences, row, within.width * 3);
    }
}

}  // namespace vistrel::compose
