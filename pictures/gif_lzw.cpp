// Decodes the compression of GIF pictures.
#include "pictures/gif_lzw.h"

namespace vistrel {

GifLzw::GifLzw(int literalBits)
    : literalBits_(literalBits), clearCode_(1 << literalBits), endCode_(clearCode_ + 1) {
    for (int literal = 0; literal < clearCode_; ++literal) {
        const auto color = static_cast<std::uint8_t>(literal);
        strings_[literal] = {0, 1, color, color};
    }
    Clear();
}

void GifLzw::Clear() {
    bits_ = literalBits_ + 1;
    nextCode_ = endCode_ + 1;
}

void GifLzw::Decode(FileBytes data,
                    const std::function<bool(std::span<const std::uint8_t>)>& take) {
    constexpr int kNone = -1;
    int previous = kNone;
    std::uint32_t buffer = 0;
    int buffered = 0;
    for (const std::uint8_t byte : data) {
        buffer |= std::uint32_t{byte} << buffered;
        buffered += 8;
        while (buffered >= bits_) {
            const int code = static_cast<int>(buffer & ((1u << bits_) - 1));
            buffer >>= bits_;
            buffered -= bits_;
            if (code == clearCode_) {
                Clear();
                previous = kNone;
                continue;
            }
            if (code == endCode_) return;
            if (previous == kNone) {
                if (!IsLiteral(code)) return;
            } else {
                // The encoder may use a code in the moment in which it is learnt: its string then
                // begins with the previous one and ends with that one's first colour number.
                if (code > nextCode_) return;
                Learn(previous, strings_[code == nextCode_ ? previous : code].first);
            }
            if (!take(Spell(code))) return;
            previous = code;
            if (nextCode_ >= 1 << bits_ && bits_ < kMostBits) ++bits_;
        }
    }
}

// Once all codes are known the encoder goes on with them until it writes a clear code.
void GifLzw::Learn(int prefix, std::uint8_t last) {
    if (nextCode_ == kMostCodes) return;
    const auto length = static_cast<std::uint16_t>(strings_[prefix].length + 1);
    strings_[nextCode_] = {static_cast<std::uint16_t>(prefix), length, strings_[prefix].first,
                           last};
    ++nextCode_;
}

std::span<const std::uint8_t> GifLzw::Spell(int code) {
    const std::size_t length = strings_[code].length;
    for (std::size_t i = length; i-- > 0; code = strings_[code].prefix) {
        spelt_[i] = strings_[code].last;
    }
    return {spelt_.data(), length};
}

}  // namespace vistrel
