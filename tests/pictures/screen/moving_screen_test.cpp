// Screens whose colours move, as the system shows them.
#include "pictures/screen/moving_screen.h"

#include <gtest/gtest.h>

#include <algorithm>

#include "tests/pictures/screen/moving_kinds.h"

namespace vistrel::test {
namespace {

using namespace screen;

/// Sky, sea and stones, with a sun.
pictures::RgbPicture Landscape() {
    pictures::RgbPicture picture = MakePicture(320, 400);
    for (int y = 0; y < 400; ++y) {
        for (int x = 0; x < 320; ++x) {
            std::uint8_t* const pixel = &picture.pixels[Area::At(x, y) * 3];
            const int across = (x - 160) * 5, down = (y - 120) * 3;
            if (across * across + down * down < 200 * 200) {
                pixel[0] = 250, pixel[1] = 220, pixel[2] = 90;
            } else if (y < 220) {
                pixel[0] = std::uint8_t(y / 2), pixel[1] = std::uint8_t(80 + y / 3), pixel[2] = 230;
            }
        }
    }
    return picture;
}

/// A screen that moves already: a bar of 20 colours, and 30 others that stand.
IndexedScreen MovingBase() {
    IndexedScreen base{320, 400, MakeIndices(320, 400, 30), {}, 236};
    for (int i = 0; i < 256; ++i)
        base.palette[i] = {std::uint8_t(i * 3), std::uint8_t(i * 5), std::uint8_t(i)};
    for (int y = 380; y < 400; ++y)
        for (int x = 0; x < 320; ++x) base.indices[Area::At(x, y)] = std::uint8_t(236 + x / 16);
    return base;
}

TEST(MovingScreen, OfEveryKindIsGoodAtEachStep) {
    const pictures::RgbPicture landscape = Landscape();
    const IndexedScreen base = ScreenOf(landscape);
    for (const Kind& kind : Kinds()) ExpectGoodScreen(MakeMoving(kind, base, landscape), kind.name);
}

TEST(MovingScreen, WithoutItsOriginalIsGoodAtEachStep) {
    const IndexedScreen base = ScreenOf(Landscape());
    for (const Kind& kind : Kinds())
        ExpectGoodScreen(MakeMoving(kind, base, std::nullopt), kind.name + ", merged");
}

TEST(MovingScreen, IsTheFileThatItWasWhileNothingIsChanged) {
    for (const IndexedScreen& base : {MovingBase(), ScreenOf(Landscape())}) {
        const auto document = BeginMoving(base, std::nullopt);
        ASSERT_TRUE(document);
        const auto made = MakeMovingScreen(*document);
        ASSERT_TRUE(made);
        EXPECT_EQ(ScreenFile(*made), ScreenFile(base));
    }
}

TEST(MovingScreen, KeepsItsColoursAndTheirNumbersWhereTheyFit) {
    IndexedScreen base = MovingBase();
    base.firstAnimated = 0;
    for (std::uint8_t& index : base.indices) index = std::min<std::uint8_t>(index, 100);
    auto document = BeginMoving(base, std::nullopt);
    document->layers.push_back({Pattern::Along, RectangleArea(0, 0, 320, 10), false, 0, {}, {}});
    const auto made = MakeMovingScreen(*document);
    ASSERT_TRUE(made);
    for (std::size_t i = 320 * 10; i < kScreenPixels; ++i)
        ASSERT_EQ(made->indices[i], base.indices[i]) << i;
    for (int i = 0; i < 100; ++i) EXPECT_EQ(made->palette[i], base.palette[i]) << i;
}

TEST(MovingScreen, KeepsWhatMovedOnItBeforeInTheSameColours) {
    const IndexedScreen base = MovingBase();
    auto document = BeginMoving(base, std::nullopt);
    ASSERT_EQ(document->layers.size(), 1u);
    document->layers.push_back({Pattern::Rings, RectangleArea(0, 0, 100, 100), false, 0, {}, {}});
    const auto made = MakeMovingScreen(*document);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->firstAnimated, 236);
    for (std::size_t i = 320 * 380; i < kScreenPixels; ++i)
        ASSERT_EQ(made->indices[i], base.indices[i]) << i;
    for (int i = 236; i < 256; ++i) EXPECT_EQ(made->palette[i], base.palette[i]) << i;
    EXPECT_GE(made->indices[Area::At(50, 50)], 236);
}

TEST(MovingScreen, MovesAsAnotherOneDoesAlsoOnARingOfAnotherSize) {
    auto document = BeginMoving(ScreenOf(Landscape()), std::nullopt);
    const IndexedScreen other = OtherScreen(20);
    document->layers = {LayerOfScreen(other)};
    document->ring.count = 40;
    const auto made = MakeMovingScreen(*document);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->firstAnimated, 216);
    for (std::size_t i = 0; i < kScreenPixels; ++i) {
        if (other.indices[i] >= 236) {
            ASSERT_EQ(made->indices[i], 216 + (other.indices[i] - 236) * 2) << i;
        } else {
            ASSERT_LT(made->indices[i], 216) << i;
        }
    }
}

