// Inverse transforms of one to eight frequencies an axis.
#include "pictures/jpg_inverse_reduced.h"

#include "pictures/jpg_color.h"
#include "pictures/jpg_inverse_block.h"

namespace vistrel {
namespace {

constexpr int kLowest = -(128 << kFineBits);
constexpr int kHighest = 127 << kFineBits;

// Blocks of coefficients, and columns of terms in the same order with the steps multiplied in.
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
void InverseColumns(const ColumnJob& job) {
    const std::int16_t* block = job.blocks;
    Wrapping* to = job.between;
    for (int i = 0; i < job.count; ++i, block += job.blockStride, to += N * job.across) {
        for (int column = 0; column < job.across; ++column) {
            Wrapping in[N], out[N];
            for (int k = 0; k < N; ++k) {
                const int at = k * job.across + column;
                in[k] = static_cast<Wrapping>(block[at] * job.steps[at]);
            }
            if (N > 2 && IsConstant<N>(in)) {
                for (int k = 0; k < N; ++k) to[k * job.across + column] = in[0] << kColumnBits;
                continue;
            }
            InverseTerms<N>(in, out);
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

std::int16_t ToFine(Wrapping sum) {
    const std::int32_t fine = Descale(sum, kSumBits - kFineBits);
    return static_cast<std::int16_t>(std::clamp(fine, kLowest, kHighest));
}

template <int N>
void InverseRows(const RowJob& job) {
    const Wrapping* from = job.between;
    for (int i = 0; i < job.count; ++i) {
        std::int16_t* to = job.samples + i * N;
        for (int row = 0; row < job.down; ++row, from += N, to += job.stride) {
            if (N > 2 && IsConstant<N>(from)) {
                std::fill_n(to, N, ToFine(from[0] << kTermBits));
                continue;
            }
            Wrapping out[N];
            InverseTerms<N>(from, out);
            for (int x = 0; x < N; ++x) to[x] = ToFine(out[x]);
        }
    }
}

constexpr std::array<void (*)(const ColumnJob&), 8> kColumns = {
    InverseColumns<1>, InverseColumns<2>, InverseColumns<3>, InverseColumns<4>,
    InverseColumns<5>, InverseColumns<6>, InverseColumns<7>, InverseColumns<8>};
constexpr std::array<void (*)(const RowJob&), 8> kRows = {
    InverseRows<1>, InverseRows<2>, InverseRows<3>, InverseRows<4>,
    InverseRows<5>, InverseRows<6>, InverseRows<7>, InverseRows<8>};

}  // namespace

ReducedInverse::ReducedInverse(const KeptFrequencies& kept, const QuantTable& quant)
    : across_(kept.across),
      down_(kept.down),
      blockStride_(kept.stride),
      steps_(static_cast<std::size_t>(kept.stride)),
      between_(static_cast<std::size_t>(kBlocksAtOnce * across_ * down_)) {
    for (std::size_t k = 0; k < quant.size(); ++k) {
        if (kept.IsKept(static_cast<int>(k))) steps_[kept.slot[k]] = quant[k];
    }
}

void ReducedInverse::Transform(const std::int16_t* blocks, int count, std::int16_t* samples,
                               std::ptrdiff_t stride) {
    if (across_ * down_ == kBlockSize) {
        for (int i = 0; i < count; ++i, blocks += kBlockSize, samples += 8) {
            InverseBlock(blocks, steps_.data(), [=](int row, const Wrapping* sums) {
                for (int x = 0; x < 8; ++x) samples[row * stride + x] = ToFine(sums[x]);
            });
        }
        return;
    }
    for (int first = 0; first < count; first += kBlocksAtOnce) {
        const int some = std::min(kBlocksAtOnce, count - first);
        kColumns[static_cast<std::size_t>(down_ - 1)](
            {blocks + static_cast<std::ptrdiff_t>(first) * blockStride_, blockStride_, some,
             across_, steps_.data(), between_.data()});
        kRows[static_cast<std::size_t>(across_ - 1)](
            {between_.data(), some, down_, samples + first * across_, stride});
    }
}

}  // namespace vistrel
