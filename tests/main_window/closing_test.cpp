// The end of windows: closed from outside, destroyed by the system, and with the session.
#include "about/frm_about_reg.h"
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace about;
using namespace controls;
using namespace main_window;

namespace {

class Closing : public MainWindow98 {
 protected:
    Closing() {
        MakeFolders(pictures);
        MakeFolders(pictures + "inner\\");
        Store("SearchLogoPath", TextValue(pictures));
    }

    /// Opens the Logo browser and goes into a folder, which is to be found there at the next time.
    HWND BrowseInside(Principale& main) {
        StartCommand(main, ID_ToolBrowser);
        const HWND browser = user::WaitForTop("SelPictureForm");
        if (!browser) return nullptr;
        const HWND list = GetDlgItem(browser, ID_LogoList);
        RECT row{};
        row.left = 2;  // LVIR_LABEL
        SendMessageA(list, 0x1000 + 14 /* LVM_GETITEMRECT */, 1, reinterpret_cast<LPARAM>(&row));
        POINT at{row.left + 8, (row.top + row.bottom) / 2};
        ClientToScreen(list, &at);
        user::DoubleClickAt(at);
        const HWND path = GetDlgItem(browser, ID_CurPath);
        EXPECT_TRUE(WaitUntil([&] { return user::TextOf(path) == pictures + "inner\\"; }));
        return browser;
    }

    /// Types a name, so that there is a set which could be saved.
    static void TypeName(HWND browser) {
        RECT r{};
        GetWindowRect(GetDlgItem(browser, ID_NameLogoSet), &r);
        user::ClickAt({r.left + 20, (r.top + r.bottom) / 2});
        user::Type("X");
        EXPECT_TRUE(WaitUntil([&] {
            return user::TextOf(GetDlgItem(browser, ID_NameLogoSet)).find('X') != std::string::npos;
        }));
        user::LetFinish(browser);
    }

    /// Asks a window as the system does, which waits for each answer.
    static bool MayEnd(HWND window) { return SendMessageA(window, WM_QUERYENDSESSION, 0, 0) != 0; }

    /// Leaves the browser without saving.
    static void Discard(HWND browser) {
        PostMessageA(browser, WM_CLOSE, 0, 0);
        EXPECT_EQ(user::AnswerBox(IDYES).title, "Vistrel");
        EXPECT_TRUE(user::WaitUntilGone(browser));
    }

    const std::string pictures = root + "pictures\\";
};

TEST_F(Closing, OfTheWindowBehindAModalOneIsPassedOver) {
    WithMainWindow([&](Principale& main) {
        StartCommand(main, ID_ToolAbout);
        const HWND about = user::WaitForTop("FrmAboutReg");
        ASSERT_NE(about, nullptr);
        PostMessageA(main.handle(), WM_CLOSE, 0, 0);
        // What is seen of the next message tells that this one has been dealt with.
        StartCommand(main, ID_ToolReportView);
        ASSERT_TRUE(WaitUntil([&] { return main.MyList.Mode() == ListViewMode::Report; }));
        EXPECT_TRUE(IsWindowVisible(about));
        ASSERT_TRUE(IsWindowVisible(main.handle()));
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(about));
        ClickSet(main, "Red");
        EXPECT_TRUE(IsWindowEnabled(main.handle()));
    });
}

void CALLBACK DestroyMainWindow(HWND, UINT, UINT_PTR timer, DWORD) {
    if (!user::FindTop("FrmAboutReg")) return;
    KillTimer(nullptr, timer);
    DestroyWindow(user::FindTop("Principale"));
}

TEST_F(Closing, ByTheSystemIsKnownToTheWindowAndToThoseItOwns) {
    Principale main(locations);
    ASSERT_TRUE(main.Create(nullptr));
    main.Show();
    SetTimer(nullptr, 0, 50, DestroyMainWindow);
    FrmAboutReg about;
    about.ShowModal(main.handle());  // returns
    EXPECT_FALSE(about.IsOpen());
    EXPECT_FALSE(main.IsOpen());
    EXPECT_EQ(OpenWindowOf(main.handle()), nullptr);
    RunLoopWhileOpen(main);  // returns at once
}

TEST_F(Closing, LeavesAListInWhichNothingIsFound) {
    Principale main(locations);
    ASSERT_TRUE(main.Create(nullptr));
    ASSERT_GE(main.MyList.FindItem("Blue"), 0);
    ASSERT_TRUE(main.Unload());
    // Each of these returns.
    EXPECT_EQ(main.MyList.FindItem("Blue"), -1);
    EXPECT_EQ(main.MyList.FindItemOfAnyCase("Blue"), -1);
}

