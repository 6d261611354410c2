// Several sets that are selected at once.
#include "tests/main_window/open_file.h"
#include "tests/support/machine/zip_file.h"
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

class Several : public MainWindow98 {
 protected:
    static Names SelectedSets(Principale& main) {
        Names names;
        for (const int item : main.MyList.SelectedItems())
            names.push_back(main.MyList.ItemText(item));
        return names;
    }
    /// Waits until just these are selected.
    static bool AreSelected(Principale& main, const Names& names) {
        const bool are = WaitUntil([&] { return SelectedSets(main) == names; });
        Settle(main);
        return are;
    }
    static void SelectAll(Principale& main) {
        main.MyList.Focus();
        user::Press('A', {VK_CONTROL});
        WaitUntil([&] { return main.MyList.SelectedCount() == main.MyList.Count(); });
        Settle(main);
    }
    /// Clicks two sets, the second with Ctrl.
    void SelectTwo(Principale& main, const std::string& first, const std::string& second) {
        ClickAlso(main, first, VK_CONTROL, second, 2);
    }
    static bool Shows(Principale& main, const std::string& screen) {
        return WaitUntil([&] { return main.Imag[0].Tag() == screen; });
    }
    static bool Offers(Principale& main, unsigned id) {
        return seen::RowOf(GetMenu(main.handle()), id).enabled;
    }
    static void DeleteForGood(Principale& main) { main.Preferences().deleteInTheRecycleBin = 0; }
};

TEST_F(Several, AreSelectedByCtrlAndHaveTheCommandsOnASetButDuplicate) {
    WithMainWindow([&](Principale& main) {
        SelectTwo(main, "Blue", "Red");
        EXPECT_EQ(SelectedSets(main), (Names{"Blue", "Red"}));
        user::TakeShot("several", main.handle());
        const HWND bar = main.ActiveBar1.bar();
        for (const int id : {ID_ToolRename, ID_ToolSetDefault, ID_ToolDelete})
            EXPECT_TRUE(seen::ButtonOf(bar, id).enabled) << id;
        EXPECT_FALSE(Offers(main, ID_ToolDuplicate));
        for (const unsigned id : {ID_ToolRename, ID_ToolDelete, ID_ToolSetDefault, ID_ToolExport,
                                  ID_ToolCopy, ID_ToolSelectAll})
            EXPECT_TRUE(Offers(main, id)) << id;
        main.MyList.SelectJust({0});
        EXPECT_TRUE(AreSelected(main, {"Blue"}));
        EXPECT_TRUE(SetToolsEnabled(main));
    });
}

TEST_F(Several, OfThemTheOneThatIsShownIsInstalledOrRenamed) {
    WithMainWindow([&](Principale& main) {
        SelectTwo(main, "Red", "Green.SLS");
        EXPECT_TRUE(Shows(main, logos + "Green.SLS\\LOGO.SYS"));
        Command(main, ID_ToolSetDefault);
        EXPECT_EQ(main.DefaultLogo.Text(), "Green.SLS");
        SelectTwo(main, "Blue", "Red");
        EXPECT_TRUE(Shows(main, logos + "Red\\LOGO.SYS"));
        user::Press(VK_F2);
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.EditingLabel(); }));
        user::Type("Scarlet");
        user::Press(VK_RETURN);
        EXPECT_TRUE(AreSelected(main, {"Scarlet"}));
    });
    EXPECT_EQ(NamesIn(logos), (Names{"Blue", "Green.SLS", "LOGOS.SYS", "LOGOW.SYS", "Scarlet"}));
}

TEST_F(Several, ShowTheScreensOfTheOneThatTheKeysActOn) {
    WithMainWindow([&](Principale& main) {
        SelectTwo(main, "Blue", "Red");
        EXPECT_TRUE(Shows(main, logos + "Red\\LOGO.SYS"));
        // The one with the keys is not among them any more.
        main.MyList.SelectJust({0});
        EXPECT_TRUE(Shows(main, logos + "Blue\\LOGO.SYS"));
        ClickSet(main, "Blue");
        user::Press(VK_DOWN, {VK_SHIFT});
        EXPECT_TRUE(AreSelected(main, {"Blue", "Green.SLS"}));
        EXPECT_TRUE(Shows(main, logos + "Green.SLS\\LOGO.SYS"));
        EXPECT_TRUE(WaitUntil([&] { return main.LogoType.Text() == "Single logo"; }));
    });
}

