// Letters that the system draws for a screen.
#include <gtest/gtest.h>

#include <algorithm>

#include "adjust/text_line.h"
#include "pictures/preview/draw_letters.h"

namespace vistrel::test {

using namespace adjust;

using namespace pictures;
using namespace platform;
using namespace preview;

namespace {

/// The rectangle of a mask in which something is covered.
struct Ink {
    int left = 10000, top = 10000, right = -1, bottom = -1;
    explicit Ink(const compose::Mask& mask) {
        for (int y = 0; y < mask.height; ++y)
            for (int x = 0; x < mask.width; ++x) {
                if (mask.cover[static_cast<std::size_t>(y) * mask.width + x] < 128) continue;
                left = std::min(left, x);
                top = std::min(top, y);
                right = std::max(right, x);
                bottom = std::max(bottom, y);
            }
    }
    int width() const { return right - left + 1; }
    int height() const { return bottom - top + 1; }
};

TextFont Large() {
    TextFont font;
    font.tenthsOfPoint = 1200;
    return font;
}

TEST(Letters, AreSmooth) {
    const Letters letters = DrawLetters("O", Large());
    const auto& cover = letters.mask.cover;
    const auto between =
        std::count_if(cover.begin(), cover.end(), [](int c) { return c > 30 && c < 225; });
    const auto full = std::count(cover.begin(), cover.end(), 255);
    EXPECT_GT(between, 50);
    EXPECT_GT(full, 200);
}

// A pixel of the screen is 5/3 times as wide as it is high.
TEST(Letters, HaveTheirShapeOnTheScreenAsItIsSeen) {
    const Ink ink(DrawLetters("O", Large()).mask);
    const double seen = ink.width() * 5.0 / 3.0 / ink.height();
    EXPECT_GT(seen, 0.9);
    EXPECT_LT(seen, 1.15);
}

TEST(Letters, AreAsHighAsTheirPointsSay) {
    // An inch of 96 dots of the 480 that a screen is seen high.
    const Letters letters = DrawLetters("Hg", Large());
    const double points = letters.height * 480.0 / 400 * 72 / 96;
    EXPECT_GT(points, 120);
    EXPECT_LT(points, 150);
}

TEST(Letters, AreNoneOfNoText) { EXPECT_TRUE(DrawLetters("", Large()).mask.IsEmpty()); }

TEST(Letters, OfALineThatIsMuchTooLongAreCutOff) {
    const Letters letters = DrawLetters(std::string(2000, 'W'), Large());
    EXPECT_LE(letters.mask.width, 960);
    // What is placed by its middle or its right end is what is drawn.
    EXPECT_LE(letters.width, 960);
    EXPECT_EQ(letters.mask.cover.size(),
              static_cast<std::size_t>(letters.mask.width) * letters.mask.height);
}

TEST(Letters, OfAFontThatIsGoneAreDrawnInAnother) {
    TextFont font = Large();
    font.face = "No Such Font";
    const std::string other = FaceFor(font.face);
    EXPECT_NE(other, font.face);
    EXPECT_EQ(FaceFor(other), other);
    EXPECT_FALSE(DrawLetters("O", font).mask.IsEmpty());
}

TextLine LineOf(const std::string& text) {
    TextLine line;
    line.text = text;
    return line;
}

TEST(ALineOfText, SnapsToTheMiddleAndToTheMargins) {
    DrawnLine line(LineOf("Wait"));
    line.MoveNear(kLogoWidth / 2 + 4, 300);
    EXPECT_EQ(line.line().x, kLogoWidth / 2);
    EXPECT_EQ(line.line().y, 300);
    line.MoveNear(100, kLogoHeight / 2 - 6);
    EXPECT_EQ(line.line().x, 100);
    EXPECT_EQ(line.line().y, kLogoHeight / 2);
    line.Align(Alignment::Left);
    line.MoveNear(kMarginAcross + 3, 300);
    EXPECT_EQ(line.line().x, kMarginAcross);
    line.Align(Alignment::Right);
    line.MoveNear(kLogoWidth - kMarginAcross - 4, 300);
    EXPECT_EQ(line.line().x, kLogoWidth - kMarginAcross);
}

TEST(ALineOfText, KeepsItsAlignedEndWhereItIsWhenItGrows) {
    TextLine text = LineOf("Wait");
    text.alignment = Alignment::Right;
    text.x = 300;
    const DrawnLine brief(text);
    text.text = "Wait a while";
    const DrawnLine longer(text);
    const Ink first(brief.mask().letters), second(longer.mask().letters);
    EXPECT_NEAR(brief.mask().letters.left + first.right, 300, 3);
    EXPECT_NEAR(longer.mask().letters.left + second.right, 300, 3);
}

TEST(ALineOfText, TakesItsEdgeAlong) {
    for (const LetterEdge edge : {LetterEdge::Outline, LetterEdge::Shadow}) {
        TextLine text = LineOf("Wait");
        text.edge = edge;
        DrawnLine line(text);
        const int across = line.mask().edge.left - line.mask().letters.left;
        const int down = line.mask().edge.top - line.mask().letters.top;
        line.MoveTo(30, 70);
        EXPECT_EQ(line.mask().edge.left - line.mask().letters.left, across);
        EXPECT_EQ(line.mask().edge.top - line.mask().letters.top, down);
        EXPECT_TRUE(line.Covers(30, 70));
        EXPECT_FALSE(line.Covers(30, 170));
    }
}

}  // namespace
}  // namespace vistrel::test
