// Makes GIF files.
#include "tests/support/picture_files/gif_file.h"

#include <algorithm>
#include <map>

namespace vistrel::test {

namespace {

void AppendWord(Bytes& bytes, int value) {
    bytes.push_back(static_cast<std::uint8_t>(value));
    bytes.push_back(static_cast<std::uint8_t>(value >> 8));
}

// The flags of a palette: that there is one, and of how many bits.
int PaletteFlags(const GifColors& palette) {
    if (palette.empty()) return 0;
    int bits = 1;
    while ((std::size_t{1} << bits) < palette.size()) ++bits;
    return 0x80 | (bits - 1);
}

void AppendPalette(Bytes& bytes, const GifColors& palette) {
    for (const auto& color : palette) bytes.insert(bytes.end(), color.begin(), color.end());
}

Bytes Interlaced(const Bytes& indices, int width, int height) {
    Bytes result;
    const std::pair<int, int> passes[] = {{0, 8}, {4, 8}, {2, 4}, {1, 2}};
    for (const auto& [first, step] : passes) {
        for (int y = first; y < height; y += step) {
            const auto row = indices.begin() + static_cast<std::ptrdiff_t>(y) * width;
            result.insert(result.end(), row, row + width);
        }
    }
    return result;
}

class BitWriter {
 public:
    void Write(int code, int bits) {
        buffer_ |= static_cast<std::uint32_t>(code) << buffered_;
        for (buffered_ += bits; buffered_ >= 8; buffered_ -= 8) {
            bytes_.push_back(static_cast<std::uint8_t>(buffer_));
            buffer_ >>= 8;
        }
    }

    Bytes Finish() {
        if (buffered_ > 0) bytes_.push_back(static_cast<std::uint8_t>(buffer_));
        return bytes_;
    }

 private:
    Bytes bytes_;
    std::uint32_t buffer_ = 0;
    int buffered_ = 0;
};

void AppendImage(Bytes& file, const GifImage& image) {
    if (image.transparent >= 0) {
        file.insert(file.end(),
                    {0x21, 0xF9, 4, 1, 0, 0, static_cast<std::uint8_t>(image.transparent), 0});
    }
    file.push_back(0x2C);
    for (const int value : {image.left, image.top, image.width, image.height}) {
        AppendWord(file, value);
    }
    const int flags = PaletteFlags(image.palette) | (image.interlaced ? 0x40 : 0);
    file.push_back(static_cast<std::uint8_t>(flags));
    AppendPalette(file, image.palette);
    file.push_back(static_cast<std::uint8_t>(image.lzw.literalBits));
    const Bytes order =
        image.interlaced ? Interlaced(image.indices, image.width, image.height) : image.indices;
    const Bytes blocks = SubBlocks(EncodeLzw(order, image.lzw));
    file.insert(file.end(), blocks.begin(), blocks.end());
}

}  // namespace

Bytes EncodeLzw(const Bytes& indices, const LzwOptions& options) {
    const int clear = 1 << options.literalBits;
    BitWriter out;
    std::map<std::pair<int, int>, int> codes;  // of a known string and one more colour number
    int bits = options.literalBits + 1;
    int next = clear + 2;
    if (options.clearFirst) out.Write(clear, bits);
    int known = -1;
    for (const std::uint8_t index : indices) {
        const auto longer = codes.find({known, index});
        if (known < 0) {
            known = index;
        } else if (longer != codes.end()) {
            known = longer->second;
        } else {
            out.Write(known, bits);
            if (next < 4096) {
                codes[{known, index}] = next++;
                if (next > 1 << bits && bits < 12) ++bits;
            } else if (options.clearWhenFull) {
                out.Write(clear, bits);
                codes.clear();
                bits = options.literalBits + 1;
                next = clear + 2;
            }
            known = index;
        }
    }
    if (known >= 0) {
        out.Write(known, bits);
        if (next >= 1 << bits && bits < 12) ++bits;
    }
    if (options.end) out.Write(clear + 1, bits);
    return out.Finish();
}

Bytes SubBlocks(const Bytes& data) {
    Bytes blocks;
    for (std::size_t at = 0; at < data.size(); at += 255) {
        const std::size_t size = std::min<std::size_t>(255, data.size() - at);
        blocks.push_back(static_cast<std::uint8_t>(size));
        const auto begin = data.begin() + static_cast<std::ptrdiff_t>(at);
        blocks.insert(blocks.end(), begin, begin + static_cast<std::ptrdiff_t>(size));
    }
    blocks.push_back(0);
    return blocks;
}

Bytes GifFile::Encode() const {
    Bytes file = {'G', 'I', 'F', '8', '9', 'a'};
    AppendWord(file, width);
    AppendWord(file, height);
    file.push_back(static_cast<std::uint8_t>(PaletteFlags(palette)));
    file.push_back(static_cast<std::uint8_t>(background));
    file.push_back(0);  // pixels are square
    AppendPalette(file, palette);
    file.insert(file.end(), extensions.begin(), extensions.end());
    for (const GifImage& image : images) AppendImage(file, image);
    if (trailer) file.push_back(0x3B);
    return file;
}

GifColors MakeGifColors(int count) {
    GifColors colors;
    for (int i = 0; i < count; ++i) {
        colors.push_back({static_cast<std::uint8_t>(i), static_cast<std::uint8_t>(250 - i * 3),
                          static_cast<std::uint8_t>(i * i + 90)});
    }
    return colors;
}

GifFile MakeGif(int width, int height, int colors) {
    GifFile file;
    file.width = width;
    file.height = height;
    file.palette = MakeGifColors(colors);
    GifImage image;
    image.width = width;
    image.height = height;
    image.indices = MakeIndices(width, height, colors);
    image.lzw.literalBits = 2;
    while (1 << image.lzw.literalBits < colors) ++image.lzw.literalBits;
    file.images.push_back(image);
    return file;
}

}  // namespace vistrel::test
