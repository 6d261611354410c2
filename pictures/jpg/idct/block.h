// The two-dimensional IDCT of a whole 8 x 8 block, quick where most of its coefficients are zero.
#pragma once

#include <cstring>

#include "pictures/jpg/idct/idct_1d.h"
#include "pictures/jpg/tables.h"

namespace vistrel::jpg {

namespace idct_block {

/// The IDCT of a block that is zero but for the first kTerms of both ways.
template <int kTerms, class PutRow>
void Idct(const std::int16_t* block, const std::int32_t* steps, PutRow putRow) {
    Wrapping between[kBlockSize];
    Wrapping in[8] = {}, out[8];
    for (int column = 0; column < kTerms; ++column) {
        Wrapping others = 0;
        for (int k = 0; k < kTerms; ++k) {
            const int at = k * 8 + column;
            in[k] = Dequantize(block[at], steps[at]);
            if (k > 0) others |= in[k];
        }
        if (others == 0) {
            for (int k = 0; k < 8; ++k) between[k * 8 + column] = in[0] << kColumnBits;
            continue;
        }
        for (int k = kTerms; k < 8; ++k) in[k] = 0;
        Idct1d<8>(in, out);
        for (int k = 0; k < 8; ++k) {
            between[k * 8 + column] =
                static_cast<Wrapping>(Descale(out[k], kTermBits - kColumnBits));
        }
    }
    for (int row = 0; row < 8; ++row) {
        for (int k = 0; k < kTerms; ++k) in[k] = between[row * 8 + k];
        for (int k = kTerms; k < 8; ++k) in[k] = 0;
        Idct1d<8>(in, out);
        putRow(row, out);
    }
}

/// Four neighbours as one number that is 0 when they all are.
inline std::uint64_t Four(const std::int16_t* numbers) {
    std::uint64_t four;
    std::memcpy(&four, numbers, sizeof four);
    return four;
}

/// The same for two.
inline std::uint32_t Two(const std::int16_t* numbers) {
    std::uint32_t two;
    std::memcpy(&two, numbers, sizeof two);
    return two;
}

}  // namespace idct_block

/// Dequantizes and transforms a block whose coefficients and quantisation steps lie in the order of
/// its rows. Calls putRow(row, sums) for each of the eight rows: eight samples, from the middle of
/// their range, with kSumBits bits behind the point.
template <class PutRow>
void IdctBlock(const std::int16_t* block, const std::int32_t* steps, PutRow putRow) {
    using namespace idct_block;
    std::uint64_t beyondFour = 0;
    for (int row = 0; row < 4; ++row) beyondFour |= Four(block + row * 8 + 4);
    for (int row = 4; row < 8; ++row)
        beyondFour |= Four(block + row * 8) | Four(block + row * 8 + 4);
    if (beyondFour != 0) return Idct<8>(block, steps, putRow);
    if ((Two(block + 2) | Two(block + 10) | Four(block + 16) | Four(block + 24)) != 0) {
        return Idct<4>(block, steps, putRow);
    }
    if ((block[1] | Two(block + 8)) != 0) return Idct<2>(block, steps, putRow);
    Wrapping same[8];
    for (Wrapping& sum : same) {
        sum = Dequantize(block[0], steps[0]) << (kTermBits + kColumnBits);
    }
    for (int row = 0; row < 8; ++row) putRow(row, same);
}

}  // namespace vistrel::jpg
