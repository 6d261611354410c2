// No file makes a reader or the colour reduction work much longer than an honest one of its size.
// Steps are counted, not time: the compiler calls the function below at every branch of the code.
#include <gtest/gtest.h>

#include <algorithm>

#include "pictures/jpg/reader.h"
#include "pictures/reduce/quantize.h"
#include "tests/support/picture_files/jpg_maker.h"

namespace {

std::uint64_t steps = 0;

}  // namespace

extern "C" void __sanitizer_cov_trace_pc() { ++steps; }

namespace vistrel::test {

using namespace jpg;
using namespace pictures;
using namespace reduce;

namespace {

template <class Work>
std::uint64_t DequantTableOf(Work work) {
    const std::uint64_t before = steps;
    work();
    return steps - before;
}

constexpr int kWidth = 320;
constexpr int kHeight = 400;

std::uint64_t StepsOfReducing(const RgbPicture& picture) {
    Bytes indices(std::size_t{kWidth} * kHeight), palette(1024);
    return DequantTableOf([&] {
        EXPECT_TRUE(QuantizeRgb(picture.pixels.data(), kWidth, kHeight, 256, indices.data(),
                                palette.data()));
    });
}

/// 40,000 colours, no two of which begin with the same six bits a channel, in the order that
/// `before` gives. They come three times and a bit, so that most pixels look for a colour that is
/// there.
template <class Before>
RgbPicture PictureOfColors(Before before) {
    std::vector<std::uint32_t> colors;
    for (std::uint32_t key = 0; key < 1u << 18; ++key)
        colors.push_back((key >> 12) << 18 | (key >> 6 & 63) << 10 | (key & 63) << 2);
    std::sort(colors.begin(), colors.end(), before);
    colors.resize(39'999);
    RgbPicture picture{kWidth, kHeight, {}};
    for (std::size_t i = 0; i < std::size_t{kWidth} * kHeight; ++i) {
        const std::uint32_t color = colors[i % colors.size()];
        for (const int shift : {16, 8, 0})
            picture.pixels.push_back(static_cast<std::uint8_t>(color >> shift));
    }
    return picture;
}

// A table that finds colours by multiplying them with a constant has a line of colours that all
// fall onto one place.
TEST(StepsTest, ColoursChosenToCollideAreReducedAsQuicklyAsOthers) {
    const auto product = [](std::uint32_t color) {
        const std::uint32_t key =
            (color >> 18 & 63) << 16 | (color >> 10 & 63) << 8 | (color >> 2 & 63);
        return key * 0x9E3779B1u;
    };
    const std::uint64_t chosen = StepsOfReducing(
        PictureOfColors([&](std::uint32_t a, std::uint32_t b) { return product(a) < product(b); }));
    const std::uint64_t others =
        StepsOfReducing(PictureOfColors([&](std::uint32_t a, std::uint32_t b) {
            return product(product(a)) < product(product(b));
        }));
    EXPECT_LT(chosen, 2 * others);
}

std::uint64_t StepsOfReading(const Bytes& file) {
    return DequantTableOf([&] { EXPECT_TRUE(ReadJpgScaled(file, kWidth, kHeight).has_value()); });
}

TEST(StepsTest, HuffmanTablesThatNoScanReadsByAreNotBuilt) {
    constexpr std::uint64_t kTables = 100'000;
    const Bytes file = MakeJpg(MakePicture(16, 16), {});
    Bytes table = {0xFF, 0xC4, 0, 20, 0x13, 1};
    table.resize(4 + 18);
    Bytes tables;
    for (std::uint64_t i = 0; i < kTables; ++i)
        tables.insert(tables.end(), table.begin(), table.end());
    const Bytes bomb = WithInserted(file, MarkerAt(file, 0xC0), tables);
    EXPECT_LT(StepsOfReading(bomb) - StepsOfReading(file), 200 * kTables);
}

// With a table each, all the scans of which the coefficients of a component can need no more.
TEST(StepsTest, ScansBeyondWhatCoefficientsCanNeedAreNotRead) {
    JpgOptions options;
    options.progressive = true;
    const Bytes file = MakeJpg(MakePicture(16, 16), options);
    Bytes scan = {0xFF, 0xC4, 0, 20, 0x10, 1};
    scan.resize(4 + 18);
    scan.insert(scan.end(), {0xFF, 0xDA, 0, 8, 1, 1, 0, 1, 63, 0x10});
    const auto withScans = [&](int count) {
        Bytes scans;
        for (int i = 0; i < count; ++i) scans.insert(scans.end(), scan.begin(), scan.end());
        return WithInserted(file, file.size() - 2, scans);
    };
    const std::uint64_t all = StepsOfReading(withScans(100'000));
    EXPECT_LT(all, 2 * StepsOfReading(withScans(5'000)));
}

}  // namespace
}  // namespace vistrel::test
