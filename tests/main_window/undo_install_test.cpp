// Taking an install back, by the menu and by Ctrl+Z.
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace main_window;

namespace {

class UndoInstall : public MainWindow98 {
 protected:
    UndoInstall() { PutOwn(); }
    void PutOwn() {
        Put(boot + "LOGO.SYS", "own LOGO.SYS");
        Put(windows + "LOGOW.SYS", "own LOGOW.SYS");
        Put(windows + "LOGOS.SYS", "own LOGOS.SYS");
        GiveAttributes(boot + "LOGO.SYS", FILE_ATTRIBUTE_READONLY);
    }
    bool OwnAreBack() {
        return Contents(boot + "LOGO.SYS") == "own LOGO.SYS" &&
               Contents(windows + "LOGOW.SYS") == "own LOGOW.SYS" &&
               Contents(windows + "LOGOS.SYS") == "own LOGOS.SYS";
    }
    static void PressUndo() { user::Press('Z', {VK_CONTROL}); }
    /// Whether the item is enabled in the Logo menu that the user opens.
    bool IsOffered(Principale& main) {
        user::Activate(main.handle());
        user::OpenMenuByLetter('L', 0);
        const HMENU menu = user::WaitForPopUp();
        const bool enabled = seen::RowOf(menu, ID_ToolUndoInstall).enabled;
        user::TakeShot("undo_in_menu");
        user::Press(VK_ESCAPE);
        user::Press(VK_ESCAPE);
        WaitUntil([] { return user::FindTop("#32768") == nullptr; });
        return enabled;
    }
};

TEST_F(UndoInstall, BringsBackScreensAttributesAndLabelByCtrlZ) {
    WithMainWindow([&](Principale& main) {
        EXPECT_FALSE(IsOffered(main));
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        EXPECT_EQ(main.DefaultLogo.Text(), "Red");
        EXPECT_TRUE(IsOffered(main));
        main.MyList.Focus();
        PressUndo();
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Blue"; }));
        Settle(main);
        EXPECT_FALSE(IsOffered(main));
    });
    EXPECT_TRUE(OwnAreBack());
    EXPECT_EQ(AttributesOf(boot + "LOGO.SYS"), DWORD{FILE_ATTRIBUTE_READONLY});
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Blue"));
}

TEST_F(UndoInstall, TakesARandomChangeBackTooAndAfterANewStart) {
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolRandom);
        EXPECT_NE(main.DefaultLogo.Text(), "Blue");
    });
    WithMainWindow([&](Principale& main) {
        EXPECT_TRUE(IsOffered(main));
        Command(main, ID_ToolUndoInstall);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
    });
    EXPECT_TRUE(OwnAreBack());
}

TEST_F(UndoInstall, LeavesCtrlZToALabelThatIsBeingEdited) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        BeginRenaming(main, "Red", "Scarlet");
        PressUndo();
        Settle(main);
        EXPECT_TRUE(main.MyList.EditingLabel());
        EXPECT_EQ(main.DefaultLogo.Text(), "Red");
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([&] { return !main.MyList.EditingLabel(); }));
    });
    EXPECT_TRUE(Contents(boot + "LOGO.SYS") == ScreenFile(255, 0, 0));
}

TEST_F(UndoInstall, AsksWhereTheScreensWereChangedByHandSince) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        Put(windows + "LOGOW.SYS", "by hand");
        for (const int answer : {IDNO, IDYES}) {
            StartCommand(main, ID_ToolUndoInstall);
            const user::Box box = user::WaitForBox();
            user::TakeShot("undo_question");
            user::AnswerBox(answer);
            EXPECT_EQ(box.text,
                      "The screens have been changed since Red was set as default. Would you like "
                      "to bring back the previous ones all the same?");
            EXPECT_EQ(box.default_button, IDNO);
            Settle(main);
            EXPECT_EQ(Contents(windows + "LOGOW.SYS") == "by hand", answer == IDNO);
        }
    });
    EXPECT_TRUE(OwnAreBack());
}

TEST_F(UndoInstall, SaysWhereThePreviousScreensAreGone) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        Put(program + "Previous screens\\LOGOS.SYS", "by hand");
        StartCommand(main, ID_ToolUndoInstall);
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  "The previous screens cannot be brought back: what was kept of them is gone or "
                  "has been changed.");
        Settle(main);
        EXPECT_EQ(main.DefaultLogo.Text(), "Red");
    });
    EXPECT_TRUE(Contents(windows + "LOGOS.SYS") == ScreenFile(255, 0, 0));
}

TEST_F(UndoInstall, SaysWhichSetHadThePreviousScreensWhereItIsGone) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        ClickSet(main, "Blue");
        Command(main, ID_ToolSetDefault);
        RemoveTree(logos + "Red");
        StartCommand(main, ID_ToolUndoInstall);
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  "The previous screens cannot be brought back: they are those of Red, which is "
                  "gone or has been changed.");
        Settle(main);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_TRUE(IsOffered(main));
    });
}

TEST_F(UndoInstall, SaysWhereAScreenCannotBeWrittenAndCanBeTriedAgain) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        // Who has it open keeps it.
        const HANDLE open = CreateFileA((windows + "LOGOW.SYS").c_str(), GENERIC_READ,
                                        FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
        StartCommand(main, ID_ToolUndoInstall);
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  "The previous screens cannot be brought back, or not all of them. The disk may "
                  "be full, or a file in use.");
        CloseHandle(open);
        Settle(main);
        EXPECT_EQ(main.DefaultLogo.Text(), "Red");
        StartCommand(main, ID_ToolUndoInstall);
        // One of them is back, and so they are not what the install has left.
        user::AnswerBox(IDYES);
        Settle(main);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
    });
    EXPECT_TRUE(OwnAreBack());
}

TEST_F(UndoInstall, GoesBackToNoKnownSet) {
    Store("DefaultLogoSet", TextValue("gone"));
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        Command(main, ID_ToolUndoInstall);
        EXPECT_EQ(main.DefaultLogo.Text(), "<Don't know>");
    });
    EXPECT_TRUE(OwnAreBack());
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText(""));
}

TEST_F(UndoInstall, TakesTheCompanionsWorkBackToo) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        main.Preferences().synchronizeLogos = 1;
        Command(main, ID_ToolSetDefault);
        Command(main, ID_ToolUndoInstall);
    });
    EXPECT_FALSE(Exists(program + "Mirrorkin.ini"));

    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        ClickSet(main, "Blue");
        main.Preferences().synchronizeLogos = 0;
        Command(main, ID_ToolSetDefault);
        Command(main, ID_ToolUndoInstall);
    });
    EXPECT_TRUE(Exists(program + "Mirrorkin.ini"));
}

TEST_F(UndoInstall, DoesNothingWhileTheInstalledScreensAreShown) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        Command(main, ID_ToolShowCurrent);
        main.MyList.Focus();
        PressUndo();
        Settle(main);
        EXPECT_EQ(main.DefaultLogo.Text(), "Current logo setting");
    });
    EXPECT_FALSE(OwnAreBack());
}

}  // namespace
}  // namespace vistrel::test
