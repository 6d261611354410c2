// Variance-based cutting (after Wan, Wong and Prusinkiewicz 1988, with principal axes as in Wu
// 1991), in integers.
#include "pictures/reduce/boxes.h"

#include <algorithm>
#include <array>
#include <utility>

namespace vistrel::reduce {
namespace {

using Number = std::int64_t;
using Vector = std::array<Number, 3>;
/// A point or a direction in 32 bits: an old processor has no others, and makes 64 of them by one
/// multiplication.
using Axis = std::array<std::int32_t, 3>;

/// What is known of the pixels of some cells.
struct Moments {
    Number pixels = 0;
    Vector sums{};
    std::array<Number, 6> products{};  ///< sums of xx yy zz xy xz yz

    void Add(const Cell& cell) {
        const auto count = static_cast<std::int32_t>(cell.count);
        const std::int32_t x = cell.mean.x, y = cell.mean.y, z = cell.mean.z;
        pixels += count;
        sums[0] += Number{count} * x;
        sums[1] += Number{count} * y;
        sums[2] += Number{count} * z;
        products[0] += Number{count} * (x * x);
        products[1] += Number{count} * (y * y);
        products[2] += Number{count} * (z * z);
        products[3] += Number{count} * (x * y);
        products[4] += Number{count} * (x * z);
        products[5] += Number{count} * (y * z);
    }

    Moments operator-(const Moments& part) const {
        Moments rest{.pixels = pixels - part.pixels};
        for (int k = 0; k < 3; ++k) rest.sums[k] = sums[k] - part.sums[k];
        for (int k = 0; k < 6; ++k) rest.products[k] = products[k] - part.products[k];
        return rest;
    }
};

/// A run of cell numbers in the common order, and what is known of them.
struct Box {
    std::size_t begin = 0;
    std::size_t end = 0;
    Moments moments;
    Axis mean{};
    std::array<Number, 6> spread{};  ///< as the moments' products, about the mean
    Number error = 0;

    Box(std::size_t first, std::size_t behind, const Moments& ofThese)
        : begin(first), end(behind), moments(ofThese) {
        const Number pixels = moments.pixels;
        for (int k = 0; k < 3; ++k)
            mean[k] = static_cast<std::int32_t>((moments.sums[k] + pixels / 2) / pixels);
        if (end - begin == 1) return;
        constexpr int kFirst[6] = {0, 1, 2, 0, 0, 1}, kSecond[6] = {0, 1, 2, 1, 2, 2};
        for (int k = 0; k < 6; ++k) {
            const int a = kFirst[k], b = kSecond[k];
            spread[k] = moments.products[k] - mean[a] * moments.sums[b] -
                        mean[b] * moments.sums[a] + pixels * (mean[a] * mean[b]);
        }
        error = spread[0] + spread[1] + spread[2];
    }
};

/// How far a cell lies along an axis from the middle of a box. Differences of 14 bits times an axis
/// of 12 fit into 32.
std::int32_t OffsetOf(const Cell& cell, const Box& box, const Axis& axis) {
    return ((cell.mean.x - box.mean[0]) * axis[0] + (cell.mean.y - box.mean[1]) * axis[1] +
            (cell.mean.z - box.mean[2]) * axis[2]) >>
           8;
}

/// A box in slices across an axis, to find between which two of them it is best cut.
class Slices {
 public:
    static constexpr int kCount = 64;

    /// `pixels` is the number of pixels that will be added.
    explicit Slices(Number pixels) : pixels_(pixels) {}

    void Add(int slice, std::int32_t pixels, std::int32_t offset) {
        slices_[slice].pixels += pixels;
        slices_[slice].offsets += Number{pixels} * offset;
    }

