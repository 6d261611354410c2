// K-means from a variance cut, and error diffusion.
#include "bench/pictures/baselines.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <map>

namespace vistrel::bench {
namespace {

constexpr int kColors = 256;
using Color = std::array<float, 3>;

struct Weighted {
    Color color{};
    float count = 0;
    int nearest = 0;
};

/// A palette laid out for finding the nearest colour quickly.
struct ColorTable {
    std::array<std::array<float, kColors>, 3> channels{};
    int size = 0;

    int Nearest(const Color& color) const {
        std::array<float, kColors> distance{};
        for (int i = 0; i < kColors; ++i) {
            const float r = channels[0][i] - color[0];
            const float g = channels[1][i] - color[1];
            const float b = channels[2][i] - color[2];
            distance[i] = r * r + g * g + b * b;
        }
        return static_cast<int>(std::min_element(distance.begin(), distance.begin() + size) -
                                distance.begin());
    }
};

std::vector<Weighted> DistinctColors(const MetricPicture& picture) {
    std::map<std::array<std::uint8_t, 3>, float> counts;
    for (std::size_t i = 0; i < picture.pixels.size(); i += 3) {
        ++counts[{picture.pixels[i], picture.pixels[i + 1], picture.pixels[i + 2]}];
    }
    std::vector<Weighted> result;
    for (const auto& [color, count] : counts) {
        result.push_back({{float(color[0]), float(color[1]), float(color[2])}, count, 0});
    }
    return result;
}

struct Group {
    std::size_t begin = 0;
    std::size_t end = 0;
    double error = 0;
    int channel = 0;  ///< the one with the largest variance
    double mean = 0;
};

Group Measured(const std::vector<Weighted>& colors, std::size_t begin, std::size_t end) {
    Group group{begin, end, 0, 0, 0};
    double largest = -1;
    for (int c = 0; c < 3; ++c) {
        double count = 0;
        double sum = 0;
        double squares = 0;
        for (std::size_t i = begin; i < end; ++i) {
            const double value = colors[i].color[c];
            count += colors[i].count;
            sum += colors[i].count * value;
            squares += colors[i].count * value * value;
        }
        const double error = squares - sum * sum / count;
        group.error += error;
        if (error > largest) {
            largest = error;
            group.channel = c;
            group.mean = sum / count;
        }
    }
    return group;
}

/// Parts the colours at the mean of the channel with the largest variance, the worst group first.
int CutByVariance(std::vector<Weighted>& colors) {
    std::vector<Group> groups = {Measured(colors, 0, colors.size())};
    while (groups.size() < kColors) {
        const auto worst =
            std::max_element(groups.begin(), groups.end(),
                             [](const Group& a, const Group& b) { return a.error < b.error; });
        const Group whole = *worst;
        const auto middle =
            std::partition(colors.begin() + whole.begin, colors.begin() + whole.end,
                           [&](const Weighted& w) { return w.color[whole.channel] < whole.mean; });
        const std::size_t cut = middle - colors.begin();
        if (cut == whole.begin || cut == whole.end) break;
        *worst = Measured(colors, whole.begin, cut);
        groups.push_back(Measured(colors, cut, whole.end));
    }
    for (std::size_t g = 0; g < groups.size(); ++g) {
        for (std::size_t i = groups[g].begin; i < groups[g].end; ++i) {
            colors[i].nearest = static_cast<int>(g);
        }
    }
    return static_cast<int>(groups.size());
}

ColorTable Means(const std::vector<Weighted>& colors, ColorTable table) {
    std::array<std::array<double, 4>, kColors> sums{};
    for (const Weighted& weighted : colors) {
        std::array<double, 4>& sum = sums[weighted.nearest];
        for (int c = 0; c < 3; ++c) sum[c] += double(weighted.count) * weighted.color[c];
        sum[3] += weighted.count;
    }
    for (int i = 0; i < table.size; ++i) {
        if (sums[i][3] == 0) continue;
        for (int c = 0; c < 3; ++c) table.channels[c][i] = float(sums[i][c] / sums[i][3]);
    }
    return table;
}

ColorTable KMeansPalette(const MetricPicture& picture) {
    constexpr int kMostRounds = 200;
    std::vector<Weighted> colors = DistinctColors(picture);
    ColorTable table;
    table.size = CutByVariance(colors);
    for (int round = 0; round < kMostRounds; ++round) {
        table = Means(colors, table);
        bool changed = false;
        for (Weighted& weighted : colors) {
            const int nearest = table.Nearest(weighted.color);
            changed = changed || nearest != weighted.nearest;
            weighted.nearest = nearest;
        }
        if (!changed) break;
    }
    for (auto& channel : table.channels) {
        for (float& value : channel) value = std::round(value);
    }
    return table;
}

Color ColorOf(const ColorTable& table, int index) {
    return {table.channels[0][index], table.channels[1][index], table.channels[2][index]};
}

void Put(MetricPicture& picture, std::size_t pixel, const Color& color) {
    for (int c = 0; c < 3; ++c) {
        picture.pixels[3 * pixel + c] = static_cast<std::uint8_t>(color[c]);
    }
}

}  // namespace

MetricPicture ReduceByKMeans(const MetricPicture& picture) {
    const ColorTable table = KMeansPalette(picture);
    MetricPicture result = picture;
    for (std::size_t i = 0; i < picture.pixels.size() / 3; ++i) {
        const std::uint8_t* const rgb = &picture.pixels[3 * i];
        Put(result, i,
            ColorOf(table, table.Nearest({float(rgb[0]), float(rgb[1]), float(rgb[2])})));
    }
    return result;
}

MetricPicture ReduceByErrorDiffusion(const MetricPicture& picture) {
    const ColorTable table = KMeansPalette(picture);
    MetricPicture result = picture;
    const int width = picture.width;
    // A row of errors has a place more at each end.
    std::vector<Color> here(width + 2);
    std::vector<Color> below(width + 2);
    for (int y = 0; y < picture.height; ++y) {
        const int step = y % 2 == 0 ? 1 : -1;
        std::fill(below.begin(), below.end(), Color{});
        for (int i = 0, x = step > 0 ? 0 : width - 1; i < width; ++i, x += step) {
            const std::size_t pixel = std::size_t(y) * width + x;
            Color wanted;
            for (int c = 0; c < 3; ++c) {
                wanted[c] =
                    std::clamp(float(picture.pixels[3 * pixel + c]) + here[x + 1][c], 0.0f, 255.0f);
            }
            const Color chosen = ColorOf(table, table.Nearest(wanted));
            Put(result, pixel, chosen);
            for (int c = 0; c < 3; ++c) {
                const float error = (wanted[c] - chosen[c]) / 16;
                here[x + 1 + step][c] += 7 * error;
                below[x + 1 - step][c] += 3 * error;
                below[x + 1][c] += 5 * error;
                below[x + 1 + step][c] += error;
            }
        }
        std::swap(here, below);
    }
    return result;
}

}  // namespace vistrel::bench