TEST_F(Closing, WithTheSessionIsAgreedToWithoutAQuestionWhereNothingIsUnsaved) {
    WithMainWindow([&](Principale& main) {
        EXPECT_TRUE(MayEnd(main.handle()));
        const HWND browser = BrowseInside(main);
        ASSERT_NE(browser, nullptr);
        EXPECT_TRUE(MayEnd(browser));
        EXPECT_TRUE(MayEnd(main.handle()));
        PostMessageA(browser, WM_CLOSE, 0, 0);
        EXPECT_TRUE(user::WaitUntilGone(browser));
    });
}

TEST_F(Closing, WithTheSessionIsPutOffByNoAndNothingIsLost) {
    WithMainWindow([&](Principale& main) {
        const HWND browser = BrowseInside(main);
        ASSERT_NE(browser, nullptr);
        TypeName(browser);
        user::Box box;
        bool may = true;
        {
            user::Meanwhile asked([&] { may = MayEnd(browser); });
            box = user::AnswerBox(IDNO);
        }
        EXPECT_FALSE(may);
        EXPECT_EQ(box.text, "You haven't saved the last changes. Would you like to discard them?");
        EXPECT_EQ(box.default_button, IDNO);
        SendMessageA(browser, WM_ENDSESSION, FALSE, 0);
        SendMessageA(main.handle(), WM_ENDSESSION, FALSE, 0);
        EXPECT_TRUE(IsWindowVisible(browser));
        EXPECT_NE(Stored("SearchLogoPath"), SavedText(pictures + "inner\\"));
        Discard(browser);
    });
}

TEST_F(Closing, WithTheSessionKeepsWhatTheBrowserHadAndShowsNothing) {
    WithMainWindow([&](Principale& main) {
        const HWND browser = BrowseInside(main);
        ASSERT_NE(browser, nullptr);
        TypeName(browser);
        {
            user::Meanwhile asked([&] { MayEnd(browser); });
            user::AnswerBox(IDYES);
        }
        // The main window first: the browser's folder is to be among the settings all the same.
        SendMessageA(main.handle(), WM_ENDSESSION, TRUE, 0);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        EXPECT_EQ(Stored("SearchLogoPath"), SavedText(pictures + "inner\\"));
        SendMessageA(browser, WM_ENDSESSION, TRUE, 0);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        Discard(browser);
    });
}

TEST_F(Closing, WithTheSessionKeepsTheSettings) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        EXPECT_TRUE(MayEnd(main.handle()));
        EXPECT_NE(Stored("DefaultLogoSet"), SavedText("Red"));  // not before it ends
        SendMessageA(main.handle(), WM_ENDSESSION, TRUE, 0);
        EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Red"));
        // The test's own closing is not to be what is seen above.
        EXPECT_TRUE(main.IsOpen());
    });
}

TEST_F(Closing, WithTheSessionTakesTheLabelThatIsBeingEdited) {
    WithMainWindow([&](Principale& main) {
        BeginRenaming(main, "Blue", "Azure");
        EXPECT_TRUE(MayEnd(main.handle()));
        SendMessageA(main.handle(), WM_ENDSESSION, TRUE, 0);
        EXPECT_TRUE(Exists(logos + "Azure\\LOGO.SYS"));
        EXPECT_FALSE(Exists(logos + "Blue"));
        EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Azure"));
    });
}

TEST_F(Closing, WithTheSessionTellsOfALabelThatCannotBeTakenWhileItStillMay) {
    WithMainWindow([&](Principale& main) {
        BeginRenaming(main, "Red", "Blue");
        bool may = false;
        user::Box box;
        {
            user::Meanwhile asked([&] { may = MayEnd(main.handle()); });
            box = user::AnswerBox(IDOK);
        }
        EXPECT_TRUE(may);
        EXPECT_EQ(box.text,
                  "Cannot rename folder. The folder already exists or has an invalid name");
        SendMessageA(main.handle(), WM_ENDSESSION, TRUE, 0);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        EXPECT_TRUE(Exists(logos + "Red\\LOGO.SYS"));
        // One that was not ended would be told of while the test closes the window.
        if (main.MyList.EditingLabel()) user::Press(VK_ESCAPE);
    });
}

TEST_F(Closing, OfTheTipsIsPassedOver) {
    WithMainWindow([&](Principale& main) {
        const POINT refresh = seen::CentreOfButton(main.ActiveBar1.bar(), ID_ToolRefresh);
        const std::vector<HWND> helpers = seen::HelpersOf(main.handle());
        EXPECT_GE(helpers.size(), 2u);  // its own tips and the toolbar's
        for (const HWND helper : helpers) SendMessageA(helper, WM_CLOSE, 0, 0);
        EXPECT_EQ(seen::HelpersOf(main.handle()), helpers);
        EXPECT_EQ(seen::TipOver(main.DefaultLogo.handle()), "Default logo set");
        EXPECT_EQ(seen::TipAt(refresh), "Refreshed the logo sets list");
    });
}

}  // namespace
}  // namespace vistrel::test
