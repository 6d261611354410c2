// The view of the screens that are installed now, and the preview in actual size.
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

class InstalledView : public MainWindow98 {
 protected:
    InstalledView() {
        Put(boot + "LOGO.SYS", ScreenFile(0, 255, 0));
        Put(windows + "LOGOW.SYS", ScreenFile(0, 255, 0));
        Put(windows + "LOGOS.SYS", ScreenFile(0, 255, 0));
    }
    /// The sets are shown again, as if the tool had been clicked.
    void ExpectSetView(Principale& main, const std::string& set) {
        EXPECT_FALSE(seen::ButtonOf(main.ActiveBar1.bar(), ID_ToolShowCurrent).checked);
        EXPECT_FALSE(seen::RowOf(GetMenu(main.handle()), ID_ToolShowCurrent).checked);
        EXPECT_TRUE(seen::RowsOf(GetMenu(main.handle())).at(0).enabled);
        EXPECT_TRUE(seen::ButtonOf(main.ActiveBar1.bar(), ID_ToolRandom).enabled);
        EXPECT_TRUE(SetToolsEnabled(main));
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_TRUE(IsWindowVisible(main.LogoType.handle()));
        EXPECT_TRUE(IsWindowVisible(main.LblDefaultLogo.handle()));
        EXPECT_EQ(Selected(main), set);
        EXPECT_EQ(main.Imag[0].Tag(), logos + set + "\\LOGO.SYS");
    }
    static POINT BesideTheControls(Principale& main) {
        RECT r{};
        GetWindowRect(main.LblScreen[0].handle(), &r);
        return {(r.left + r.right) / 2, r.bottom + 20};
    }
};

TEST_F(InstalledView, ShowsTheHourglassWhileTheInstalledScreensAreRead) {
    Put(boot + "LOGO.SYS", LargeScreenFile());
    WithMainWindow([&](Principale& main) {
        user::MoveTo(user::CentreOf(main.MyList.handle()));
        Settle(main);
        EXPECT_FALSE(seen::PointerIsHourglass());
        EXPECT_TRUE(SeesTheHourglass(main, ID_ToolShowCurrent));
        EXPECT_TRUE(WaitUntil([] { return !seen::PointerIsHourglass(); }));
        EXPECT_EQ(main.DefaultLogo.Text(), "Current logo setting");
    });
}

TEST_F(InstalledView, ShowsTheInstalledScreensInGreenAndGoesBack) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        EXPECT_TRUE(user::ChooseFromMenuBar(main.handle(), ID_ToolShowCurrent));
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Current logo setting"; }));
        Settle(main);
        EXPECT_TRUE(main.ActiveBar1.Checked("ToolShowCurrent"));
        EXPECT_EQ(main.DefaultLogo.ForeColor(), 0x008000);
        EXPECT_EQ(main.DefaultLogo.tip(), "Showing current logo setting");
        EXPECT_FALSE(main.ActiveBar1.Enabled("MnuLogo"));
        EXPECT_FALSE(main.ActiveBar1.Enabled("ToolRandom"));
        EXPECT_FALSE(IsWindowVisible(main.LogoType.handle()));
        EXPECT_FALSE(IsWindowVisible(main.LblDefaultLogo.handle()));
        EXPECT_EQ(main.MyList.SelectedItem(), -1);
        EXPECT_EQ(main.Imag[0].Tag(), boot + "LOGO.SYS");
        EXPECT_EQ(main.Imag[1].Tag(), windows + "LOGOW.SYS");
        for (const PictureBox& box : main.Imag) EXPECT_EQ(MiddleOf(box), kGreenScreen);
        user::TakeShot("installed_view");

        StartCommand(main, ID_ToolShowCurrent);
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Blue"; }));
        Settle(main);
        EXPECT_FALSE(main.ActiveBar1.Checked("ToolShowCurrent"));
        EXPECT_EQ(main.DefaultLogo.ForeColor(), 0xFF0000);
        EXPECT_EQ(main.DefaultLogo.tip(), "Default logo set");
        EXPECT_TRUE(main.ActiveBar1.Enabled("MnuLogo"));
        EXPECT_TRUE(main.ActiveBar1.Enabled("ToolRandom"));
        EXPECT_TRUE(IsWindowVisible(main.LogoType.handle()));
        EXPECT_TRUE(IsWindowVisible(main.LblDefaultLogo.handle()));
        EXPECT_EQ(main.MyList.SelectedItem(), 2);
        EXPECT_EQ(MiddleOf(main.Imag[0]), kRed);
    });
}