TEST(MovingScreen, StandsWhenNoPixelMoves) {
    auto document = BeginMoving(ScreenOf(Landscape()), Landscape());
    document->layers.push_back({});
    const auto made = MakeMovingScreen(*document);
    ASSERT_TRUE(made);
    EXPECT_EQ(made->firstAnimated, 0);
    EXPECT_EQ(FaultsOfScreen(ScreenFile(*made)), std::vector<ScreenFault>{});
}

/// The lower half would take all colours; the upper one has few.
pictures::RgbPicture SimpleAboveColorful() {
    pictures::RgbPicture picture = Landscape();
    for (std::size_t i = 0; i < kScreenPixels / 2; ++i)
        for (std::size_t c = 0; c < 3; ++c)
            picture.pixels[i * 3 + c] = std::uint8_t(i / 700 * (c + 1) + 3 * (i % 2));
    return picture;
}

MovingPicture WithMovingLowerHalf(const pictures::RgbPicture& picture) {
    auto document = BeginMoving(ScreenOf(picture), picture);
    document->layers.push_back(
        {Pattern::Plasma, RectangleArea(0, 200, 320, 200), false, 0, {}, {}});
    return *document;
}

TEST(MovingScreen, SpendsNoColourOnWhatIsCoveredByMovement) {
    const pictures::RgbPicture picture = SimpleAboveColorful();
    const auto made = MakeMovingScreen(WithMovingLowerHalf(picture));
    ASSERT_TRUE(made);
    const Bytes shown = SystemScreen(ScreenFile(*made)).Frame();
    EXPECT_TRUE(
        std::equal(shown.begin(), shown.begin() + kScreenPixels / 2 * 3, picture.pixels.begin()));
}

TEST(MovingScreen, KnowsTheNearestColoursOfWhatIsCovered) {
    const pictures::RgbPicture picture = SimpleAboveColorful();
    const auto still = ReduceStill(WithMovingLowerHalf(picture));
    ASSERT_TRUE(still);
    for (std::size_t i = kScreenPixels / 2; i < kScreenPixels; i += 97) {
        const auto distance = [&](const ScreenColor& color) {
            double sum = 0;
            for (std::size_t c = 0; c < 3; ++c) {
                const double off = color[c] - picture.pixels[i * 3 + c];
                sum += off * off;
            }
            return std::sqrt(sum);
        };
        double nearest = 1000;
        for (const ScreenColor& color : still->colors) nearest = std::min(nearest, distance(color));
        ASSERT_LE(distance(still->colors[still->indices[i]]), nearest + 28) << i;
    }
}

