// The loops for a processor without vectors.
#include "pictures/loops/error_loops.h"
#include "pictures/loops/kinds.h"
#include "pictures/loops/scale_singles.h"
#include "pictures/loops/two.h"

namespace vistrel::loops::singles {
namespace {

struct Change {
    int x, y, z;
};

/// The best alternative to a pixel's colour where the field is as given; -1 when none is better.
[[gnu::always_inline]] inline int Best(const Alternatives& others, int x, int y, int z) {
    const auto square = [](int value) { return static_cast<std::uint32_t>(value * value); };
    const std::uint32_t squared = square(x) + square(y) + square(z);
    if (squared <= others.harmless) return -1;
    int best = -1;
    std::int32_t least = 0;
    for (int k = 0; squared > others.enough[k]; ++k) {
        const std::int32_t change =
            others.half[k] + others.xy[2 * k] * x + others.xy[2 * k + 1] * y + others.z[2 * k] * z;
        if (change < least) {
            least = change;
            best = k;
        }
    }
    return best;
}

/// What a change adds to the field at the next pixel, or with `weight` 3 at the one after it.
void Spread(const Change& change, int weight, std::uint16_t* field) {
    const auto part = [weight](int d) { return (weight * d + 8) >> 4; };
    field[0] = static_cast<std::uint16_t>(field[0] + part(change.x));
    field[1] = static_cast<std::uint16_t>(field[1] + part(change.y));
    field[2] = static_cast<std::uint16_t>(field[2] + part(change.z));
}

template <bool kSums>
void ChooseAnd(const ChoiceRow& row) {
    const int none = NoField(row.ownWeight);
    // In variables: the compiler must take it that writing indices may change what `row` holds.
    std::uint8_t* const indices = row.indices;
    const Alternatives* const alternatives = row.alternatives;
    FieldSum* const sums = row.sums;
    const int width = row.width;
    std::uint16_t* field = row.field;
    for (int i = 0; i < width; ++i, field += kPoint) {
        int taken = indices[i];
        const Alternatives& others = alternatives[taken];
        int x = field[0] - none, y = field[1] - none, z = field[2] - none;
        const int best = Best(others, x, y, z);
        if (best >= 0) {
            row.changed->Add(i);
            taken = others.color[best];
            indices[i] = static_cast<std::uint8_t>(taken);
            const Change d = {others.xy[2 * best], others.xy[2 * best + 1], others.z[2 * best]};
            std::uint16_t* const error = row.errors + i * kPoint;
            error[0] = static_cast<std::uint16_t>(error[0] + d.x);
            error[1] = static_cast<std::uint16_t>(error[1] + d.y);
            error[2] = static_cast<std::uint16_t>(error[2] + d.z);
            Spread(d, 6, field + kPoint);
            Spread(d, 3, field + 2 * kPoint);
            const auto grown = [&](int from, int by) {
                return from + ((9 * by + 8) >> 4) + (by * row.ownWeight >> 3);
            };
            x = grown(x, d.x);
            y = grown(y, d.y);
            z = grown(z, d.z);
        }
        if constexpr (kSums) {
            FieldSum& sum = sums[taken];
            sum.x += x;
            sum.y += y;
            sum.z += z;
            ++sum.pixels;
        }
    }
}

void Choose(const ChoiceRow& row) { row.sums ? ChooseAnd<true>(row) : ChooseAnd<false>(row); }

std::int32_t WeightedSum(const std::int16_t* samples, const std::int16_t* weights, int count) {
    static_assert(kTapGroup % 4 == 0);
    std::int32_t sum = 0;
    for (int k = 0; k < count; k += 4) {
        sum += samples[k] * weights[k] + samples[k + 1] * weights[k + 1] +
               samples[k + 2] * weights[k + 2] + samples[k + 3] * weights[k + 3];
    }
    return sum;
}

void WeighAlong(const AlongJob& job) {
    const std::int32_t half = 1 << (job.shift - 1);
    for (int row = 0; row < kRowsAtOnce; ++row) {
        const std::int16_t* const from = job.rows + row * job.apart;
        std::int16_t* to = job.results + row * job.resultsApart;
        for (int i = 0; i < job.count; ++i, to += job.stride) {
            const Taps& taps = job.taps[i];
            const std::int32_t sum =
                WeightedSum(from + taps.first, job.weights + taps.offset, taps.count);
            *to = Narrow((sum + half) >> job.shift);
        }
    }
}

}  // namespace

const Loops kLoops = {MoveErrors<Two>,
                      BlurAlong<Two>,
                      BlurDown<Two>,
                      Choose,
                      MixAll<std::uint8_t>,
                      MixAll<std::int16_t>,
                      WeighAlong,
                      [](const IdctJob&) { return 0; },
                      [](const std::int16_t*, int, const std::int16_t*, std::uint8_t*,
                         std::ptrdiff_t) { return false; },
                      [](const std::int16_t* const*, int, std::uint8_t*) { return 0; }};

}  // namespace vistrel::loops::singles
