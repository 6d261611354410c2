// Decodes the compression of GIF pictures.
#include "pictures/gif/lzw.h"

#include <algorithm>

namespace vistrel::gif {

// False behind the last block, which an empty one or the end of the file follows.
bool GifData::BeginBlock() {
    const std::size_t size = position_ < file_.size() ? file_[position_] : 0;
    if (size == 0) return false;
    const pictures::FileBytes bytes = file_.From(position_ + 1, size);
    blockSize_ = std::min(size, bytes.size());
    std::copy_n(bytes.data(), blockSize_, block_.begin());
    position_ += 1 + blockSize_;
    next_ = 0;
    return blockSize_ > 0;
}

GifLzw::GifLzw(GifData data, int literalBits)
    : data_(data),
      literalBits_(literalBits),
      clearCode_(1 << literalBits),
      endCode_(clearCode_ + 1) {
    for (int literal = 0; literal < clearCode_; ++literal) {
        const auto color = static_cast<GifColor>(literal);
        strings_[literal] = {0, 1, color, color};
    }
    Clear();
}

void GifLzw::Clear() {
    bits_ = literalBits_ + 1;
    nextCode_ = endCode_ + 1;
    code_ = kNone;
}

std::size_t GifLzw::Read(GifColor* colors, std::size_t count) {
    std::size_t read = 0;
    while (read < count && !IsAtEnd()) {
        const std::size_t length = strings_[code_].length;
        const std::size_t now = std::min(left_, count - read);
        if (now == length) {
            Spell(code_, colors + read);
        } else {
            if (left_ == length) Spell(code_, spelt_.data());
            std::copy_n(&spelt_[length - left_], now, colors + read);
        }
        left_ -= now;
        read += now;
    }
    return read;
}

void GifLzw::Skip(std::size_t count) {
    while (count > 0 && !IsAtEnd()) {
        const std::size_t length = strings_[code_].length;
        const std::size_t now = std::min(left_, count);
        if (now < left_ && left_ == length) Spell(code_, spelt_.data());
        left_ -= now;
        count -= now;
    }
}

// kNone at the end of the data.
int GifLzw::NextCode() {
    while (buffered_ < bits_) {
        const int byte = data_.Next();
        if (byte < 0) return kNone;
        buffer_ |= static_cast<std::uint32_t>(byte) << buffered_;
        buffered_ += 8;
    }
    const int code = static_cast<int>(buffer_ & ((1u << bits_) - 1));
    buffer_ >>= bits_;
    buffered_ -= bits_;
    return code;
}

// Goes on to the string of the next code. False when there is none.
bool GifLzw::NextString() {
    if (ended_) return false;
    int code = NextCode();
    while (code == clearCode_) {
        Clear();
        code = NextCode();
    }
    // The encoder may use a code in the moment in which it is learnt: its string then begins with
    // the previous one and ends with that one's first colour number.
    const bool isKnown = code_ == kNone ? IsLiteral(code) : code <= nextCode_;
    ended_ = code == kNone || code == endCode_ || !isKnown;
    if (ended_) return false;
    if (code_ != kNone) Learn(code_, strings_[code == nextCode_ ? code_ : code].first);
    code_ = code;
    left_ = strings_[code].length;
    if (nextCode_ >= 1 << bits_ && bits_ < kMostBits) ++bits_;
    return true;
}

// Once all codes are known the encoder goes on with them until it writes a clear code.
void GifLzw::Learn(int prefix, GifColor last) {
    if (nextCode_ == kMostCodes) return;
    const auto length = static_cast<std::uint16_t>(strings_[prefix].length + 1);
    strings_[nextCode_] = {static_cast<std::uint16_t>(prefix), length, strings_[prefix].first,
                           last};
    ++nextCode_;
}

void GifLzw::Spell(int code, GifColor* colors) const {
    for (std::size_t i = strings_[code].length; i-- > 0; code = strings_[code].prefix) {
        colors[i] = strings_[code].last;
    }
}

}  // namespace vistrel::gif
