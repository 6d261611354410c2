// Colours find their cells by tables that have a place for each: whatever colours a picture has,
// each pixel takes the same few steps.
#include "pictures/reduce/histogram.h"

#include <bit>

namespace vistrel::reduce {
namespace {

constexpr int kFirstBits = 6;
constexpr std::uint16_t kFree = 0xFFFF;
/// More cells than this make the colour reduction slow; then a bit less has to do.
constexpr std::size_t kMostCells = 40000;
/// With fewer cells than this, finer ones cost little and tell more.
constexpr std::size_t kFewCells = 1800;

/// The first `bits` bits of each channel, one channel after the other.
std::uint32_t KeyOf(const std::uint8_t* rgb, int bits) {
    const int drop = 8 - bits;
    return (std::uint32_t(rgb[0] >> drop) << bits | std::uint32_t(rgb[1] >> drop)) << bits |
           std::uint32_t(rgb[2] >> drop);
}

/// The last one of the first `bits` bits of each channel.
std::uint32_t LastBits(const std::uint8_t* rgb, int bits) {
    const int drop = 8 - bits;
    return (rgb[0] >> drop & 1u) << 2 | (rgb[1] >> drop & 1u) << 1 | (rgb[2] >> drop & 1u);
}

/// Gathers the pixels whose places in a table of `places` are the same. False when there are too
/// many cells.
template <class PlaceOf>
bool Gather(const std::uint8_t* rgb, std::size_t pixels, std::size_t places, PlaceOf placeOf,
            Histogram& histogram) {
    std::vector<std::uint16_t> table(places, kFree);
    std::vector<Cell>& cells = histogram.cells;
    cells.clear();
    for (std::size_t i = 0; i < pixels; ++i, rgb += 3) {
        std::uint16_t& number = table[placeOf(rgb, i)];
        if (number == kFree) {
            if (cells.size() == kMostCells) return false;
            number = static_cast<std::uint16_t>(cells.size());
            cells.emplace_back();
        }
        Cell& cell = cells[number];
        ++cell.count;
        cell.red += rgb[0];
        cell.green += rgb[1];
        cell.blue += rgb[2];
        histogram.cellOf[i] = number;
    }
    return true;
}

bool GatherByKey(const std::uint8_t* rgb, std::size_t pixels, Histogram& histogram) {
    const int bits = histogram.bits;
    return Gather(
        rgb, pixels, std::size_t{1} << 3 * bits,
        [bits](const std::uint8_t* color, std::size_t) { return KeyOf(color, bits); }, histogram);
}

/// Parts each cell into the eight that one bit more of each channel makes.
void Refine(const std::uint8_t* rgb, std::size_t pixels, Histogram& histogram) {
    const int bits = ++histogram.bits;
    const std::uint16_t* const cellOf = histogram.cellOf.data();
    Gather(
        rgb, pixels, histogram.cells.size() * 8,
        [bits, cellOf](const std::uint8_t* color, std::size_t i) {
            return std::size_t{cellOf[i]} * 8 + LastBits(color, bits);
        },
        histogram);
}

/// A colour's place in a table of 1,024 (Fibonacci hashing).
std::uint32_t Slot(std::uint32_t key) { return (key * 0x9E3779B1u) >> 22; }

}  // namespace

Histogram MakeHistogram(const std::uint8_t* rgb, std::size_t pixels) {
    Histogram histogram;
    histogram.cellOf.resize(pixels);
    histogram.bits = kFirstBits;
    while (!GatherByKey(rgb, pixels, histogram)) --histogram.bits;
    while (histogram.cells.size() < kFewCells && histogram.bits < 8) Refine(rgb, pixels, histogram);
    return histogram;
}

void SetMeans(Histogram& histogram, const WorkingSpace& space) {
    for (Cell& cell : histogram.cells) {
        const std::uint32_t half = cell.count / 2;
        cell.mean = space.FromRgb(static_cast<int>((cell.red + half) / cell.count),
                                  static_cast<int>((cell.green + half) / cell.count),
                                  static_cast<int>((cell.blue + half) / cell.count));
    }
}

std::vector<Rgb> FewColors(const std::uint8_t* rgb, std::size_t pixels, std::size_t most,
                           std::uint8_t* indices) {
    constexpr std::uint32_t kMask = 1023;
    std::vector<std::uint16_t> table(kMask + 1, kFree);
    std::vector<Rgb> colors;
    const auto same = [](const Rgb& color, const std::uint8_t* pixel) {
        return color.red == pixel[0] && color.green == pixel[1] && color.blue == pixel[2];
    };
    for (std::size_t i = 0; i < pixels; ++i, rgb += 3) {
        std::uint32_t slot = Slot(KeyOf(rgb, 8));
        while (table[slot] != kFree && !same(colors[table[slot]], rgb)) slot = (slot + 1) & kMask;
        if (table[slot] == kFree) {
            if (colors.size() == most) return {};
            table[slot] = static_cast<std::uint16_t>(colors.size());
            colors.push_back({rgb[0], rgb[1], rgb[2]});
        }
        indices[i] = static_cast<std::uint8_t>(table[slot]);
    }
    return colors;
}

}  // namespace vistrel::reduce
