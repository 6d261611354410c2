// The inverse transform of blocks by vectors: two passes, each of which transforms columns side by
// side, the second one over the rows, which stand upright then.
#pragma once

#include <algorithm>

#include "pictures/jpg/idct/idct_1d.h"
#include "pictures/loops/loops.h"

namespace vistrel::loops {

/// weight[k][n]: what term k adds to sample n, by the very arithmetic of single numbers.
template <int N>
struct TermWeights {
    std::int16_t weight[8][8] = {};

    constexpr TermWeights() {
        for (int k = 0; k < N; ++k) {
            jpg::Wrapping in[N] = {}, out[N] = {};
            in[k] = 1;
            jpg::Idct1d<N>(in, out);
            for (int n = 0; n < N; ++n)
                weight[k][n] = static_cast<std::int16_t>(static_cast<std::int32_t>(out[n]));
        }
    }
};

template <int N>
inline constexpr TermWeights<N> kTermWeights;

/// Rows of eight numbers, each in as many vectors as it takes. What a shape lacks is not used, or
/// 0.
template <class Vector>
struct Block {
    static constexpr int kParts = 8 / Vector::kCount;
    Vector rows[8][kParts];
};

/// Two terms of each column of a vector, side by side.
template <class Vector>
struct TermPairs {
    Vector low, high;

    TermPairs(Vector first, Vector second)
        : low(first.LowWith(second)), high(first.HighWith(second)) {}
};

/// 32-bit sums of the columns of a vector.
template <class Vector>
struct ColumnSums {
    Vector low, high;

