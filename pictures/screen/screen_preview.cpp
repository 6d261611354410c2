#include "pictures/screen/screen_preview.h"

#include <algorithm>

#include "pictures/bmp/header.h"

namespace vistrel::screen {
namespace {

/// Weights of a target sample add up to this, so that two averages fit into one 32-bit number.
constexpr std::uint32_t kOne = 256;

/// The source samples that each target sample covers.
struct Spans {
    std::vector<int> first;
    std::vector<int> count;
    std::vector<std::uint32_t> weights;  ///< those of all target samples, one after the other
};

Spans SpansOf(int samples, int target) {
    Spans spans;
    for (int i = 0; i < target; ++i) {
        // In units of 1/target source samples, each target sample covers `samples` of them.
        const std::int64_t from = static_cast<std::int64_t>(i) * samples;
        const std::int64_t to = from + samples;
        const auto first = static_cast<int>(from / target);
        const auto end = static_cast<int>((to + target - 1) / target);
        spans.first.push_back(first);
        spans.count.push_back(end - first);
        std::uint32_t given = 0;
        for (int s = first; s < end; ++s) {
            // Differences of rounded running sums leave no remainder.
            const std::int64_t covered =
                std::min((static_cast<std::int64_t>(s) + 1) * target, to) - from;
            const auto sum = static_cast<std::uint32_t>((covered * kOne + samples / 2) / samples);
            spans.weights.push_back(sum - given);
            given = sum;
        }
    }
    return spans;
}

/// A row of averages, each color times 256.
struct Row {
    std::vector<std::uint32_t> redBlue;  ///< red in the upper half, blue in the lower
    std::vector<std::uint32_t> green;
};

}  // namespace

std::optional<pictures::ScaledPicture> PreviewOfScreen(pictures::FileBytes file, int width,
                                                       int height) {
    const auto header = bmp::ReadBmpHeader(file);
    if (!header || header->bitsPerPixel != 8 || header->compression != bmp::BmpCompression::None ||
        width <= 0 || height <= 0 || header->width < width || header->height < height)
        return std::nullopt;
    const std::size_t stride = header->RowBytes();
    if (header->pixelOffset > file.size() ||
        file.size() - header->pixelOffset < stride * static_cast<std::size_t>(header->height))
        return std::nullopt;

    std::array<std::uint32_t, 256> redBlue;
    std::array<std::uint32_t, 256> green;
    for (std::size_t i = 0; i < 256; ++i) {
        const bmp::RgbColor& color = header->palette[i];
        redBlue[i] = std::uint32_t{color[0]} << 16 | color[2];
        green[i] = color[1];
    }

    const Spans across = SpansOf(header->width, width);
    const Spans down = SpansOf(header->height, height);
    const auto columns = static_cast<std::size_t>(width);
    Row row{std::vector<std::uint32_t>(columns), std::vector<std::uint32_t>(columns)};
    int rowHeld = -1;
    const auto average = [&](int y) {
        if (y == rowHeld) return;  // a row at a border belongs to two target rows
        rowHeld = y;
        const std::uint8_t* pixels =
            file.data() + header->pixelOffset +
            stride * static_cast<std::size_t>(header->topDown ? y : header->height - 1 - y);
        const std::uint32_t* weight = across.weights.data();
        for (std::size_t x = 0; x < columns; ++x) {
            std::uint32_t sumRedBlue = 0;
            std::uint32_t sumGreen = 0;
            const std::uint8_t* pixel = pixels + across.first[x];
            for (int left = across.count[x]; left > 0; --left) {
                sumRedBlue += redBlue[*pixel] * *weight;
                sumGreen += green[*pixel] * *weight;
                ++pixel;
                ++weight;
            }
            row.redBlue[x] = sumRedBlue;
            row.green[x] = sumGreen;
        }
    };

    pictures::ScaledPicture scaled{{width, height, {}}, header->width, header->height};
    scaled.picture.pixels.resize(columns * static_cast<std::size_t>(height) * 3);
    std::uint8_t* out = scaled.picture.pixels.data();
    std::vector<std::uint32_t> sums(columns * 3);
    const std::uint32_t* downWeight = down.weights.data();
    for (std::size_t target = 0; target < down.first.size(); ++target) {
        // Half a unit, so that the last step rounds.
        std::fill(sums.begin(), sums.end(), kOne * kOne / 2);
        for (int i = 0; i < down.count[target]; ++i) {
            average(down.first[target] + i);
            const std::uint32_t weight = *downWeight++;
            for (std::size_t x = 0; x < columns; ++x) {
                sums[x * 3] += (row.redBlue[x] >> 16) * weight;
                sums[x * 3 + 1] += row.green[x] * weight;
                sums[x * 3 + 2] += (row.redBlue[x] & 0xffff) * weight;
            }
        }
        for (const std::uint32_t sum : sums)
            *out++ = static_cast<std::uint8_t>(sum / (kOne * kOne));
    }
    return scaled;
}

}  // namespace vistrel::screen
