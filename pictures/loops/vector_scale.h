// The loops of scaling by vectors.
#pragma once

#include "pictures/loops/loops.h"
#include "pictures/loops/scale_singles.h"

namespace vistrel::loops {

/// Weighted sums of as many columns as a vector holds.
template <class Vector>
struct MixedSums {
    Vector low, high;

    template <class Sample>
    void Add(const Sample* one, const Sample* two, Vector weights) {
        const Vector first = Vector::LoadSamples(one);
        const Vector second = Vector::LoadSamples(two);
        low = low.AddWide(first.LowWith(second).TimesSummed(weights));
        high = high.AddWide(first.HighWith(second).TimesSummed(weights));
    }

    void Store(int shift, std::int16_t* sums) const {
        low.DownWide(shift).PackedWith(high.DownWide(shift)).Store(sums);
    }
};

template <class Vector, class Sample>
void MixByVectors(const Sample* const* rows, const std::int16_t* weights, int count, int length,
                  int shift, std::int16_t* sums) {
    constexpr int kCount = Vector::kCount;
    const Vector half = Vector::AllWide(1 << (shift - 1));
    int x = 0;
    for (; x + 2 * kCount <= length; x += 2 * kCount) {
        MixedSums<Vector> left{half, half}, right{half, half};
        for (int k = 0; k < count; k += 2) {
            const Vector pair = Vector::AllPairs(weights + k);
            const Sample* const one = rows[k] + x;
            const Sample* const two = rows[k + 1] + x;
            left.Add(one, two, pair);
            right.Add(one + kCount, two + kCount, pair);
        }
        left.Store(shift, sums + x);
        right.Store(shift, sums + x + kCount);
    }
    for (; x + kCount <= length; x += kCount) {
        MixedSums<Vector> sum{half, half};
        for (int k = 0; k < count; k += 2)
            sum.Add(rows[k] + x, rows[k + 1] + x, Vector::AllPairs(weights + k));
        sum.Store(shift, sums + x);
    }
    Vector::End();
    singles::Mix(rows, weights, count, x, length, shift, sums);
}

template <class Vector>
void WeighAlongByVectors(const AlongJob& job) {
    static_assert(kRowsAtOnce == 4 && kTapGroup % Vector::kCount == 0);
    const Vector half = Vector::AllWide(1 << (job.shift - 1));
    const std::size_t apart = job.apart;
    std::int16_t* to = job.results;
    for (int i = 0; i < job.count; ++i) {
        const std::int16_t* weights = job.weights + job.taps[i].offset;
        const std::int16_t* from = job.rows + job.taps[i].first;
        Vector a = Vector::AllWide(0), b = a, c = a, d = a;
        for (int left = job.taps[i].count; left > 0; left -= Vector::kCount) {
            const Vector weight = Vector::Load(weights);
            a = a.AddWide(Vector::Load(from).TimesSummed(weight));
            b = b.AddWide(Vector::Load(from + apart).TimesSummed(weight));
            c = c.AddWide(Vector::Load(from + 2 * apart).TimesSummed(weight));
            d = d.AddWide(Vector::Load(from + 3 * apart).TimesSummed(weight));
            weights += Vector::kCount;
            from += Vector::kCount;
        }
        std::int16_t totals[kRowsAtOnce];
        Vector::Totals(a, b, c, d, half, job.shift).StorePoint(totals);
        to[0] = totals[0];
        to[job.resultsApart] = totals[1];
        to[2 * job.resultsApart] = totals[2];
        to[3 * job.resultsApart] = totals[3];
        to += job.stride;
    }
    Vector::End();
}

}  // namespace vistrel::loops