    ColumnSums operator+(const ColumnSums& other) const {
        return {low.AddWide(other.low), high.AddWide(other.high)};
    }
    ColumnSums operator-(const ColumnSums& other) const {
        return {low.SubtractWide(other.low), high.SubtractWide(other.high)};
    }
    /// Without the lowest bits, rounded; what does not fit becomes the nearest that does.
    Vector Descaled(int bits) const {
        const Vector half = Vector::AllWide(1 << (bits - 1));
        return low.AddWide(half).DownWide(bits).PackedWith(high.AddWide(half).DownWide(bits));
    }
};

/// What terms a and b of N add to sample n.
template <int N, int a, int b, int n, class Vector>
ColumnSums<Vector> Weighed(const TermPairs<Vector>& terms) {
    constexpr int kOne = kTermWeights<N>.weight[a][n], kTwo = kTermWeights<N>.weight[b][n];
    const Vector weights = Vector::AllWide((kOne & 0xFFFF) | kTwo * 65536);
    return {terms.low.TimesSummed(weights), terms.high.TimesSummed(weights)};
}

/// Samples n and N - 1 - n of columns, to which even terms add the same and odd ones the opposite.
template <int N, int kBits, int n, class Vector>
void MakePair(const TermPairs<Vector> (&pairs)[4], int part, Block<Vector>& out) {
    if constexpr (2 * n < N) {
        ColumnSums<Vector> even = Weighed<N, 0, 2, n>(pairs[0]);
        if constexpr (N > 4) even = even + Weighed<N, 4, 6, n>(pairs[1]);
        ColumnSums<Vector> odd = Weighed<N, 1, 3, n>(pairs[2]);
        if constexpr (N > 5) odd = odd + Weighed<N, 5, 7, n>(pairs[3]);
        out.rows[n][part] = (even + odd).Descaled(kBits);
        out.rows[N - 1 - n][part] = (even - odd).Descaled(kBits);
    }
}

/// Transforms the first `kColumns` columns, of N terms; results lose kBits of those behind the
/// point.
template <int N, int kColumns, int kBits, class Vector>
void Columns(const Block<Vector>& in, Block<Vector>& out) {
    for (int part = 0; part * Vector::kCount < kColumns; ++part) {
        const auto row = [&](int y) { return in.rows[y][part]; };
        const TermPairs<Vector> pairs[4] = {
            {row(0), row(2)}, {row(4), row(6)}, {row(1), row(3)}, {row(5), row(7)}};
        MakePair<N, kBits, 0>(pairs, part, out);
        MakePair<N, kBits, 1>(pairs, part, out);
        MakePair<N, kBits, 2>(pairs, part, out);
        MakePair<N, kBits, 3>(pairs, part, out);
    }
}

/// True when all numbers of some rows lie within -most..most.
template <int kAcross, int kDown, class Vector>
bool IsWithin(const Block<Vector>& block, int most) {
    const Vector above = Vector::All(most);
    const Vector below = Vector::All(-most);
    Vector outside = Vector::All(0);
    for (int y = 0; y < kDown; ++y) {
        for (int part = 0; part * Vector::kCount < kAcross; ++part) {
            const Vector here = block.rows[y][part];
            outside = outside | here.Above(above) | below.Above(here);
        }
    }
    return outside.IsZero();
}

/// True when a block has nothing but its constant term.
template <int kAcross, int kDown, class Vector>
bool IsConstant(const Block<Vector>& block) {
    Vector others = block.rows[0][0].WithoutFirst();
    for (int y = 0; y < kDown; ++y) {
        for (int part = 0; part * Vector::kCount < kAcross; ++part) {
            if (y + part > 0) others = others | block.rows[y][part];
        }
    }
    return others.IsZero();
}

/// A row of kCount numbers. Behind them stand more, unless `isLast`.
template <int kCount, class Vector>
void LoadRow(const std::int16_t* numbers, bool isLast, Vector* parts) {
    if constexpr (kCount == 8) {
        for (int i = 0; i < 8; i += Vector::kCount) *parts++ = Vector::Load(numbers + i);
    } else if constexpr (kCount == 3) {
        parts[0] = isLast ? Vector::LoadPoint(numbers - 1).WithoutFirst()
                          : Vector::LoadPoint(numbers).WithoutFourth();
    } else {
        parts[0] = Vector::LoadPoint(numbers);
        if constexpr (kCount == 5) Vector::SetFifth(parts, numbers[4]);
    }
}

template <int kCount, class Vector>
void StoreRow(const Vector* parts, std::int16_t* numbers) {
    if constexpr (kCount == 8) {
        for (int i = 0; i < 8; i += Vector::kCount) (parts++)->Store(numbers + i);
    } else if constexpr (kCount == 3) {
        std::int16_t four[4];
        parts[0].StorePoint(four);
        numbers[0] = four[0];
        numbers[1] = four[1];
        numbers[2] = four[2];
    } else {
        parts[0].StorePoint(numbers);
        if constexpr (kCount == 5) numbers[4] = Vector::Fifth(parts);
    }
}

/// Clears the rows from one to another.
template <int kFrom, int kTo, int kAcross, class Vector>
void Clear(Block<Vector>& block) {
    for (int y = kFrom; y < kTo; ++y) {
        for (int part = 0; part * Vector::kCount < kAcross; ++part)
            block.rows[y][part] = Vector::All(0);
    }
}

/// Transforms a block to samples from the middle of their range with kFraction bits behind the
/// point; what does not fit becomes the nearest that does. False when not done.
template <int kAcross, int kDown, int kFraction, class Vector>
bool TransformBlock(const std::int16_t* steps, int most, const std::int16_t* block,
                    Block<Vector>& samples) {
    constexpr int kRowBits = jpg::kSumBits - kFraction;
    constexpr int kMost16 = 32767;
    Block<Vector> terms;
    // Terms that there are none of weigh nothing, but are added up.
    Clear<kDown, kDown <= 4 ? 4 : 8, kAcross>(terms);
    for (int y = 0; y < kDown; ++y)
        LoadRow<kAcross>(block + y * kAcross, y == kDown - 1, terms.rows[y]);
    if (!IsWithin<kAcross, kDown>(terms, most)) return false;
    if (IsConstant<kAcross, kDown>(terms)) {
        const int sum = block[0] * steps[0] * (1 << (jpg::kTermBits + jpg::kColumnBits));
        const Vector all = Vector::AllWide(jpg::Descale(static_cast<jpg::Wrapping>(sum), kRowBits));
        for (auto& row : samples.rows) {
            for (Vector& part : row) part = all.PackedWith(all);
        }
        return true;
    }
    for (int y = 0; y < kDown; ++y) {  // dequantize
        Vector step[Block<Vector>::kParts];
        LoadRow<kAcross>(steps + y * kAcross, y == kDown - 1, step);
        for (int part = 0; part * Vector::kCount < kAcross; ++part)
            terms.rows[y][part] = terms.rows[y][part].Times(step[part]);
    }
    // Vectors of columns take whole vectors of rows.
    constexpr int kDownTaken = (kDown + Vector::kCount - 1) / Vector::kCount * Vector::kCount;
    constexpr int kAcrossTaken = (kAcross + Vector::kCount - 1) / Vector::kCount * Vector::kCount;
    Block<Vector> between;
    Clear<kDown, kDownTaken, kAcross>(between);
    Columns<kDown, kAcross, jpg::kTermBits - jpg::kColumnBits>(terms, between);
    // Those at the very limit may have been beyond it.
    if (!IsWithin<kAcross, kDown>(between, kMost16 - 1)) return false;
    Vector::template Transpose<kAcross, kDown>(between, terms);
    Columns<kAcross, kDown, kRowBits>(terms, between);
    Clear<std::max(kAcross, kDownTaken), kAcrossTaken, kDown>(between);
    Vector::template Transpose<kDown, kAcross>(between, samples);
    return true;
}

template <int kAcross, int kDown, class Vector>
int TransformBlocks(const IdctJob& job) {
    constexpr int kMost = (128 << kSampleBits) - 1;
    const std::int16_t* block = job.blocks;
    std::int16_t* samples = job.samples;
    for (int i = 0; i < job.count; ++i, block += job.blockStride, samples += kAcross) {
        Block<Vector> made;
        if (!TransformBlock<kAcross, kDown, kSampleBits>(job.steps, job.most, block, made)) {
            Vector::End();
            return i;
        }
        for (int y = 0; y < kDown; ++y) {
            for (int part = 0; part * Vector::kCount < kAcross; ++part)
                made.rows[y][part] = made.rows[y][part].template Clamped<kMost>();
            StoreRow<kAcross>(made.rows[y], samples + y * job.stride);
        }
    }
    Vector::End();
    return job.count;
}

template <class Vector>
int TransformByVectors(const IdctJob& job) {
    // Of fewer columns or rows, vectors would be half empty.
    switch (job.across * 10 + job.down) {
        case 34:
            return TransformBlocks<3, 4, Vector>(job);
        case 35:
            return TransformBlocks<3, 5, Vector>(job);
        case 44:
            return TransformBlocks<4, 4, Vector>(job);
        case 45:
            return TransformBlocks<4, 5, Vector>(job);
        case 48:
            return TransformBlocks<4, 8, Vector>(job);
        case 54:
            return TransformBlocks<5, 4, Vector>(job);
        case 55:
            return TransformBlocks<5, 5, Vector>(job);
        case 58:
            return TransformBlocks<5, 8, Vector>(job);
        case 84:
            return TransformBlocks<8, 4, Vector>(job);
        case 85:
            return TransformBlocks<8, 5, Vector>(job);
        case 88:
            return TransformBlocks<8, 8, Vector>(job);
        default:
            return 0;
    }
}

template <class Vector>
bool TransformToBytes(const std::int16_t* steps, int most, const std::int16_t* block,
                      std::uint8_t* samples, std::ptrdiff_t stride) {
    Block<Vector> made;
    const bool isDone = TransformBlock<8, 8, 0>(steps, most, block, made);
    for (int y = 0; isDone && y < 8; ++y) {
        for (int part = 0; part < Block<Vector>::kParts; ++part) {
            const Vector moved = made.rows[y][part].AddSaturated(Vector::All(128));
            moved.StoreAsBytes(samples + y * stride + part * Vector::kCount);
        }
    }
    Vector::End();
    return isDone;
}

}  // namespace vistrel::loops
