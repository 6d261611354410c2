// Run-length-encoded bitmaps: runs of one colour (for RLE4 of two that alternate), stretches of
// single pixels, and jumps. Where each row begins is found beforehand, since most files begin with
// the lowest one.
#include "pictures/bmp/rle.h"

#include <algorithm>

#include "pictures/enough_bytes.h"

namespace vistrel::bmp {

namespace {

// What follows a count of 0; larger numbers are lengths of stretches of single pixels.
constexpr int kEndOfRow = 0;
constexpr int kEndOfPicture = 1;
constexpr int kJump = 2;

// Where the commands for the pixels from a column of a row on begin.
struct RowStart {
    std::uint32_t offset = 0;
    std::int32_t column = -1;  // -1: the file has nothing of the row
};

// The commands of a file one after the other.
class RleCommands {
 public:
    RleCommands(const pictures::PictureFile& file, bool fourBits, int width)
        : file_(file), fourBits_(fourBits), width_(width) {}

    // Goes through the commands from `start` on that belong to one row. `put(column, count,
    // pixelAt)` is called for each of its runs: pixelAt(i) is the palette entry of the i-th pixel.
    // Returns by how many rows the file then goes down, 0 at the end of the picture; `start` is
    // where it goes on.
    template <class Put>
    int WalkRow(RowStart& start, Put put) {
        std::size_t at = start.offset;
        int column = start.column;
        int down = 0;
        while (down == 0 && at + 2 <= file_.size()) {
            const int count = file_[at];
            const int value = file_[at + 1];
            at += 2;
            if (count > 0) {
                const auto runPixel = [&](int i) { return fourBits_ ? Half(value, i) : value; };
                column += Fill(column, count, runPixel, put);
            } else if (value == kEndOfRow) {
                column = 0;
                down = 1;
            } else if (value == kJump) {
                if (at + 2 > file_.size()) break;
                column = std::min(width_, column + file_[at]);
                down = file_[at + 1];
                at += 2;
            } else if (value == kEndOfPicture) {
                break;
            } else {
                column += Single(at, column, value, put);
            }
        }
        start = {static_cast<std::uint32_t>(at), column};
        return down;
    }

 private:
    static int Half(int byte, int pixel) { return pixel % 2 == 0 ? byte >> 4 : byte & 15; }

    // What would run out of its row on the right is left out.
    template <class PixelAt, class Put>
    int Fill(int column, int count, PixelAt pixelAt, Put put) const {
        const int now = std::min(count, width_ - column);
        put(column, now, pixelAt);
        return now;
    }

    // A stretch of single pixels, which takes a whole number of 16-bit words; the file may end in
    // it.
    template <class Put>
    int Single(std::size_t& at, int column, int count, Put put) {
        const std::size_t bytes = fourBits_ ? (count + 1) / 2 : count;
        const pictures::FileBytes pixels = file_.From(at, bytes);
        const std::size_t there = std::min(bytes, pixels.size());
        const int pixelsThere = std::min(count, static_cast<int>(fourBits_ ? there * 2 : there));
        at += std::min((bytes + 1) / 2 * 2, file_.size() - at);
        const auto pixelAt = [&](int i) {
            return fourBits_ ? Half(pixels[i / 2], i) : int{pixels[i]};
        };
        return Fill(column, pixelsThere, pixelAt, put);
    }

    pictures::FileWindow file_;
    bool fourBits_;
    int width_;
};

class RleRows : public pictures::PictureRows {
 public:
    RleRows(const pictures::PictureFile& file, const BmpHeader& header)
        : pictures::PictureRows(header.width, header.height),
          header_(header),
          commands_(file, header.compression == BmpCompression::Rle4, header.width),
          starts_(header.height) {
        RowStart next{static_cast<std::uint32_t>(std::min(header.pixelOffset, file.size())), 0};
        for (int row = 0; row < height();) {
            starts_[row] = next;
            const int down = commands_.WalkRow(next, [](int, int, const auto&) {});
            if (down == 0) break;
            row += down;
        }
    }

    void ReadNext(std::uint8_t* rgb) override {
        const int row = header_.topDown ? y_ : height() - 1 - y_;
        ++y_;
        for (int x = 0; x < width(); ++x) Paint(rgb, x, 0);
        RowStart start = starts_[row];
        if (start.column < 0) return;
        commands_.WalkRow(start, [&](int column, int count, const auto& pixelAt) {
            for (int i = 0; i < count; ++i) Paint(rgb, column + i, pixelAt(i));
        });
    }

 private:
    void Paint(std::uint8_t* rgb, int column, int index) const {
        std::copy_n(header_.palette[index].begin(), 3, rgb + 3 * column);
    }

    const BmpHeader header_;
    RleCommands commands_;
    std::vector<RowStart> starts_;  // in the order of the file
    int y_ = 0;                     // of the next row
};

// A run of 255 pixels in two bytes is the shortest code.
constexpr std::int64_t kMostPixelsInAByte = 128;

}  // namespace

std::unique_ptr<pictures::PictureRows> OpenBmpRle(const pictures::PictureFile& file,
                                                  const BmpHeader& header) {
    const std::size_t bytes = file.size() - std::min(header.pixelOffset, file.size());
    const std::int64_t pixels = std::int64_t{header.width} * header.height;
    if (!pictures::EnoughBytes(bytes, pixels, kMostPixelsInAByte)) return nullptr;
    return std::make_unique<RleRows>(file, header);
}

}  // namespace vistrel::bmp
