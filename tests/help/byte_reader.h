// Reads the numbers and texts of a help file and never past its end.
#pragma once

#include <cstdint>
#include <stdexcept>
#include <string>
#include <string_view>

namespace vistrel::help_test {

/// What a help file does that it must not do.
class BadHelpFile : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

inline void Demand(bool holds, const std::string& rule) {
    if (!holds) throw BadHelpFile(rule);
}

class ByteReader {
 public:
    explicit ByteReader(std::string_view bytes) : rest_(bytes) {}

    std::size_t Left() const { return rest_.size(); }

    std::string_view Take(std::size_t count) {
        Demand(count <= rest_.size(), "a structure is cut short");
        const std::string_view taken = rest_.substr(0, count);
        rest_.remove_prefix(count);
        return taken;
    }

    std::uint8_t U8() { return static_cast<std::uint8_t>(Take(1)[0]); }
    std::uint16_t U16() {
        const unsigned low = U8();
        return static_cast<std::uint16_t>(low | U8() << 8);
    }
    std::uint32_t U32() {
        const std::uint32_t low = U16();
        return low | static_cast<std::uint32_t>(U16()) << 16;
    }
    std::int16_t S16() { return static_cast<std::int16_t>(U16()); }

    std::string Text() {
        const std::size_t end = rest_.find('\0');
        Demand(end != std::string_view::npos, "a text has no end");
        const std::string text(Take(end));
        Take(1);
        return text;
    }

    /// A text in a field of fixed width, filled up with zero bytes.
    std::string Fixed(std::size_t width) {
        const std::string_view field = Take(width);
        const std::string_view text = field.substr(0, field.find('\0'));
        Demand(field.find_first_not_of('\0', text.size()) == std::string_view::npos,
               "a field is not filled with zero bytes");
        return std::string(text);
    }

    // Compressed numbers: bit 0 of the first byte tells whether the longer form follows.
    bool NextIsLong() const {
        Demand(!rest_.empty(), "a number is cut short");
        return (rest_[0] & 1) != 0;
    }
    std::uint32_t Short() { return NextIsLong() ? U16() >> 1 : U8() >> 1; }
    std::int32_t SignedShort() { return NextIsLong() ? (U16() >> 1) - 0x4000 : (U8() >> 1) - 0x40; }
    std::uint32_t Long() { return NextIsLong() ? U32() >> 1 : U16() >> 1; }
    std::int32_t SignedLong() {
        return NextIsLong() ? static_cast<std::int32_t>(U32() >> 1) - 0x40000000
                            : (U16() >> 1) - 0x4000;
    }

 private:
    std::string_view rest_;
};

}  // namespace vistrel::help_test
