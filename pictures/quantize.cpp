// The stages of colour reduction, in order.
#include "pictures/quantize.h"

#include <algorithm>

#include "pictures/quantize_boxes.h"
#include "pictures/quantize_descent.h"
#include "pictures/quantize_histogram.h"
#include "pictures/quantize_palette.h"
#include "pictures/quantize_space.h"

namespace vistrel {
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

std::vector<Rgb> ReduceColors(const std::uint8_t* rgb, int width, int height, int colors,
                              std::uint8_t* indices, Dither dither) {
    constexpr DistanceWeights kPlain{};
    constexpr DistanceWeights kAsSeen{256, 496, 208, 960};
    const WorkingSpace space(dither == Dither::On ? kAsSeen : kPlain);
    const std::size_t pixels = std::size_t(width) * height;
    Palette palette;
    {
        Histogram histogram = MakeHistogram(rgb, pixels, space);
        palette = MeansOfCells(histogram, PartIntoBoxes(histogram, colors));
        const int rounds = dither == Dither::On ? 3 : 12;
        for (int i = 0; i < rounds; ++i) ImproveByMeans(histogram, palette);
        for (std::size_t i = 0; i < pixels; ++i) {
            indices[i] = static_cast<std::uint8_t>(histogram.cells[histogram.cellOf[i]].color);
        }
    }
    if (dither == Dither::On) {
        Descend(rgb, width, height, space, DescentSettings{}, indices, palette);
    } else {
        const NeighborTable neighbors(palette);
        for (std::size_t i = 0; i < pixels; ++i) {
            indices[i] = static_cast<std::uint8_t>(
                neighbors.Nearest(palette, space.FromRgb(rgb + 3 * i), indices[i]));
        }
    }
    std::vector<Rgb> result;
    for (int i = 0; i < palette.size; ++i) result.push_back(space.ToRgb(palette.colors[i]));
    return result;
}

}  // namespace

bool QuantizeRgb(const std::uint8_t* rgb, int width, int height, int colors, std::uint8_t* indices,
                 std::uint8_t* palette, Dither dither) {
    if (rgb == nullptr || indices == nullptr || palette == nullptr) return false;
    if (width <= 0 || height <= 0 || colors < 2 || colors > kMostColors) return false;
    if (std::int64_t{width} * height > kMostPixelsToReduce) return false;
    std::fill_n(palette, std::size_t(colors) * 4, std::uint8_t{0});
    std::vector<Rgb> chosen = FewColors(rgb, std::size_t(width) * height, colors, indices);
    if (chosen.empty()) chosen = ReduceColors(rgb, width, height, colors, indices, dither);
    WritePalette(chosen, palette);
    return true;
}

}  // namespace vistrel
