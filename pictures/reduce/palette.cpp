// The search stops by the triangle inequality: a colour at least twice as far from the start as the
// point is cannot be nearer to the point.
#include "pictures/reduce/palette.h"

#include <algorithm>

namespace vistrel::reduce {

namespace {

/// Adds a colour to a list that is kept in order and is cut to its greatest length.
void Insert(Neighbors& list, std::int32_t squared, std::uint8_t color) {
    int place = list.count;
    if (place == Neighbors::kMost) {
        if (squared >= list.squared[place - 1]) return;
        --place;
    } else {
        ++list.count;
    }
    for (; place > 0 && squared < list.squared[place - 1]; --place) {
        list.squared[place] = list.squared[place - 1];
        list.color[place] = list.color[place - 1];
    }
    list.squared[place] = squared;
    list.color[place] = color;
}

}  // namespace

NeighborTable::NeighborTable(const Palette& palette) : table_(palette.size) {
    // In the order of y, which green makes the widest of the three, the search goes outwards from
    // an entry and ends where y alone is too far.
    std::array<std::uint8_t, kMostColors> order;
    for (int i = 0; i < palette.size; ++i) order[i] = static_cast<std::uint8_t>(i);
    std::sort(order.begin(), order.begin() + palette.size, [&](std::uint8_t a, std::uint8_t b) {
        const std::int16_t first = palette.colors[a].y;
        const std::int16_t second = palette.colors[b].y;
        return first != second ? first < second : a < b;
    });
    for (int place = 0; place < palette.size; ++place) {
        const ColorPoint& from = palette.colors[order[place]];
        Neighbors& list = table_[order[place]];
        const auto visit = [&](int at) {
            const ColorPoint& to = palette.colors[order[at]];
            const std::int32_t distance = to.y - from.y;
            if (list.count == Neighbors::kMost &&
                distance * distance >= list.squared[Neighbors::kMost - 1]) {
                return false;
            }
            Insert(list, SquaredDistance(from, to), order[at]);
            return true;
        };
        int below = place - 1;
        int above = place + 1;
        bool more = true;
        while (more) {
            more = false;
            if (below >= 0 && visit(below)) {
                --below;
                more = true;
            }
            if (above < palette.size && visit(above)) {
                ++above;
                more = true;
            }
        }
    }
}

int NeighborTable::Nearest(const Palette& palette, const ColorPoint& point, int start) const {
    int best = start;
    const std::int32_t own = SquaredDistance(palette.colors[start], point);
    std::int32_t least = own;
    const Neighbors& list = table_[start];
    for (int k = 0; k < list.count && list.squared[k] / 4 < own; ++k) {
        const std::int32_t squared = SquaredDistance(palette.colors[list.color[k]], point);
        if (squared < least) {
            least = squared;
            best = list.color[k];
        }
    }
    return best;
}

Palette MeansOfCells(const Histogram& histogram, int colors) {
    struct Sum {
        std::int64_t pixels = 0, x = 0, y = 0, z = 0;
    };
    std::vector<Sum> sums(colors);
    for (const Cell& cell : histogram.cells) {
        Sum& sum = sums[cell.color];
        const std::int64_t count = cell.count;
        sum.pixels += count;
        sum.x += count * cell.mean.x;
        sum.y += count * cell.mean.y;
        sum.z += count * cell.mean.z;
    }
    Palette palette;
    palette.size = colors;
    for (int i = 0; i < colors; ++i) {
        const Sum& sum = sums[i];
        if (sum.pixels == 0) continue;
        const std::int64_t half = sum.pixels / 2;
        palette.colors[i] = {static_cast<std::int16_t>((sum.x + half) / sum.pixels),
                             static_cast<std::int16_t>((sum.y + half) / sum.pixels),
                             static_cast<std::int16_t>((sum.z + half) / sum.pixels), 0};
    }
    return palette;
}

void ImproveByMeans(Histogram& histogram, Palette& palette) {
    const NeighborTable neighbors(palette);
    std::array<bool, kMostColors> used{};
    for (Cell& cell : histogram.cells) {
        cell.color = static_cast<std::uint16_t>(neighbors.Nearest(palette, cell.mean, cell.color));
        used[cell.color] = true;
    }
    const Palette means = MeansOfCells(histogram, palette.size);
    for (int i = 0; i < palette.size; ++i) {
        if (used[i]) palette.colors[i] = means.colors[i];
    }
}

}  // namespace vistrel::reduce
