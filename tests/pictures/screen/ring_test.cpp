// The colours that move.
#include "pictures/screen/ring.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "pictures/screen/layer.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {
namespace {

using namespace screen;

constexpr ScreenColor kBlack{0, 0, 0}, kBlue{0, 0, 200}, kWhite{255, 255, 255};

Ring RingOf(RingShape shape, int count, std::vector<ScreenColor> keys) {
    return {shape, std::move(keys), count, {}};
}

int Farthest(const ScreenColor& a, const ScreenColor& b) {
    int most = 0;
    for (std::size_t c = 0; c < 3; ++c) most = std::max(most, std::abs(a[c] - b[c]));
    return most;
}

TEST(Rings, HaveAsManyColoursAsAskedForWithinTheBounds) {
    for (const auto& [asked, given] :
         {std::pair(2, 2), {20, 20}, {64, 64}, {1, 2}, {-5, 2}, {65, 64}})
        for (const RingShape shape :
             {RingShape::Smooth, RingShape::Pulse, RingShape::Stripes, RingShape::Comet})
            for (const std::vector<ScreenColor>& keys :
                 {std::vector<ScreenColor>{}, {kBlue}, {kBlack, kWhite}, {kBlack, kBlue, kWhite}})
                EXPECT_EQ(RingColors(RingOf(shape, asked, keys)).size(), std::size_t(given));
}

TEST(Rings, ThatAreSmoothCloseWithoutASeam) {
    for (int count = 4; count <= kMostMoving; ++count) {
        const auto colors = RingColors(RingOf(RingShape::Smooth, count, {kBlack, kBlue, kWhite}));
        for (int i = 0; i < count; ++i)
            EXPECT_LE(Farthest(colors[i], colors[(i + 1) % count]), 255 * 3 / count + 2) << count;
        EXPECT_EQ(colors[0], kBlack);
    }
}

TEST(Rings, ThatPulseBeginAndEndAtRest) {
    const auto colors = RingColors(RingOf(RingShape::Pulse, 24, {kBlue, kWhite}));
    EXPECT_EQ(colors[0], kBlue);
    EXPECT_EQ(colors[23], kBlue);
    EXPECT_EQ(colors[12], kWhite);
    EXPECT_GE(std::count(colors.begin(), colors.end(), kBlue), 24 / 4);
    for (int i = 1; i < 12; ++i) EXPECT_EQ(colors[i], colors[24 - i]) << i;
}

TEST(Rings, OfStripesHaveNoOtherColours) {
    const auto colors = RingColors(RingOf(RingShape::Stripes, 21, {kBlack, kBlue, kWhite}));
    for (const ScreenColor& key : {kBlack, kBlue, kWhite})
        EXPECT_EQ(std::count(colors.begin(), colors.end(), key), 7);
}

TEST(Rings, OfACometShineAtOnceAndFade) {
    const auto colors = RingColors(RingOf(RingShape::Comet, 30, {kBlack, kWhite}));
    EXPECT_EQ(colors[0], kWhite);
    EXPECT_EQ(colors[29], kBlack);
    for (int i = 1; i < 30; ++i) EXPECT_LE(colors[i][0], colors[i - 1][0]) << i;
    EXPECT_EQ(std::count(colors.begin(), colors.end(), kBlack), 10);
}

TEST(Rings, OfAScreenAreJustItsColours) {
    IndexedScreen screen{1, 1, {0}, {}, 200};
    for (int i = 0; i < 256; ++i) screen.palette[i] = {std::uint8_t(i), 7, 9};
    const auto colors = RingColors(RingOfScreen(screen));
    ASSERT_EQ(colors.size(), 56u);
    for (int i = 0; i < 56; ++i) EXPECT_EQ(colors[i], (ScreenColor{std::uint8_t(200 + i), 7, 9}));
    screen.firstAnimated = 255;
    EXPECT_EQ(RingColors(RingOfScreen(screen)).size(), 1u);
    screen.firstAnimated = 0;
    EXPECT_EQ(RingOfScreen(screen), Ring{});
}

TEST(Rings, OfAnAreaGoFromDarkToLightAndBack) {
    const pictures::RgbPicture picture = MakePicture(320, 400);
    const auto luma = [](const ScreenColor& c) { return 77 * c[0] + 150 * c[1] + 29 * c[2]; };
    for (const int count : {2, 7, 20, 64}) {
        const auto colors = RingColors(RingOfArea(picture, RectangleArea(50, 50, 90, 90), count));
        ASSERT_EQ(colors.size(), std::size_t(count));
        for (int i = 1; i <= count / 2; ++i) {
            EXPECT_GE(luma(colors[i]), luma(colors[i - 1]));
            EXPECT_EQ(colors[i], colors[count - i]);
        }
        EXPECT_GT(luma(colors[count / 2]), luma(colors[0]) + 5000);
    }
}

TEST(Rings, OfAnAreaGiveItAboutTheColoursThatItHad) {
    const pictures::RgbPicture picture = MakePicture(320, 400);
    Layer layer;
    layer.pattern = Pattern::Brightness;
    layer.area = RectangleArea(50, 50, 90, 90);
    const auto colors = RingColors(RingOfArea(picture, layer.area, 64));
    const auto places = PlacesOf(layer, picture, 64);
    std::int64_t off = 0;
    for (std::size_t i = 0; i < kScreenPixels; ++i) {
        if (!layer.area.in[i]) continue;
        ASSERT_GE(places[i], 0);
        const ScreenColor& color = colors[places[i]];
        const std::uint8_t* const had = &picture.pixels[i * 3];
        off += std::abs(77 * (color[0] - had[0]) + 150 * (color[1] - had[1]) +
                        29 * (color[2] - had[2])) /
               256;
    }
    EXPECT_LT(off / (90 * 90), 4);
}

TEST(Rings, OfAnEmptyAreaAreBlack) {
    const auto colors = RingColors(RingOfArea(MakePicture(320, 400), Area(), 12));
    EXPECT_EQ(std::count(colors.begin(), colors.end(), kBlack), 12);
}

}  // namespace
}  // namespace vistrel::test
