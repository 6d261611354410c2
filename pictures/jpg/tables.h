// Tables that the JPEG standard fixes: the zigzag order and the usual Huffman codes.
#pragma once

#include <array>
#include <cstdint>
#include <span>

namespace vistrel::jpg {

/// Coefficients in a block of 8 x 8.
inline constexpr int kBlockSize = 64;

/// Where the k-th coefficient of a file's order lies in a block: row * 8 + column, the row being
/// the vertical frequency (ITU-T T.81, figure 5).
inline constexpr std::array<std::uint8_t, kBlockSize> kZigzag = {
    0,  1,  8,  16, 9,  2,  3,  10, 17, 24, 32, 25, 18, 11, 4,  5,   //
    12, 19, 26, 33, 40, 48, 41, 34, 27, 20, 13, 6,  7,  14, 21, 28,  //
    35, 42, 49, 56, 57, 50, 43, 36, 29, 22, 15, 23, 30, 37, 44, 51,  //
    58, 59, 52, 45, 38, 31, 39, 46, 53, 60, 61, 54, 47, 55, 62, 63};

/// A Huffman code as files describe it: how many codes have each length from 1 to 16 bits, and the
/// symbols from the shortest code on.
struct HuffmanCode {
    std::span<const std::uint8_t> counts;
    std::span<const std::uint8_t> symbols;
};

/// The codes of T.81, annex K.3. Single frames of a video leave their tables out and mean these.
/// `chroma` chooses those for the colour differences.
HuffmanCode UsualDcCode(bool chroma);
HuffmanCode UsualAcCode(bool chroma);

}  // namespace vistrel::jpg
