// Huffman codes of JPEG files as tables that are quick to read by.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

#include "pictures/jpg/entropy/bits.h"
#include "pictures/jpg/tables.h"

namespace vistrel::jpg {

/// One code with the bits behind it, found by the next kQuickBits bits of a scan.
struct QuickEntry {
    std::int16_t value = 0;    ///< the coefficient or the difference that the code stands for
    std::uint8_t advance = 0;  ///< coefficients passed, this one included; kBlockEnd at the end
    std::uint8_t bits = 0;     ///< bits of code and value; 0 when they are not all in view
};

/// Several codes at once whose values are not needed, found by the next kSkipBits bits.
struct SkipEntry {
    std::uint8_t advance = 0;  ///< coefficients passed; kBlockEnd more when the block ends there
    std::uint8_t bits = 0;     ///< bits of all of them; 0 when not even one is in view
};

/// Added to an advance when the block ends: beyond any position that a block has.
inline constexpr int kBlockEnd = 128;

/// A Huffman code ready for reading.
class HuffmanTable {
 public:
    static constexpr int kQuickBits = 10;
    static constexpr int kSkipBits = 12;
    /// Bits that Symbol may pass: where there is no code, one more than the longest has.
    static constexpr int kMostSymbolBits = 17;
    /// Bits that one entry for skipping may pass: a 32-bit reader is sure of no more.
    static constexpr int kMostSkipped = 24;

    /// Notes which code is to be read. Nothing is built yet: a file may define codes without end
    /// that no scan reads by.
    void Define(const HuffmanCode& code, bool IsDc);

    bool isDefined() const { return isDefined_; }

    /// Builds the table if that has not been done. False when no such code exists: too many symbols
    /// or codes of a length. For a DC table no symbol may exceed 15.
    bool Build();

    /// The code and value that the next kQuickBits bits begin with.
    const QuickEntry& Quick(unsigned window) const { return quick_[window]; }

    /// The codes that the next kSkipBits bits begin with. Valid after PrepareSkipping.
    const SkipEntry& Skipping(unsigned window) const { return skipping_[window]; }

    /// Makes the table for skipping, if it is not there yet.
    void PrepareSkipping();

    /// Reads one symbol. At least kMostSymbolBits bits must be good. Bits that are no code give 0.
    int Symbol(BitReader& bits) const {
        unsigned found = short_[bits.Peek(kQuickBits)];
        if (found == 0) found = LongSymbol(bits.Peek(kLongestCode));
        bits.Skip(static_cast<int>(found >> 8));
        return static_cast<int>(found & 0xFF);
    }

 private:
    static constexpr int kLongestCode = kMostSymbolBits - 1;

    unsigned LongSymbol(unsigned window) const;
    bool FillShort();
    void FillQuick();

    std::array<std::uint8_t, 16> counts_ = {};  // as HuffmanCode has them
    std::size_t symbolsGiven_ = 0;
    bool isDc_ = false;
    bool isDefined_ = false;
    bool isBuilt_ = false;
    std::array<std::uint32_t, 17> limit_ = {};  // by length: first 16-bit window of longer codes
    std::array<std::int32_t, 17> offset_ = {};  // by length: index of a code's symbol less the code
    std::array<std::uint8_t, 256> symbols_ = {};
    std::array<std::uint16_t, 1 << kQuickBits> short_ = {};  // length << 8 | symbol, or 0
    std::array<QuickEntry, 1 << kQuickBits> quick_ = {};
    std::vector<SkipEntry> skipping_;
};

/// The number that `size` bits (1 to 16) stand for: the upper half of their range is positive, the
/// lower half negative (T.81, F.2.2.1).
inline int ExtendSign(unsigned bits, int size) {
    const int value = static_cast<int>(bits);
    return value < 1 << (size - 1) ? value - (1 << size) + 1 : value;
}

}  // namespace vistrel::jpg