TEST_F(InstalledView, LeavesABoxEmptyWhereTheFileIsMissing) {
    DeleteFileA((windows + "LOGOW.SYS").c_str());
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolShowCurrent);
        EXPECT_TRUE(main.Imag[0].HasPicture());
        EXPECT_FALSE(main.Imag[1].HasPicture());
        EXPECT_EQ(main.Imag[1].Tag(), windows + "LOGOW.SYS");
    });
}

TEST_F(InstalledView, IsNotSwitchedByTheMenuItem) {
    WithMainWindow([&](Principale& main) {
        main.Imag[0].Clear();
        Command(main, ID_ItmViewDefOrActual);
        EXPECT_FALSE(main.ActiveBar1.Checked("ToolShowCurrent"));
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_TRUE(main.Imag[0].HasPicture());

        Command(main, ID_ToolShowCurrent);
        Command(main, ID_ItmViewDefOrActual);
        EXPECT_TRUE(main.ActiveBar1.Checked("ToolShowCurrent"));
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
    });
}

TEST_F(InstalledView, OpensTheInstalledFileAtAClickOnIt) {
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolShowCurrent);
        const HWND view = user::ClickToOpen(main.Imag[2].handle(), "FrmView");
        ASSERT_NE(view, nullptr);
        const HWND preview = GetDlgItem(view, ID_Preview);
        EXPECT_NE(preview, nullptr);
        user::Press('X');
        EXPECT_TRUE(user::WaitUntilGone(view));
    });
}

TEST_F(InstalledView, KeepsTheInstalledSetWhenClosed) {
    WithMainWindow([&](Principale& main) { Command(main, ID_ToolShowCurrent); });
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Blue"));
}

TEST_F(InstalledView, StaysThroughARefresh) {
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolShowCurrent);
        PutSet("Zebra", 1, 1, 1);
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(main.MyList.Count(), 4);
        EXPECT_EQ(main.DefaultLogo.Text(), "Current logo setting");
        EXPECT_EQ(MiddleOf(main.Imag[0]), kGreenScreen);
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
    });
}

TEST_F(InstalledView, ChangesTheColourAndTheTipOfTheLabel) {
    constexpr COLORREF kBlueLetters = RGB(0, 0, 255);
    constexpr COLORREF kGreenLetters = RGB(0, 128, 0);
    WithMainWindow([&](Principale& main) {
        const HWND label = main.DefaultLogo.handle();
        const auto shows = [&](COLORREF color) {
            return WaitUntil([&] { return seen::ShowsColor(label, color); }, 3000);
        };
        EXPECT_TRUE(shows(kBlueLetters));
        EXPECT_EQ(seen::TipOver(label), "Default logo set");
        Command(main, ID_ToolShowCurrent);
        EXPECT_TRUE(shows(kGreenLetters));
        EXPECT_FALSE(seen::ShowsColor(label, kBlueLetters));
        EXPECT_EQ(seen::TipOver(label), "Showing current logo setting");
        Command(main, ID_ToolShowCurrent);
        EXPECT_TRUE(shows(kBlueLetters));
        EXPECT_EQ(seen::TipOver(label), "Default logo set");
    });
}

TEST_F(InstalledView, TellsHowToCloseTheActualSize) {
    WithMainWindow([&](Principale& main) {
        const HWND view = user::ClickToOpen(main.Imag[0].handle(), "FrmView");
        ASSERT_NE(view, nullptr);
        EXPECT_EQ(seen::TipOver(GetDlgItem(view, ID_Preview)), "Click or press a key to close");
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(view));
    });
}

