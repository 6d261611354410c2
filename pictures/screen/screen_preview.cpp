#include "pictures/screen/screen_preview.h"

#include <algorithm>
#include <array>
#include <span>
#include <vector>

#include "pictures/bmp/stored_rows.h"

namespace vistrel::screen {
namespace {

/// Weights of a target sample add up to this, so that two averages fit into one 32-bit number.
constexpr std::uint32_t kOne = 256;

/// Half a unit of what is averaged along both axes, so that the last step rounds.
constexpr std::uint32_t kHalf = kOne * kOne / 2;

/// What becomes of a source sample: its weight in the target sample that it belongs to, and if that
/// ends here, its weight in the next one.
struct Share {
    std::uint32_t here = 0;
    std::uint32_t next = 0;
    bool ends = false;
};

/// The shares of all source samples. There are at least as many as target samples: none belongs to
/// more than two of these.
std::vector<Share> SharesOf(int samples, int target) {
    std::vector<Share> shares;
    shares.reserve(static_cast<std::size_t>(samples));
    for (int i = 0; i < target; ++i) {
        // In units of 1/target source samples, each target sample covers `samples` of them.
        const int from = i * samples;
        const int to = from + samples;
        int given = 0;
        for (int s = from / target; s * target < to; ++s) {
            // Differences of rounded running sums leave no remainder.
            const int covered = std::min((s + 1) * target, to) - from;
            const int sum = (covered * static_cast<int>(kOne) + samples / 2) / samples;
            const auto weight = static_cast<std::uint32_t>(sum - given);
            given = sum;
            if (static_cast<std::size_t>(s) < shares.size())
                shares.back().next = weight;
            else
                shares.push_back({weight});
        }
        shares.back().ends = true;
    }
    return shares;
}

/// A colour, or the weighted sum of some: red in the upper half of a number, blue in the lower.
struct Packed {
    std::uint32_t redBlue = 0;
    std::uint32_t green = 0;

    std::uint32_t Red() const { return redBlue >> 16; }
    std::uint32_t Blue() const { return redBlue & 0xffff; }
    Packed operator*(std::uint32_t weight) const { return {redBlue * weight, green * weight}; }
    Packed operator+(Packed other) const { return {redBlue + other.redBlue, green + other.green}; }
};

using PackedPalette = std::array<Packed, 256>;

PackedPalette PackedColors(const std::array<bmp::RgbColor, 256>& palette) {
    PackedPalette packed;
    for (std::size_t i = 0; i < palette.size(); ++i)
        packed[i] = {std::uint32_t{palette[i][0]} << 16 | palette[i][2], palette[i][1]};
    return packed;
}

/// A column of the file: its weights, and what it has in a row of the picture so far.
struct Column {
    Packed sum;
    Share share;
};

std::vector<Column> ColumnsOf(int samples, int target) {
    std::vector<Column> columns;
    for (const Share& share : SharesOf(samples, target)) columns.push_back({{}, share});
    return columns;
}

// The loops over columns are functions by themselves, each with all of a Pentium's few registers.

/// The first row of the file in a row of the picture.
[[gnu::noinline]] void Begin(std::span<Column> columns, const std::uint8_t* pixel,
                             const PackedPalette& colors, std::uint32_t weight) {
#pragma GCC unroll 4
    for (Column& column : columns) column.sum = colors[*pixel++] * weight;
}

[[gnu::noinline]] void Add(std::span<Column> columns, const std::uint8_t* pixel,
                           const PackedPalette& colors, std::uint32_t weight) {
#pragma GCC unroll 4
    for (Column& column : columns) column.sum = column.sum + colors[*pixel++] * weight;
}

/// Adds colours that are weighted already.
[[gnu::noinline]] void Add(std::span<Column> columns, const std::uint8_t* pixel,
                           const PackedPalette& weighted) {
#pragma GCC unroll 4
    for (Column& column : columns) column.sum = column.sum + weighted[*pixel++];
}

/// Averages the columns; where the next row is to be written.
[[gnu::noinline]] std::uint8_t* WriteRow(std::span<const Column> columns, std::uint8_t* out) {
    std::uint32_t red = kHalf;
    std::uint32_t green = kHalf;
    std::uint32_t blue = kHalf;
    for (const auto& [sum, share] : columns) {
        red += sum.Red() * share.here;
        green += sum.green * share.here;
        blue += sum.Blue() * share.here;
        if (!share.ends) continue;
        *out++ = static_cast<std::uint8_t>(red / (kOne * kOne));
        *out++ = static_cast<std::uint8_t>(green / (kOne * kOne));
        *out++ = static_cast<std::uint8_t>(blue / (kOne * kOne));
        red = sum.Red() * share.next + kHalf;
        green = sum.green * share.next + kHalf;
        blue = sum.Blue() * share.next + kHalf;
    }
    return out;
}

/// Averages the pixels of an uncompressed 8-bit bitmap: first down each column, then along what
/// comes of it.
class Shrinker {
 public:
    Shrinker(const pictures::PictureFile& file, const bmp::BmpHeader& header, int width, int height)
        : rows_(file, header),
          colors_(PackedColors(header.palette)),
          down_(SharesOf(header.height, height)),
          columns_(ColumnsOf(header.width, width)) {}

    /// Writes the picture: 3 bytes per pixel, rows from the top.
    void WriteTo(std::uint8_t* out) {
        int y = 0;
        for (const Share& share : down_) {
            const std::uint8_t* const pixels = rows_.Row(y++);
            if (!share.ends) {
                Add(columns_, pixels, ColorsTimes(share.here));
                continue;
            }
            Add(columns_, pixels, colors_, share.here);
            out = WriteRow(columns_, out);
            Begin(columns_, pixels, colors_, share.next);
        }
    }

 private:
    struct Products {
        std::uint32_t weight = 0;
        PackedPalette colors;
    };

    /// Multiplying takes a Pentium as long as ten other steps. Rows that lie within one row of the
    /// picture have no more than two weights, one of them odd: their products are kept.
    const PackedPalette& ColorsTimes(std::uint32_t weight) {
        Products& products = products_[weight % 2];
        if (products.weight != weight) {
            products.weight = weight;
            for (std::size_t i = 0; i < colors_.size(); ++i)
                products.colors[i] = colors_[i] * weight;
        }
        return products.colors;
    }

    bmp::StoredRows rows_;
    PackedPalette colors_;
    std::array<Products, 2> products_;
    std::vector<Share> down_;
    std::vector<Column> columns_;
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