    /// The last slice of the lower side. Parting into n and m pixels whose offsets sum to s and t
    /// takes s*s/n + t*t/m - (s+t)^2/(n+m) from the squared error along the axis; the sum of all
    /// offsets is nearly 0 here.
    int BestCut() const {
        const auto [total, shift] = TotalAndShift();
        Number best = -1;
        int bestCut = 0;
        Number pixels = 0;
        Number offsets = 0;
        for (int slice = 0; slice + 1 < kCount; ++slice) {
            pixels += slices_[slice].pixels;
            offsets += slices_[slice].offsets;
            if (slices_[slice].pixels == 0) continue;
            const Number rest = pixels_ - pixels;
            if (rest == 0) break;
            const Number lower = offsets >> shift;
            const Number upper = (total - offsets) >> shift;
            const Number gain = lower * lower / pixels + upper * upper / rest;
            if (gain > best) {
                best = gain;
                bestCut = slice;
            }
        }
        return bestCut;
    }

 private:
    struct Slice {
        Number pixels = 0;
        Number offsets = 0;  ///< the sum over its pixels
    };

    /// The sum of all offsets, and by how many bits sums are shifted so that squares fit.
    std::pair<Number, int> TotalAndShift() const {
        Number total = 0;
        Number largest = 1;
        for (const Slice& slice : slices_) {
            total += slice.offsets;
            largest = std::max(largest, total < 0 ? -total : total);
        }
        int shift = 0;
        while ((largest >> shift) >= (Number{1} << 30)) ++shift;
        return {total, shift};
    }

    std::array<Slice, kCount> slices_{};
    Number pixels_;
};

class Cutter {
 public:
    explicit Cutter(Histogram& histogram) : cells_(histogram.cells), order_(cells_.size()) {
        for (std::size_t i = 0; i < order_.size(); ++i) order_[i] = static_cast<std::uint16_t>(i);
        offsets_.resize(order_.size());
        boxes_.emplace_back(0, order_.size(), MomentsOf(0, order_.size()));
    }

    /// Cuts the worst box in two, or finds that its cells are too alike for that. False when no box
    /// is left that can be cut.
    bool CutWorst() {
        const auto worst =
            std::max_element(boxes_.begin(), boxes_.end(),
                             [](const Box& a, const Box& b) { return a.error < b.error; });
        if (worst->error == 0) return false;
        const Box whole = *worst;
        const std::size_t middle = PartAlong(whole, PrincipalAxis(whole));
        if (middle == whole.end) {
            worst->error = 0;
            return true;
        }
        // The smaller side is added up, the other one is what is left.
        const bool isLowerSmaller = middle - whole.begin < whole.end - middle;
        const Moments smaller =
            isLowerSmaller ? MomentsOf(whole.begin, middle) : MomentsOf(middle, whole.end);
        const Moments larger = whole.moments - smaller;
        *worst = Box(whole.begin, middle, isLowerSmaller ? smaller : larger);
        boxes_.emplace_back(middle, whole.end, isLowerSmaller ? larger : smaller);
        return true;
    }

    void NumberCells() {
        for (std::size_t box = 0; box < boxes_.size(); ++box) {
            for (std::size_t i = boxes_[box].begin; i < boxes_[box].end; ++i) {
                cells_[order_[i]].color = static_cast<std::uint16_t>(box);
            }
        }
    }

    int size() const { return static_cast<int>(boxes_.size()); }

 private:
    Moments MomentsOf(std::size_t begin, std::size_t end) const;
    static Axis PrincipalAxis(const Box& box);
    std::size_t PartAlong(const Box& box, const Axis& axis);
    /// Takes the offsets of the box's cells along the axis. Returns the least and the largest.
    std::pair<std::int32_t, std::int32_t> TakeOffsets(const Box& box, const Axis& axis);
    /// Moves the cells with offsets under `limit` to the front. Returns where the others begin.
    std::size_t MoveLowerToFront(const Box& box, Number limit);