TEST_F(InstalledView, WithholdsTheRandomChange) {
    WithMainWindow([&](Principale& main) {
        const auto random = [&] {
            return seen::RowOf(GetMenu(main.handle()), ID_ToolRandom).enabled;
        };
        const auto randomButton = [&] {
            return seen::ButtonOf(main.ActiveBar1.bar(), ID_ToolRandom).enabled;
        };
        const auto randomItem = [&] {
            user::RightClickAt(BesideTheControls(main));
            const bool enabled = seen::RowOf(user::WaitForPopUp(), ID_ItmRandomSpin).enabled;
            user::Press(VK_ESCAPE);
            WaitUntil([] { return user::FindTop("#32768") == nullptr; });
            return enabled;
        };
        EXPECT_TRUE(random() && randomButton() && randomItem());
        Command(main, ID_ToolShowCurrent);
        EXPECT_FALSE(random());
        EXPECT_FALSE(randomButton());
        EXPECT_FALSE(randomItem());
        Command(main, ID_ItmRandomSpin);
        EXPECT_EQ(main.DefaultLogo.Text(), "Current logo setting");
        EXPECT_EQ(Contents(boot + "LOGO.SYS"), ScreenFile(0, 255, 0));
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_TRUE(random() && randomButton() && randomItem());
    });
}

TEST_F(InstalledView, GreysTheLogoMenuInTheBarAndWithholdsItOnTheList) {
    WithMainWindow([&](Principale& main) {
        const auto logoMenu = [&] { return seen::RowsOf(GetMenu(main.handle())).at(0); };
        EXPECT_TRUE(logoMenu().enabled);
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(logoMenu().text, "&Logo");
        EXPECT_FALSE(logoMenu().enabled);
        POINT below = PointOfSet(main, "Red");
        below.y += 60;
        user::RightClickAt(below);
        user::Press(VK_APPS);
        user::Press(VK_F10, {VK_SHIFT});
        Settle(main);
        EXPECT_EQ(user::FindTop("#32768"), nullptr);
        Command(main, ID_ToolShowCurrent);
        EXPECT_TRUE(logoMenu().enabled);
    });
}

TEST_F(InstalledView, EndsWhenTheUserClicksASet) {
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolShowCurrent);
        ClickSet(main, "Red");
        ExpectSetView(main, "Red");
        EXPECT_EQ(MiddleOf(main.Imag[0]), kRed);
        // And the tool shows the installed screens again.
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(main.DefaultLogo.Text(), "Current logo setting");
    });
}

TEST_F(InstalledView, EndsWhenTheUserSelectsASetByTheKeyboard) {
    WithMainWindow([&](Principale& main) {
        main.MyList.Focus();
        Command(main, ID_ToolShowCurrent);
        user::Press(VK_END);
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Blue"; }));
        Settle(main);
        ExpectSetView(main, "Red");
    });
}

TEST_F(InstalledView, LeavesTheBoxesEmptyAfterwardsWhereNothingWasSelected) {
    Store("DefaultLogoSet", TextValue("gone"));
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(MiddleOf(main.Imag[0]), kGreenScreen);
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(main.DefaultLogo.Text(), "<Don't know>");
        for (const PictureBox& box : main.Imag) EXPECT_TRUE(Says(box, "no picture"));
        EXPECT_EQ(main.LogoType.Text(), "");
        EXPECT_FALSE(SetToolsEnabled(main));
    });
}

