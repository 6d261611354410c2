// What Rotaline and Shufflet do where operations fail or the power is cut: the same code in this
// process.
#include <windows.h>

#include "companions/change_set.h"
#include "platform/fault.h"
#include "tests/companions/boot.h"

namespace vistrel::test {

using namespace companions;
using namespace platform;

namespace {

class ChangeSetHardshipTest : public Boot {
 protected:
    void Prepare() {
        PutInstalled();
        PutSet("Blue");
        GiveAttributes("C:\\LOGO.SYS", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
        Store("DefaultLogoSet", TextValue("Red"));
        for (const char* left : {"~LOGO.OLD", "~LOGO.NEW"}) RemoveTree(std::string("C:\\") + left);
        for (const char* left : {"~LOGOW.OLD", "~LOGOW.NEW", "~LOGOS.OLD", "~LOGOS.NEW"})
            RemoveTree(windows + left);
    }
    static Outcome Change() {
        return ChangeLogoSet([](const Names& sets, const std::string&) { return sets.front(); });
    }
    /// Each screen that is there is the old one or the set's, complete.
    void ExpectWholeScreens(bool allThere) const {
        for (int i = 0; i < 3; ++i) {
            const std::string screen = Installed()[i];
            if (screen == "-" && !allThere) continue;
            EXPECT_TRUE(screen == old[i] || screen == blue_[i]) << screen;
        }
    }
    void ExpectTheNextStartRepairs() {
        EXPECT_EQ(Change(), Outcome::Done);
        EXPECT_EQ(Installed(), blue_);
        EXPECT_EQ(InstalledSet(), "Blue");
        EXPECT_FALSE(Exists("C:\\~LOGO.OLD") || Exists("C:\\~LOGO.NEW"));
    }

    const Screens blue_ = {"Blue LOGO.SYS", "Blue LOGOW.SYS", "Blue LOGOS.SYS"};
};

TEST_F(ChangeSetHardshipTest, NobodyIsAskedForADisk) {
    Prepare();
    SetErrorMode(0);
    EXPECT_EQ(Change(), Outcome::Done);
    EXPECT_NE(SetErrorMode(0) & SEM_FAILCRITICALERRORS, 0u);
}

TEST_F(ChangeSetHardshipTest, WhatFailedIsTold) {
    int notRecorded = 0;
    Outcome outcome = Outcome::Done;
    WithEachOperationFailing([&] { Prepare(); }, [&] { outcome = Change(); },
                             [&](int) {
                                 const bool copied = Installed() == blue_;
                                 const bool recorded = InstalledSet() == "Blue";
                                 EXPECT_TRUE(outcome != Outcome::Done || (copied && recorded));
                                 if (outcome != Outcome::SetNotRecorded) return;
                                 ++notRecorded;
                                 EXPECT_TRUE(copied);
                                 EXPECT_FALSE(recorded);
                             });
    EXPECT_EQ(notRecorded, 2);  // opening the key, writing the value
}

TEST_F(ChangeSetHardshipTest, ALogoFolderThatCannotBeToldChangesNothing) {
    PutScreens(bin + "Aside\\", "Aside");  // what the program's folder would offer instead
    int told = 0;
    Outcome outcome = Outcome::Done;
    WithEachOperationFailing([&] { Prepare(); }, [&] { outcome = Change(); },
                             [&](int) {
                                 EXPECT_NE(Installed()[0], "Aside LOGO.SYS");
                                 EXPECT_NE(InstalledSet(), "Aside");
                                 if (outcome != Outcome::LogoFolderNotThere) return;
                                 ++told;
                                 EXPECT_EQ(Installed(), old);
                                 EXPECT_EQ(InstalledSet(), "Red");
                             });
    EXPECT_EQ(told, 4);  // opening the key, measuring the value, reading it, looking for the folder
    RemoveTree(bin + "Aside");
}

TEST_F(ChangeSetHardshipTest, OneFailureLosesNoScreen) {
    WithEachOperationFailing([&] { Prepare(); }, [] { Change(); },
                             [&](int) {
                                 ExpectWholeScreens(true);
                                 EXPECT_TRUE(InstalledSet() == "Red" || InstalledSet() == "Blue");
                                 ExpectTheNextStartRepairs();
                             });
}

TEST_F(ChangeSetHardshipTest, APowerCutAnywhereLeavesNoHalfScreenAndTheNextStartRepairs) {
    Prepare();
    fault::Reset();
    ASSERT_EQ(Change(), Outcome::Done);
    const int operations = fault::Counted();
    int between = 0;
    for (int cut = 1; cut <= operations; ++cut) {
        SCOPED_TRACE("power cut before operation " + std::to_string(cut));
        Prepare();
        fault::FailFromOperation(cut);
        Change();
        fault::Reset();
        ExpectWholeScreens(false);
        if (!Exists("C:\\LOGO.SYS")) {
            ++between;
            EXPECT_EQ(Contents("C:\\~LOGO.OLD"), old[0]);
            EXPECT_EQ(Contents("C:\\~LOGO.NEW"), blue_[0]);
        }
        ExpectTheNextStartRepairs();
    }
    EXPECT_EQ(between, 1);
}

}  // namespace
}  // namespace vistrel::test
