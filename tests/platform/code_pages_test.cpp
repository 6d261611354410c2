// Texts between this system's code pages and UTF-8.
#include "platform/code_pages.h"

#include <windows.h>

#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace platform;

namespace {

TEST(CodePages, GiveBackWhatTheyMadeUtf8Of) {
    for (const std::string& text : {std::string(), std::string("Blue"), OddName()})
        EXPECT_EQ(Utf8ToAnsi(AnsiToUtf8(text)), text);
    EXPECT_EQ(AnsiToUtf8("a/b"), "a/b");
    EXPECT_EQ(DosToUtf8("a/b"), "a/b");
}

TEST(CodePages, CarryWhatTheyLackAndWhatIsNoUtf8AsAnUnderscore) {
    EXPECT_EQ(Utf8ToAnsi("a\xF0\x9F\x8C\x86"
                         "b"),
              "a__b");
    EXPECT_EQ(Utf8ToAnsi("a\xF0\x9F"), "a_");
    EXPECT_EQ(Utf8ToAnsi("\x80"
                         "b"),
              "_b");
    EXPECT_EQ(Utf8ToAnsi("\xFF"
                         "b"),
              "_b");
}

TEST(CodePages, ReadOldNamesByTheDosCodePage) {
    if (GetOEMCP() != 437 && GetOEMCP() != 850) GTEST_SKIP() << "another DOS code page";
    EXPECT_EQ(DosToUtf8("\x81"), "\xC3\xBC");  // a small u with two dots
}

}  // namespace
}  // namespace vistrel::test