TEST_F(InstalledView, KeepsTheStateOfTheSetToolsWhichThenDoNothing) {
    WithMainWindow([&](Principale& main) {
        // By a key: the release of a click, where it came late, would look at the tools anew.
        main.MyList.Focus();
        user::Press(VK_END);
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Red"; }));
        Settle(main);
        Command(main, ID_ToolShowCurrent);
        EXPECT_TRUE(SetToolsEnabled(main));
        for (const int id : {ID_ToolRename, ID_ToolDelete, ID_ToolSetDefault}) Command(main, id);
        EXPECT_FALSE(main.MyList.EditingLabel());
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        EXPECT_EQ(main.DefaultLogo.Text(), "Current logo setting");
        EXPECT_EQ(Contents(boot + "LOGO.SYS"), ScreenFile(0, 255, 0));
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_EQ(Selected(main), "Red");
    });
}

TEST_F(InstalledView, ComesBackWithASetThatBecameTheInstalledOneMeanwhile) {
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolShowCurrent);
        main.SetInstalledSet("Red");
        EXPECT_EQ(main.DefaultLogo.Text(), "Current logo setting");
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(main.DefaultLogo.Text(), "Red");
    });
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Red"));
}

TEST_F(InstalledView, SaysWhichScreensAreAbsentAfterASetWithoutThemWasInstalled) {
    DeleteFileA((logos + "Red\\LOGOS.SYS").c_str());
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        EXPECT_TRUE(Says(main.Imag[2], "no file"));
        Command(main, ID_ToolSetDefault);
        EXPECT_EQ(main.DefaultLogo.Text(), "Red");
        Command(main, ID_ToolShowCurrent);
        EXPECT_EQ(MiddleOf(main.Imag[0]), kRed);
        EXPECT_EQ(MiddleOf(main.Imag[1]), kRed);
        EXPECT_TRUE(Says(main.Imag[2], "no file"));
        user::TakeShot("installed_without_shutdown");
    });
    EXPECT_FALSE(Exists(windows + "LOGOS.SYS"));
}

class Animation : public MainWindow98 {
 protected:
    Animation() { Put(logos + "Blue\\LOGO.SYS", ScreenFile(255, 0, 0, 236)); }

    static COLORREF MiddleOf(HWND window) {
        RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW);
        // What the window's own thread has begun to paint is to be finished.
        SendMessageA(window, WM_NULL, 0, 0);
        const HDC dc = GetDC(window);
        const COLORREF color = GetPixel(dc, 160, 200);
        ReleaseDC(window, dc);
        return color;
    }

    /// Shows the first picture in actual size and lets `look` look at it.
    void InActualSize(Principale& main, const std::function<void(HWND preview)>& look) {
        const HWND view = user::ClickToOpen(main.Imag[0].handle(), "FrmView");
        ASSERT_NE(view, nullptr);
        look(GetDlgItem(view, ID_Preview));
        user::Press(VK_SPACE);
        EXPECT_TRUE(user::WaitUntilGone(view));
    }
};

TEST_F(Animation, MovesTheColoursOfAnAnimatedScreen) {
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ItmAnimate);
        InActualSize(main, [](HWND preview) {
            COLORREF first = MiddleOf(preview);
            user::TakeShot("animation_1");
            for (int change = 0; change < 3; ++change) {
                EXPECT_TRUE(WaitUntil([&] { return MiddleOf(preview) != first; }));
                first = MiddleOf(preview);
            }
            user::TakeShot("animation_2");
        });
    });
}

TEST_F(Animation, StandsStillWithTheSwitchOff) {
    WithMainWindow([&](Principale& main) {
        InActualSize(main, [](HWND preview) {
            EXPECT_EQ(MiddleOf(preview), kRed);
            EXPECT_FALSE(WaitUntil([&] { return MiddleOf(preview) != kRed; }, 400));
        });
    });
}

TEST_F(Animation, StandsStillForAScreenWithoutMovingColours) {
    Put(logos + "Blue\\LOGO.SYS", ScreenFile(255, 0, 0));
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ItmAnimate);
        InActualSize(main, [](HWND preview) {
            EXPECT_FALSE(WaitUntil([&] { return MiddleOf(preview) != kRed; }, 400));
        });
    });
}

}  // namespace
}  // namespace vistrel::test
