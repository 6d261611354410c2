// Makes bitmap files.
#include "tests/support/picture_files/bmp_file.h"

#include <algorithm>
#include <bit>

namespace vistrel::test {

using namespace bmp;
using namespace pictures;

namespace {

void Append(Bytes& bytes, std::uint32_t value, int count) {
    for (int i = 0; i < count; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
}

void PadTo4(Bytes& bytes) {
    while (bytes.size() % 4 != 0) bytes.push_back(0);
}

Bytes Header(const BmpFile& file) {
    Bytes header;
    Append(header, file.headerSize, 4);
    const int sideBytes = file.headerSize == 12 ? 2 : 4;
    Append(header, static_cast<std::uint32_t>(file.width), sideBytes);
    Append(header, static_cast<std::uint32_t>(file.height), sideBytes);
    Append(header, 1, 2);
    Append(header, static_cast<std::uint32_t>(file.bitsPerPixel), 2);
    Append(header, file.compression, 4);
    header.resize(header.size() + 12);  // size of the pixels, pixels per metre
    Append(header, file.colorsUsed, 4);
    Append(header, 0, 4);  // important colours
    Bytes masks;
    for (const std::uint32_t mask : file.masks) Append(masks, mask, 4);
    if (file.headerSize > 40) header.insert(header.end(), masks.begin(), masks.end());
    header.resize(file.headerSize);
    if (file.headerSize == 40) header.insert(header.end(), masks.begin(), masks.end());
    return header;
}

// The encoder of one row of single pixels and runs.
class RleRow {
 public:
    RleRow(const std::uint8_t* row, int width, int bitsPerPixel, Bytes& out)
        : row_(row), width_(width), fourBits_(bitsPerPixel == 4), out_(out) {}

    void Encode() {
        for (int x = 0; x < width_;) {
            int run = 1;
            while (x + run < width_ && run < 255 && row_[x + run] == row_[x]) ++run;
            if (run >= 3) {
                Flush(x);
                Run(run, row_[x]);
                single_ = x + run;
            }
            x += run;
        }
        Flush(width_);
    }

 private:
    void Run(int count, int index) {
        out_.push_back(static_cast<std::uint8_t>(count));
        out_.push_back(static_cast<std::uint8_t>(fourBits_ ? index * 17 : index));
    }

    // Writes the pixels from single_ to `end`. A stretch has at least 3 pixels: the smaller
    // numbers mean something else.
    void Flush(int end) {
        while (end - single_ >= 3) {
            const int count = std::min(end - single_, 255);
            out_.push_back(0);
            out_.push_back(static_cast<std::uint8_t>(count));
            for (int i = 0; i < count; i += fourBits_ ? 2 : 1) out_.push_back(Pixels(i, count));
            if (out_.size() % 2 != 0) out_.push_back(0);
            single_ += count;
        }
        for (; single_ < end; ++single_) Run(1, row_[single_]);
    }

    std::uint8_t Pixels(int i, int count) const {
        if (!fourBits_) return row_[single_ + i];
        const int second = i + 1 < count ? row_[single_ + i + 1] : 0;
        return static_cast<std::uint8_t>(row_[single_ + i] * 16 + second);
    }

    const std::uint8_t* row_;
    int width_;
    bool fourBits_;
    Bytes& out_;
    int single_ = 0;  // pixels before this one are written
};

}  // namespace

Bytes BmpFile::Encode() const {
    const Bytes header = Header(*this);
    Bytes colors;
    for (const RgbColor& color : palette) {
        colors.insert(colors.end(), {color[2], color[1], color[0]});
        if (headerSize != 12) colors.push_back(0);
    }
    const std::size_t truth = 14 + header.size() + colors.size() + gap.size();
    Bytes file = {'B', 'M'};
    Append(file, static_cast<std::uint32_t>(truth + pixels.size()), 4);
    Append(file, 0, 4);
    Append(file, pixelOffset.value_or(static_cast<std::uint32_t>(truth)), 4);
    for (const Bytes* part : std::initializer_list<const Bytes*>{&header, &colors, &gap, &pixels}) {
        file.insert(file.end(), part->begin(), part->end());
    }
    return file;
}

Bytes PackIndices(const Bytes& indices, int width, int height, int bitsPerPixel) {
    Bytes rows;
    const int perByte = 8 / bitsPerPixel;
    for (int y = height - 1; y >= 0; --y) {
        for (int x = 0; x < width; x += perByte) {
            int byte = 0;
            for (int i = 0; i < perByte; ++i) {
                const int index = x + i < width ? indices[std::size_t(y) * width + x + i] : 0;
                byte = byte << bitsPerPixel | index;
            }
            rows.push_back(static_cast<std::uint8_t>(byte));
        }
        PadTo4(rows);
    }
    return rows;
}

Bytes PackRgb24(const RgbPicture& picture) {
    Bytes rows;
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x) {
            const std::uint8_t* rgb = &picture.pixels[3 * (std::size_t(y) * picture.width + x)];
            rows.insert(rows.end(), {rgb[2], rgb[1], rgb[0]});
        }
        PadTo4(rows);
    }
    return rows;
}

Bytes PackMasked(const RgbPicture& picture, int bitsPerPixel,
                 const std::vector<std::uint32_t>& masks) {
    Bytes rows;
    for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x) {
            std::uint32_t pixel = ~(masks[0] | masks[1] | masks[2]);
            for (int i = 0; i < 3; ++i) {
                const std::uint32_t value =
                    picture.pixels[3 * (std::size_t(y) * picture.width + x) + i];
                const int bits = std::popcount(masks[i]);
                const std::uint32_t kept = bits < 8 ? value >> (8 - bits) : value << (bits - 8);
                pixel |= kept << std::countr_zero(masks[i]);
            }
            Append(rows, pixel, bitsPerPixel / 8);
        }
        PadTo4(rows);
    }
    return rows;
}

Bytes EncodeRle(const Bytes& indices, int width, int height, int bitsPerPixel) {
    Bytes out;
    for (int y = height - 1; y >= 0; --y) {
        RleRow(&indices[std::size_t(y) * width], width, bitsPerPixel, out).Encode();
        out.insert(out.end(), {0, static_cast<std::uint8_t>(y == 0 ? 1 : 0)});
    }
    return out;
}

std::vector<RgbColor> MakePalette(int count) {
    std::vector<RgbColor> palette;
    for (int i = 0; i < count; ++i) {
        palette.push_back({static_cast<std::uint8_t>(255 - i), static_cast<std::uint8_t>(i * 7 + 3),
                           static_cast<std::uint8_t>(i * i + 40)});
    }
    return palette;
}

RgbPicture Colored(const Bytes& indices, int width, int height,
                   const std::vector<RgbColor>& palette) {
    RgbPicture picture{width, height, {}};
    for (const std::uint8_t index : indices) {
        const RgbColor color = index < palette.size() ? palette[index] : RgbColor{};
        picture.pixels.insert(picture.pixels.end(), color.begin(), color.end());
    }
    return picture;
}

}  // namespace vistrel::test
