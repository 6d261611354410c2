// The box "Find:" over the list of sets, and the order of the list.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>
#include <ole2.h>

#include "tests/main_window/file_drag_source.h"
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

class Finding : public MainWindow98 {
 protected:
    static HWND Box(Principale& main) { return user::Control(main.handle(), ID_FindBox); }
    /// For the user's thread: goes to the box and types.
    static void Find(Principale& main, const std::string& text) {
        user::Press('F', {VK_CONTROL});
        EXPECT_TRUE(WaitUntil([&] { return seen::FocusIn(main.handle()) == Box(main); }));
        user::Type(text);
    }
    static void ClickHeading(Principale& main) {
        const auto header =
            reinterpret_cast<HWND>(SendMessageA(main.MyList.handle(), LVM_GETHEADER, 0, 0));
        EXPECT_TRUE(user::Click(header));
    }

    const Names all = {"Blue", "Green.SLS", "Red"};
};

TEST_F(Finding, NarrowsTheListWhileTypingAndEscBringsAllBack) {
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(user::TextOf(user::Control(main.handle(), ID_LblFind)), "&Find:");
        ClickSet(main, "Red");
        Find(main, "e");
        EXPECT_TRUE(Lists(main, all));
        user::Type("E");
        EXPECT_TRUE(Lists(main, {"Green.SLS"}));
        EXPECT_EQ(main.NumLogo.Text(), " 1 logo set");
        // The selected set is not among them.
        EXPECT_EQ(Selected(main), "");
        EXPECT_FALSE(main.Imag[0].HasPicture());
        EXPECT_FALSE(SetToolsEnabled(main));
        user::TakeShot("finding");
        user::Press(VK_BACK);
        EXPECT_TRUE(Lists(main, all));
        user::Type("xyz");
        EXPECT_TRUE(Lists(main, {}));
        EXPECT_EQ(main.NumLogo.Text(), " 0 logo sets");
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(Lists(main, all));
        EXPECT_EQ(user::TextOf(Box(main)), "");
        EXPECT_EQ(main.NumLogo.Text(), " 3 logo sets");
        EXPECT_EQ(seen::FocusIn(main.handle()), main.MyList.handle());
    });
}

TEST_F(Finding, KeepsTheSelectedSetAndItsScreensWhereItIsFound) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Find(main, "RED");
        EXPECT_TRUE(Lists(main, {"Red"}));
        EXPECT_EQ(Selected(main), "Red");
        EXPECT_EQ(MiddleOf(main.Imag[0]), kRed);
        EXPECT_TRUE(SetToolsEnabled(main));
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(Lists(main, all));
        EXPECT_EQ(Selected(main), "Red");
    });
}

TEST_F(Finding, LeavesALongListForTheKeyThatIsTypedNextAndSelectsTheSetAgainInTheEnd) {
    for (int i = 100; i < 1000; ++i) MakeFolders(logos + "Set " + std::to_string(i) + "\\");
    Principale main(locations);
    main.Create(nullptr);
    main.Show();
    HandleWaiting();
    main.SelItem("Set 950");
    main.FindBox.Focus();
    HandleWaiting();
    const int all = main.MyList.Count();
    SendMessageA(Box(main), WM_CHAR, 'S', 0);
    keybd_event('E', 0, 0, 0);
    keybd_event('E', 0, KEYEVENTF_KEYUP, 0);
    // The key's own messages stay where they are.
    for (int turn = 0; turn < 1000 && main.MyList.Count() == all; ++turn) {
        MSG tick{};
        while (PeekMessageA(&tick, nullptr, WM_TIMER, WM_TIMER, PM_REMOVE)) DispatchMessageA(&tick);
        Sleep(10);
    }
    EXPECT_EQ(main.MyList.Count(), 200);
    EXPECT_FALSE(SetToolsEnabled(main));
    EXPECT_TRUE(WaitUntil([&] {
        HandleWaiting();
        return main.MyList.Count() == 900;
    }));
    EXPECT_EQ(main.FindBox.Text(), "Se");
    EXPECT_EQ(Selected(main), "Set 950");
    EXPECT_TRUE(SetToolsEnabled(main));
    main.Unload();
}

