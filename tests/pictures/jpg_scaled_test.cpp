// JPEG files read straight to a small size look like the whole picture scaled.
#include <algorithm>
#include <cmath>
#include <iterator>

#include "pictures/jpg/reader.h"
#include "pictures/scale/resize.h"
#include "tests/support/picture_files/jpg_maker.h"

namespace vistrel::test {

using namespace jpg;
using namespace pictures;
using namespace scale;

namespace {

// Waves and edges of several sizes in each channel, without noise.
RgbPicture MakeScene(int width, int height) {
    RgbPicture picture{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double u = static_cast<double>(x) / width, v = static_cast<double>(y) / height;
            const double wave = std::sin(40 * u * v) * std::sin(25 * v - 9 * u);
            const int edge = (x * 7 / width + y * 5 / height) % 2 * 40;
            picture.pixels.push_back(static_cast<std::uint8_t>(110 + 60 * wave + edge));
            picture.pixels.push_back(static_cast<std::uint8_t>(40 + 150 * u + edge));
            picture.pixels.push_back(static_cast<std::uint8_t>(200 - 120 * v * u - edge));
        }
    }
    return picture;
}

double Psnr(const RgbPicture& one, const RgbPicture& other) {
    double squares = 0;
    for (std::size_t i = 0; i < one.pixels.size(); ++i) {
        const double difference = one.pixels[i] - other.pixels[i];
        squares += difference * difference;
    }
    return squares == 0
               ? 99
               : 10 * std::log10(255.0 * 255.0 * static_cast<double>(one.pixels.size()) / squares);
}

// The decibels between the file read to a size and read whole, then scaled.
double Nearness(const Bytes& file, int width, int height) {
    const std::optional<ScaledPicture> scaled = ReadJpgScaled(file, width, height);
    const std::optional<RgbPicture> whole = ReadJpg(file);
    EXPECT_TRUE(scaled.has_value() && whole.has_value());
    if (!scaled || !whole) return 0;
    EXPECT_EQ(scaled->picture.width, width);
    EXPECT_EQ(scaled->picture.height, height);
    EXPECT_EQ(scaled->fileWidth, whole->width);
    EXPECT_EQ(scaled->fileHeight, whole->height);
    return Psnr(scaled->picture, Resize(*whole, width, height));
}

TEST(JpgScaledTest, EveryReduction) {
    constexpr int kWidth = 480, kHeight = 400;
    for (const bool progressive : {false, true}) {
        JpgOptions options;
        options.progressive = progressive;
        options.sampling = {{2, 2}};
        const Bytes file = MakeJpg(MakeScene(kWidth, kHeight), options);
        const RgbPicture whole = DecodeByLibrary(file);
        // All pairs of one to eight frequencies of eight occur.
        for (int i = 1; i <= 8; ++i) {
            for (int j = 1; j <= 8; ++j) {
                const int width = kWidth * i / 13, height = kHeight * j / 13;
                const std::optional<ScaledPicture> scaled = ReadJpgScaled(file, width, height);
                ASSERT_TRUE(scaled.has_value());
                EXPECT_GE(Psnr(scaled->picture, Resize(whole, width, height)), 48)
                    << width << " x " << height << (progressive ? ", progressive" : "");
            }
        }
    }
}

TEST(JpgScaledTest, EverySampling) {
    const std::vector<std::pair<int, int>> samplings[] = {
        {{1, 1}}, {{2, 1}}, {{1, 2}}, {{2, 2}}, {{4, 1}}, {{2, 2}, {2, 1}, {1, 2}}};
    const RgbPicture scene = MakeScene(701, 523);
    for (const auto& sampling : samplings) {
        for (const bool progressive : {false, true}) {
            JpgOptions options;
            options.progressive = progressive;
            options.sampling = sampling;
            options.restartMcus = 9;
            EXPECT_GE(Nearness(MakeJpg(scene, options), 200, 170), 48)
                << sampling[0].first << " x " << sampling[0].second;
        }
    }
}

TEST(JpgScaledTest, EveryColor) {
    const RgbPicture scene = MakeScene(480, 360);
    for (const J_COLOR_SPACE color : {JCS_GRAYSCALE, JCS_RGB, JCS_CMYK, JCS_YCCK}) {
        for (const bool separateScans : {false, true}) {
            JpgOptions options;
            options.color = color;
            options.separateScans = separateScans;
            EXPECT_GE(Nearness(MakeJpg(scene, options), 100, 90), 48) << color;
        }
    }
}

// More would be asked of the memory than it should be to read these whole.
TEST(JpgScaledTest, LargePicturesOfInks) {
    const RgbPicture scene = MakeScene(2100, 1700);
    for (const J_COLOR_SPACE color : {JCS_CMYK, JCS_YCCK}) {
        for (const bool progressive : {false, true}) {
            JpgOptions options;
            options.color = color;
            options.progressive = progressive;
            const Bytes file = WithOrientation(MakeJpg(scene, options), 6, false);
            EXPECT_GE(Nearness(file, 320, 400), 48) << color << progressive;
        }
    }
}

TEST(JpgScaledTest, NoSmallerThanThePictureIsTheWholeOneScaled) {
    JpgOptions options;
    options.sampling = {{2, 2}};
    const Bytes file = MakeJpg(MakeScene(100, 80), options);
    const std::optional<RgbPicture> whole = ReadJpg(file);
    ASSERT_TRUE(whole.has_value());
    for (const auto& [width, height] : {std::pair{320, 400}, {100, 80}, {100, 40}, {50, 90}}) {
        const std::optional<ScaledPicture> scaled = ReadJpgScaled(file, width, height);
        ASSERT_TRUE(scaled.has_value());
        EXPECT_TRUE(scaled->picture.pixels == Resize(*whole, width, height).pixels);
    }
}

TEST(JpgScaledTest, LittleSmallerIsNearTheWholeOne) {
    JpgOptions options;
    options.sampling = {{2, 2}};
    EXPECT_GE(Nearness(MakeJpg(MakeScene(160, 120), options), 159, 119), 47);
}

TEST(JpgScaledTest, TurnedUpright) {
    const Bytes file = MakeJpg(MakeScene(800, 500), {});
    for (int orientation = 1; orientation <= 8; ++orientation) {
        EXPECT_GE(Nearness(WithOrientation(file, orientation, true), 120, 150), 48) << orientation;
    }
}

TEST(JpgScaledTest, NotTurnedByWhatComesBehindTheFirstScan) {
    JpgOptions options;
    options.progressive = true;
    const Bytes file = MakeJpg(MakeScene(800, 500), options);
    const std::uint8_t scan[] = {0xFF, 0xDA};
    const auto last = std::find_end(file.begin(), file.end(), std::begin(scan), std::end(scan));
    const Bytes late =
        WithOrientation(file, 6, true, static_cast<std::size_t>(last - file.begin()));
    EXPECT_GE(Nearness(late, 120, 150), 48);
    EXPECT_EQ(ReadJpg(late)->width, 800);
    EXPECT_FALSE(IsJpgToBeTurned(late));
}

TEST(JpgScaledTest, ExtremeShapes) {
    EXPECT_GE(Nearness(MakeJpg(MakeScene(3000, 9), {}), 300, 3), 40);
    EXPECT_GE(Nearness(MakeJpg(MakeScene(9, 3000), {}), 3, 300), 40);
    EXPECT_GE(Nearness(MakeJpg(MakeScene(64, 64), {}), 1, 1), 40);
}

TEST(JpgScaledTest, ImpossibleSizesAreRefused) {
    const Bytes file = MakeJpg(MakeScene(100, 80), {});
    for (const int side : {0, -1, 32768}) {
        EXPECT_FALSE(ReadJpgScaled(file, side, 10).has_value());
        EXPECT_FALSE(ReadJpgScaled(file, 10, side).has_value());
    }
}

}  // namespace
}  // namespace vistrel::test
