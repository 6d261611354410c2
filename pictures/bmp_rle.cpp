// Decodes run-length-encoded bitmaps: runs of one colour (for RLE4 of two that alternate),
// stretches of single pixels, and jumps.
#include "pictures/bmp_rle.h"

#include <algorithm>
#include <utility>

#include "pictures/enough_bytes.h"

namespace vistrel {

namespace {

// What follows a count of 0; larger numbers are lengths of stretches of single pixels.
constexpr int kEndOfRow = 0;
constexpr int kEndOfPicture = 1;
constexpr int kJump = 2;

class RleDecoder {
 public:
    RleDecoder(FileBytes data, const BmpHeader& header) : data_(data), header_(header) {
        picture_.width = header.width;
        picture_.height = header.height;
        picture_.pixels.resize(std::size_t{3} * header.width * header.height);
        for (std::size_t i = 0; i < picture_.pixels.size(); i += 3) {
            std::copy_n(header.palette[0].begin(), 3, &picture_.pixels[i]);
        }
    }

    RgbPicture Decode() {
        while (row_ < header_.height && data_.size() >= 2) {
            const int count = TakeByte();
            const int value = TakeByte();
            if (count > 0) {
                Run(count, value);
            } else if (!Escape(value)) {
                break;
            }
        }
        return std::move(picture_);
    }

 private:
    bool FourBits() const { return header_.compression == BmpCompression::Rle4; }

    int TakeByte() {
        const int byte = data_.front();
        data_ = data_.subspan(1);
        return byte;
    }

    // False at the end of the picture.
    bool Escape(int code) {
        switch (code) {
            case kEndOfRow:
                column_ = 0;
                ++row_;
                return true;
            case kEndOfPicture:
                return false;
            case kJump:
                if (data_.size() < 2) return false;
                column_ = std::min(header_.width, column_ + TakeByte());
                row_ += TakeByte();
                return true;
            default:
                SinglePixels(code);
                return true;
        }
    }

    void Run(int count, int value) {
        for (int i = 0; i < count; ++i) Put(FourBits() ? Half(value, i) : value);
    }

    void SinglePixels(int count) {
        const int bytes = FourBits() ? (count + 1) / 2 : count;
        for (int i = 0; i < count; ++i) {
            const std::size_t at = FourBits() ? i / 2 : i;
            if (at >= data_.size()) break;
            Put(FourBits() ? Half(data_[at], i) : data_[at]);
        }
        // A stretch takes a whole number of 16-bit words.
        data_ = data_.subspan(std::min<std::size_t>(data_.size(), (bytes + 1) / 2 * 2));
    }

    static int Half(int byte, int pixel) { return pixel % 2 == 0 ? byte >> 4 : byte & 15; }

    // What would run out of its row on the right is left out.
    void Put(int index) {
        if (column_ == header_.width) return;
        const int y = header_.topDown ? row_ : header_.height - 1 - row_;
        const std::size_t pixel = std::size_t(y) * header_.width + column_;
        std::copy_n(header_.palette[index].begin(), 3, &picture_.pixels[pixel * 3]);
        ++column_;
    }

    FileBytes data_;
    const BmpHeader& header_;
    RgbPicture picture_;
    int column_ = 0;
    int row_ = 0;  // counted in the order of the file
};

// A run of 255 pixels in two bytes is the shortest code.
constexpr std::int64_t kMostPixelsInAByte = 128;

}  // namespace

std::optional<RgbPicture> DecodeBmpRle(FileBytes file, const BmpHeader& header) {
    const FileBytes data = file.subspan(std::min(header.pixelOffset, file.size()));
    const std::int64_t pixels = std::int64_t{header.width} * header.height;
    if (!EnoughBytes(data.size(), pixels, kMostPixelsInAByte)) return std::nullopt;
    return RleDecoder(data, header).Decode();
}

}  // namespace vistrel
