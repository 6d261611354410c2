// Fast previews of screen files.
#include "pictures/screen/screen_preview.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "pictures/bmp/reader.h"
#include "pictures/bmp/writer.h"

namespace vistrel {

using namespace bmp;
using namespace pictures;
using namespace screen;

namespace {

/// A screen with gradients and a fine pattern.
std::vector<std::uint8_t> Screen(int width, int height) {
    std::vector<std::uint8_t> indices(static_cast<std::size_t>(width) * height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            indices[static_cast<std::size_t>(y) * width + x] =
                static_cast<std::uint8_t>((x * 255 / width + y * 3 + (x ^ y) % 7) & 255);
    std::vector<std::uint8_t> palette(1024);
    for (int i = 0; i < 256; ++i) {
        palette[i * 4] = static_cast<std::uint8_t>(i);
        palette[i * 4 + 1] = static_cast<std::uint8_t>(255 - i);
        palette[i * 4 + 2] = static_cast<std::uint8_t>(i * 37);
    }
    return ColormappedBmp(indices.data(), width, height, 256, palette.data());
}

/// The exact average of the area that a target pixel covers, in doubles.
double Average(const RgbPicture& whole, int x, int y, int channel, int width, int height) {
    const double fromX = double(x) * whole.width / width;
    const double toX = double(x + 1) * whole.width / width;
    const double fromY = double(y) * whole.height / height;
    const double toY = double(y + 1) * whole.height / height;
    double sum = 0;
    for (int row = int(fromY); row < whole.height && row < toY; ++row)
        for (int column = int(fromX); column < whole.width && column < toX; ++column) {
            const double area =
                (std::min<double>(column + 1, toX) - std::max<double>(column, fromX)) *
                (std::min<double>(row + 1, toY) - std::max<double>(row, fromY));
            sum +=
                area *
                whole.pixels[(static_cast<std::size_t>(row) * whole.width + column) * 3 + channel];
        }
    return sum / ((toX - fromX) * (toY - fromY));
}

TEST(ScreenPreview, AveragesTheAreaOfEachPixel) {
    const auto file = Screen(320, 400);
    const auto whole = ReadBmp(file);
    ASSERT_TRUE(whole);
    for (const auto& [width, height] :
         {std::pair{205, 154}, {160, 120}, {1, 1}, {320, 400}, {40, 399}}) {
        const auto preview = PreviewOfScreen(file, width, height);
        ASSERT_TRUE(preview) << width;
        EXPECT_EQ(preview->fileWidth, 320);
        EXPECT_EQ(preview->fileHeight, 400);
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                for (int c = 0; c < 3; ++c)
                    ASSERT_NEAR(
                        preview->picture.pixels[(static_cast<std::size_t>(y) * width + x) * 3 + c],
                        Average(*whole, x, y, c, width, height), 3.0)
                        << x << ", " << y;
    }
}

/// What a source sample weighs in a target sample, in 1/256.
int Weight(int sample, int target, int samples, int targets) {
    const auto weightUpTo = [&](int end) {
        const int covered = std::clamp(end * targets - target * samples, 0, samples);
        return (covered * 256 + samples / 2) / samples;
    };
    return weightUpTo(sample + 1) - weightUpTo(sample);
}

/// The average that these weights make, rounded once.
int WeightedAverage(const RgbPicture& whole, int x, int y, int channel, int width, int height) {
    int sum = 256 * 256 / 2;
    for (int row = y * whole.height / height; row * height < (y + 1) * whole.height; ++row)
        for (int column = x * whole.width / width; column * width < (x + 1) * whole.width; ++column)
            sum +=
                Weight(row, y, whole.height, height) * Weight(column, x, whole.width, width) *
                whole.pixels[(static_cast<std::size_t>(row) * whole.width + column) * 3 + channel];
    return sum / (256 * 256);
}

TEST(ScreenPreview, WeighsIn256thsToTheLastBit) {
    struct Sizes {
        int fileWidth, fileHeight, width, height;
    };
    for (const auto& [fileWidth, fileHeight, width, height] : {Sizes{320, 400, 203, 151},
                                                               {320, 400, 128, 96},
                                                               {33, 21, 7, 5},
                                                               {35, 22, 35, 22},
                                                               {34, 23, 1, 1},
                                                               {31, 24, 30, 23},
                                                               {36, 18, 12, 6}}) {
        const auto file = Screen(fileWidth, fileHeight);
        const auto whole = ReadBmp(file);
        const auto preview = PreviewOfScreen(file, width, height);
        ASSERT_TRUE(whole && preview) << width;
        const std::uint8_t* value = preview->picture.pixels.data();
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                for (int c = 0; c < 3; ++c)
                    ASSERT_EQ(*value++, WeightedAverage(*whole, x, y, c, width, height))
                        << width << ": " << x << ", " << y;
    }
}

TEST(ScreenPreview, KeepsAFlatColourExactly) {
    const std::vector<std::uint8_t> indices(320 * 400, 255);
    std::vector<std::uint8_t> palette(1024, 255);
    const auto file = ColormappedBmp(indices.data(), 320, 400, 256, palette.data());
    const auto preview = PreviewOfScreen(file, 203, 151);
    ASSERT_TRUE(preview);
    for (const std::uint8_t value : preview->picture.pixels) ASSERT_EQ(value, 255);
}

TEST(ScreenPreview, LeavesOtherFilesToOtherReaders) {
    auto file = Screen(320, 400);
    EXPECT_FALSE(PreviewOfScreen(file, 321, 100));
    EXPECT_FALSE(PreviewOfScreen(file, 100, 401));
    file.resize(file.size() - 1);
    EXPECT_FALSE(PreviewOfScreen(file, 100, 100));
    file[28] = 24;
    EXPECT_FALSE(PreviewOfScreen(file, 100, 100));
    EXPECT_FALSE(PreviewOfScreen(pictures::FileBytes(), 100, 100));
}

}  // namespace
}  // namespace vistrel
