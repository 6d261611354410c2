// Masks over a picture, their outlines and shadows.
#include <gtest/gtest.h>

#include "pictures/compose/text.h"

namespace vistrel::compose {
namespace {

constexpr int kWidth = 320, kHeight = 400;

RgbPicture Grey() {
    return {kWidth, kHeight, std::vector<std::uint8_t>(kWidth * kHeight * 3, 100)};
}

Mask Dot(int left, int top, std::uint8_t cover) { return {left, top, 1, 1, {cover}}; }

Mask Block(int left, int top, int width, int height) {
    return {left, top, width, height, std::vector<std::uint8_t>(width * height, 255)};
}

const std::uint8_t* At(const RgbPicture& screen, int x, int y) {
    return &screen.pixels[(y * screen.width + x) * 3];
}

TextMask Line(const Mask& letters) { return {letters, {255, 0, 200}, {}, {}}; }

int CoverAt(const Mask& mask, int x, int y) {
    x -= mask.left;
    y -= mask.top;
    if (x < 0 || y < 0 || x >= mask.width || y >= mask.height) return 0;
    return mask.cover[y * mask.width + x];
}

TEST(TextTest, CoverMixesTheColorWithThePicture) {
    RgbPicture screen = Grey();
    PaintText({Line(Dot(3, 4, 255)), Line(Dot(4, 4, 0)), Line(Dot(5, 4, 51))}, screen);
    EXPECT_EQ(std::vector(At(screen, 3, 4), At(screen, 4, 4)),
              (std::vector<std::uint8_t>{255, 0, 200}));
    EXPECT_EQ(At(screen, 4, 4)[0], 100);
    EXPECT_EQ(std::vector(At(screen, 5, 4), At(screen, 6, 4)),
              (std::vector<std::uint8_t>{131, 80, 120}));
    EXPECT_EQ(At(screen, 3, 5)[0], 100);
}

TEST(TextTest, LettersLieOverTheirEdgeAndLaterLinesOverEarlierOnes) {
    RgbPicture screen = Grey();
    const TextMask first{Dot(7, 7, 255), {1, 1, 1}, Block(6, 6, 3, 3), {2, 2, 2}};
    const TextMask second{Dot(8, 8, 255), {3, 3, 3}, {}, {}};
    PaintText({first, second}, screen);
    EXPECT_EQ(*At(screen, 7, 7), 1);
    EXPECT_EQ(*At(screen, 6, 6), 2);
    EXPECT_EQ(*At(screen, 8, 8), 3);
}

TEST(TextTest, WhatReachesBeyondTheScreenIsCutOff) {
    RgbPicture screen = Grey();
    PaintText(
        {Line(Block(-5, -5, 1000, 7)), Line(Block(318, 395, 40, 40)), Line(Block(-9, 100, 10, 1))},
        screen);
    EXPECT_EQ(*At(screen, 0, 0), 255);
    EXPECT_EQ(*At(screen, 319, 1), 255);
    EXPECT_EQ(*At(screen, 0, 2), 100);
    EXPECT_EQ(*At(screen, 317, 395), 100);
    EXPECT_EQ(*At(screen, 318, 395), 255);
    EXPECT_EQ(*At(screen, 319, 399), 255);
    EXPECT_EQ(*At(screen, 0, 100), 255);
    EXPECT_EQ(*At(screen, 1, 100), 100);
}

TEST(TextTest, WhatLiesOutsideTheScreenIsNotPainted) {
    RgbPicture screen = Grey();
    const int far = 2147483600;
    PaintText({Line(Block(320, 0, 5, 5)), Line(Block(0, 400, 5, 5)), Line(Block(-5, 0, 5, 5)),
               Line(Block(0, -5, 5, 5)), Line(Dot(far, far, 255)), Line(Dot(-far, -far, 255)),
               Line(Mask{})},
              screen);
    EXPECT_EQ(screen.pixels, Grey().pixels);
}

TEST(TextTest, AnOutlineReachesAsFarAcrossAsDown) {
    const Mask outline = OutlineOf(Block(10, 10, 4, 4));
    // Seen lengths: a pixel across is 5/3 of one down.
    EXPECT_EQ(CoverAt(outline, 9, 12), 255);
    EXPECT_EQ(CoverAt(outline, 8, 12), 0);
    EXPECT_EQ(CoverAt(outline, 12, 9), 255);
    EXPECT_NEAR(CoverAt(outline, 12, 8), 190, 3);
    EXPECT_EQ(CoverAt(outline, 12, 7), 0);
    EXPECT_EQ(CoverAt(outline, 14, 12), 255);
    EXPECT_NEAR(CoverAt(outline, 12, 15), 190, 3);
    EXPECT_NEAR(CoverAt(outline, 9, 9), 190, 3);
    EXPECT_EQ(CoverAt(outline, 12, 12), 255);
}

TEST(TextTest, AnOutlineIsAsSoftAsTheLetters) {
    EXPECT_EQ(CoverAt(OutlineOf(Dot(0, 0, 80)), 1, 0), 80);
    EXPECT_EQ(CoverAt(OutlineOf(Dot(0, 0, 80)), 0, 2), 60);
}

TEST(TextTest, AShadowFallsToTheRightAndDownAndIsSoft) {
    const Mask shadow = ShadowOf(Block(10, 10, 8, 8));
    EXPECT_EQ(CoverAt(shadow, 15, 17), 255);
    EXPECT_EQ(CoverAt(shadow, 12, 17), 191);
    EXPECT_EQ(CoverAt(shadow, 11, 17), 64);
    EXPECT_EQ(CoverAt(shadow, 10, 17), 0);
    EXPECT_EQ(CoverAt(shadow, 20, 17), 64);
    EXPECT_EQ(CoverAt(shadow, 15, 12), 64);
    EXPECT_EQ(CoverAt(shadow, 15, 21), 64);
    EXPECT_EQ(CoverAt(shadow, 15, 22), 0);
}

TEST(TextTest, NoLettersHaveNoEdge) {
    EXPECT_TRUE(OutlineOf({}).IsEmpty());
    EXPECT_TRUE(ShadowOf({}).IsEmpty());
}

}  // namespace
}  // namespace vistrel::compose
