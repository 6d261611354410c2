// A screen whose colours move and that is adjusted: what goes on moving, and what stands.
#include <gtest/gtest.h>

#include "pictures/compose/movement.h"
#include "pictures/file.h"
#include "tests/pictures/compose/scene.h"
#include "tests/pictures/screen/broken_screens.h"

namespace vistrel::test {
namespace {

using namespace compose;
using namespace pictures;
using namespace screen;

constexpr std::size_t kBar = std::size_t(395) * 320;  ///< MovingScreen moves in this row

IndexedScreen ReadScreen(const std::string& path) {
    const auto file = ReadWholeFile(path);
    const auto screen = file ? ReadIndexedScreen(*file) : std::nullopt;
    EXPECT_TRUE(screen);
    return screen.value_or(IndexedScreen{});
}

class MovingAdjusted : public testing::Test {
 protected:
    IndexedScreen Made(const Composition& composition) {
        const std::string target = folder.PathOf("made.sys");
        EXPECT_EQ(MakeScreen(source, target, composition), ConversionResult::Written);
        EXPECT_EQ(ReadWholeFile(target)->size(), 129078u);
        return ReadScreen(target);
    }

    static std::array<std::uint8_t, 3> ColorAt(const IndexedScreen& screen, std::size_t pixel) {
        return screen.palette[screen.indices[pixel]];
    }

    /// Turns the colours as the system does and tells which pixels ever change.
    static std::vector<bool> Changing(IndexedScreen screen) {
        std::vector<bool> changing(screen.indices.size());
        const IndexedScreen before = screen;
        for (int step = screen.firstAnimated; step < 256; ++step) {
            RotateColors(screen);
            for (std::size_t i = 0; i < changing.size(); ++i)
                if (ColorAt(screen, i) != ColorAt(before, i)) changing[i] = true;
        }
        return changing;
    }

    /// White letters over the left half of the rows 390 to 399.
    static Composition WithText() {
        Composition composition;
        TextMask line;
        line.letters = {0, 390, 160, 10, Bytes(160 * 10, 255)};
        line.color = {255, 255, 255};
        composition.text.push_back(line);
        return composition;
    }

    const Folder folder;
    const std::string source = folder.Save("LOGO.SYS", MovingScreen());
    const IndexedScreen before = ReadScreen(source);
};

TEST_F(MovingAdjusted, StaysAsItIsWhereNothingIsSet) {
    const IndexedScreen made = Made({});
    EXPECT_EQ(made.firstAnimated, 236);
    for (int entry = 236; entry < 256; ++entry)
        EXPECT_EQ(made.palette[entry], before.palette[entry]) << entry;
    for (std::size_t i = 0; i < made.indices.size(); ++i) {
        ASSERT_EQ(ColorAt(made, i), ColorAt(before, i)) << i;
        ASSERT_EQ(made.indices[i] >= 236, before.indices[i] >= 236) << i;
        if (before.indices[i] >= 236) {
            ASSERT_EQ(made.indices[i], before.indices[i]) << i;
        }
    }
}

TEST_F(MovingAdjusted, StandsUnderTheTextAloneAndMovesBesideIt) {
    const IndexedScreen made = Made(WithText());
    EXPECT_EQ(made.firstAnimated, 236);
    const std::vector<bool> changing = Changing(made);
    for (std::size_t i = 0; i < changing.size(); ++i)
        ASSERT_EQ(changing[i], i >= kBar + 160 && i < kBar + 320) << i;
    const std::array<std::uint8_t, 3> white{255, 255, 255};
    EXPECT_EQ(ColorAt(made, kBar + 80), white);
    EXPECT_EQ(made.indices[kBar + 200], before.indices[kBar + 200]);
}

TEST_F(MovingAdjusted, StandsUnderTextOfTheColourThatMovesThereToo) {
    Composition composition = WithText();
    const auto color = ColorAt(before, kBar + 5);
    composition.text[0].color = {color[0], color[1], color[2]};
    EXPECT_FALSE(Changing(Made(composition))[kBar + 5]);
}

TEST_F(MovingAdjusted, IsLitWithItsMovingColours) {
    Composition composition;
    composition.light.brightness = -100;
    composition.light.saturation = -100;
    const IndexedScreen made = Made(composition);
    EXPECT_EQ(made.firstAnimated, 236);
    for (int entry = 236; entry < 256; ++entry) {
        EXPECT_EQ(made.palette[entry][0], made.palette[entry][1]) << entry;
        EXPECT_LE(made.palette[entry][0], 127) << entry;
    }
}

TEST_F(MovingAdjusted, StandsStillWhenItIsTurnedOrFramedOtherwise) {
    for (const Orientation& turn : kTurns) {
        const bool turned = turn.quarterTurns != 0 || turn.mirrored;
        EXPECT_EQ(Made(WithFraming(FramingKind::Stretch, turn)).firstAnimated, turned ? 0 : 236);
    }
    Composition zoomed = WithFraming(FramingKind::Fill);
    zoomed.framing.zoom = 2 * kZoomOne;
    EXPECT_EQ(Made(zoomed).firstAnimated, 0);
    Composition cropped;
    cropped.crop = Crop{0, 0, 200, 400};
    EXPECT_EQ(Made(cropped).firstAnimated, 0);
}

// A screen has the shape of the screen: it fills it as it is.
TEST_F(MovingAdjusted, GoesOnWhenItFillsTheScreenAsItIs) {
    EXPECT_EQ(Made(WithFraming(FramingKind::Fill)).firstAnimated, 236);
    EXPECT_EQ(Made(WithFraming(FramingKind::Fit)).firstAnimated, 236);
}

TEST_F(MovingAdjusted, StandsStillWhereTooFewColoursAreLeftForTheRest) {
    Bytes file = MovingScreen();
    PutFirstMoving(file, kFewestStanding - 1);
    folder.Save("LOGO.SYS", file);
    EXPECT_EQ(Made({}).firstAnimated, 0);
    PutFirstMoving(file, kFewestStanding);
    folder.Save("LOGO.SYS", file);
    EXPECT_EQ(Made({}).firstAnimated, kFewestStanding);
}

TEST_F(MovingAdjusted, IsNoneWhereNothingMoves) {
    EXPECT_TRUE(ReadMovingScreen(source));
    Bytes file = SoundScreen().Encode();
    EXPECT_FALSE(ReadMovingScreen(folder.Save("still.sys", file)));
    // 236 and no pixel of these colours, or a screen that the system would not show.
    for (const BrokenScreen& broken : BrokenScreens()) {
        if (broken.fault == ScreenFault::NothingMoves || broken.fault == ScreenFault::WrongSize ||
            broken.fault == ScreenFault::RunLengthEncoded) {
            EXPECT_FALSE(ReadMovingScreen(folder.Save("broken.sys", broken.file)));
        }
    }
    EXPECT_FALSE(ReadMovingScreen(folder.PathOf("gone.sys")));
}

TEST_F(MovingAdjusted, IsShownInTheWindowAsItWillBe) {
    const auto read = ReadComposed(source);
    ASSERT_TRUE(read && read->moving);
    const Composition composition = WithText();
    const Framed framed = FrameFinely(*read, composition);
    const auto shown = ReduceMoving(read->moving, LevelsFor(composition.light, framed),
                                    Adjust(framed, composition), composition);
    ASSERT_TRUE(shown);
    const IndexedScreen made = Made(composition);
    EXPECT_EQ(shown->indices, made.indices);
    EXPECT_EQ(shown->palette, made.palette);
}

}  // namespace
}  // namespace vistrel::test
