// Profile files.
#include "platform/profile.h"

#include "platform/fault.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace platform;

namespace {

class ProfileTest : public Machine {
 protected:
    const std::string file_ = program + "test.ini";
};

TEST_F(ProfileTest, AMissingFileSectionOrKeyGivesWhatIsToldOtherwise) {
    EXPECT_EQ(ReadProfileInt(file_, "A", "b", 7), 7);
    EXPECT_EQ(ReadProfileText(file_, "A", "b"), "");
    Put(file_, "[Other]\r\nb=1\r\n[A]\r\nc=2\r\n");
    EXPECT_EQ(ReadProfileInt(file_, "A", "b", 7), 7);
    EXPECT_EQ(ReadProfileText(file_, "A", "b"), "");
}

TEST_F(ProfileTest, WhatIsWrittenIsReadAgain) {
    EXPECT_TRUE(WriteProfileText(file_, "A", "b", "C:\\" + OddName() + "\\"));
    EXPECT_EQ(ReadProfileText(file_, "a", "B"), "C:\\" + OddName() + "\\");
    EXPECT_EQ(Contents(file_), "[A]\r\nb=C:\\" + OddName() + "\\\r\n");
    EXPECT_TRUE(WriteProfileText(file_, "A", "b", "-12"));
    EXPECT_EQ(ReadProfileInt(file_, "A", "b", 0), -12);
}

TEST_F(ProfileTest, AReadOnlyFileIsNotWritten) {
    Put(file_, "[A]\r\nb=1\r\n");
    GiveAttributes(file_, 1);
    EXPECT_FALSE(WriteProfileText(file_, "A", "b", "2"));
    EXPECT_EQ(Contents(file_), "[A]\r\nb=1\r\n");
}

TEST_F(ProfileTest, OperationsFailWhenAFailureIsInjected) {
    Put(file_, "[A]\r\nb=1\r\n");
    fault::FailFromOperation(1);
    EXPECT_EQ(ReadProfileInt(file_, "A", "b", 7), 7);
    EXPECT_EQ(ReadProfileText(file_, "A", "b"), "");
    EXPECT_FALSE(WriteProfileText(file_, "A", "b", "2"));
    EXPECT_EQ(fault::Counted(), 3);
    EXPECT_EQ(Contents(file_), "[A]\r\nb=1\r\n");
}

}  // namespace
}  // namespace vistrel::test
