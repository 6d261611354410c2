// Deleting one set.
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

class Deleting : public MainWindow98 {
 protected:
    /// Deletes the selected set for good, answering the question.
    void DeleteSelected(Principale& main, int answer) {
        main.Preferences().deleteInTheRecycleBin = 0;
        const int before = main.MyList.Count();
        StartCommand(main, ID_ToolDelete);
        box_ = user::AnswerBox(answer);
        if (answer == IDYES) WaitUntil([&] { return main.MyList.Count() == before - 1; });
        Settle(main);
    }

    user::Box box_;
};

TEST_F(Deleting, AsksAndDeletesTheFolderAndSelectsTheNextSet) {
    WithMainWindow([&](Principale& main) {
        main.SelItem("Blue");
        DeleteSelected(main, IDYES);
        EXPECT_EQ(box_.title, "Confirm deletions");
        EXPECT_EQ(box_.text,
                  "Are you sure you want to delete Blue logo set? This operation will "
                  "delete all files contained in '" +
                      logos + "Blue' folder!");
        EXPECT_TRUE(WaitUntil([&] { return main.NumLogo.Text() == " 2 logo sets"; }));
        EXPECT_EQ(main.MyList.SelectedItem(), 0);
        EXPECT_EQ(main.Imag[0].Tag(), logos + "Green.SLS\\LOGO.SYS");
        EXPECT_EQ(main.DefaultLogo.Text(), "<Don't know>");
    });
    EXPECT_FALSE(Exists(logos + "Blue"));
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText(""));
}

TEST_F(Deleting, LeavesANewSetOfTheSameNameInTheRotation) {
    Store("LeftOutOfRotation", TextValue("Blue/Red"));
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        DeleteSelected(main, IDYES);
    });
    EXPECT_EQ(Stored("LeftOutOfRotation"), SavedText("Blue"));
}

TEST_F(Deleting, SelectsTheNewLastSetAfterTheLast) {
    WithMainWindow([&](Principale& main) {
        main.SelItem("Red");
        DeleteSelected(main, IDYES);
        EXPECT_TRUE(WaitUntil([&] { return main.NumLogo.Text() == " 2 logo sets"; }));
        EXPECT_EQ(main.MyList.SelectedItem(), 1);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
    });
}

TEST_F(Deleting, ClearsThePicturesWithTheOnlySet) {
    RemoveTree(logos + "Green.SLS");
    RemoveTree(logos + "Red");
    WithMainWindow([&](Principale& main) {
        DeleteSelected(main, IDYES);
        EXPECT_TRUE(WaitUntil([&] { return main.NumLogo.Text() == " 0 logo sets"; }));
        for (const PictureBox& box : main.Imag) EXPECT_FALSE(box.HasPicture());
    });
}

TEST_F(Deleting, ChangesNothingAtNo) {
    WithMainWindow([&](Principale& main) {
        DeleteSelected(main, IDNO);
        EXPECT_EQ(main.MyList.Count(), 3);
    });
    EXPECT_TRUE(Exists(logos + "Blue\\LOGO.SYS"));
}

TEST_F(Deleting, DeletesUnaskedByTheDeleteKeyWhereThePreferenceIsOff) {
    WithMainWindow([&](Principale& main) {
        main.Preferences().deleteInTheRecycleBin = 0;
        main.Preferences().confirmLogosetDelete = 0;
        ClickSet(main, "Red");
        user::Press(VK_DELETE);
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.Count() == 2; }));
    });
    EXPECT_FALSE(Exists(logos + "Red"));
}

TEST_F(Deleting, ForgetsASetHeldOpenUntilTheNextRefresh) {
    const HANDLE file = CreateFileA((logos + "Red\\LOGOW.SYS").c_str(), GENERIC_READ,
                                    FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    WithMainWindow([&](Principale& main) {
        main.SelItem("Red");
        DeleteSelected(main, IDYES);
        EXPECT_EQ(main.MyList.Count(), 2);
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(main.MyList.Count(), 3);
    });
    CloseHandle(file);
    EXPECT_EQ(NamesIn(logos + "Red\\"), std::vector<std::string>{"LOGOW.SYS"});
}

TEST_F(Deleting, ForgetsASetThatTheShellWasToldToKeepUntilTheNextRefresh) {
    WithMainWindow([&](Principale& main) {
        main.Preferences().deleteInTheRecycleBin = 1;
        main.Preferences().confirmLogosetDelete = 0;
        main.SelItem("Red");
        StartCommand(main, ID_ToolDelete);
        const HWND question = user::WaitForTop("#32770");
        ASSERT_NE(question, nullptr);
        user::Activate(question);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.Count() == 2; }));
        Settle(main);
        EXPECT_EQ(main.MyList.FindItem("Red"), -1);
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(main.MyList.FindItem("Red"), 2);
    });
    EXPECT_TRUE(Exists(logos + "Red\\LOGO.SYS"));
}

TEST_F(Deleting, AsksForExactlyOneOnly) {
    WithMainWindow([&](Principale& main) {
        main.Preferences().deleteInTheRecycleBin = 2;
        main.Preferences().confirmLogosetDelete = 2;
        main.SelItem("Red");
        Command(main, ID_ToolDelete);
        EXPECT_EQ(main.MyList.Count(), 2);
    });
    EXPECT_FALSE(Exists(logos + "Red"));
}

TEST_F(Deleting, MovesTheFilesToTheRecycleBin) {
    WithMainWindow([&](Principale& main) {
        main.Preferences().deleteInTheRecycleBin = 1;
        main.Preferences().confirmLogosetDelete = 0;
        main.SelItem("Red");
        StartCommand(main, ID_ToolDelete);
        // The shell's own question, with Yes as its default.
        const HWND question = user::WaitForTop("#32770");
        ASSERT_NE(question, nullptr);
        user::Activate(question);
        user::Press(VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.Count() == 2; }));
    });
    EXPECT_FALSE(Exists(logos + "Red"));
}

}  // namespace
}  // namespace vistrel::test
