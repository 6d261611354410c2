// Unpacks the rows of uncompressed bitmaps.
#include "pictures/bmp/rows.h"

#include <algorithm>
#include <bit>

#include "pictures/bmp/stored_rows.h"

namespace vistrel::bmp {
namespace {

// One colour of a 16- or 32-bit pixel: full[(pixel & mask) >> shift] is its value up to 255.
struct Channel {
    std::uint32_t mask = 0;
    int shift = 0;
    std::array<std::uint8_t, 256> full{};
};

// A value of fewer than 8 bits is spread over 8 by repeating its bits (5 bits abcde become
// abcdeabc), so that all bits set is 255; of more than 8 bits the highest 8 are taken. Only values
// of 4 bits are not spread: that is how the programs people look at such pictures with show them.
Channel MakeChannel(std::uint32_t mask) {
    Channel channel;
    if (mask == 0) return channel;
    const int low = std::countr_zero(mask);
    const int bits = 32 - std::countl_zero(mask) - low;
    const int kept = std::min(bits, 8);
    channel.shift = low + bits - kept;
    channel.mask = mask;
    for (int value = 0; value < 1 << kept; ++value) {
        int full = value << (8 - kept);
        for (int filled = kept; filled < 8 && kept != 4; filled *= 2) full |= full >> filled;
        channel.full[value] = static_cast<std::uint8_t>(full);
    }
    return channel;
}

class BmpRows : public pictures::PictureRows {
 public:
    BmpRows(const pictures::PictureFile& file, const BmpHeader& header)
        : pictures::PictureRows(header.width, header.height), header_(header), rows_(file, header) {
        for (int i = 0; i < 3; ++i) channels_[i] = MakeChannel(header.masks[i]);
    }

    void ReadNext(std::uint8_t* rgb) override { Unpack(rows_.Row(y_++), rgb); }

 private:
    void Unpack(const std::uint8_t* row, std::uint8_t* rgb) const;
    void UnpackIndices(const std::uint8_t* row, std::uint8_t* rgb) const;
    void UnpackChannels(const std::uint8_t* row, std::uint8_t* rgb) const;

    const BmpHeader header_;
    StoredRows rows_;
    std::array<Channel, 3> channels_;
    int y_ = 0;  // of the next row
};

void BmpRows::Unpack(const std::uint8_t* row, std::uint8_t* rgb) const {
    if (header_.bitsPerPixel <= 8) return UnpackIndices(row, rgb);
    if (header_.bitsPerPixel != 24) return UnpackChannels(row, rgb);
    for (int x = 0; x < header_.width; ++x, row += 3, rgb += 3) {
        rgb[0] = row[2];
        rgb[1] = row[1];
        rgb[2] = row[0];
    }
}

// The leftmost pixel lies in the highest bits of the first byte.
void BmpRows::UnpackIndices(const std::uint8_t* row, std::uint8_t* rgb) const {
    const int bits = header_.bitsPerPixel;
    const int mask = (1 << bits) - 1;
    int shift = 8;
    for (int x = 0; x < header_.width; ++x, rgb += 3) {
        shift -= bits;
        std::copy_n(header_.palette[*row >> shift & mask].begin(), 3, rgb);
        if (shift == 0) {
            shift = 8;
            ++row;
        }
    }
}

void BmpRows::UnpackChannels(const std::uint8_t* row, std::uint8_t* rgb) const {
    const int bytes = header_.bitsPerPixel / 8;
    for (int x = 0; x < header_.width; ++x, row += bytes, rgb += 3) {
        std::uint32_t pixel = row[0] | row[1] << 8;
        if (bytes == 4) pixel |= row[2] << 16 | static_cast<std::uint32_t>(row[3]) << 24;
        for (int i = 0; i < 3; ++i) {
            const Channel& channel = channels_[i];
            rgb[i] = channel.full[(pixel & channel.mask) >> channel.shift];
        }
    }
}

}  // namespace

std::unique_ptr<pictures::PictureRows> OpenBmpRows(const pictures::PictureFile& file,
                                                   const BmpHeader& header) {
    const std::size_t bytes = file.size() - std::min(header.pixelOffset, file.size());
    if (bytes < header.RowBytes() * header.height / 10) return nullptr;
    return std::make_unique<BmpRows>(file, header);
}

}  // namespace vistrel::bmp