TEST_F(Several, AreSelectedByShiftByTheFrameAndByTheCommandForAll) {
    WithMainWindow([&](Principale& main) {
        ClickAlso(main, "Blue", VK_SHIFT, "Red", 3);
        EXPECT_TRUE(AreSelected(main, {"Blue", "Green.SLS", "Red"}));
        ClickBelowSets(main);
        const POINT last = PointOfSet(main, "Red");
        const POINT first = PointOfSet(main, "Green.SLS");
        user::Drag({last.x + 60, last.y + 40}, {first.x, first.y});
        EXPECT_TRUE(AreSelected(main, {"Green.SLS", "Red"}));
        user::OpenMenuByLetter('L', 0);
        user::Press('A');
        EXPECT_TRUE(AreSelected(main, {"Blue", "Green.SLS", "Red"}));
    });
}

TEST_F(Several, AreNotInstalledOrOpenedByEnter) {
    WithMainWindow([&](Principale& main) {
        SelectAll(main);
        user::Press(VK_RETURN);
        Settle(main);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_EQ(user::FindTop("SelPictureForm"), nullptr);
        EXPECT_EQ(Installed(), (Names{"-", "-", "-"}));
    });
}

TEST_F(Several, AreDeletedAfterOneQuestionThatSaysHowMany) {
    PutSet("Last", 9, 9, 9);
    WithMainWindow([&](Principale& main) {
        DeleteForGood(main);
        main.Preferences().leftOutOfRotation = "Blue/Last";
        SelectTwo(main, "Blue", "Green.SLS");
        user::Press(VK_DELETE);
        const user::Box box = user::AnswerBox(IDNO);
        EXPECT_EQ(box.title, "Confirm deletions");
        EXPECT_EQ(box.text,
                  "Are you sure you want to delete 2 logo sets? This operation will delete all "
                  "files contained in their folders!");
        EXPECT_EQ(box.default_button, IDYES);
        EXPECT_EQ(box.icon, unsigned{MB_ICONQUESTION});
        EXPECT_TRUE(AreSelected(main, {"Blue", "Green.SLS"}));
        EXPECT_TRUE(Exists(logos + "Blue\\LOGO.SYS"));

        user::Press(VK_DELETE);
        user::AnswerBox(IDYES);
        EXPECT_TRUE(WaitUntil([&] { return main.NumLogo.Text() == " 2 logo sets"; }));
        EXPECT_TRUE(AreSelected(main, {"Last"}));
        EXPECT_EQ(main.SetNames(), (Names{"Last", "Red"}));
        EXPECT_EQ(main.DefaultLogo.Text(), "<Don't know>");
        EXPECT_EQ(main.Preferences().leftOutOfRotation, "Last");
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
    });
    EXPECT_EQ(NamesIn(logos), (Names{"LOGOS.SYS", "LOGOW.SYS", "Last", "Red"}));
}

TEST_F(Several, AreDeletedUnaskedWhereThePreferenceIsOff) {
    WithMainWindow([&](Principale& main) {
        DeleteForGood(main);
        main.Preferences().confirmLogosetDelete = 0;
        SelectAll(main);
        Command(main, ID_ToolDelete);
        EXPECT_EQ(main.MyList.Count(), 0);
        EXPECT_TRUE(Says(main.Imag[0], "no picture"));
        EXPECT_FALSE(SetToolsEnabled(main));
    });
}

TEST_F(Several, OfWhichSomeCannotBeDeletedAreNamedAndStay) {
    const OpenFile open(logos + "Red\\LOGOW.SYS");
    WithMainWindow([&](Principale& main) {
        DeleteForGood(main);
        SelectTwo(main, "Red", "Blue");
        StartCommand(main, ID_ToolDelete);
        user::AnswerBox(IDYES);
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  "These logo sets cannot be deleted, or not all that is in them:\r\n\r\nRed");
        EXPECT_TRUE(AreSelected(main, {"Red"}));
        EXPECT_EQ(main.SetNames(), (Names{"Green.SLS", "Red"}));
    });
}

TEST_F(Several, GoIntoTheRecycleBinAfterOneQuestionOfTheShell) {
    MakeFolders(logos + "Empty\\");
    WithMainWindow([&](Principale& main) {
        main.Preferences().deleteInTheRecycleBin = 1;
        main.Preferences().confirmLogosetDelete = 0;
        for (const bool yes : {false, true}) {
            SelectAll(main);
            StartCommand(main, ID_ToolDelete);
            const HWND question = user::WaitForTop("#32770");
            ASSERT_NE(question, nullptr);
            user::Activate(question);
            user::Press(yes ? VK_RETURN : VK_ESCAPE);
            EXPECT_TRUE(user::WaitUntilGone(question));
            EXPECT_TRUE(WaitUntil([&] { return main.MyList.Count() == (yes ? 0 : 4); }));
            Settle(main);
            EXPECT_EQ(user::FindTop("#32770"), nullptr);
        }
    });
    EXPECT_EQ(NamesIn(logos), (Names{"LOGOS.SYS", "LOGOW.SYS"}));
}

