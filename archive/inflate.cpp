#include "archive/inflate.h"

#include <algorithm>
#include <vector>

#include "archive/prefix_code.h"

namespace vistrel::archive {
namespace {

/// How far back a copy may reach.
constexpr std::size_t kReach = 32768;

constexpr int kEndOfBlock = 256;
constexpr int kLengthCodes = 29;
constexpr int kDistanceCodes = 30;

/// A length or distance of copies: the least that its symbol stands for, and how many more bits
/// follow.
struct Range {
    std::uint16_t least;
    std::uint8_t bits;
};

/// The ranges follow each other; after the first ones every second or fourth has a bit more.
template <int count>
constexpr std::array<Range, count> MakeRanges(int least, int withOneMoreBit) {
    std::array<Range, count> ranges{};
    for (int i = 0; i < count; ++i) {
        const int bits = i < 2 * withOneMoreBit ? 0 : i / withOneMoreBit - 1;
        ranges[i] = {static_cast<std::uint16_t>(least), static_cast<std::uint8_t>(bits)};
        least += 1 << bits;
    }
    return ranges;
}

constexpr std::array<Range, kLengthCodes> MakeLengths() {
    auto lengths = MakeRanges<kLengthCodes>(3, 4);
    lengths[kLengthCodes - 1] = {258, 0};  // the longest has a symbol of its own
    return lengths;
}

constexpr auto kLengths = MakeLengths();
constexpr auto kDistances = MakeRanges<kDistanceCodes>(1, 2);

class Inflater {
 public:
    Inflater(const BitReader& in, const Sink& sink) : in_(in), sink_(sink), recent_(kReach) {}

    ArchiveFault Run() {
        bool isLast = false;
        while (!isLast) {
            isLast = in_.Take(1) != 0;
            const bool read = ReadBlock(in_.Take(2));
            if (stopped_) return ArchiveFault::Stopped;
            if (!read || in_.IsBeyondEnd()) return ArchiveFault::Damaged;
        }
        return HandOver() ? ArchiveFault::None : ArchiveFault::Stopped;
    }

 private:
    bool ReadBlock(std::uint32_t kind) {
        if (kind == 0) return CopyStored();
        if (kind == 1) return MakeFixedCodes() && ReadSymbols();
        return kind == 2 && ReadCodes() && ReadSymbols();
    }

    bool CopyStored() {
        in_.SkipToByte();
        const std::uint32_t length = in_.Take(16);
        if ((in_.Take(16) ^ length) != 0xFFFF) return false;
        for (std::uint32_t i = 0; i < length; ++i)
            if (in_.IsBeyondEnd() || !Put(static_cast<std::uint8_t>(in_.Take(8)))) return false;
        return true;
    }

    bool MakeFixedCodes() {
        std::array<std::uint8_t, PrefixCode::kMostSymbols> lengths;
        std::fill(lengths.begin(), lengths.end(), std::uint8_t{8});
        std::fill(lengths.begin() + 144, lengths.begin() + 256, std::uint8_t{9});
        std::fill(lengths.begin() + 256, lengths.begin() + 280, std::uint8_t{7});
        const std::array<std::uint8_t, 32> five = [] {
            std::array<std::uint8_t, 32> all;
            all.fill(5);
            return all;
        }();
        return symbols_.Make(lengths) && distances_.Make(five);
    }

    /// The lengths of both codes, which are packed with a code of their own.
    bool ReadCodes() {
        const std::size_t symbols = in_.Take(5) + 257;
        const std::size_t distances = in_.Take(5) + 1;
        const std::size_t given = in_.Take(4) + 4;
        if (symbols > 286 || distances > kDistanceCodes) return false;

        constexpr std::array<std::uint8_t, 19> kOrder = {16, 17, 18, 0, 8,  7, 9,  6, 10, 5,
                                                         11, 4,  12, 3, 13, 2, 14, 1, 15};
        std::array<std::uint8_t, kOrder.size()> own{};
        for (std::size_t i = 0; i < given; ++i)
            own[kOrder[i]] = static_cast<std::uint8_t>(in_.Take(3));
        PrefixCode code;
        if (!code.Make(own)) return false;

        std::array<std::uint8_t, 286 + kDistanceCodes> lengths{};
        if (!ReadLengths(code, std::span(lengths).first(symbols + distances))) return false;
        if (lengths[kEndOfBlock] == 0) return false;
        return symbols_.Make(std::span(lengths).first(symbols)) &&
               distances_.Make(std::span(lengths).subspan(symbols, distances));
    }

    bool ReadLengths(const PrefixCode& code, std::span<std::uint8_t> lengths) {
        std::size_t at = 0;
        while (at < lengths.size()) {
            const int symbol = code.Read(in_);
            if (symbol < 0 || in_.IsBeyondEnd()) return false;
            std::uint8_t value = 0;
            std::size_t times = 1;
            if (symbol < 16) value = static_cast<std::uint8_t>(symbol);
            if (symbol == 16) {
                if (at == 0) return false;
                value = lengths[at - 1];
                times = 3 + in_.Take(2);
            }
            if (symbol == 17) times = 3 + in_.Take(3);
            if (symbol == 18) times = 11 + in_.Take(7);
            if (times > lengths.size() - at) return false;
            std::fill_n(lengths.begin() + static_cast<std::ptrdiff_t>(at), times, value);
            at += times;
        }
        return true;
    }

    bool ReadSymbols() {
        for (;;) {
            const int symbol = symbols_.Read(in_);
            // What lies behind the end must not go on for ever.
            if (symbol < 0 || in_.IsBeyondEnd()) return false;
            if (symbol == kEndOfBlock) return true;
            const bool done =
                symbol < kEndOfBlock ? Put(static_cast<std::uint8_t>(symbol)) : Copy(symbol - 257);
            if (!done) return false;
        }
    }

    bool Copy(int lengthCode) {
        if (lengthCode >= kLengthCodes) return false;
        const std::size_t length = Take(kLengths[lengthCode]);
        const int distanceCode = distances_.Read(in_);
        if (distanceCode < 0 || distanceCode >= kDistanceCodes) return false;
        const std::size_t distance = Take(kDistances[distanceCode]);
        if (!hasWrapped_ && distance > at_) return false;
        for (std::size_t i = 0; i < length; ++i)
            if (!Put(recent_[(at_ + kReach - distance) % kReach])) return false;
        return true;
    }

    std::size_t Take(const Range& range) { return range.least + in_.Take(range.bits); }

    bool Put(std::uint8_t byte) {
        recent_[at_++] = byte;
        if (at_ < kReach) return true;
        if (!HandOver()) return false;
        at_ = 0;
        hasWrapped_ = true;
        return true;
    }

    /// What recent_ holds and the sink has not had yet.
    bool HandOver() {
        stopped_ = at_ > 0 && !sink_(std::span(recent_).first(at_));
        return !stopped_;
    }

    BitReader in_;
    const Sink& sink_;
    PrefixCode symbols_;
    PrefixCode distances_;
    std::vector<std::uint8_t> recent_;
    std::size_t at_ = 0;
    bool hasWrapped_ = false;
    bool stopped_ = false;
};

}  // namespace

ArchiveFault Inflate(const pictures::PictureFile& file, std::size_t begin, std::size_t end,
                     const Sink& sink) {
    return Inflater(BitReader(file, begin, end), sink).Run();
}

}  // namespace vistrel::archive
