// A label that is being edited while something else begins: the edit is taken as typed first.
#include "tests/core/machine.h"
#include "tests/main_window/main_window_fixture.h"
#include "tests/support/seen.h"

namespace vistrel::test {
namespace {

class OpenLabelEdit : public MainWindow98 {
 protected:
    /// Types "Scarlet" over "Red", does `begin`, and finds the set renamed.
    void ExpectRenamedFirst(const std::function<void(Principale& main)>& begin,
                            const std::function<void(Principale& main)>& look) {
        WithMainWindow([&](Principale& main) {
            BeginRenaming(main, "Red", "Scarlet");
            begin(main);
            EXPECT_TRUE(WaitUntil([&] { return !main.MyList.EditingLabel(); }));
            Settle(main);
            EXPECT_TRUE(Exists(logos + "Scarlet\\LOGO.SYS"));
            EXPECT_FALSE(Exists(logos + "Red"));
            if (main.IsOpen()) {
                EXPECT_GE(main.MyList.FindItem("Scarlet"), 0);
                EXPECT_EQ(main.MyList.FindItem("Red"), -1);
                EXPECT_EQ(main.MyList.Count(), 3);
            }
            look(main);
        });
    }
    void PressTool(Principale& main, int id) {
        user::ClickAt(seen::CentreOfButton(main.ActiveBar1.bar(), id));
    }
    static void NothingMore(Principale&) {}
};

TEST_F(OpenLabelEdit, IsTakenBeforeTheSetIsInstalled) {
    ExpectRenamedFirst(
        [&](Principale& main) { PressTool(main, ID_ToolSetDefault); },
        [&](Principale& main) {
            EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Scarlet"; }));
            EXPECT_EQ(Contents(boot + "LOGO.SYS"), Contents(logos + "Scarlet\\LOGO.SYS"));
        });
}

TEST_F(OpenLabelEdit, IsTakenBeforeTheSetIsDeleted) {
    user::Box box;
    ExpectRenamedFirst(
        [&](Principale& main) {
            PressTool(main, ID_ToolDelete);
            box = user::AnswerBox(IDNO);
        },
        NothingMore);
    EXPECT_NE(box.text.find("delete Scarlet logo set"), std::string::npos) << box.text;
    EXPECT_NE(box.text.find(logos + "Scarlet'"), std::string::npos) << box.text;
}

TEST_F(OpenLabelEdit, IsTakenBeforeTheListIsReadAnew) {
    ExpectRenamedFirst([&](Principale& main) { PressTool(main, ID_ToolRefresh); }, NothingMore);
}

TEST_F(OpenLabelEdit, IsTakenBeforeAMenuItemOfTheMenuBar) {
    ExpectRenamedFirst(
        [&](Principale& main) { user::ChooseFromMenuBar(main.handle(), ID_ToolReportView); },
        [&](Principale& main) {
            EXPECT_TRUE(WaitUntil([&] { return main.MyList.Mode() == ListViewMode::Report; }));
        });
}

TEST_F(OpenLabelEdit, IsTakenBeforeARandomChange) {
    ExpectRenamedFirst([&](Principale& main) { PressTool(main, ID_ToolRandom); },
                       [&](Principale& main) {
                           EXPECT_NE(Selected(main), "Scarlet");
                           EXPECT_EQ(Contents(logos + "Scarlet\\LOGO.SYS"), ScreenFile(255, 0, 0));
                       });
}

TEST_F(OpenLabelEdit, IsTakenBeforeTheInstalledScreensAreShown) {
    ExpectRenamedFirst([&](Principale& main) { PressTool(main, ID_ToolShowCurrent); },
                       [&](Principale& main) {
                           EXPECT_TRUE(WaitUntil(
                               [&] { return main.DefaultLogo.Text() == "Current logo setting"; }));
                           Command(main, ID_ToolShowCurrent);
                           EXPECT_EQ(Selected(main), "Scarlet");
                       });
}

TEST_F(OpenLabelEdit, IsTakenBeforeAPictureIsShownInActualSize) {
    ExpectRenamedFirst(
        [&](Principale& main) {
            user::Click(main.Imag[0].handle());
            const HWND view = user::WaitForTop("FrmView");
            EXPECT_NE(view, nullptr);
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(user::WaitUntilGone(view));
        },
        [&](Principale& main) { EXPECT_EQ(main.Imag[0].Tag(), logos + "Scarlet\\LOGO.SYS"); });
}

TEST_F(OpenLabelEdit, IsTakenBeforeTheMenuOfAPicture) {
    ExpectRenamedFirst(
        [&](Principale& main) {
            user::RightClick(main.Imag[1].handle());
            EXPECT_NE(user::WaitForPopUp(), nullptr);
            user::Press(VK_ESCAPE);
        },
        NothingMore);
}

TEST_F(OpenLabelEdit, IsTakenBeforeAnotherWindowOpensInFront) {
    ExpectRenamedFirst(
        [&](Principale& main) {
            StartCommand(main, ID_ItmAbout);
            const HWND about = user::WaitForTop("FrmAboutReg");
            EXPECT_NE(about, nullptr);
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(user::WaitUntilGone(about));
        },
        NothingMore);
}

TEST_F(OpenLabelEdit, IsTakenByAClickBesideTheList) {
    ExpectRenamedFirst([&](Principale& main) { ClickSet(main, "Blue"); },
                       [&](Principale& main) { EXPECT_EQ(Selected(main), "Blue"); });
}

TEST_F(OpenLabelEdit, IsTakenBeforeTheProgramClosesAndItsSettingsAreSaved) {
    WithMainWindow([&](Principale& main) { BeginRenaming(main, "Blue", "Azure"); });
    EXPECT_TRUE(Exists(logos + "Azure\\LOGO.SYS"));
    EXPECT_FALSE(Exists(logos + "Blue"));
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Azure"));
}

TEST_F(OpenLabelEdit, ThatCannotBeTakenIsToldBeforeTheCommandGoesOn) {
    WithMainWindow([&](Principale& main) {
        BeginRenaming(main, "Red", "Blue");
        PressTool(main, ID_ToolSetDefault);
        const auto box = user::AnswerBox(IDOK);
        EXPECT_EQ(box.text,
                  "Cannot rename folder. The folder already exists or has an invalid name");
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Red"; }));
        EXPECT_EQ(main.MyList.FindItem("Red"), 2);
    });
    EXPECT_EQ(Contents(boot + "LOGO.SYS"), ScreenFile(255, 0, 0));
    EXPECT_EQ(Contents(logos + "Blue\\LOGO.SYS"), ScreenFile(0, 0, 255));
}

TEST_F(OpenLabelEdit, RenamesTheEditedSetAlthoughAnotherIsSelectedByThen) {
    WithMainWindow([&](Principale& main) {
        BeginRenaming(main, "Red", "Scarlet.SLS");
        main.MyList.Select(0);
        user::Press(VK_RETURN);
        user::AnswerBox(IDYES);
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.FindItem("Scarlet.SLS") == 2; }));
        Settle(main);
        EXPECT_EQ(main.MyList.ItemText(0), "Blue");
        EXPECT_EQ(main.MyList.ItemIcon(0), "multilogo");
        EXPECT_EQ(main.MyList.ItemIcon(2), "singlelogo");
    });
    EXPECT_TRUE(Exists(logos + "Blue\\LOGO.SYS"));
    EXPECT_TRUE(Exists(logos + "Scarlet.SLS\\LOGO.SYS"));
}

}  // namespace
}  // namespace vistrel::test