    std::vector<Cell>& cells_;
    std::vector<std::uint16_t> order_;   ///< cell numbers; each box is a run of them
    std::vector<std::int32_t> offsets_;  ///< for each place in the order: along the axis
    std::vector<Box> boxes_;
};

Moments Cutter::MomentsOf(std::size_t begin, std::size_t end) const {
    Moments moments;
    for (std::size_t i = begin; i < end; ++i) moments.Add(cells_[order_[i]]);
    return moments;
}

/// The direction of the largest spread, largest component 1 << 12, by power iteration.
Axis Cutter::PrincipalAxis(const Box& box) {
    constexpr int kBits = 12;
    constexpr int kIterations = 8;
    std::array<Number, 6> s = box.spread;
    while (std::max({s[0], s[1], s[2]}) >= (Number{1} << 30)) {
        for (Number& value : s) value /= 16;
    }
    const std::array<Vector, 3> matrix = {
        {{s[0], s[3], s[4]}, {s[3], s[1], s[5]}, {s[4], s[5], s[2]}}};
    const int largest = static_cast<int>(std::max_element(s.begin(), s.begin() + 3) - s.begin());
    Vector axis = matrix[largest];
    for (int round = 0;; ++round) {
        Number top = 1;
        for (const Number value : axis) top = std::max(top, value < 0 ? -value : value);
        for (Number& value : axis) value = (value << kBits) / top;
        if (round == kIterations) {
            return {static_cast<std::int32_t>(axis[0]), static_cast<std::int32_t>(axis[1]),
                    static_cast<std::int32_t>(axis[2])};
        }
        Vector next{};
        for (int row = 0; row < 3; ++row) {
            for (int k = 0; k < 3; ++k) next[row] += matrix[row][k] * axis[k];
        }
        axis = next;
    }
}

/// Slices the box across the axis, finds the best plane between two slices and moves the cells of
/// the lower side to the front. Returns where the upper side begins.
std::size_t Cutter::PartAlong(const Box& box, const Axis& axis) {
    const auto [low, high] = TakeOffsets(box, axis);
    Slices slices(box.moments.pixels);
    const Number factor = (Number{Slices::kCount} << 32) / (Number{high} - low + 1);
    for (std::size_t i = box.begin; i < box.end; ++i) {
        const std::int32_t at = offsets_[i];
        const int slice = static_cast<int>((Number{at - low} * factor) >> 32);
        slices.Add(slice, static_cast<std::int32_t>(cells_[order_[i]].count), at);
    }
    // The least distance from the lowest cell that belongs to the slice above the cut.
    const Number above = (((Number{slices.BestCut()} + 1) << 32) + factor - 1) / factor;
    return MoveLowerToFront(box, low + above);
}

std::pair<std::int32_t, std::int32_t> Cutter::TakeOffsets(const Box& box, const Axis& axis) {
    std::int32_t low = INT32_MAX;
    std::int32_t high = INT32_MIN;
    for (std::size_t i = box.begin; i < box.end; ++i) {
        const std::int32_t at = OffsetOf(cells_[order_[i]], box, axis);
        offsets_[i] = at;
        low = std::min(low, at);
        high = std::max(high, at);
    }
    return {low, high};
}

std::size_t Cutter::MoveLowerToFront(const Box& box, Number limit) {
    const auto above = static_cast<std::int32_t>(std::min(limit, Number{INT32_MAX}));
    std::size_t middle = box.begin;
    for (std::size_t i = box.begin; i < box.end; ++i) {
        if (offsets_[i] >= above) continue;
        std::swap(order_[i], order_[middle]);
        std::swap(offsets_[i], offsets_[middle]);
        ++middle;
    }
    return middle;
}

}  // namespace

int PartIntoBoxes(Histogram& histogram, int colors) {
    Cutter cutter(histogram);
    while (cutter.size() < colors && cutter.CutWorst()) {
    }
    cutter.NumberCells();
    return cutter.size();
}

}  // namespace vistrel::reduce
