// Hands the bits of a JPEG scan to its decoders: the file's escape bytes taken out beforehand, so
// that the inner loops see plain bits.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "pictures/picture_file.h"

namespace vistrel::jpg {

/// As many bits as the machine holds in one register.
using BitWord = std::size_t;
inline constexpr int kWordBits = static_cast<int>(sizeof(BitWord)) * 8;

/// The most bytes that one block of coefficients can take, and the reading ahead of a BitReader.
/// 64 coefficients of at most 16 + 15 bits each, and for a progressive scan a run length besides.
inline constexpr int kBlockBytes = 256 + 2 * static_cast<int>(sizeof(BitWord));

/// The bytes at `from` as one word, the first one highest.
inline BitWord LoadWord(const std::uint8_t* from) {
    const auto load32 = [](const std::uint8_t* at) {
        return static_cast<std::uint32_t>(at[0]) << 24 | static_cast<std::uint32_t>(at[1]) << 16 |
               static_cast<std::uint32_t>(at[2]) << 8 | at[3];
    };
    if constexpr (sizeof(BitWord) == 8) {
        return static_cast<BitWord>(static_cast<std::uint64_t>(load32(from)) << 32 |
                                    load32(from + 4));
    } else {
        return load32(from);
    }
}

/// The bits at hand, from the top of a word. Small enough to live in registers: decoders copy it to
/// a local variable and back.
struct BitReader {
    BitWord word = 0;                    ///< the next bits, from the highest on
    int count = 0;                       ///< how many of them are good
    const std::uint8_t* next = nullptr;  ///< the bytes that come after them

    /// Makes at least 25 bits good (57 where words have 64). Reads one word of bytes.
    void Refill() {
        word |= LoadWord(next) >> count;
        const int more = (kWordBits - 1 - count) >> 3;
        next += more;
        count += more * 8;
    }

    /// Makes at least `bits` bits good (1 to 25).
    void Ensure(int bits) {
        if (count < bits) Refill();
    }

    /// The next `bits` bits (1 to 16), which stay.
    unsigned Peek(int bits) const { return static_cast<unsigned>(word >> (kWordBits - bits)); }

    /// Drops up to 24 bits.
    void Skip(int bits) {
        word <<= bits;
        count -= bits;
    }

    /// The next `bits` bits (1 to 16), taken.
    unsigned Take(int bits) {
        const unsigned value = Peek(bits);
        Skip(bits);
        return value;
    }
};

/// The bytes of one scan without their escapes, a few thousand at a time, up to the next marker.
/// After the last one come zeros without end, so that a damaged file never runs out of bits.
class ScanBytes {
 public:
    /// `start` is where the scan's coded data begin in `file`.
    ScanBytes(const pictures::PictureFile& file, std::size_t start);
    ScanBytes(const ScanBytes&) = delete;
    ScanBytes& operator=(const ScanBytes&) = delete;

    /// A reader of the first bits since the start or since the last restart marker.
    BitReader Reader() const;

    /// True when the reader may run past the bytes at hand within the next block.
    bool NeedsMore(const BitReader& bits) const { return bits.next > refillFrom_; }

    /// Brings further bytes and gives the reader that goes on where `bits` was.
    BitReader More(BitReader bits);

    /// True when more bits have been taken than the scan has before its next marker.
    bool IsOverrun(const BitReader& bits) const {
        return atMarker_ && (bits.next - buffer_.data()) * 8 - bits.count > dataEnd_ * 8;
    }

    /// Goes on behind the next restart marker, which should be number `expected` (0 to 7). When
    /// that one is missing but a later one is there, the data of the interval are lost: IsOverrun
    /// is then true of any reader that takes a bit, until the next Restart.
    void Restart(int expected);

    /// Where the file's next marker lies, or its end, whichever comes first.
    std::size_t FindEnd();

 private:
    void Fill();
    void TakeEscape(std::ptrdiff_t& at);

    static constexpr int kWindow = 8192;

    pictures::FileWindow file_;
    std::size_t filePosition_;    // the first byte of the file that is not in the buffer yet
    bool atMarker_ = false;       // the buffer holds the last bytes before a marker
    std::ptrdiff_t dataEnd_ = 0;  // where the buffer's true bytes end; below 0 when long read
    const std::uint8_t* refillFrom_ = nullptr;
    std::array<std::uint8_t, kWindow + kBlockBytes> buffer_;
};

/// Where the file goes on behind a scan whose data begin at `start`: behind as many of its restart
/// markers as are there of `restarts`.
std::size_t FindEndOfScan(pictures::FileWindow& file, std::size_t start, std::int64_t restarts);

/// The position of the next marker's 0xFF at or after `from` that is neither an escaped data byte
/// nor a filler; file.size() when there is none.
std::size_t FindMarker(pictures::FileWindow& file, std::size_t from);

}  // namespace vistrel::jpg
