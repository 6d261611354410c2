// Colours are found by open addressing in a table of cell numbers.
#include "pictures/quantize_histogram.h"

namespace vistrel {
namespace {

constexpr int kTableBits = 16;
constexpr std::uint16_t kFree = 0xFFFF;
/// More cells than this make the table slow; then a bit less has to do.
constexpr std::size_t kMostCells = 40000;
/// With fewer cells than this, finer ones cost little and tell more.
constexpr std::size_t kFewCells = 1800;

std::uint32_t Slot(std::uint32_t key, int tableBits) {
    return (key * 0x9E3779B1u) >> (32 - tableBits);  // Fibonacci hashing
}

std::uint32_t KeyOf(const std::uint8_t* rgb, int bits) {
    const int drop = 8 - bits;
    return (std::uint32_t(rgb[0] >> drop) << 16) | (std::uint32_t(rgb[1] >> drop) << 8) |
           std::uint32_t(rgb[2] >> drop);
}

/// False when there are too many cells.
bool Gather(const std::uint8_t* rgb, std::size_t pixels, Histogram& histogram) {
    constexpr std::uint32_t kMask = (1u << kTableBits) - 1;
    std::vector<std::uint16_t> table(kMask + 1, kFree);
    std::vector<Cell>& cells = histogram.cells;
    cells.clear();
    std::uint32_t lastKey = UINT32_MAX;
    std::uint16_t number = 0;
    for (std::size_t i = 0; i < pixels; ++i, rgb += 3) {
        const std::uint32_t key = KeyOf(rgb, histogram.bits);
        if (key != lastKey) {
            std::uint32_t slot = Slot(key, kTableBits);
            while (table[slot] != kFree && cells[table[slot]].key != key) slot = (slot + 1) & kMask;
            if (table[slot] == kFree) {
                if (cells.size() == kMostCells) return false;
                table[slot] = static_cast<std::uint16_t>(cells.size());
                cells.emplace_back().key = key;
            }
            number = table[slot];
            lastKey = key;
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

}  // namespace

Histogram MakeHistogram(const std::uint8_t* rgb, std::size_t pixels) {
    Histogram histogram;
    histogram.cellOf.resize(pixels);
    histogram.bits = 6;
    while (!Gather(rgb, pixels, histogram)) --histogram.bits;
    while (histogram.cells.size() < kFewCells && histogram.bits < 8) {
        ++histogram.bits;
        Gather(rgb, pixels, histogram);
    }
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
    constexpr int kBits = 10;
    constexpr std::uint32_t kMask = (1u << kBits) - 1;
    std::vector<std::uint16_t> table(kMask + 1, kFree);
    std::vector<Rgb> colors;
    const auto same = [](const Rgb& color, const std::uint8_t* pixel) {
        return color.red == pixel[0] && color.green == pixel[1] && color.blue == pixel[2];
    };
    for (std::size_t i = 0; i < pixels; ++i, rgb += 3) {
        std::uint32_t slot = Slot(KeyOf(rgb, 8), kBits);
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

}  // namespace vistrel
