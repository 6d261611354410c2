// The boot-logo option in the boot configuration file.
#include "core/boot_option.h"

#include <windows.h>

#include "platform/fault.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;

namespace {

class BootOptionTest : public Machine {
 protected:
    std::int16_t Read(const std::string& contents) {
        Put(file_, contents);
        return ReadBootLogoOption(file_);
    }

    const std::string file_ = boot + "msdos.sys";
};

/// As a setup program leaves it: lines of x bring it over 1,024 bytes.
std::string UsualFile(const std::string& options) {
    std::string text = "[Paths]\r\nWinDir=C:\\WINDOWS\r\nHostWinBootDrv=C\r\n[Options]\r\n" +
                       options + ";\r\n;The following lines are required.\r\n";
    for (char end = 'a'; end <= 's'; ++end) text += ";" + std::string(66, 'x') + end + "\r\n";
    return text;
}

TEST_F(BootOptionTest, IsOneWithoutAFileSectionOrKey) {
    EXPECT_EQ(ReadBootLogoOption(file_), 1);
    EXPECT_EQ(Read(""), 1);
    EXPECT_EQ(Read("[Paths]\r\nLogo=0\r\n"), 1);
    EXPECT_EQ(Read(UsualFile("BootGUI=1\r\n")), 1);
}

TEST_F(BootOptionTest, IsTheStoredNumber) {
    EXPECT_EQ(Read(UsualFile("BootGUI=1\r\nLogo=0\r\n")), 0);
    EXPECT_EQ(Read("[options]\r\nLOGO = 1\r\n"), 1);
    EXPECT_EQ(Read("[Options]\r\nLogo=-1\r\n"), -1);
    EXPECT_EQ(Read("[Options]\r\nLogo= 0\r\n"), 0);
}

TEST_F(BootOptionTest, ANumberThatDoesNotFitCountsAsNone) {
    EXPECT_EQ(Read("[Options]\r\nLogo=70000\r\n"), 1);
    EXPECT_EQ(Read("[Options]\r\nLogo=-40000\r\n"), 1);
}

TEST_F(BootOptionTest, KeepingItMakesTheFileReadOnlyAndNothingElse) {
    Put(file_, UsualFile("Logo=0\r\n"));
    GiveAttributes(file_, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY);
    KeepBootLogoOption(file_);
    EXPECT_EQ(AttributesOf(file_), static_cast<unsigned long>(FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(Contents(file_), UsualFile("Logo=0\r\n"));
}

TEST_F(BootOptionTest, KeepingItMakesNoFile) {
    KeepBootLogoOption(file_);
    EXPECT_FALSE(Exists(file_));
}

TEST_F(BootOptionTest, WritingTakesTheAttributesOffAndKeepsTheOtherLines) {
    Put(file_, UsualFile("BootGUI=1\r\nLogo=1\r\n"));
    GiveAttributes(file_, FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY);
    WriteBootLogoOption(file_, 0);
    EXPECT_EQ(AttributesOf(file_), 0u);
    EXPECT_EQ(ReadBootLogoOption(file_), 0);
    std::string contents = Contents(file_).value_or("");
    // Windows keeps the blank before the number, Wine takes it away.
    const auto blank = contents.find("Logo= 0");
    if (blank != std::string::npos) contents.erase(blank + 5, 1);
    EXPECT_EQ(contents, UsualFile("BootGUI=1\r\nLogo=0\r\n"));
    EXPECT_GT(contents.size(), 1024u);
}

TEST_F(BootOptionTest, OnlyNumbersThatAreNotNegativeHaveALeadingBlank) {
    EXPECT_EQ(BootLogoOptionText(1), " 1");
    EXPECT_EQ(BootLogoOptionText(0), " 0");
    EXPECT_EQ(BootLogoOptionText(-1), "-1");
}

TEST_F(BootOptionTest, WritingMakesAFileWhereThereIsNone) {
    WriteBootLogoOption(file_, -7);
    EXPECT_EQ(ReadBootLogoOption(file_), -7);
}

TEST_F(BootOptionTest, AFailingStepIsPassedOver) {
    WithEachOperationFailing(
        [&] {
            Put(file_, "[Options]\r\nLogo=1\r\n");
            GiveAttributes(file_, FILE_ATTRIBUTE_HIDDEN);
        },
        [&] { WriteBootLogoOption(file_, 0); },
        [&](int failed) {
            const bool cleared = failed != 1;
            const bool written = failed != 2;
            EXPECT_EQ(AttributesOf(file_) & FILE_ATTRIBUTE_HIDDEN, cleared ? 0u : 2u);
            EXPECT_EQ(ReadBootLogoOption(file_), written ? 0 : 1);
        });
}

}  // namespace
}  // namespace vistrel::test
