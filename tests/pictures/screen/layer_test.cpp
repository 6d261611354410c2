// Where pixels stand on the ring.
#include "pictures/screen/layer.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <map>
#include <set>

#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {
namespace {

using namespace screen;

constexpr int kCount = 20;

std::vector<RingPlace> Places(Pattern pattern, const Area& area, int size = 0,
                              bool reversed = false, std::optional<ScreenPoint> centre = {}) {
    Layer layer;
    layer.pattern = pattern;
    layer.area = area;
    layer.size = size;
    layer.reversed = reversed;
    layer.centre = centre;
    return PlacesOf(layer, MakePicture(320, 400), kCount);
}

Area Everything() { return RectangleArea(0, 0, 320, 400); }

constexpr Pattern kAll[] = {Pattern::Along,       Pattern::Dots,        Pattern::Brightness,
                            Pattern::LeftToRight, Pattern::TopToBottom, Pattern::Rings,
                            Pattern::Rays,        Pattern::Diagonal,    Pattern::Noise,
                            Pattern::Pieces,      Pattern::Waves,       Pattern::Ripples,
                            Pattern::Plasma,      Pattern::Rain,        Pattern::Stars};

TEST(Layers, PlaceAllOfTheirAreaAndNothingElse) {
    const Area area = RectangleArea(40, 40, 200, 300);
    for (const Pattern pattern : kAll) {
        const auto places = Places(pattern, area);
        ASSERT_EQ(places.size(), kScreenPixels);
        for (std::size_t i = 0; i < kScreenPixels; ++i) {
            ASSERT_EQ(places[i] == kStands, area.in[i] == 0) << int(pattern) << ": " << i;
            ASSERT_LT(places[i], kCount);
        }
    }
}

TEST(Layers, UseAllColoursOfTheRing) {
    for (const Pattern pattern : kAll) {
        if (pattern == Pattern::Pieces) continue;  // has one piece here
        const auto places = Places(pattern, Everything(), pattern == Pattern::Dots ? 20 : 0);
        std::set<RingPlace> used(places.begin(), places.end());
        used.erase(kGap);
        EXPECT_EQ(used.size(), std::size_t(kCount)) << int(pattern);
    }
}

TEST(Layers, HaveGapsBetweenDotsDropsAndStarsOnly) {
    for (const Pattern pattern : kAll) {
        const auto places = Places(pattern, Everything(), pattern == Pattern::Dots ? 20 : 0);
        const bool has = std::find(places.begin(), places.end(), kGap) != places.end();
        EXPECT_EQ(has,
                  pattern == Pattern::Dots || pattern == Pattern::Rain || pattern == Pattern::Stars)
            << int(pattern);
    }
}

TEST(Layers, MoveTheOtherWayWhenReversed) {
    for (const Pattern pattern : kAll) {
        const auto one = Places(pattern, Everything());
        const auto other = Places(pattern, Everything(), 0, true);
        for (std::size_t i = 0; i < kScreenPixels; ++i) {
            const int wanted = one[i] < 0 ? one[i] : (kCount - one[i]) % kCount;
            ASSERT_EQ(other[i], wanted) << int(pattern);
        }
    }
}

/// Where a colour is one step later: its place on the ring is then one lower.
TEST(Layers, MoveToTheRightDownAndOutwards) {
    const auto along = Places(Pattern::Along, RectangleArea(0, 390, 320, 10));
    const auto down = Places(Pattern::TopToBottom, Everything());
    const auto out = Places(Pattern::Rings, Everything());
    const auto waves = Places(Pattern::Waves, Everything());
    const auto falls = [](RingPlace from, RingPlace to) {
        return (from - to + kCount) % kCount <= 1;
    };
    for (int x = 1; x < 320; ++x) {
        EXPECT_TRUE(falls(along[Area::At(x - 1, 395)], along[Area::At(x, 395)])) << x;
        EXPECT_TRUE(x < 165 || falls(out[Area::At(x - 1, 200)], out[Area::At(x, 200)])) << x;
    }
    for (int y = 1; y < 400; ++y) {
        EXPECT_TRUE(falls(down[Area::At(7, y - 1)], down[Area::At(7, y)])) << y;
        EXPECT_TRUE(falls(waves[Area::At(7, y - 1)], waves[Area::At(7, y)])) << y;
    }
    EXPECT_NE(along[Area::At(0, 395)], along[Area::At(200, 395)]);
}

TEST(Layers, TurnRaysClockwise) {
    const auto places = Places(Pattern::Rays, Everything(), 1);
    // To the right, down, to the left, up: each a quarter of the ring on.
    const RingPlace right = places[Area::At(300, 202)], below = places[Area::At(158, 380)];
    const RingPlace left = places[Area::At(20, 197)], above = places[Area::At(162, 20)];
    EXPECT_EQ((right - below + kCount) % kCount, kCount / 4);
    EXPECT_EQ((below - left + kCount) % kCount, kCount / 4);
    EXPECT_EQ((left - above + kCount) % kCount, kCount / 4);
}

TEST(Layers, AreRoundAsTheyAreSeen) {
    // A pixel is 5 wide where it is 3 high: 30 columns are as far as 50 rows.
    const auto rings = Places(Pattern::Rings, Everything(), 400, false, ScreenPoint{160, 200});
    for (const int part : {1, 2, 3})
        EXPECT_NEAR(rings[Area::At(160 + 30 * part, 200)], rings[Area::At(160, 200 + 50 * part)],
                    1);
    const auto dots = Places(Pattern::Dots, RectangleArea(0, 100, 320, 100), 100);
    int columns = 0, rows = 0;
    const int column = 3 * 30 + 16;  // within the second dot
    for (int x = 0; x < 320; ++x) columns += dots[Area::At(x, 150)] == dots[Area::At(column, 150)];
    for (int y = 0; y < 400; ++y) rows += dots[Area::At(column, y)] >= 0;
    EXPECT_GT(columns, 30);
    EXPECT_NEAR(columns * 5, rows * 3, 25);
}

TEST(Layers, RepeatAfterTheirSize) {
    // 50 rows are 30 columns.
    const auto across = Places(Pattern::LeftToRight, Everything(), 50);
    const auto down = Places(Pattern::TopToBottom, Everything(), 50);
    for (int i = 0; i < 200; ++i) {
        EXPECT_EQ(across[Area::At(i, 9)], across[Area::At(i + 30, 9)]) << i;
        EXPECT_EQ(down[Area::At(9, i)], down[Area::At(9, i + 50)]) << i;
    }
}

TEST(Layers, OfPiecesMoveEachPieceAsOne) {
    Area windows;
    for (int i = 0; i < 40; ++i) Add(windows, RectangleArea(20 * (i % 8), 30 * (i / 8), 10, 12));
    const auto places = Places(Pattern::Pieces, windows);
    std::set<RingPlace> used;
    for (int i = 0; i < 40; ++i) {
        const RingPlace place = places[Area::At(20 * (i % 8), 30 * (i / 8))];
        used.insert(place);
        for (int y = 0; y < 12; ++y)
            for (int x = 0; x < 10; ++x)
                ASSERT_EQ(places[Area::At(20 * (i % 8) + x, 30 * (i / 8) + y)], place);
    }
    EXPECT_EQ(used.size(), std::size_t(kCount));
}

TEST(Layers, OfStarsLeaveFromTheCentre) {
    const auto places = Places(Pattern::Stars, Everything(), 200, false, ScreenPoint{60, 100});
    const auto count = [&](int x, int y) {
        int found = 0;
        for (int row = y - 50; row < y + 50; ++row)
            for (int column = x - 30; column < x + 30; ++column)
                found += places[Area::At(column, row)] >= 0;
        return found;
    };
    EXPECT_GT(count(60, 100), 2 * count(260, 300));
    EXPECT_GT(count(260, 300), 0);
}

TEST(Layers, OfStarsFlyFasterAsTheyComeNearer) {
    const auto places = Places(Pattern::Stars, Everything(), 1, false, ScreenPoint{160, 200});
    std::map<int, std::vector<int>> ways;  // from the centre, of each place
    for (int y = 0; y < 400; ++y)
        for (int x = 0; x < 320; ++x)
            if (places[Area::At(x, y)] >= 0)
                ways[places[Area::At(x, y)]].push_back(25 * (x - 160) * (x - 160) +
                                                       9 * (y - 200) * (y - 200));
    const auto nearest =
        std::min_element(ways.begin(), ways.end(),
                         [](const auto& a, const auto& b) { return a.second[0] < b.second[0]; });
    std::vector<double> steps;
    for (int step = 0, place = nearest->first; ways.contains(place) && step < kCount;
         ++step, place = (place + kCount - 1) % kCount)
        steps.push_back(std::sqrt(ways[place][0]));
    ASSERT_GE(steps.size(), 10u);
    // Dots near the centre cover each other.
    for (std::size_t i = 3; i < steps.size(); ++i) EXPECT_GT(steps[i], steps[i - 3]) << i;
    EXPECT_GT(steps.back() - steps[steps.size() - 2], 2 * (steps[2] - steps[0]));
}

TEST(Layers, OfAScreenHoldItsMovingPixels) {
    IndexedScreen screen{320, 400, MakeIndices(320, 400, 256), {}, 250};
    const Layer layer = LayerOfScreen(screen);
    EXPECT_EQ(layer.size, 6);
    for (std::size_t i = 0; i < kScreenPixels; ++i) {
        ASSERT_EQ(layer.area.in[i], screen.indices[i] >= 250);
        ASSERT_EQ(layer.places[i], layer.area.in[i] ? screen.indices[i] - 250 : 0);
    }
    screen.firstAnimated = 0;
    EXPECT_TRUE(LayerOfScreen(screen).area.IsEmpty());
    EXPECT_TRUE(LayerOfScreen({100, 100, Bytes(10000, 255), {}, 200}).area.IsEmpty());
}

}  // namespace
}  // namespace vistrel::test
