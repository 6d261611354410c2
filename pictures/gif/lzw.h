// The compression of GIF pictures.
#pragma once

#include <array>

#include "pictures/picture_file.h"

namespace vistrel::gif {

/// The compressed data of one GIF picture, which lie in sub-blocks of up to 255 bytes. The last one
/// may be cut short.
class GifData {
 public:
    /// `start` is where the first sub-block begins in `file`.
    GifData(const pictures::PictureFile& file, std::size_t start)
        : file_(file), next_(start), blockEnd_(start) {}

    /// The next byte; -1 at the end.
    int Next() {
        if (next_ == blockEnd_ && !BeginBlock()) return -1;
        return file_[next_++];
    }

 private:
    bool BeginBlock();

    pictures::FileWindow file_;
    std::size_t next_;
    std::size_t blockEnd_;
};

/// A number of the GIF palette: a few files have codes for more colours than a palette can hold.
using GifColor = std::uint16_t;

/// Decodes the LZW data of one GIF picture: codes of a growing number of bits, lowest bits first,
/// each standing for a string of colour numbers that the decoder learns as it goes. A copy goes on
/// from where the original is.
class GifLzw {
 public:
    static constexpr int kMostLiteralBits = 11;

    /// `literalBits` is the number of bits of a colour number, 1 to kMostLiteralBits.
    GifLzw(GifData data, int literalBits);

    /// Writes up to `count` colour numbers to `colors` and returns how many there were: fewer when
    /// the end code comes, the data end or a code comes that no encoder could have written.
    std::size_t Read(GifColor* colors, std::size_t count);

    /// Passes over up to `count` colour numbers.
    void Skip(std::size_t count);

    /// True when there are no colour numbers any more.
    bool IsAtEnd() { return left_ == 0 && !NextString(); }

 private:
    static constexpr int kMostCodes = 4096;
    static constexpr int kMostBits = 12;
    static constexpr int kNone = -1;

    // A string is the string of another code and one more colour number.
    struct String {
        std::uint16_t prefix = 0;
        std::uint16_t length = 0;
        GifColor first = 0;
        GifColor last = 0;
    };

    void Clear();
    int NextCode();
    bool NextString();
    bool IsLiteral(int code) const { return code < clearCode_; }
    void Learn(int prefix, GifColor last);
    void Spell(int code, GifColor* colors) const;

    GifData data_;
    int literalBits_;
    int clearCode_;
    int endCode_;
    int bits_ = 0;      // of the next code
    int nextCode_ = 0;  // the one that is learnt next
    int code_ = kNone;  // the last one read; kNone after a clear code
    bool ended_ = false;
    std::size_t left_ = 0;  // colour numbers at the end of its string that have not been read
    std::uint32_t buffer_ = 0;
    int buffered_ = 0;
    std::array<String, kMostCodes> strings_{};
    std::array<GifColor, kMostCodes> spelt_{};  // the string of code_ when a part of it was read
};

}  // namespace vistrel::gif