TEST(MovingScreen, HasTheGroundInJustItsColourBetweenWhatMoves) {
    auto document = BeginMoving(ScreenOf(Landscape()), Landscape());
    document->ground = ScreenColor{1, 2, 3};
    document->layers.push_back({Pattern::Dots, RectangleArea(0, 100, 320, 40), false, 0, {}, {}});
    const auto made = MakeMovingScreen(*document);
    ASSERT_TRUE(made);
    const SystemScreen shown(ScreenFile(*made));
    int gaps = 0;
    for (int y = 100; y < 140; ++y) {
        for (int x = 0; x < 320; ++x) {
            if (shown.Moves(x, y)) continue;
            ++gaps;
            ASSERT_EQ(shown.Shown(x, y), (SystemScreen::Color{1, 2, 3})) << x << ", " << y;
        }
    }
    EXPECT_GT(gaps, 2000);
}

TEST(MovingScreen, ShowsThePictureInGapsWithoutAGround) {
    const pictures::RgbPicture picture = Landscape();
    auto document = BeginMoving(ScreenOf(picture), picture);
    document->layers.push_back({Pattern::Rain, RectangleArea(0, 0, 320, 100), false, 0, {}, {}});
    const auto made = MakeMovingScreen(*document);
    ASSERT_TRUE(made);
    const SystemScreen shown(ScreenFile(*made));
    for (int x = 0; x < 320; ++x) {
        if (shown.Moves(x, 50)) continue;
        EXPECT_NEAR(shown.Shown(x, 50)[2], 230, 12) << x;
    }
}

TEST(MovingScreen, IsComposedOfAnEarlierStillPartWhileItIsChanged) {
    pictures::RgbPicture picture = Landscape();
    for (std::size_t i = 0; i < 20 * 320; ++i)  // a yellow beach
        std::copy_n(&picture.pixels[Area::At(160, 120) * 3], 3, picture.pixels.end() - 3 - 3 * i);
    auto document = BeginMoving(ScreenOf(picture), picture);
    document->layers.push_back({Pattern::Along, RectangleArea(0, 380, 320, 20), false, 0, {}, {}});
    const auto still = ReduceStill(*document);
    ASSERT_TRUE(still);
    document->ring.count = 64;
    document->ground = ScreenColor{};
    document->layers[0] = {Pattern::Dots, RectangleArea(0, 300, 320, 20), false, 0, {}, {}};
    const IndexedScreen made = Compose(*document, *still);
    EXPECT_EQ(made.firstAnimated, 192);
    const SystemScreen shown(ScreenFile(made));
    for (int y = 0; y < 400; ++y)
        for (int x = 0; x < 320; ++x)
            ASSERT_LE(shown.Moves(x, y), document->layers[0].area.Has(x, y)) << x << ", " << y;
    // Also where the bar was, the picture is there again.
    EXPECT_GT(
        PsnrWhere(shown.Frame(), picture.pixels, [](std::size_t i) { return i >= 320 * 380; }), 25);
}

TEST(MovingScreen, IsNotBegunWithAnotherSize) {
    const IndexedScreen small{10, 10, Bytes(100), {}, 0};
    EXPECT_FALSE(BeginMoving(small, std::nullopt));
    EXPECT_FALSE(BeginMoving(MovingBase(), MakePicture(10, 10)));
}

TEST(MovingScreen, HasRoomForARingOfAllColoursButOne) {
    IndexedScreen base = OtherScreen(255);
    for (const std::optional<ScreenColor>& ground :
         {std::optional<ScreenColor>(), {ScreenColor{}}}) {
        for (const auto& original : {std::optional<pictures::RgbPicture>(), {Landscape()}}) {
            auto document = BeginMoving(base, original);
            ASSERT_TRUE(document);
            document->ground = ground;
            document->layers.push_back(
                {Pattern::Dots, RectangleArea(0, 300, 99, 99), false, 9, {}, {}});
            const auto made = MakeMovingScreen(*document);
            ASSERT_TRUE(made);
            EXPECT_EQ(made->firstAnimated, 1);
        }
    }
}

}  // namespace
}  // namespace vistrel::test