class SeveralGiven : public Several {
 protected:
    /// For the user's thread.
    static bool AnswerDialog(const std::string& path) {
        const HWND dialog = user::WaitForTop("#32770", "Export logo sets");
        if (!dialog) return false;
        user::Activate(dialog);
        user::Type(path);
        user::Press(VK_RETURN);
        return user::WaitUntilGone(dialog);
    }
    const std::string zip = root + "given.zip";
};

TEST_F(SeveralGiven, AreExportedIntoOneFile) {
    WithMainWindow([&](Principale& main) {
        SelectAll(main);
        StartCommand(main, ID_ToolExport);
        EXPECT_TRUE(AnswerDialog(zip));
        EXPECT_TRUE(WaitUntil([&] { return Exists(zip); }));
        Settle(main);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
    });
    const std::string bytes = Contents(zip).value_or("");
    for (const char* name : {"Blue/LOGOS.SYS", "Green.SLS/LOGO.SYS", "Red/LOGO.SYS"})
        EXPECT_NE(bytes.find(name), std::string::npos) << name;
}

TEST_F(SeveralGiven, OfWhichSomeCannotBeReadAreNamedAndNothingIsWritten) {
    const OpenFile open(logos + "Red\\LOGOW.SYS");
    const OpenFile other(logos + "Blue\\LOGO.SYS");
    WithMainWindow([&](Principale& main) {
        SelectAll(main);
        StartCommand(main, ID_ToolExport);
        EXPECT_TRUE(AnswerDialog(zip));
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  "Nothing has been exported. Screens of these logo sets cannot be read:\r\n\r\n"
                  "Blue\r\nRed");
    });
    EXPECT_FALSE(Exists(zip));
    EXPECT_EQ(NamesIn(root), (Names{"boot", "logos", "program", "startup", "windows"}));
}

class StayingSelected : public Several {};

TEST_F(StayingSelected, AfterARefreshInEveryViewAndTheInstalledScreens) {
    WithMainWindow([&](Principale& main) {
        SelectTwo(main, "Red", "Green.SLS");
        for (const int id :
             {ID_ToolRefresh, ID_ToolReportView, ID_ToolThumbnailView, ID_ToolDetailsView,
              ID_ToolListView, ID_ToolPrefer, ID_ToolShowCurrent}) {
            StartCommand(main, id);
            if (id == ID_ToolPrefer) {
                const HWND options = user::WaitForTop("FrmOptions");
                user::Activate(options);
                user::Press(VK_ESCAPE);
                EXPECT_TRUE(user::WaitUntilGone(options));
            }
            Settle(main);
            if (id == ID_ToolShowCurrent) {
                EXPECT_TRUE(AreSelected(main, {}));
                Command(main, ID_ToolRefresh);
                Command(main, id);
            }
            EXPECT_TRUE(AreSelected(main, {"Green.SLS", "Red"})) << id;
            EXPECT_TRUE(Shows(main, logos + "Green.SLS\\LOGO.SYS")) << id;
        }
    });
}

TEST_F(StayingSelected, AsFarAsTheyAreFound) {
    PutSet("Rust", 9, 9, 9);
    WithMainWindow([&](Principale& main) {
        SelectAll(main);
        user::Press('F', {VK_CONTROL});
        EXPECT_TRUE(
            WaitUntil([&] { return seen::FocusIn(main.handle()) == main.FindBox.handle(); }));
        user::Type("R");
        EXPECT_TRUE(AreSelected(main, {"Green.SLS", "Red", "Rust"}));
        user::Type("u");
        EXPECT_TRUE(AreSelected(main, {"Rust"}));
        EXPECT_TRUE(Shows(main, logos + "Rust\\LOGO.SYS"));
        EXPECT_TRUE(SetToolsEnabled(main));
    });
}

TEST_F(StayingSelected, IsOneOnlyAfterARandomChange) {
    WithMainWindow([&](Principale& main) {
        SelectAll(main);
        Command(main, ID_ToolRandom);
        EXPECT_EQ(main.MyList.SelectedCount(), 1);
        EXPECT_EQ(main.DefaultLogo.Text(), Selected(main));
    });
}

TEST_F(StayingSelected, SelectingAllEndsTheViewOfTheInstalledScreens) {
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolShowCurrent);
        SelectAll(main);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_FALSE(seen::ButtonOf(main.ActiveBar1.bar(), ID_ToolShowCurrent).checked);
        EXPECT_TRUE(seen::ButtonOf(main.ActiveBar1.bar(), ID_ToolDelete).enabled);
    });
}

}  // namespace
}  // namespace vistrel::test