TEST_F(Finding, EnterGoesOnToTheFirstSetThatWasFound) {
    WithMainWindow([&](Principale& main) {
        main.Preferences().actionOnDoubleClick = 0;
        Find(main, "gre");
        user::Press(VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Green.SLS"; }));
        Settle(main);
        EXPECT_EQ(seen::FocusIn(main.handle()), main.MyList.handle());
        EXPECT_EQ(MiddleOf(main.Imag[0]), kGreenScreen);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        user::Press(VK_RETURN);
        EXPECT_TRUE(
            WaitUntil([&] { return user::TextOf(main.DefaultLogo.handle()) == "Green.SLS"; }));
    });
}

TEST_F(Finding, StaysOverARefreshAndKnowsTheInstalledSetThatIsNotShown) {
    WithMainWindow([&](Principale& main) {
        Find(main, "r");
        EXPECT_TRUE(Lists(main, {"Green.SLS", "Red"}));
        PutSet("Orange", 1, 2, 3);
        PutSet("Plum", 1, 2, 3);
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(Listed(main), (Names{"Green.SLS", "Orange", "Red"}));
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_EQ(main.SetNames(), (Names{"Blue", "Green.SLS", "Orange", "Plum", "Red"}));
    });
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Blue"));
}

TEST_F(Finding, F5RefreshesFromTheBoxAsFromTheList) {
    WithMainWindow([&](Principale& main) {
        Find(main, "e");
        EXPECT_TRUE(Lists(main, all));
        PutSet("Yellow", 255, 255, 0);
        user::Press(VK_F5);
        EXPECT_TRUE(Lists(main, {"Blue", "Green.SLS", "Red", "Yellow"}));
        EXPECT_EQ(user::TextOf(Box(main)), "e");
    });
}

TEST_F(Finding, RenamesAndDeletesWhatWasFoundAndAllIsRightAfterwards) {
    WithMainWindow([&](Principale& main) {
        main.Preferences().deleteInTheRecycleBin = 0;
        Find(main, "r");
        EXPECT_TRUE(Lists(main, {"Green.SLS", "Red"}));
        BeginRenaming(main, "Red", "Scarlet");
        user::Press(VK_RETURN);
        EXPECT_TRUE(Lists(main, {"Green.SLS", "Scarlet"}));
        ClickSet(main, "Green.SLS");
        user::Press(VK_DELETE);
        user::AnswerBox(IDYES);
        EXPECT_TRUE(Lists(main, {"Scarlet"}));
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(Lists(main, {"Blue", "Scarlet"}));
        EXPECT_EQ(main.SetNames(), (Names{"Blue", "Scarlet"}));
    });
}

TEST_F(Finding, EndsWhenAFolderIsDroppedWhichIsShown) {
    MakeFolders(root + "outside\\New\\");
    OleInitialize(nullptr);
    {
        FileDragSource source({4, 4}, {root + "outside\\New"});
        WithMainWindow([&](Principale& main) {
            Find(main, "red");
            EXPECT_TRUE(Lists(main, {"Red"}));
            user::Drag(user::CentreOf(source.window()), user::CentreOf(main.MyList.handle()));
            EXPECT_TRUE(WaitUntil([&] { return source.effect() != ~DWORD{0}; }, 60000));
            EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "New"; }));
            EXPECT_EQ(Listed(main), (Names{"Blue", "Green.SLS", "Red", "New"}));
            EXPECT_EQ(user::TextOf(Box(main)), "");
        });
    }
    OleUninitialize();
}

TEST_F(Finding, LeavesCtrlFToALabelThatIsBeingEdited) {
    WithMainWindow([&](Principale& main) {
        BeginRenaming(main, "Red", "Scarlet");
        user::Press('F', {VK_CONTROL});
        Settle(main);
        EXPECT_TRUE(main.MyList.EditingLabel());
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([&] { return !main.MyList.EditingLabel(); }));
    });
}

TEST_F(Finding, NeitherShowsNorSelectsASetWhileTheInstalledScreensAreShown) {
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolShowCurrent);
        Find(main, "r");
        EXPECT_TRUE(Lists(main, {"Green.SLS", "Red"}));
        EXPECT_EQ(Selected(main), "");
        EXPECT_EQ(main.DefaultLogo.Text(), "Current logo setting");
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
    });
}

TEST_F(Finding, TheHeadingOfTheReportSortsByNameBackwardsAndAsTheFolderDoes) {
    for (const char* set : {"apple", "Zebra", "Mango"}) PutSet(set, 1, 2, 3);
    Store("View", TextValue("1"));
    WithMainWindow([&](Principale& main) {
        const Names folder = Listed(main);
        ClickSet(main, "Red");
        ClickHeading(main);
        const Names sorted = {"apple", "Blue", "Green.SLS", "Mango", "Red", "Zebra"};
        EXPECT_TRUE(Lists(main, sorted));
        EXPECT_EQ(Selected(main), "Red");
        // What others ask for is the folder's order.
        EXPECT_EQ(main.SetNames(), folder);
        EXPECT_EQ(main.SetNames()[static_cast<std::size_t>(main.SelectedSet())], "Red");
        ClickHeading(main);
        EXPECT_TRUE(Lists(main, Names(sorted.rbegin(), sorted.rend())));
        ClickHeading(main);
        EXPECT_TRUE(Lists(main, folder));
    });
}

TEST_F(Finding, LeavesCtrlZToItsText) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        Find(main, "Red");
        user::Press('Z', {VK_CONTROL});
        // What is typed behind it tells that it has been handled.
        user::Type("x");
        EXPECT_TRUE(WaitUntil([&] { return user::TextOf(Box(main)).ends_with("x"); }));
        EXPECT_EQ(main.DefaultLogo.Text(), "Red");
    });
}

TEST_F(Finding, AnInstallIsTakenBackToASetThatIsNotFound) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        Find(main, "Red");
        EXPECT_TRUE(Lists(main, {"Red"}));
        user::Press(VK_RETURN);
        EXPECT_TRUE(
            WaitUntil([&] { return seen::FocusIn(main.handle()) == main.MyList.handle(); }));
        user::Press('Z', {VK_CONTROL});
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Blue"; }));
    });
}

}  // namespace
}  // namespace vistrel::test
