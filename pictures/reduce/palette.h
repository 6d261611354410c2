// A palette in the working space, and for each colour the ones nearest to it.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "pictures/reduce/histogram.h"

namespace vistrel::reduce {

inline constexpr int kMostColors = 256;

struct Palette {
    std::array<ColorPoint, kMostColors> colors{};
    int size = 0;
};

/// The nearest other colours of one palette entry, nearest first.
struct Neighbors {
    static constexpr int kMost = 8;
    int count = 0;
    std::array<std::int32_t, kMost> squared{};  ///< squared distances from the entry
    std::array<std::uint8_t, kMost> color{};
};

/// Finds the neighbours of every palette entry.
class NeighborTable {
 public:
    explicit NeighborTable(const Palette& palette);

    const Neighbors& Of(int color) const { return table_[color]; }
    int size() const { return static_cast<int>(table_.size()); }

    /// The palette entry nearest to `point` among `start` and its neighbours. `start` itself wins a
    /// tie, then the neighbour that is nearer to it.
    int Nearest(const Palette& palette, const ColorPoint& point, int start) const;

 private:
    std::vector<Neighbors> table_;
};

/// Makes a palette of the mean of the cells of each colour.
Palette MeansOfCells(const Histogram& histogram, int colors);

/// One round of k-means on the cells: each takes the nearest colour near its own, then each colour
/// becomes the mean of its cells. A colour that loses all its cells stays where it is.
void ImproveByMeans(Histogram& histogram, Palette& palette);

}  // namespace vistrel::reduce
