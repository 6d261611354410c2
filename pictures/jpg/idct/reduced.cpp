// The IDCT of one to five, or all eight, frequencies per axis.
#include "pictures/jpg/idct/reduced.h"

#include <algorithm>

#include "pictures/jpg/color.h"
#include "pictures/jpg/idct/block.h"
#include "pictures/loops/loops.h"

namespace vistrel::jpg {
namespace {

constexpr std::int32_t kMiddle = 128 << kFineBits;
constexpr std::int32_t kHighest = (256 << kFineBits) - 1;  // from 0, as kMiddle is

// Blocks of coefficients, and columns of terms in the same order, dequantized.
struct ColumnJob {
    const std::int16_t* blocks;
    int blockStride;
    int count;
    int across;
    const std::int32_t* steps;
    Wrapping* between;
};

template <int N>
bool IsConstant(const Wrapping* terms) {
    Wrapping others = 0;
    for (int k = 1; k < N; ++k) others |= terms[k];
    return others == 0;
}

template <int N>
void IdctColumns(const ColumnJob& job) {
    const std::int16_t* block = job.blocks;
    Wrapping* to = job.between;
    for (int i = 0; i < job.count; ++i, block += job.blockStride, to += N * job.across) {
        for (int column = 0; column < job.across; ++column) {
            Wrapping in[N], out[N];
            for (int k = 0; k < N; ++k) {
                const int at = k * job.across + column;
                in[k] = Dequantize(block[at], job.steps[at]);
            }
            if (N > 2 && IsConstant<N>(in)) {
                for (int k = 0; k < N; ++k) to[k * job.across + column] = in[0] << kColumnBits;
                continue;
            }
            Idct1d<N>(in, out);
            for (int k = 0; k < N; ++k) {
                to[k * job.across + column] =
                    static_cast<Wrapping>(Descale(out[k], kTermBits - kColumnBits));
            }
        }
    }
}

struct RowJob {
    const Wrapping* between;
    int count;
    int down;
    std::int16_t* samples;
    std::ptrdiff_t stride;
};

// Rounds N sums to fine samples within their range.
template <int N>
void PutFine(const Wrapping* sums, std::int16_t* to) {
    std::int32_t values[N], all = 0;
    for (int x = 0; x < N; ++x) {
        values[x] = Descale(sums[x], kSumBits - kFineBits) + kMiddle;
        all |= values[x];
    }
    // Bits outside of the range's mean that some value is outside of the range.
    if ((all & ~kHighest) != 0) {
        for (std::int32_t& value : values) value = std::clamp(value, 0, kHighest);
    }
    for (int x = 0; x < N; ++x) to[x] = static_cast<std::int16_t>(values[x] - kMiddle);
}

template <int N>
void IdctRows(const RowJob& job) {
    const Wrapping* from = job.between;
    for (int i = 0; i < job.count; ++i) {
        std::int16_t* to = job.samples + i * N;
        for (int row = 0; row < job.down; ++row, from += N, to += job.stride) {
            Wrapping out[N];
            if (N > 2 && IsConstant<N>(from)) {
                std::fill_n(out, N, from[0] << kTermBits);
            } else {
                Idct1d<N>(from, out);
            }
            PutFine<N>(out, to);
        }
    }
}

constexpr std::array<void (*)(const ColumnJob&), 9> kColumns = {
    nullptr,        IdctColumns<1>, IdctColumns<2>, IdctColumns<3>, IdctColumns<4>,
    IdctColumns<5>, nullptr,        nullptr,        IdctColumns<8>};
constexpr std::array<void (*)(const RowJob&), 9> kRows = {nullptr,     IdctRows<1>, IdctRows<2>,
                                                          IdctRows<3>, IdctRows<4>, IdctRows<5>,
                                                          nullptr,     nullptr,     IdctRows<8>};

}  // namespace

ReducedIdct::ReducedIdct(const KeptFrequencies& kept, const QuantTable& quant)
    : shape_{kept.across, kept.down, kept.stride},
      steps_(static_cast<std::size_t>(kept.stride)),
      between_(static_cast<std::size_t>(kBlocksAtOnce * kept.across * kept.down)) {
    for (std::size_t k = 0; k < quant.size(); ++k) {
        if (kept.IsKept(static_cast<int>(k))) steps_[kept.slot[k]] = quant[k];
    }
    vectorSteps_ = VectorDequantTable(steps_);
}

void ReducedIdct::Transform(const std::int16_t* blocks, int count, std::int16_t* samples,
                            std::ptrdiff_t stride) {
    const auto blockAt = [&](int i) { return blocks + std::ptrdiff_t{i} * shape_.stride; };
    for (int i = 0; i < count;) {
        i += loops::Chosen().transform({vectorSteps_.numbers.data(), vectorSteps_.most,
                                        shape_.across, shape_.down, blockAt(i), shape_.stride,
                                        count - i, samples + i * shape_.across, stride});
        const int some = std::min(kBlocksAtOnce, count - i);
        TransformBySingles(blockAt(i), some, samples + i * shape_.across, stride);
        i += some;
    }
}

// Does the same, for kBlocksAtOnce blocks at most, by arithmetic on single numbers.
void ReducedIdct::TransformBySingles(const std::int16_t* blocks, int count, std::int16_t* samples,
                                     std::ptrdiff_t stride) {
    if (shape_.across * shape_.down == kBlockSize) {
        for (int i = 0; i < count; ++i, blocks += kBlockSize, samples += 8) {
            IdctBlock(blocks, steps_.data(), [=](int row, const Wrapping* sums) {
                PutFine<8>(sums, samples + row * stride);
            });
        }
        return;
    }
    kColumns[static_cast<std::size_t>(shape_.down)](
        {blocks, shape_.stride, count, shape_.across, steps_.data(), between_.data()});
    kRows[static_cast<std::size_t>(shape_.across)](
        {between_.data(), count, shape_.down, samples, stride});
}

}  // namespace vistrel::jpg
