// What an install replaces, and bringing it back.
#include "core/previous_screens.h"

#include <windows.h>

#include "core/library.h"
#include "platform/fault.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;
using namespace platform;

namespace {

using Screens = std::vector<std::string>;

class PreviousScreensOf : public Machine {
 protected:
    PreviousScreensOf() {
        PutScreens(logos + "Blue\\", "Blue");
        PutScreens(logos + "Red\\", "Red");
        PutOwn();
    }
    /// Screens that are in no set, two of them with attributes.
    void PutOwn() {
        Put(boot + "LOGO.SYS", "own LOGO.SYS");
        Put(windows + "LOGOW.SYS", "own LOGOW.SYS");
        Put(windows + "LOGOS.SYS", "own LOGOS.SYS");
        GiveAttributes(boot + "LOGO.SYS", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
        GiveAttributes(windows + "LOGOS.SYS", FILE_ATTRIBUTE_SYSTEM);
    }
    void Install(const std::string& from, const std::string& to, bool synchronize = false) {
        EXPECT_TRUE(previous_.Keep(from, to, synchronize, false));
        InstallLogoSet(targets_, to, synchronize);
    }
    UndoResult Undo() {
        const auto record = previous_.Last();
        return record ? previous_.BringBack(*record) : UndoResult::SourceIsGone;
    }

    const Screens own_ = {"own LOGO.SYS", "own LOGOW.SYS", "own LOGOS.SYS"};
    const Screens blue_ = {"Blue LOGO.SYS", "Blue LOGOW.SYS", "Blue LOGOS.SYS"};
    const std::string kept_ = program + "Previous screens\\";
    const InstallTargets targets_ = {logos, boot, windows};
    PreviousScreens previous_{program, targets_};
};

TEST_F(PreviousScreensOf, NoInstallCannotBeTakenBack) {
    EXPECT_FALSE(previous_.Last());
    Put(program + "Previous screens", "no folder");
    EXPECT_FALSE(previous_.Last());
}

TEST_F(PreviousScreensOf, ScreensOfNoSetAreKeptAndComeBackWithTheirAttributes) {
    Install("", "Blue");
    EXPECT_EQ(Installed(), blue_);
    EXPECT_EQ(Contents(kept_ + "LOGO.SYS"), "own LOGO.SYS");
    EXPECT_EQ(Contents(kept_ + "LOGOS.SYS"), "own LOGOS.SYS");
    ASSERT_TRUE(previous_.Last());
    EXPECT_EQ(previous_.Last()->newName, "Blue");
    EXPECT_FALSE(previous_.HaveChangedSince(*previous_.Last()));

    EXPECT_EQ(Undo(), UndoResult::Done);
    EXPECT_EQ(Installed(), own_);
    EXPECT_EQ(AttributesOf(boot + "LOGO.SYS"),
              DWORD{FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN});
    EXPECT_EQ(AttributesOf(windows + "LOGOW.SYS") & 7, 0u);
    EXPECT_EQ(AttributesOf(windows + "LOGOS.SYS"), DWORD{FILE_ATTRIBUTE_SYSTEM});
    EXPECT_FALSE(previous_.Last());
    EXPECT_EQ(NamesIn(boot), Screens{"LOGO.SYS"});
}

TEST_F(PreviousScreensOf, ScreensOfASetComeFromItAndWhatIsKeptStays) {
    Install("", "Blue");
    Install("Blue", "Red");
    EXPECT_EQ(Contents(kept_ + "LOGO.SYS"), "own LOGO.SYS");
    ASSERT_TRUE(previous_.Last());
    EXPECT_EQ(previous_.Last()->setName, "Blue");
    EXPECT_FALSE(previous_.Last()->areKept);
    EXPECT_EQ(Undo(), UndoResult::Done);
    EXPECT_EQ(Installed(), blue_);
}

TEST_F(PreviousScreensOf, ScreensThatAreNotThoseOfTheSetThatIsSaidToBeInstalledAreKept) {
    Install("Blue", "Red");
    EXPECT_EQ(Contents(kept_ + "LOGOW.SYS"), "own LOGOW.SYS");
    EXPECT_EQ(Undo(), UndoResult::Done);
    EXPECT_EQ(Installed(), own_);
}

TEST_F(PreviousScreensOf, AScreenThatWasNotThereGoesAgain) {
    RemoveTree(windows + "LOGOW.SYS");
    Install("", "Blue");
    EXPECT_EQ(Undo(), UndoResult::Done);
    EXPECT_EQ(Installed(), (Screens{"own LOGO.SYS", "-", "own LOGOS.SYS"}));
}

TEST_F(PreviousScreensOf, AfterAnInstallWhileSynchronizingTheOthersGetTheirAttributesBack) {
    Install("", "Blue", true);
    EXPECT_FALSE(previous_.HaveChangedSince(*previous_.Last()));
    EXPECT_EQ(Undo(), UndoResult::Done);
    EXPECT_EQ(Installed(), own_);
    EXPECT_EQ(AttributesOf(windows + "LOGOS.SYS"), DWORD{FILE_ATTRIBUTE_SYSTEM});
}

TEST_F(PreviousScreensOf, AreNoSetWhereTheProgramsFolderIsTheLogoFolder) {
    PutScreens(program + "Blue\\", "Blue");
    PutScreens(program + "Red\\", "Red");
    PreviousScreens previous(program, {program, boot, windows});
    EXPECT_TRUE(previous.Keep("", "Blue", false, false));
    EXPECT_EQ(LogoSetNames(program), (Screens{"Blue", "Red"}));
    InstallLogoSet({program, boot, windows}, "Blue", false);

    RemoveTree(program + "Previous screens");
    EXPECT_TRUE(previous.Keep("Blue", "Red", false, false));
    EXPECT_TRUE(Exists(program + "Previous screens"));
    EXPECT_EQ(LogoSetNames(program), (Screens{"Blue", "Red"}));
}

TEST_F(PreviousScreensOf, InstallingASetOverItselfLeavesTheFormerInstallToBeTakenBack) {
    Install("", "Blue");
    Install("Blue", "Blue");
    EXPECT_EQ(Undo(), UndoResult::Done);
    EXPECT_EQ(Installed(), own_);
}

TEST_F(PreviousScreensOf, ChangesByHandAreSeen) {
    Install("", "Blue");
    Put(windows + "LOGOW.SYS", "by hand");
    EXPECT_TRUE(previous_.HaveChangedSince(*previous_.Last()));
    Put(windows + "LOGOW.SYS", "Blue LOGOW.SYS");
    EXPECT_FALSE(previous_.HaveChangedSince(*previous_.Last()));
    RemoveTree(boot + "LOGO.SYS");
    EXPECT_TRUE(previous_.HaveChangedSince(*previous_.Last()));
}

TEST_F(PreviousScreensOf, WhatIsGoneOrChangedIsNotBroughtBack) {
    Install("", "Blue");
    Put(kept_ + "LOGOS.SYS", "by hand");
    EXPECT_EQ(Undo(), UndoResult::SourceIsGone);
    EXPECT_EQ(Installed(), blue_);

    Put(kept_ + "LOGOS.SYS", "own LOGOS.SYS");
    EXPECT_EQ(Undo(), UndoResult::Done);
    Install("", "Blue");
    Install("Blue", "Red");
    RemoveTree(logos + "Blue");
    EXPECT_EQ(Undo(), UndoResult::SourceIsGone);
    EXPECT_EQ(Installed()[0], "Red LOGO.SYS");
}

TEST_F(PreviousScreensOf, APowerCutWhileKeepingLeavesTheFormerOrTheNewScreens) {
    for (int from = 1; from < 80; ++from) {
        SCOPED_TRACE(from);
        RemoveTree(program + "Previous screens");
        RemoveTree(program + "Previous screens.new");
        RemoveTree(program + "Previous screens.old");
        PutOwn();
        ASSERT_TRUE(previous_.Keep("", "Blue", false, false));
        for (const char* screen : {"LOGOW.SYS", "LOGOS.SYS"}) Put(windows + screen, "newer");
        Put(boot + "LOGO.SYS", "newer");

        fault::FailFromOperation(from);
        const bool kept = previous_.Keep("", "Red", false, false);
        fault::Reset();
        const auto record = previous_.Last();
        ASSERT_TRUE(record);
        EXPECT_FALSE(Exists(program + "Previous screens.old"));
        EXPECT_EQ(previous_.BringBack(*record), UndoResult::Done);
        EXPECT_EQ(Installed(),
                  record->newName == "Blue" ? own_ : (Screens{"newer", "newer", "newer"}));
        if (kept) return;
    }
    FAIL() << "keeping never came to its end";
}

TEST_F(PreviousScreensOf, APowerCutWhileBringingBackLetsItBeDoneAgain) {
    for (int from = 1; from < 80; ++from) {
        SCOPED_TRACE(from);
        PutOwn();
        Install("", "Blue");
        fault::FailFromOperation(from);
        const auto first = Undo();
        fault::Reset();
        if (first != UndoResult::Done || previous_.Last()) {
            EXPECT_EQ(Undo(), UndoResult::Done);
            EXPECT_EQ(Installed(), own_);
            continue;
        }
        EXPECT_EQ(Installed(), own_);
        return;
    }
    FAIL() << "it never came to its end";
}

}  // namespace
}  // namespace vistrel::test
