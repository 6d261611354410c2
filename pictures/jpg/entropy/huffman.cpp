// Builds the reading tables of a Huffman code.
#include "pictures/jpg/entropy/huffman.h"

#include <algorithm>
#include <numeric>

namespace vistrel::jpg {
namespace {

constexpr int kRunOfSixteen = 0xF0;

}  // namespace

void HuffmanTable::Define(const HuffmanCode& code, bool IsDc) {
    std::copy_n(code.counts.data(), counts_.size(), counts_.data());
    symbolsGiven_ = std::min(code.symbols.size(), symbols_.size());
    std::copy_n(code.symbols.data(), symbolsGiven_, symbols_.data());
    isDc_ = IsDc;
    isDefined_ = true;
    isBuilt_ = false;
}

bool HuffmanTable::Build() {
    if (isBuilt_) return true;
    skipping_.clear();
    isBuilt_ = isDefined_ && FillShort();
    if (isBuilt_) FillQuick();
    return isBuilt_;
}

// False when there is no such code.
bool HuffmanTable::FillShort() {
    const int total = std::accumulate(counts_.begin(), counts_.end(), 0);
    if (static_cast<std::size_t>(total) > symbolsGiven_) return false;
    const auto symbols = std::span(symbols_).first(static_cast<std::size_t>(total));
    if (isDc_ && std::any_of(symbols.begin(), symbols.end(), [](int s) { return s > 15; })) {
        return false;
    }
    short_.fill(0);
    std::uint32_t next = 0;  // the next code of the length
    int index = 0;
    for (int length = 1; length <= kLongestCode; ++length) {
        const int count = counts_[static_cast<std::size_t>(length - 1)];
        offset_[static_cast<std::size_t>(length)] = index - static_cast<int>(next);
        for (int i = 0; i < count && length <= kQuickBits; ++i) {
            const int symbol = symbols_[static_cast<std::size_t>(index + i)];
            const std::uint32_t first = (next + static_cast<std::uint32_t>(i))
                                        << (kQuickBits - length);
            if (first >= short_.size()) return false;
            std::fill_n(short_.begin() + first, 1 << (kQuickBits - length),
                        static_cast<std::uint16_t>(length << 8 | symbol));
        }
        next += static_cast<std::uint32_t>(count);
        index += count;
        if (next > 1u << length) return false;
        limit_[static_cast<std::size_t>(length)] = next << (kLongestCode - length);
        next <<= 1;
    }
    return true;
}

void HuffmanTable::FillQuick() {
    for (unsigned window = 0; window < quick_.size(); ++window) {
        QuickEntry& entry = quick_[window];
        entry = {};
        const int length = short_[window] >> 8;
        if (length == 0) continue;
        const int run = isDc_ ? 0 : (short_[window] & 0xFF) >> 4;
        const int size = short_[window] & 0x0F;
        if (length + size > kQuickBits) continue;
        entry.bits = static_cast<std::uint8_t>(length + size);
        if (size > 0) {
            const unsigned value = window >> (kQuickBits - length - size) & ((1u << size) - 1);
            entry.value = static_cast<std::int16_t>(ExtendSign(value, size));
        }
        const bool ends = !isDc_ && size == 0 && run != 15;
        entry.advance = static_cast<std::uint8_t>(ends ? kBlockEnd : run + 1);
    }
}

void HuffmanTable::PrepareSkipping() {
    if (!skipping_.empty()) return;
    skipping_.resize(1 << kSkipBits);
    for (unsigned window = 0; window < skipping_.size(); ++window) {
        int used = 0, advance = 0;
        while (used < kSkipBits && advance < kBlockEnd) {
            // The bits left in view, with zeros after them: a code counts only if it ends before.
            const unsigned rest = window << used & ((1u << kSkipBits) - 1);
            const std::uint16_t found = short_[rest >> (kSkipBits - kQuickBits)];
            const int length = found >> 8, symbol = found & 0xFF;
            if (length == 0 || used + length > kSkipBits) break;
            const int bits = length + (symbol & 0x0F);
            if (used + bits > kMostSkipped) break;
            const bool ends = (symbol & 0x0F) == 0 && symbol != kRunOfSixteen;
            const int passed = ends ? kBlockEnd : (symbol >> 4) + 1;
            if (!ends && advance + passed >= kBlockSize) break;
            advance += passed;
            used += bits;
        }
        skipping_[window] = {static_cast<std::uint8_t>(advance), static_cast<std::uint8_t>(used)};
    }
}

// The length << 8 | symbol of a code longer than kQuickBits at the beginning of 16 bits.
unsigned HuffmanTable::LongSymbol(unsigned window) const {
    for (int length = kQuickBits + 1; length <= kLongestCode; ++length) {
        if (window >= limit_[static_cast<std::size_t>(length)]) continue;
        const int index = static_cast<int>(window >> (kLongestCode - length)) +
                          offset_[static_cast<std::size_t>(length)];
        return static_cast<unsigned>(length) << 8 | symbols_[static_cast<std::size_t>(index & 255)];
    }
    return kMostSymbolBits << 8;
}

}  // namespace vistrel::jpg
