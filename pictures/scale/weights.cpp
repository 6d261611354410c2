// Lanczos3 weights without floating point, so that every build computes the same ones.
#include "pictures/scale/weights.h"

#include <algorithm>
#include <array>

namespace vistrel::scale {
namespace {

constexpr int kLobes = 3;
constexpr int kStepBits = 8;  // the kernel is tabulated at steps of 1/256
constexpr int kSteps = 1 << kStepBits;
constexpr int kKernelBits = 22;  // fraction bits of a tabulated value

/// sin(pi * t) for t from 0 to 1 as 30-bit fractions, by its Taylor series about 0.
constexpr std::int64_t SinPi(std::int64_t t) {
    constexpr std::int64_t kOne = std::int64_t{1} << 30;
    constexpr std::int64_t kPi = 3373259426;  // pi * 2^30
    if (t > kOne / 2) t = kOne - t;
    const std::int64_t x = (t * kPi) >> 30;
    const std::int64_t square = (x * x) >> 30;
    std::int64_t term = x;
    std::int64_t sum = x;
    for (int n = 2; n <= 14; n += 2) {
        term = -((term * square) >> 30) / (n * (n + 1));
        sum += term;
    }
    return sum;
}

/// sin(pi x) for x = step / 256 whole turns included.
constexpr std::int64_t SinPiOfStep(int step) {
    const std::int64_t sine = SinPi(std::int64_t{step % kSteps} << (30 - kStepBits));
    return step / kSteps % 2 == 0 ? sine : -sine;
}

/// The kernel sinc(x) * sinc(x / 3) = 3 sin(pi x) sin(pi x / 3) / (pi x)^2 at x = step / 256.
constexpr std::int32_t KernelOfStep(int step) {
    if (step == 0) return 1 << kKernelBits;
    const std::int64_t outer = SinPi((std::int64_t{step} << (30 - kStepBits)) / kLobes);
    const std::int64_t product = (SinPiOfStep(step) * outer) >> 30;
    constexpr std::int64_t kPiSquare = 10349030;                      // pi^2 * 2^20
    const std::int64_t denominator = (kPiSquare * step * step) >> 8;  // (pi x)^2 * 2^28
    return static_cast<std::int32_t>((kLobes * product * (1 << 20)) / denominator);
}

constexpr auto kKernel = [] {
    std::array<std::int32_t, kLobes * kSteps + 2> table{};
    for (int step = 0; step < kLobes * kSteps; ++step) table[step] = KernelOfStep(step);
    return table;
}();

/// The kernel at a distance of x65536 / 65,536.
std::int32_t Kernel(std::int64_t x65536) {
    const std::int64_t x = x65536 < 0 ? -x65536 : x65536;
    const std::int64_t step = x >> (16 - kStepBits);
    if (step >= kLobes * kSteps) return 0;
    const int part = static_cast<int>(x & ((1 << (16 - kStepBits)) - 1));
    const std::int32_t here = kKernel[step];
    return here + (((kKernel[step + 1] - here) * part) >> (16 - kStepBits));
}

/// Brings kernel values to weights that add up to 1 << shift, by rounding the running sum: so the
/// rounding errors of neighbours cancel.
void AppendWeights(const std::vector<std::int32_t>& values, int shift,
                   std::vector<std::int16_t>& weights) {
    constexpr int kBits = 44;
    std::int64_t total = 0;
    for (const std::int32_t value : values) total += value;
    const std::int64_t factor = (std::int64_t{1} << (shift + kBits)) / total;
    std::int64_t running = 0;
    std::int64_t given = 0;
    for (const std::int32_t value : values) {
        running += value;
        const std::int64_t sum = (running * factor + (std::int64_t{1} << (kBits - 1))) >> kBits;
        weights.push_back(static_cast<std::int16_t>(sum - given));
        given = sum;
    }
}

/// The weights of samples, from those of samples of which each has handed over `spread65536` /
/// 65,536 of itself to each of its two neighbours. `first` is the number of the first weight's
/// sample and moves with it; beyond the edges lie more of the samples at the edge.
void SpreadWeights(int spread65536, int samples, int& first, std::vector<std::int32_t>& values) {
    const std::vector<std::int32_t> old = values;
    const int oldFirst = first;
    const int oldEnd = first + static_cast<int>(old.size());
    first = std::max(first - 1, 0);
    values.assign(std::min(oldEnd + 1, samples) - first, 0);
    for (int j = oldFirst; j < oldEnd; ++j) {
        const std::int64_t share = std::int64_t{old[j - oldFirst]} * spread65536 >> 16;
        values[j - first] += static_cast<std::int32_t>(old[j - oldFirst] - 2 * share);
        values[std::max(j - 1, 0) - first] += static_cast<std::int32_t>(share);
        values[std::min(j + 1, samples - 1) - first] += static_cast<std::int32_t>(share);
    }
}

}  // namespace

FilterAxis MakeFilterAxis(const ScaleAxis& axis) {
    constexpr std::int64_t kOne = 65536;
    const std::int64_t scale = std::max(kOne, axis.extent65536 / axis.target);
    const std::int64_t inverse = (std::int64_t{1} << 46) / scale;
    const std::int64_t reach = kLobes * scale;

    FilterAxis filter;
    // A widened kernel has small weights: they get one bit more. With more than that, 32-bit sums
    // of 16-bit samples could overflow.
    filter.shift = scale >= 2 * kOne ? 15 : 14;
    filter.taps.reserve(axis.target);
    std::vector<std::int32_t> values;
    for (int i = 0; i < axis.target; ++i) {
        // Sample j has its centre at j + 1/2.
        const std::int64_t centre =
            (2 * std::int64_t{i} + 1) * axis.extent65536 / (2 * std::int64_t{axis.target});
        const std::int64_t from = (centre - reach + kOne / 2) >> 16;
        const std::int64_t to = (centre + reach + kOne / 2) >> 16;
        int first = static_cast<int>(std::clamp<std::int64_t>(from, 0, axis.samples - 1));
        const int end = static_cast<int>(std::clamp<std::int64_t>(to, first + 1, axis.samples));
        values.clear();
        for (int j = first; j < end; ++j) {
            const std::int64_t distance = std::int64_t{j} * kOne + kOne / 2 - centre;
            values.push_back(Kernel((distance * inverse) >> 30));
        }
        if (axis.spread65536) SpreadWeights(axis.spread65536, axis.samples, first, values);
        const int count = static_cast<int>(values.size());
        filter.taps.push_back({first, count, filter.weights.size()});
        filter.mostTaps = std::max(filter.mostTaps, count);
        AppendWeights(values, filter.shift, filter.weights);
        filter.weights.resize((filter.weights.size() + kTapGroup - 1) / kTapGroup * kTapGroup);
    }
    return filter;
}

}  // namespace vistrel::scale
