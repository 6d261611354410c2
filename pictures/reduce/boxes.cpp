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

/// A run of cell numbers in the common order, and what is known of them.
struct Box {
    std::size_t begin = 0;
    std::size_t end = 0;
    Number pixels = 0;
    Axis mean{};
    std::array<Number, 6> spread{};  ///< sums of the products xx yy zz xy xz yz about the mean

    Number error() const { return spread[0] + spread[1] + spread[2]; }
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
        sides_.resize(order_.size());
        boxes_.push_back(Measured(0, order_.size()));
    }

    /// Cuts the worst box in two, or finds that its cells are too alike for that. False when no box
    /// is left that can be cut.
    bool CutWorst() {
        const auto worst =
            std::max_element(boxes_.begin(), boxes_.end(),
                             [](const Box& a, const Box& b) { return a.error() < b.error(); });
        if (worst->error() == 0) return false;
        const Box whole = *worst;
        const std::size_t middle = PartAlong(whole, PrincipalAxis(whole));
        if (middle == whole.end) {
            worst->spread = {};
            return true;
        }
        *worst = Measured(whole.begin, middle);
        boxes_.push_back(Measured(middle, whole.end));
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
    Box Measured(std::size_t begin, std::size_t end) const;
    static Axis PrincipalAxis(const Box& box);
    std::size_t PartAlong(const Box& box, const Axis& axis);
    /// The least and the largest offset of the box's cells along the axis.
    std::pair<std::int32_t, std::int32_t> ReachOf(const Box& box, const Axis& axis) const;
    std::size_t MoveLowerToFront(const Box& box, int cut);

    std::vector<Cell>& cells_;
    std::vector<std::uint16_t> order_;  ///< cell numbers; each box is a run of them
    std::vector<std::uint8_t> sides_;   ///< for each place in the order: the slice of its cell
    std::vector<Box> boxes_;
};

Box Cutter::Measured(std::size_t begin, std::size_t end) const {
    Box box{.begin = begin, .end = end};
    Vector sum{};
    for (std::size_t i = begin; i < end; ++i) {
        const Cell& cell = cells_[order_[i]];
        const auto count = static_cast<std::int32_t>(cell.count);
        box.pixels += count;
        sum[0] += Number{count} * cell.mean.x;
        sum[1] += Number{count} * cell.mean.y;
        sum[2] += Number{count} * cell.mean.z;
    }
    for (int k = 0; k < 3; ++k)
        box.mean[k] = static_cast<std::int32_t>((sum[k] + box.pixels / 2) / box.pixels);
    if (end - begin == 1) return box;
    for (std::size_t i = begin; i < end; ++i) {
        const Cell& cell = cells_[order_[i]];
        const auto count = static_cast<std::int32_t>(cell.count);
        const std::int32_t x = cell.mean.x - box.mean[0];
        const std::int32_t y = cell.mean.y - box.mean[1];
        const std::int32_t z = cell.mean.z - box.mean[2];
        box.spread[0] += Number{count} * (x * x);
        box.spread[1] += Number{count} * (y * y);
        box.spread[2] += Number{count} * (z * z);
        box.spread[3] += Number{count} * (x * y);
        box.spread[4] += Number{count} * (x * z);
        box.spread[5] += Number{count} * (y * z);
    }
    return box;
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
    const auto [low, high] = ReachOf(box, axis);
    Slices slices(box.pixels);
    const Number factor = (Number{Slices::kCount} << 32) / (Number{high} - low + 1);
    for (std::size_t i = box.begin; i < box.end; ++i) {
        const Cell& cell = cells_[order_[i]];
        const std::int32_t at = OffsetOf(cell, box, axis);
        const int slice = static_cast<int>((Number{at - low} * factor) >> 32);
        sides_[i] = static_cast<std::uint8_t>(slice);
        slices.Add(slice, static_cast<std::int32_t>(cell.count), at);
    }
    return MoveLowerToFront(box, slices.BestCut());
}

std::pair<std::int32_t, std::int32_t> Cutter::ReachOf(const Box& box, const Axis& axis) const {
    std::int32_t low = INT32_MAX;
    std::int32_t high = INT32_MIN;
    for (std::size_t i = box.begin; i < box.end; ++i) {
        const std::int32_t at = OffsetOf(cells_[order_[i]], box, axis);
        low = std::min(low, at);
        high = std::max(high, at);
    }
    return {low, high};
}

std::size_t Cutter::MoveLowerToFront(const Box& box, int cut) {
    std::size_t middle = box.begin;
    for (std::size_t i = box.begin; i < box.end; ++i) {
        if (sides_[i] > cut) continue;
        std::swap(order_[i], order_[middle]);
        std::swap(sides_[i], sides_[middle]);
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
