// A prefix code of "deflate": which bits stand for which symbol.
#pragma once

#include <array>
#include <cstdint>
#include <span>

#include "archive/bits.h"

namespace vistrel::archive {

class PrefixCode {
 public:
    static constexpr int kLongest = 15;
    static constexpr int kMostSymbols = 288;
    static constexpr int kNoSymbol = -1;

    /// The code in which symbol i has lengths[i] bits, none when that is 0. False when there is no
    /// such code, or one that leaves bits without a meaning; a code for a single symbol may.
    bool Make(std::span<const std::uint8_t> lengths);

    /// The next symbol, or kNoSymbol for bits that stand for none.
    int Read(BitReader& in) const;

 private:
    /// Codes of one length follow each other: those below `end` are of this length, and the symbol
    /// of one stands at its number plus `shift`.
    struct Length {
        int end = 0;
        int shift = 0;
    };
    std::array<Length, kLongest + 1> lengths_{};
    std::array<std::uint16_t, kMostSymbols> symbols_{};
};

}  // namespace vistrel::archive
