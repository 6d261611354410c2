// The stages of colour reduction, in order.
#include "pictures/reduce/quantize.h"

#include <algorithm>
#include <array>

#include "pictures/reduce/boxes.h"
#include "pictures/reduce/descent.h"
#include "pictures/reduce/histogram.h"
#include "pictures/reduce/palette.h"
#include "pictures/reduce/space.h"

namespace vistrel::reduce {
namespace {

/// Sums of bytes over all pixels of a picture must fit into 32 bits.
constexpr std::int64_t kMostPixelsToReduce = 1 << 24;

void WritePalette(const std::vector<Rgb>& colors, std::uint8_t* palette) {
    for (const Rgb& color : colors) {
        *palette++ = color.blue;
        *palette++ = color.green;
        *palette++ = color.red;
        *palette++ = 0;
    }
}

/// The mean squared distance of the picture's colours from their palette colours, in levels.
std::int64_t SquaredError(const Histogram& histogram, const Palette& palette) {
    constexpr std::int64_t kUnitsInSquaredLevel = 256;
    std::int64_t sum = 0;
    std::int64_t pixels = 0;
    for (const Cell& cell : histogram.cells) {
        sum += std::int64_t{cell.count} * SquaredDistance(cell.mean, palette.colors[cell.color]);
        pixels += cell.count;
    }
    return sum / pixels / kUnitsInSquaredLevel;
}

/// How far the eye is to be trusted to blend pixels. Where 256 colours come near to all of a
/// picture's, dithering has little to mend and is kept from roughening it; where they are far
/// apart, steps and tints would be seen first.
int LambdaFor(std::int64_t squaredError) {
    struct Step {
        std::int64_t squaredError;
        int lambda;
    };
    // Levels of error: 2, 3, 4, 5, 6 and 7.
    constexpr std::array<Step, 6> kSteps = {
        {{4, 111}, {9, 103}, {16, 90}, {25, 79}, {36, 69}, {49, 58}}};
    for (const Step& step : kSteps) {
        if (squaredError < step.squaredError) return step.lambda;
    }
    return 47;
}

/// The same for a chosen strength.
int LambdaFor(Dither dither, std::int64_t squaredError) {
    switch (dither) {
        case Dither::Light:
            return 196;
        case Dither::Medium:
            return 94;
        case Dither::Strong:
            return 38;
        default:
            return LambdaFor(squaredError);
    }
}

constexpr DistanceWeights kPlain{};
/// Suits the eye and structure.
constexpr DistanceWeights kAsSeen{256, 496, 208, 960};
/// Spends more colours on light and dark, for pictures whose colours 256 do not come near to.
constexpr DistanceWeights kCoarse{256, 496, 208, 1600};
constexpr std::int64_t kCoarseError = 49;

/// The start of the descent: a palette of the cells' means, and which colour each cell takes.
Palette StartPalette(Histogram& histogram, int colors, int rounds) {
    Palette palette = MeansOfCells(histogram, PartIntoBoxes(histogram, colors));
    for (int i = 0; i < rounds; ++i) ImproveByMeans(histogram, palette);
    return palette;
}

void TakeIndices(const Histogram& histogram, std::uint8_t* indices) {
    for (const std::uint16_t cell : histogram.cellOf) {
        *indices++ = static_cast<std::uint8_t>(histogram.cells[cell].color);
    }
}

std::vector<Rgb> ColorsOf(const Palette& palette, const WorkingSpace& space) {
    std::vector<Rgb> colors;
    for (int i = 0; i < palette.size; ++i) colors.push_back(space.ToRgb(palette.colors[i]));
    return colors;
}

std::vector<Rgb> ReduceWithDithering(const std::uint8_t* rgb, int width, int height, int colors,
                                     Dither dither, std::uint8_t* indices) {
    constexpr int kRounds = 3;
    WorkingSpace space(kAsSeen);
    Palette palette;
    DescentSettings settings;
    {
        Histogram histogram = MakeHistogram(rgb, std::size_t(width) * height);
        SetMeans(histogram, space);
        palette = StartPalette(histogram, colors, kRounds);
        const std::int64_t error = SquaredError(histogram, palette);
        settings.lambda = LambdaFor(dither, error);
        if (error >= kCoarseError) {
            space = WorkingSpace(kCoarse);
            SetMeans(histogram, space);
            palette = MeansOfCells(histogram, palette.size);
            ImproveByMeans(histogram, palette);
        }
        TakeIndices(histogram, indices);
    }
    Descend(rgb, width, height, space, settings, indices, palette);
    return ColorsOf(palette, space);
}

std::vector<Rgb> ReduceToNearest(const std::uint8_t* rgb, std::size_t pixels, int colors,
                                 std::uint8_t* indices) {
    constexpr int kRounds = 12;
    const WorkingSpace space(kPlain);
    Histogram histogram = MakeHistogram(rgb, pixels);
    SetMeans(histogram, space);
    const Palette palette = StartPalette(histogram, colors, kRounds);
    TakeIndices(histogram, indices);
    const NeighborTable neighbors(palette);
    for (std::size_t i = 0; i < pixels; ++i) {
        indices[i] = static_cast<std::uint8_t>(
            neighbors.Nearest(palette, space.FromRgb(rgb + 3 * i), indices[i]));
    }
    return ColorsOf(palette, space);
}

}  // namespace

bool QuantizeRgb(const std::uint8_t* rgb, int width, int height, int colors, std::uint8_t* indices,
                 std::uint8_t* palette, Dither dither) {
    if (rgb == nullptr || indices == nullptr || palette == nullptr) return false;
    if (width <= 0 || height <= 0 || colors < 2 || colors > kMostColors) return false;
    if (std::int64_t{width} * height > kMostPixelsToReduce) return false;
    std::fill_n(palette, std::size_t(colors) * 4, std::uint8_t{0});
    std::vector<Rgb> chosen = FewColors(rgb, std::size_t(width) * height, colors, indices);
    if (chosen.empty()) {
        chosen = dither == Dither::Off
                     ? ReduceToNearest(rgb, std::size_t(width) * height, colors, indices)
                     : ReduceWithDithering(rgb, width, height, colors, dither, indices);
    }
    WritePalette(chosen, palette);
    return true;
}

}  // namespace vistrel::reduce
