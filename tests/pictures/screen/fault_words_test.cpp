// The sentences that tell a user what is wrong with a screen.
#include "pictures/screen/fault_words.h"

#include <gtest/gtest.h>

namespace vistrel::test {
namespace {

using namespace screen;

TEST(FaultWords, SayNothingOfASoundScreen) { EXPECT_EQ(SentenceOn("LOGO.SYS", {}), ""); }

TEST(FaultWords, SayWhatKeepsAScreenFromBeingShown) {
    EXPECT_EQ(SentenceOn("LOGO.SYS", {ScreenFault::RunLengthEncoded}),
              "Windows would not show LOGO.SYS: it is run-length encoded.");
    EXPECT_EQ(SentenceOn("the wait screen", {ScreenFault::NotEightBits, ScreenFault::WrongSize,
                                             ScreenFault::CountOfColors}),
              "Windows would not show the wait screen: it does not have 8 bits a pixel, does not "
              "have 320 x 400 pixels and gives a count where the first moving colour belongs.");
}

TEST(FaultWords, TellAScreenThatFlashesFromOneThatIsNotShown) {
    EXPECT_EQ(SentenceOn("LOGO.SYS", {ScreenFault::CountOfColors}),
              "Windows would show LOGO.SYS with flashing colours: it gives a count where the first "
              "moving colour belongs.");
    EXPECT_EQ(SentenceOn("LOGO.SYS", {ScreenFault::NothingMoves}),
              "Windows would show LOGO.SYS, but it moves colours that no pixel has.");
}

TEST(FaultWords, AreFewWhereThereIsLittleRoom) {
    EXPECT_EQ(InShort({}), "");
    EXPECT_EQ(InShort({ScreenFault::CountOfColors}), "flashing colours");
    EXPECT_EQ(InShort({ScreenFault::TopDown, ScreenFault::ShortPalette}), "rows from the top...");
}

TEST(FaultWords, AreHalfASentenceForAQuestion) {
    EXPECT_EQ(InWords(std::vector{ScreenFault::TopDown, ScreenFault::ShortPalette}),
              "has its rows from the top and has fewer than 256 colours");
}

}  // namespace
}  // namespace vistrel::test
