// The GIF file format: header, palette, and rows packed by LZW.
#include "art/files/gif_writer.h"

#include <algorithm>
#include <map>

#include "pictures/reduce/quantize.h"

namespace vistrel::art {
namespace {

using Bytes = std::vector<std::uint8_t>;

void Put16(Bytes& out, int value) {
    out.push_back(value & 255);
    out.push_back(value >> 8 & 255);
}

// Codes of growing length, the lowest bits first.
class CodeWriter {
 public:
    void Put(int code, int bits) {
        held_ |= static_cast<unsigned>(code) << count_;
        for (count_ += bits; count_ >= 8; count_ -= 8) {
            bytes_.push_back(held_ & 255);
            held_ >>= 8;
        }
    }
    Bytes Finish() {
        if (count_ > 0) bytes_.push_back(held_ & 255);
        return bytes_;
    }

 private:
    Bytes bytes_;
    unsigned held_ = 0;
    int count_ = 0;
};

constexpr int kClear = 256;
constexpr int kEnd = 257;
constexpr int kMostCodes = 4096;

// LZW: a string of indices that was met before is written as one code.
Bytes Packed(const Bytes& indices) {
    CodeWriter writer;
    std::map<std::pair<int, int>, int> longer;  // a string's code and the next index
    int next = kEnd + 1, bits = 9;
    writer.Put(kClear, bits);
    int prefix = indices[0];
    for (std::size_t i = 1; i < indices.size(); ++i) {
        const auto known = longer.find({prefix, indices[i]});
        if (known != longer.end()) {
            prefix = known->second;
            continue;
        }
        writer.Put(prefix, bits);
        if (next < kMostCodes) {
            longer[{prefix, indices[i]}] = next;
            if (next == 1 << bits) ++bits;
            ++next;
        } else {
            writer.Put(kClear, bits);
            longer.clear();
            next = kEnd + 1;
            bits = 9;
        }
        prefix = indices[i];
    }
    writer.Put(prefix, bits);
    // The reader has added one more code by now and may have gone on to longer ones.
    if (next == 1 << bits && bits < 12) ++bits;
    writer.Put(kEnd, bits);
    return writer.Finish();
}

}  // namespace

std::vector<std::uint8_t> GifFile(const pictures::RgbPicture& picture) {
    Bytes indices(std::size_t(picture.width) * picture.height), palette(256 * 4);
    reduce::QuantizeRgb(picture.pixels.data(), picture.width, picture.height, 256, indices.data(),
                        palette.data());
    Bytes out = {'G', 'I', 'F', '8', '9', 'a'};
    Put16(out, picture.width);
    Put16(out, picture.height);
    out.insert(out.end(), {0xF7, 0, 0});  // a palette of 256 colours for the whole file
    for (int i = 0; i < 256; ++i) {
        out.insert(out.end(), {palette[i * 4 + 2], palette[i * 4 + 1], palette[i * 4]});
    }
    out.push_back(0x2C);
    Put16(out, 0);
    Put16(out, 0);
    Put16(out, picture.width);
    Put16(out, picture.height);
    out.push_back(0);
    out.push_back(8);  // bits of an index
    const Bytes packed = Packed(indices);
    for (std::size_t at = 0; at < packed.size(); at += 255) {
        const std::size_t length = std::min<std::size_t>(255, packed.size() - at);
        out.push_back(static_cast<std::uint8_t>(length));
        out.insert(out.end(), packed.begin() + at, packed.begin() + at + length);
    }
    out.insert(out.end(), {0, 0x3B});
    return out;
}

}  // namespace vistrel::art
