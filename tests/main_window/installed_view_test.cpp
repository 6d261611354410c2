// The view of the screens that are installed now, and the preview in actual size.
#include "tests/main_window/main_window_fixture.h"

namespace vistrel::test {
namespace {

class InstalledView : public MainWindow98 {
 protected:
    InstalledView() {
        Put(boot + "LOGO.SYS", ScreenFile(0, 255, 0));
        Put(windows + "LOGOW.SYS", ScreenFile(0, 255, 0));
        Put(windows + "LOGOS.SYS", ScreenFile(0, 255, 0));
    }
};

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
        EXPECT_FALSE(main.LogoType.Visible());
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
        EXPECT_TRUE(main.LogoType.Visible());
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
        user::Click(main.Imag[2].handle());
        const HWND view = user::WaitForTop("FrmView");
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
        user::Click(main.Imag[0].handle());
        const HWND view = user::WaitForTop("FrmView");
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
