// The compression of GIF pictures.
#pragma once

#include <array>
#include <functional>

#include "pictures/rgb_picture.h"

namespace vistrel {

/// Decodes the LZW data of one GIF picture: codes of a growing number of bits, lowest bits first,
/// each standing for a string of colour numbers that the decoder learns as it goes.
class GifLzw {
 public:
    /// `literalBits` is the number of bits of a colour number, 1 to 8.
    explicit GifLzw(int literalBits);

    /// Decodes `data` and hands each string to `take` until that returns false, the end code
    /// comes, the data end or a code comes that no encoder could have written.
    void Decode(FileBytes data, const std::function<bool(std::span<const std::uint8_t>)>& take);

 private:
    static constexpr int kMostCodes = 4096;
    static constexpr int kMostBits = 12;

    // A string is the string of another code and one more colour number.
    struct String {
        std::uint16_t prefix = 0;
        std::uint16_t length = 0;
        std::uint8_t first = 0;
        std::uint8_t last = 0;
    };

    void Clear();
    bool IsLiteral(int code) const { return code < clearCode_; }
    void Learn(int prefix, std::uint8_t last);
    std::span<const std::uint8_t> Spell(int code);

    const int literalBits_;
    const int clearCode_;
    const int endCode_;
    int bits_ = 0;      // of the next code
    int nextCode_ = 0;  // the one that is learnt next
    std::array<String, kMostCodes> strings_{};
    std::array<std::uint8_t, kMostCodes> spelt_{};
};

}  // namespace vistrel
