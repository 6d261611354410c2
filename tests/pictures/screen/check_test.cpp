// What the check says of screens that the system shows, and of each kind that it does not.
#include "pictures/screen/check.h"

#include <gtest/gtest.h>

#include <string>

#include "tests/pictures/screen/broken_screens.h"

namespace vistrel::test {
namespace {

using namespace screen;

using Faults = std::vector<ScreenFault>;

TEST(CheckedScreen, HasNoFaultWhenItStands) {
    EXPECT_EQ(FaultsOfScreen(SoundScreen().Encode()), Faults{});
}

TEST(CheckedScreen, HasNoFaultWhenItMoves) { EXPECT_EQ(FaultsOfScreen(MovingScreen()), Faults{}); }

TEST(CheckedScreen, HasNoFaultWhenAllOfItMoves) {
    Bytes file = MovingScreen();
    PutFirstMoving(file, 1);
    EXPECT_EQ(FaultsOfScreen(file), Faults{});
}

TEST(CheckedScreen, HasNoFaultWhenBytesFollowItsPixels) {
    Bytes file = MovingScreen();
    file.insert(file.end(), 100, 7);
    EXPECT_EQ(FaultsOfScreen(file), Faults{});
}

TEST(CheckedScreen, HasNoFaultWhenItCountsAll256Colours) {
    EXPECT_EQ(FaultsOfScreen(With([](BmpFile& f) { f.colorsUsed = 256; })), Faults{});
}

TEST(CheckedScreen, HasTheOneFaultThatItWasGiven) {
    for (const BrokenScreen& broken : BrokenScreens())
        EXPECT_EQ(FaultsOfScreen(broken.file), (Faults{broken.fault})) << InWords(broken.fault);
}

TEST(CheckedScreen, HasAllOfItsFaultsInOneOrder) {
    const Bytes file = With([](BmpFile& f) {
        f.width = 100;
        f.height = -50;
        f.palette.resize(200);
        f.colorsUsed = 200;
        f.pixels = PackIndices(MakeIndices(100, 50, 200), 100, 50, 8);
    });
    EXPECT_EQ(FaultsOfScreen(file), (Faults{ScreenFault::WrongSize, ScreenFault::TopDown,
                                            ScreenFault::ShortPalette, ScreenFault::NothingMoves}));
}

TEST(CheckedScreen, IsNoBitmapWhenItCannotBeRead) {
    Bytes tiny = MovingScreen();
    tiny.resize(2000);
    for (const Bytes& file : {Bytes{}, Bytes{'B', 'M'}, Bytes(5000, 'x'), tiny})
        EXPECT_EQ(FaultsOfScreen(file), (Faults{ScreenFault::NotABitmap}));
}

TEST(CheckedScreen, TakesTheLastPossibleMovingColourAndNoHigherOne) {
    Bytes file = MovingScreen();
    PutFirstMoving(file, 255);
    EXPECT_EQ(FaultsOfScreen(file), Faults{});
    for (const std::uint32_t count : {256u, 300u, 0xFFFFFFFFu}) {
        PutFirstMoving(file, count);
        EXPECT_EQ(FaultsOfScreen(file), (Faults{ScreenFault::CountOfColors})) << count;
    }
}

TEST(CheckedScreen, IsCutByASingleByte) {
    Bytes file = MovingScreen();
    file.pop_back();
    EXPECT_EQ(FaultsOfScreen(file), (Faults{ScreenFault::ShortPixels}));
}

TEST(CheckedScreen, HasEveryFaultInWordsOfItsOwn) {
    std::vector<std::string> words;
    for (int i = 0; i <= static_cast<int>(ScreenFault::NothingMoves); ++i) {
        words.push_back(InWords(static_cast<ScreenFault>(i)));
        EXPECT_FALSE(words.back().empty()) << i;
    }
    std::sort(words.begin(), words.end());
    EXPECT_EQ(std::adjacent_find(words.begin(), words.end()), words.end());
}

}  // namespace
}  // namespace vistrel::test
