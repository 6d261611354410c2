// The formulas of brightness, contrast, gamma, saturation and levels, against doubles.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "pictures/compose/light.h"
#include "tests/pictures/test_picture.h"

namespace vistrel::compose {
namespace {

constexpr ScreenRectangle kAll{0, 0, 40, 30};

RgbPicture Lit(const Light& light, RgbPicture picture, const ScreenRectangle& within = kAll) {
    ApplyLight(light, within, picture);
    return picture;
}

double Wanted(const Light& light, const Levels& levels, int value) {
    double c = (value - levels.black) / double(levels.white - levels.black);
    c += light.brightness / 200.0;
    c = (c - 0.5) * (100 + light.contrast) / std::max(100 - light.contrast, 1) + 0.5;
    return 255 * std::pow(std::clamp(c, 0.0, 1.0), 100.0 / light.gamma);
}

void ExpectTable(const Light& light, const Levels& levels) {
    const auto table = ToneTable(light, levels);
    for (int i = 0; i < 256; ++i) {
        ASSERT_NEAR(table[i], Wanted(light, levels, i), 0.52)
            << i << ", brightness " << light.brightness << ", contrast " << light.contrast
            << ", gamma " << light.gamma;
    }
}

TEST(LightTest, UntouchedLeavesEveryValueAsItIs) {
    const auto table = ToneTable({}, {});
    for (int i = 0; i < 256; ++i) EXPECT_EQ(table[i], i);
    const RgbPicture picture = test::MakePicture(40, 30);
    EXPECT_EQ(Lit({}, picture).pixels, picture.pixels);
}

TEST(LightTest, TheTableFollowsTheFormulas) {
    for (const int brightness : {-100, -31, 0, 7, 100})
        for (const int contrast : {-100, -40, 0, 33, 90})
            for (const int gamma : {10, 45, 99, 100, 101, 220, 500})
                ExpectTable({brightness, contrast, gamma, 0, false}, {});
    ExpectTable({0, 0, 100, 0, false}, {20, 200});
    ExpectTable({5, 10, 120, 0, false}, {3, 130});
}

TEST(LightTest, HalfBrightnessMovesByAQuarterOfTheRange) {
    const auto table = ToneTable({50, 0, 100, 0, false}, {});
    EXPECT_EQ(table[0], 64);
    EXPECT_EQ(table[100], 164);
    EXPECT_EQ(table[255], 255);
}

TEST(LightTest, LeastContrastIsGreyAndMostIsBlackAndWhite) {
    const auto least = ToneTable({0, -100, 100, 0, false}, {});
    const auto most = ToneTable({0, 100, 100, 0, false}, {});
    for (int i = 0; i < 256; ++i) {
        EXPECT_EQ(least[i], 128);
        EXPECT_EQ(most[i], i < 127 ? 0 : i > 128 ? 255 : most[i]);
    }
}

TEST(LightTest, GammaAboveAHundredIsLighterAndKeepsBlackAndWhite) {
    const auto table = ToneTable({0, 0, 220, 0, false}, {});
    EXPECT_EQ(table[0], 0);
    EXPECT_EQ(table[255], 255);
    EXPECT_EQ(table[128], 186);
    for (int i = 1; i < 256; ++i) EXPECT_GE(table[i], table[i - 1]);
}

TEST(LightTest, ValuesOutOfRangeAreTakenAsTheNearerEnd) {
    EXPECT_EQ(ToneTable({2000000000, 0, 100, 0, false}, {}),
              ToneTable({100, 0, 100, 0, false}, {}));
    EXPECT_EQ(ToneTable({0, -2000000000, 0, 0, false}, {}), ToneTable({0, -100, 10, 0, false}, {}));
}

TEST(LightTest, NoSaturationIsTheLumaOfEachPixel) {
    const RgbPicture picture = test::MakePicture(40, 30);
    const RgbPicture grey = Lit({0, 0, 100, -100, false}, picture);
    for (std::size_t i = 0; i < picture.pixels.size(); i += 3) {
        const double luma =
            .299 * picture.pixels[i] + .587 * picture.pixels[i + 1] + .114 * picture.pixels[i + 2];
        for (int c = 0; c < 3; ++c) ASSERT_NEAR(grey.pixels[i + c], luma, 0.51);
    }
}

TEST(LightTest, SaturationMovesChannelsAwayFromLuma) {
    const RgbPicture picture = test::MakePicture(40, 30);
    for (const int saturation : {-60, 35, 100}) {
        const RgbPicture result = Lit({0, 0, 100, saturation, false}, picture);
        for (std::size_t i = 0; i < picture.pixels.size(); i += 3) {
            const double luma = std::round(.299 * picture.pixels[i] + .587 * picture.pixels[i + 1] +
                                           .114 * picture.pixels[i + 2]);
            for (int c = 0; c < 3; ++c) {
                const double wanted =
                    luma + (picture.pixels[i + c] - luma) * (100 + saturation) / 100;
                ASSERT_NEAR(result.pixels[i + c], std::clamp(wanted, 0.0, 255.0), 1.1);
            }
        }
    }
}

TEST(LightTest, GreyStaysGreyWhateverTheSaturation) {
    RgbPicture picture{40, 30, {}};
    for (int i = 0; i < 40 * 30; ++i) picture.pixels.insert(picture.pixels.end(), 3, i % 256);
    EXPECT_EQ(Lit({0, 0, 100, 100, false}, picture).pixels, picture.pixels);
}

TEST(LightTest, AutoMakesDarkestAndLightestBlackAndWhite) {
    RgbPicture picture{40, 30, {}};
    for (int i = 0; i < 40 * 30 * 3; ++i) picture.pixels.push_back(60 + i % 101);
    const Levels levels = LevelsOf(picture, kAll);
    EXPECT_EQ(levels, (Levels{60, 160}));
    const RgbPicture lit = Lit({0, 0, 100, 0, true}, picture);
    EXPECT_EQ(*std::min_element(lit.pixels.begin(), lit.pixels.end()), 0);
    EXPECT_EQ(*std::max_element(lit.pixels.begin(), lit.pixels.end()), 255);
}

TEST(LightTest, AutoDoesNotHangOnAFewPixels) {
    RgbPicture picture{40, 30, {}};
    for (int i = 0; i < 40 * 30 * 3; ++i) picture.pixels.push_back(60 + i % 101);
    for (int i = 0; i < 15; ++i) picture.pixels[i] = i % 2 == 0 ? 0 : 255;
    const Levels levels = LevelsOf(picture, kAll);
    EXPECT_NEAR(levels.black, 60, 1);
    EXPECT_NEAR(levels.white, 160, 1);
}

TEST(LightTest, AutoLeavesAPictureOfOneColorAsItIs) {
    for (const int value : {0, 77, 255}) {
        const RgbPicture flat{40, 30, std::vector<std::uint8_t>(40 * 30 * 3, value)};
        EXPECT_EQ(Lit({0, 0, 100, 0, true}, flat).pixels, flat.pixels);
    }
}

TEST(LightTest, NothingOutsideTheRectangleIsTouchedOrCounted) {
    RgbPicture picture{40, 30, std::vector<std::uint8_t>(40 * 30 * 3, 0)};
    const ScreenRectangle within{5, 10, 20, 8};
    for (int y = 0; y < 8; ++y)
        for (int x = 0; x < 20 * 3; ++x)
            picture.pixels[((10 + y) * 40 + 5) * 3 + x] = 100 + (x + y) % 50;
    EXPECT_EQ(LevelsOf(picture, within), (Levels{100, 149}));
    const RgbPicture lit = Lit({50, 0, 100, 20, false}, picture, within);
    for (int i = 0; i < 40 * 30; ++i) {
        const int x = i % 40, y = i / 40;
        const bool inside = x >= 5 && x < 25 && y >= 10 && y < 18;
        ASSERT_EQ(lit.pixels[i * 3] != 0, inside) << x << ", " << y;
    }
}

}  // namespace
}  // namespace vistrel::compose
