// What follows from the selection, whoever made it: screens, kind, and the commands on a set.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

class Selection : public MainWindow98 {
 protected:
    void WithNothingSelected(const std::function<void(Principale& main)>& user) {
        Store("DefaultLogoSet", TextValue("gone"));
        WithMainWindow([&](Principale& main) {
            EXPECT_EQ(Selected(main), "");
            EXPECT_FALSE(SetToolsEnabled(main));
            user(main);
        });
    }
    static void ExpectEmpty(Principale& main) {
        for (const PictureBox& box : main.Imag) EXPECT_TRUE(Says(box, "no picture"));
        EXPECT_EQ(main.LogoType.Text(), "");
    }
};

TEST_F(Selection, EnablesTheSetCommandsInTheRealBarAndMenu) {
    WithNothingSelected([&](Principale& main) {
        ClickSet(main, "Red");
        EXPECT_TRUE(SetToolsEnabled(main));
        ClickBelowSets(main);
        EXPECT_FALSE(SetToolsEnabled(main));
    });
}

TEST_F(Selection, ByARandomChangeEnablesTheSetCommands) {
    WithNothingSelected([&](Principale& main) {
        Command(main, ID_ToolRandom);
        EXPECT_NE(Selected(main), "");
        EXPECT_TRUE(SetToolsEnabled(main));
        user::Press(VK_DELETE);
        EXPECT_EQ(user::AnswerBox(IDNO).title, "Confirm deletions");
    });
}

TEST_F(Selection, ByTheProgramEnablesTheSetCommandsOfTheKeyAndTheClassicMenu) {
    WithNothingSelected([&](Principale& main) {
        main.SelItem("Green.SLS");
        EXPECT_TRUE(SetToolsEnabled(main));
        user::Press(VK_F2);
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.EditingLabel(); }));
        user::Press(VK_ESCAPE);
    });
}

TEST_F(Selection, IsGoneWithTheLastSet) {
    RemoveTree(logos + "Green.SLS");
    RemoveTree(logos + "Red");
    WithMainWindow([&](Principale& main) {
        EXPECT_TRUE(SetToolsEnabled(main));
        main.Preferences().deleteInTheRecycleBin = 0;
        main.Preferences().confirmLogosetDelete = 0;
        Command(main, ID_ToolDelete);
        EXPECT_FALSE(SetToolsEnabled(main));
        ExpectEmpty(main);
    });
}

TEST_F(Selection, TakenAwayByAClickClearsPicturesAndKind) {
    WithMainWindow([&](Principale& main) {
        ClickBelowSets(main);
        user::TakeShot("nothing_selected");
        ExpectEmpty(main);
    });
}

TEST_F(Selection, TakenAwayByAPressThatIsLetGoElsewhereClearsPicturesAndKind) {
    WithMainWindow([&](Principale& main) {
        const POINT elsewhere = user::CentreOf(main.LblScreen[0].handle());
        RECT list{};
        GetWindowRect(main.MyList.handle(), &list);
        const POINT belowSets{(list.left + list.right) / 2, list.bottom - 30};
        for (const auto drag : {user::Drag, user::RightDrag}) {
            ClickSet(main, "Red");
            drag(belowSets, elsewhere);
            EXPECT_TRUE(WaitUntil([&] { return main.MyList.SelectedItem() < 0; }));
            Settle(main);
            ExpectEmpty(main);
            EXPECT_FALSE(SetToolsEnabled(main));
        }
    });
}

TEST_F(Selection, TakenAwayByTheKeyboardClearsPicturesAndKind) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        // What Ctrl+Space does in Windows, Wine does not do.
        main.MyList.Select(-1);
        user::Press(VK_SPACE, {VK_CONTROL});
        EXPECT_TRUE(WaitUntil([&] { return main.LogoType.Text() == ""; }));
        Settle(main);
        ExpectEmpty(main);
    });
}

TEST_F(Selection, OfTheSameSetByAnotherClickShowsItsScreensAnew) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Put(logos + "Red\\LOGO.SYS", ScreenFile(0, 255, 0));
        EXPECT_EQ(MiddleOf(main.Imag[0]), kRed);
        user::ClickAt(PointOfSet(main, "Red"));
        EXPECT_TRUE(WaitUntil([&] { return MiddleOf(main.Imag[0]) == kGreenScreen; }));
    });
}

// A second left click would begin to edit the label, where the right button has another menu.
TEST_F(Selection, OfTheSameSetByTheRightButtonShowsItsScreensAnew) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        DeleteFileA((logos + "Red\\LOGO.SYS").c_str());
        user::RightClickAt(PointOfSet(main, "Red"));
        EXPECT_NE(user::WaitForPopUp(), nullptr);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([&] { return Says(main.Imag[0], "no file"); }));
    });
}

TEST_F(Selection, IsScrolledIntoView) {
    for (int i = 0; i < 200; ++i) MakeFolders(logos + "Set " + std::to_string(i) + "\\");
    WithMainWindow([&](Principale& main) {
        for (const int view : {ID_ItmViewType, ID_ItmViewType + 1}) {
            Command(main, view);
            for (const char* name : {"Set 199", "Blue"}) {
                main.SelItem(name);
                RECT item{};
                RECT list{};
                item.left = LVIR_ICON;
                SendMessageA(main.MyList.handle(), LVM_GETITEMRECT,
                             static_cast<WPARAM>(main.MyList.FindItem(name)),
                             reinterpret_cast<LPARAM>(&item));
                GetClientRect(main.MyList.handle(), &list);
                EXPECT_GE(item.left, 0) << name;
                EXPECT_GE(item.top, 0) << name;
                EXPECT_LE(item.right, list.right) << name;
                EXPECT_LE(item.bottom, list.bottom) << name;
            }
        }
    });
}

TEST_F(Selection, EmptyBoxesSayWhy) {
    Put(logos + "Red\\LOGO.SYS", "This is no picture.");
    DeleteFileA((logos + "Red\\LOGOW.SYS").c_str());
    DeleteFileA((logos + "Red\\LOGOS.SYS").c_str());
    MakeFolders(logos + "Red\\LOGOS.SYS\\");
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        user::TakeShot("empty_boxes");
        EXPECT_TRUE(Says(main.Imag[0], "cannot be read as a picture"));
        EXPECT_TRUE(Says(main.Imag[1], "no file"));
        EXPECT_TRUE(Says(main.Imag[2], "cannot be read as a picture"));
        // With the file back the picture is back.
        Put(logos + "Red\\LOGO.SYS", ScreenFile(255, 0, 0));
        user::ClickAt(PointOfSet(main, "Red"));
        EXPECT_TRUE(WaitUntil([&] { return MiddleOf(main.Imag[0]) == kRed; }));
    });
}

}  // namespace
}  // namespace vistrel::test
