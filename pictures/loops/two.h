// Two 16-bit numbers in one machine word: all that a processor without vectors has.
#pragma once

#include <cstdint>
#include <cstring>

namespace vistrel::loops::singles {

/// Arithmetic is that of the whole word. It is right for both numbers as long as those of the
/// result lie within 0..65,535, whatever those of sums and differences on the way would be.
struct Two {
    static constexpr int kCount = 2;
    std::uint32_t word;

    static Two Load(const void* at) {
        Two two;
        std::memcpy(&two.word, at, sizeof two.word);
        return two;
    }
    void Store(void* at) const { std::memcpy(at, &word, sizeof word); }
    Two operator+(Two other) const { return {word + other.word}; }
    Two operator-(Two other) const { return {word - other.word}; }
    /// Both numbers without their lowest bits.
    template <int kBits>
    Two DownUnsigned() const {
        constexpr std::uint32_t kEach = 0xFFFFu >> kBits;
        return {word >> kBits & (kEach << 16 | kEach)};
    }

    static void End() {}

    class Eighths;
};

/// Multiplies errors as they stand in error rows by some eighths.
class Two::Eighths {
 public:
    explicit Eighths(int count) : count_(static_cast<std::uint32_t>(count)) {}

    Two Of(Two errors) const {
        return {(errors.word & 0xFFFF) * count_ / 8 | (errors.word >> 16) * count_ / 8 << 16};
    }

 private:
    std::uint32_t count_;
};

}  // namespace vistrel::loops::singles
