// The 256 colours of a screen changed by hand.
#include "pictures/screen/board.h"

#include <gtest/gtest.h>

#include <set>

#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {
namespace {

using namespace screen;

IndexedScreen Colorful() {
    IndexedScreen screen{320, 400, MakeIndices(320, 400, 256), {}, 236};
    Numbers numbers(3);
    for (ScreenColor& color : screen.palette)
        for (std::uint8_t& part : color) part = std::uint8_t(numbers.Next(256));
    return screen;
}

Bytes Seen(const IndexedScreen& screen) {
    Bytes pixels;
    for (const std::uint8_t index : screen.indices)
        pixels.insert(pixels.end(), screen.palette[index].begin(), screen.palette[index].end());
    return pixels;
}

TEST(Board, LooksTheSameWhateverIsExchangedOrSorted) {
    IndexedScreen screen = Colorful();
    const Bytes seen = Seen(screen);
    ExchangeEntries(screen, 3, 250);
    EXPECT_EQ(screen.palette[3], Colorful().palette[250]);
    EXPECT_EQ(screen.palette[250], Colorful().palette[3]);
    EXPECT_EQ(Seen(screen), seen);
    SortEntries(screen, 10, 200, ColorOrder::Hue);
    EXPECT_EQ(Seen(screen), seen);
    SortEntries(screen, 0, 255, ColorOrder::Brightness);
    EXPECT_EQ(Seen(screen), seen);
    EXPECT_EQ(screen.firstAnimated, 236);
}

TEST(Board, SortsFromDarkToLightWithinTheBounds) {
    IndexedScreen screen = Colorful();
    SortEntries(screen, 236, 255, ColorOrder::Brightness);
    const auto luma = [&](int i) {
        const ScreenColor& c = screen.palette[i];
        return 77 * c[0] + 150 * c[1] + 29 * c[2];
    };
    for (int i = 237; i < 256; ++i) EXPECT_GE(luma(i) + 2, luma(i - 1)) << i;
    for (int i = 0; i < 236; ++i) EXPECT_EQ(screen.palette[i], Colorful().palette[i]) << i;
}

TEST(Board, SortsByHueWithGreysFirst) {
    IndexedScreen screen = Colorful();
    const ScreenColor wanted[] = {{9, 9, 9},     {200, 200, 200}, {250, 0, 0},   {250, 125, 0},
                                  {250, 250, 0}, {0, 250, 0},     {0, 250, 250}, {0, 0, 250},
                                  {250, 0, 250}, {250, 0, 9}};
    const int shuffled[] = {7, 2, 9, 0, 4, 1, 8, 3, 6, 5};
    for (int i = 0; i < 10; ++i) screen.palette[100 + i] = wanted[shuffled[i]];
    SortEntries(screen, 100, 109, ColorOrder::Hue);
    for (int i = 0; i < 10; ++i) EXPECT_EQ(screen.palette[100 + i], wanted[i]) << i;
}

TEST(Board, GivesPixelsTheNewColourOfTheirEntry) {
    IndexedScreen screen = Colorful();
    SetEntry(screen, 77, {1, 2, 3});
    EXPECT_EQ(screen.palette[77], (ScreenColor{1, 2, 3}));
    EXPECT_EQ(screen.indices, Colorful().indices);
}

TEST(Board, TakesTheFirstMovingEntry) {
    IndexedScreen screen = Colorful();
    for (const int first : {0, 1, 255}) {
        SetFirstMoving(screen, first);
        EXPECT_EQ(screen.firstAnimated, first);
    }
}

TEST(Board, IsLeftAloneByWhatIsNoEntry) {
    IndexedScreen screen = Colorful();
    ExchangeEntries(screen, -1, 5);
    ExchangeEntries(screen, 5, 256);
    SetEntry(screen, 256, {});
    SetEntry(screen, -1, {});
    SetFirstMoving(screen, 256);
    SetFirstMoving(screen, -1);
    SortEntries(screen, -3, 5, ColorOrder::Hue);
    SortEntries(screen, 9, 5, ColorOrder::Hue);
    SortEntries(screen, 9, 256, ColorOrder::Hue);
    EXPECT_EQ(screen.palette, Colorful().palette);
    EXPECT_EQ(screen.indices, Colorful().indices);
    EXPECT_EQ(screen.firstAnimated, 236);
}

}  // namespace
}  // namespace vistrel::test
