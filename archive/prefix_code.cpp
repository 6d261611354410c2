#include "archive/prefix_code.h"

namespace vistrel::archive {

bool PrefixCode::Make(std::span<const std::uint8_t> lengths) {
    std::array<int, kLongest + 1> count{};
    for (const std::uint8_t length : lengths) ++count[length];

    // The codes of each length begin where those of the shorter ones end, one bit longer.
    std::array<int, kLongest + 1> place{};
    int code = 0;
    int symbols = 0;
    for (int bits = 1; bits <= kLongest; ++bits) {
        code *= 2;
        lengths_[bits] = {code + count[bits], symbols - code};
        place[bits] = symbols;
        code += count[bits];
        symbols += count[bits];
        if (code > 1 << bits) return false;
    }
    for (std::size_t symbol = 0; symbol < lengths.size(); ++symbol)
        if (lengths[symbol] != 0)
            symbols_[place[lengths[symbol]]++] = static_cast<std::uint16_t>(symbol);
    const bool isFull = code == 1 << kLongest;
    return isFull || symbols == 0 || (symbols == 1 && count[1] == 1);
}

int PrefixCode::Read(BitReader& in) const {
    int code = 0;
    for (int bits = 1; bits <= kLongest; ++bits) {
        code = code * 2 + static_cast<int>(in.Take(1));
        if (code < lengths_[bits].end) return symbols_[code + lengths_[bits].shift];
    }
    return kNoSymbol;
}

}  // namespace vistrel::archive
