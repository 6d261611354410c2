#include "pictures/screen/screen_preview.h"

#include <algorithm>
#include <array>
#include <vector>

#include "pictures/bmp/stored_rows.h"

namespace vistrel::screen {
namespace {

/// Weights of a target sample add up to this, so that two averages fit into one 32-bit number.
constexpr std::uint32_t kOne = 256;

/// The source samples that each target sample covers.
struct Spans {
    std::vector<int> first;
    std::vector<int> count;
    std::vector<std::uint32_t> weights;  ///< those of all target samples, one after the other
};

Spans SpansOf(int samples, int target) {
    Spans spans;
    for (int i = 0; i < target; ++i) {
        // In units of 1/target source samples, each target sample covers `samples` of them.
        const std::int64_t from = static_cast<std::int64_t>(i) * samples;
        const std::int64_t to = from + samples;
        const auto first = static_cast<int>(from / target);
        const auto end = static_cast<int>((to + target - 1) / target);
        spans.first.push_back(first);
        spans.count.push_back(end - first);
        std::uint32_t given = 0;
        for (int s = first; s < end; ++s) {
            // Differences of rounded running sums leave no remainder.
            const std::int64_t covered =
                std::min((static_cast<std::int64_t>(s) + 1) * target, to) - from;
            const auto sum = static_cast<std::uint32_t>((covered * kOne + samples / 2) / samples);
            spans.weights.push_back(sum - given);
            given = sum;
        }
    }
    return spans;
}

/// The colours of a palette, red and blue packed into one number.
struct PackedPalette {
    std::array<std::uint32_t, 256> redBlue;  ///< red in the upper half, blue in the lower
    std::array<std::uint32_t, 256> green;
};

PackedPalette PackedColors(const std::array<bmp::RgbColor, 256>& palette) {
    PackedPalette packed;
    for (std::size_t i = 0; i < palette.size(); ++i) {
        packed.redBlue[i] = std::uint32_t{palette[i][0]} << 16 | palette[i][2];
        packed.green[i] = palette[i][1];
    }
    return packed;
}

/// Averages the pixels of an uncompressed 8-bit bitmap: first along each row, then down.
class Shrinker {
 public:
    Shrinker(const pictures::PictureFile& file, const bmp::BmpHeader& header, int width, int height)
        : rows_(file, header),
          colors_(PackedColors(header.palette)),
          across_(SpansOf(header.width, width)),
          down_(SpansOf(header.height, height)),
          redBlue_(static_cast<std::size_t>(width)),
          green_(redBlue_.size()),
          sums_(redBlue_.size() * 3) {}

    /// Writes the picture: 3 bytes per pixel, rows from the top.
    void WriteTo(std::uint8_t* out) {
        const std::uint32_t* weight = down_.weights.data();
        for (std::size_t target = 0; target < down_.first.size(); ++target) {
            // Half a unit, so that the last step rounds.
            std::fill(sums_.begin(), sums_.end(), kOne * kOne / 2);
            for (int i = 0; i < down_.count[target]; ++i) {
                HoldRow(down_.first[target] + i);
                AddHeldRow(*weight++);
            }
            for (const std::uint32_t sum : sums_)
                *out++ = static_cast<std::uint8_t>(sum / (kOne * kOne));
        }
    }

 private:
    /// Averages a row of the file, unless it is the one that is held: a row at a border belongs to
    /// two target rows.
    void HoldRow(int y) {
        if (y == rowHeld_) return;
        rowHeld_ = y;
        const std::uint8_t* const pixels = rows_.Row(y);
        const std::uint32_t* weight = across_.weights.data();
        for (std::size_t x = 0; x < redBlue_.size(); ++x) {
            std::uint32_t sumRedBlue = 0;
            std::uint32_t sumGreen = 0;
            const std::uint8_t* pixel = pixels + across_.first[x];
            for (int left = across_.count[x]; left > 0; --left) {
                sumRedBlue += colors_.redBlue[*pixel] * *weight;
                sumGreen += colors_.green[*pixel] * *weight;
                ++pixel;
                ++weight;
            }
            redBlue_[x] = sumRedBlue;
            green_[x] = sumGreen;
        }
    }

    void AddHeldRow(std::uint32_t weight) {
        std::uint32_t* sum = sums_.data();
        for (std::size_t x = 0; x < redBlue_.size(); ++x, sum += 3) {
            sum[0] += (redBlue_[x] >> 16) * weight;
            sum[1] += green_[x] * weight;
            sum[2] += (redBlue_[x] & 0xffff) * weight;
        }
    }

    bmp::StoredRows rows_;
    PackedPalette colors_;
    Spans across_;
    Spans down_;
    int rowHeld_ = -1;
    std::vector<std::uint32_t> redBlue_;  ///< of the row that is held, each colour times 256
    std::vector<std::uint32_t> green_;
    std::vector<std::uint32_t> sums_;  ///< of a target row: red, green, blue of each pixel
};

/// True when the file is an uncompressed 8-bit bitmap and has all of its pixels.
bool IsWholeScreen(const pictures::PictureFile& file, const bmp::BmpHeader& header) {
    return header.bitsPerPixel == 8 && header.compression == bmp::BmpCompression::None &&
           header.pixelOffset <= file.size() &&
           file.size() - header.pixelOffset >=
               header.RowBytes() * static_cast<std::size_t>(header.height);
}

}  // namespace

std::optional<pictures::ScaledPicture> PreviewOfScreen(const pictures::PictureFile& file, int width,
                                                       int height) {
    const auto header = bmp::ReadBmpHeader(file);
    if (!header || !IsWholeScreen(file, *header)) return std::nullopt;
    if (width <= 0 || height <= 0 || header->width < width || header->height < height)
        return std::nullopt;
    pictures::ScaledPicture scaled{{width, height, {}}, header->width, header->height};
    scaled.picture.pixels.resize(static_cast<std::size_t>(width) *
                                 static_cast<std::size_t>(height) * 3);
    Shrinker(file, *header, width, height).WriteTo(scaled.picture.pixels.data());
    return scaled;
}

}  // namespace vistrel::screen
