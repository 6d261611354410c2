// Parts of a screen.
#include "pictures/screen/area.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vistrel::test {
namespace {

using namespace screen;

int SizeOf(const Area& area) {
    return static_cast<int>(std::count(area.in.begin(), area.in.end(), 1));
}

/// A white screen with two black squares that touch at a corner, and a dark grey one.
pictures::RgbPicture Squares() {
    pictures::RgbPicture picture{320, 400, std::vector<std::uint8_t>(kScreenPixels * 3, 255)};
    const auto paint = [&](int left, int top, std::uint8_t grey) {
        for (int y = top; y < top + 10; ++y)
            std::fill_n(picture.pixels.begin() + static_cast<std::ptrdiff_t>(Area::At(left, y) * 3),
                        30, grey);
    };
    paint(20, 20, 0);
    paint(30, 30, 0);
    paint(100, 100, 30);
    return picture;
}

TEST(Areas, RectanglesAreCutToTheScreen) {
    EXPECT_EQ(SizeOf(RectangleArea(10, 20, 30, 40)), 1200);
    EXPECT_EQ(BoundsOf(RectangleArea(10, 20, 30, 40)), (ScreenBounds{10, 20, 40, 60}));
    EXPECT_EQ(BoundsOf(RectangleArea(-5, 390, 10, 30)), (ScreenBounds{0, 390, 5, 400}));
    EXPECT_EQ(SizeOf(RectangleArea(-2147483647, -5, 2147483647, 10)), 0);
    EXPECT_EQ(SizeOf(RectangleArea(0, 0, 2147483647, 2147483647)), 320 * 400);
    EXPECT_TRUE(RectangleArea(10, 10, -3, 5).IsEmpty());
    EXPECT_TRUE(BoundsOf(Area()).IsEmpty());
}

TEST(Areas, LassosHoldWhatIsInsideOfThem) {
    const ScreenPoint square[] = {{10, 10}, {30, 10}, {30, 20}, {10, 20}};
    EXPECT_EQ(LassoArea(square), RectangleArea(10, 10, 20, 10));
    const ScreenPoint triangle[] = {{0, 0}, {100, 0}, {0, 100}};
    const Area area = LassoArea(triangle);
    EXPECT_NEAR(SizeOf(area), 5000, 60);
    EXPECT_TRUE(area.Has(1, 1));
    EXPECT_TRUE(area.Has(49, 49));
    EXPECT_FALSE(area.Has(52, 52));
    const ScreenPoint slope[] = {{0, 0}, {10, 3}, {0, 3}};  // 3 1/3 and 6 2/3 columns are inside
    EXPECT_EQ(SizeOf(LassoArea(slope)), 4 + 7);
}

TEST(Areas, LassosThatCrossThemselvesLeaveOutWhatTheyGoRoundTwice) {
    const ScreenPoint twice[] = {{10, 10}, {50, 10}, {50, 50}, {10, 50}, {10, 10},
                                 {20, 20}, {40, 20}, {40, 40}, {20, 40}, {20, 20}};
    const Area area = LassoArea(twice);
    EXPECT_TRUE(area.Has(15, 15));
    EXPECT_FALSE(area.Has(30, 30));
    EXPECT_EQ(SizeOf(area), 1600 - 400);
}

TEST(Areas, LassosReachBeyondTheScreen) {
    const ScreenPoint far[] = {{-1000000000, -1000000000},
                               {2000000000, -1000000000},
                               {2000000000, 2000000000},
                               {-1000000000, 2000000000}};
    EXPECT_EQ(SizeOf(LassoArea(far)), 320 * 400);
    const ScreenPoint line[] = {{0, 0}, {300, 300}};
    EXPECT_TRUE(LassoArea(line).IsEmpty());
    EXPECT_TRUE(LassoArea({}).IsEmpty());
}

TEST(Areas, OfLikeColourAreFoundByTheirSidesOrEverywhere) {
    const pictures::RgbPicture picture = Squares();
    EXPECT_EQ(LikeColorArea(picture, {25, 25}, 0, true), RectangleArea(20, 20, 10, 10));
    EXPECT_EQ(SizeOf(LikeColorArea(picture, {25, 25}, 0, false)), 200);
    EXPECT_EQ(SizeOf(LikeColorArea(picture, {25, 25}, 15, false)), 300);
    EXPECT_EQ(SizeOf(LikeColorArea(picture, {25, 25}, 15, true)), 100);
    EXPECT_EQ(SizeOf(LikeColorArea(picture, {0, 0}, 0, true)), 320 * 400 - 300);
}

TEST(Areas, OfLikeColourTakeAllAtTheHighestTolerance) {
    EXPECT_EQ(SizeOf(LikeColorArea(Squares(), {25, 25}, 100, false)), 320 * 400);
    EXPECT_EQ(SizeOf(LikeColorArea(Squares(), {25, 25}, 99, false)), 300);
    EXPECT_EQ(SizeOf(LikeColorArea(Squares(), {25, 25}, 1000, false)), 320 * 400);
    EXPECT_EQ(SizeOf(LikeColorArea(Squares(), {25, 25}, -7, false)), 200);
}

TEST(Areas, OfLikeColourGrowWithTheTolerance) {
    pictures::RgbPicture picture = Squares();
    for (std::size_t i = 0; i < kScreenPixels; ++i) picture.pixels[i * 3] = std::uint8_t(i % 256);
    int before = 0;
    for (int tolerance = 0; tolerance <= 60; ++tolerance) {
        const int size = SizeOf(LikeColorArea(picture, {0, 0}, tolerance, false));
        EXPECT_GE(size, before) << tolerance;
        EXPECT_TRUE(tolerance == 0 || before >= 320 * 390 || size > before) << tolerance;
        before = size;
    }
}

TEST(Areas, OfLikeColourAreEmptyOutsideThePicture) {
    for (const ScreenPoint at : {ScreenPoint{-1, 0}, {320, 0}, {0, 400}, {0, -1}})
        EXPECT_TRUE(LikeColorArea(Squares(), at, 100, false).IsEmpty());
}

TEST(Areas, AreInvertedAddedAndRemoved) {
    Area area = RectangleArea(0, 0, 10, 10);
    Add(area, RectangleArea(5, 0, 10, 10));
    EXPECT_EQ(area, RectangleArea(0, 0, 15, 10));
    Remove(area, RectangleArea(0, 0, 5, 400));
    EXPECT_EQ(area, RectangleArea(5, 0, 10, 10));
    Invert(area);
    EXPECT_EQ(SizeOf(area), 320 * 400 - 100);
    EXPECT_FALSE(area.Has(5, 0));
}

}  // namespace
}  // namespace vistrel::test
