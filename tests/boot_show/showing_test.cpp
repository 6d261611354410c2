// A set's screens over the whole display, opened from the main window.
#include "tests/boot_show/boot_show_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace main_window;

namespace {

class ShowingASet : public BootShow {
 protected:
    static RECT PlaceOf(HWND window) {
        RECT r{};
        GetWindowRect(window, &r);
        return r;
    }
    static void ExpectCoversDisplay(HWND show) {
        const RECT place = PlaceOf(show);
        EXPECT_EQ(place.left, 0);
        EXPECT_EQ(place.top, 0);
        EXPECT_EQ(place.right, GetSystemMetrics(SM_CXSCREEN));
        EXPECT_EQ(place.bottom, GetSystemMetrics(SM_CYSCREEN));
        const RECT screen = PlaceOf(GetDlgItem(show, ID_BootScreen));
        EXPECT_TRUE(EqualRect(&screen, &place));
    }
};

TEST_F(ShowingASet, F11CoversTheDisplayWithOneScreenAfterTheOther) {
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        ExpectCoversDisplay(show);
        EXPECT_TRUE(Shows(kRed));
        EXPECT_FALSE(IsWindowEnabled(main.handle()));
        user::TakeShot("show-startup");
        user::Press(VK_SPACE);
        EXPECT_TRUE(Shows(kGreenScreen));
        EXPECT_TRUE(user::Click(show));
        EXPECT_TRUE(Shows(kBlueScreen));
        EndBy(show, VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(main.handle()) != 0; }));
        ClickSet(main, "Red");
        EXPECT_EQ(Selected(main), "Red");
    });
}

TEST_F(ShowingASet, StartsWithTheStartupScreenFromTheMenuOfAnyPicture) {
    WithMainWindow([&](Principale& main) {
        ASSERT_TRUE(user::RightClick(main.Imag[2].handle()));
        const HMENU menu = user::WaitForPopUp();
        ASSERT_NE(menu, nullptr);
        const auto texts = seen::TextsOf(menu);
        ASSERT_GE(texts.size(), 8u);
        EXPECT_EQ(texts[4], "Autoshow animation");
        EXPECT_EQ(texts[5], "-");
        EXPECT_EQ(texts[6], "Show as at &start\tF11");
        EXPECT_EQ(texts[7], "&Mend");
        user::TakeShot("show-menu");
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmShowAtStart));
        const HWND show = WaitForShow();
        EXPECT_TRUE(Shows(kRed));
        EndBy(show, VK_ESCAPE);
    });
}

TEST_F(ShowingASet, MovesTheColoursOfTheStartupScreenAlone) {
    for (const char* name : {"LOGO.SYS", "LOGOW.SYS", "LOGOS.SYS"})
        Put(screens + name, ScreenFile(255, 0, 0, 236));
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        for (int step = 0; step < 3; ++step) EXPECT_TRUE(Moves()) << step;
        for (int still = 0; still < 2; ++still) {
            user::Press(VK_SPACE);
            EXPECT_TRUE(Shows(kRed));
            EXPECT_FALSE(Moves()) << still;
        }
        EndBy(show, VK_SPACE);
    });
}

// Only what moves is painted anew: also at the edge of a display that is no multiple of the screen.
TEST_F(ShowingASet, MovesADotInTheCorner) {
    std::string file = ScreenFile(255, 0, 0);
    file[50] = static_cast<char>(254);
    file.replace(54 + 254 * 4, 8, "\xFF\0\0\0\0\xFF\0\0", 8);  // blue and green
    const std::size_t pixels = 54 + 256 * 4;
    file[pixels + 319] = static_cast<char>(254);
    Put(screens + "LOGO.SYS", file);
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        const auto corner = [] {
            return seen::PixelAt(
                {GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1});
        };
        for (const COLORREF color : {kBlueScreen, kGreenScreen, kBlueScreen, kGreenScreen})
            EXPECT_TRUE(WaitUntil([&] { return corner() == color; }));
        EXPECT_EQ(Middle(), kRed);
        EndBy(show, VK_ESCAPE);
    });
}

// The system reads the number's lowest byte, whatever was meant by it.
TEST_F(ShowingASet, FlashesWhereACountStandsForTheFirstColourThatMoves) {
    std::string file = ScreenFile(255, 0, 0, 236);
    file[51] = 1;
    Put(screens + "LOGO.SYS", file);
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        EXPECT_TRUE(Moves());
        EndBy(show, VK_ESCAPE);
    });
}

TEST_F(ShowingASet, EndsAtOnceByEsc) {
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        EXPECT_TRUE(Shows(kRed));
        EndBy(show, VK_ESCAPE);
        EXPECT_TRUE(main.IsOpen());
    });
}

TEST_F(ShowingASet, DoesNotGoOnAtShiftOrControlAlone) {
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        user::Press(VK_SHIFT);
        user::Press(VK_CONTROL);
        EXPECT_FALSE(WaitUntil([] { return Middle() != kRed; }, 300));
        EndBy(show, VK_ESCAPE);
    });
}

TEST_F(ShowingASet, TakesNoKeyForACommandOfTheWindowBehind) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Blue");
        const HWND show = ShowByF11(main.handle());
        user::Press(VK_DELETE);
        EXPECT_TRUE(Shows(kGreenScreen));
        user::Press(VK_DELETE);
        EXPECT_TRUE(Shows(kBlueScreen));
        EndBy(show, VK_DELETE);
        Settle(main);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        EXPECT_TRUE(Exists(screens + "LOGO.SYS"));
    });
}

TEST_F(ShowingASet, PassesOverAScreenThatIsMissingOrCannotBeRead) {
    DeleteFileA((screens + "LOGO.SYS").c_str());
    Put(screens + "LOGOW.SYS", "no picture");
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        EXPECT_TRUE(Shows(kBlueScreen));
        EndBy(show, VK_SPACE);
    });
}

TEST_F(ShowingASet, SaysSoWhereThereIsNothingToShow) {
    for (const char* name : {"LOGO.SYS", "LOGOW.SYS", "LOGOS.SYS"})
        DeleteFileA((screens + name).c_str());
    WithMainWindow([&](Principale& main) {
        ASSERT_TRUE(user::Activate(main.handle()));
        user::Press(VK_F11);
        EXPECT_EQ(user::AnswerBox(IDOK).text, "There is no screen here that can be shown.");
        EXPECT_EQ(user::FindTop("FrmBootShow"), nullptr);
    });
}

TEST_F(ShowingASet, ShowsWhatIsInstalledWhileThatIsSeen) {
    Put(boot + "LOGO.SYS", ScreenFile(255, 255, 0));
    Store("StartUpDrive", TextValue(""));
    WithMainWindow([&](Principale& main) {
        main.Preferences().bootRoot = boot;
        Command(main, ID_ToolShowCurrent);
        const HWND show = ShowByF11(main.handle());
        EXPECT_TRUE(Shows(RGB(255, 255, 0)));
        EndBy(show, VK_ESCAPE);
    });
}

TEST_F(ShowingASet, HidesThePointerAndGivesItBack) {
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        EXPECT_TRUE(WaitUntil([] { return seen::Pointer() == nullptr; }));
        user::MoveTo({200, 200});
        Settle(main);
        EXPECT_TRUE(WaitUntil([] { return seen::Pointer() == nullptr; }));
        EndBy(show, VK_ESCAPE);
        user::MoveTo(user::CentreOf(main.Imag[0].handle()));
        EXPECT_TRUE(WaitUntil([] { return seen::Pointer() != nullptr; }));
    });
}

TEST_F(ShowingASet, EndsWhenAnotherProgramComesToTheFront) {
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        // Of this thread, which the system takes for another program's.
        const HWND other = CreateWindowExA(0, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 50, 50,
                                           nullptr, nullptr, nullptr, nullptr);
        SetForegroundWindow(other);
        EXPECT_TRUE(user::WaitUntilGone(show));
        DestroyWindow(other);
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(main.handle()) != 0; }));
    });
}

TEST_F(ShowingASet, LetsTheSessionEnd) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        ClickSet(main, "Blue");
        const HWND show = ShowByF11(main.handle());
        EXPECT_NE(SendMessageA(show, WM_QUERYENDSESSION, 0, 0), 0);
        EXPECT_NE(SendMessageA(main.handle(), WM_QUERYENDSESSION, 0, 0), 0);
        // Put off by another program: the show goes on.
        SendMessageA(show, WM_ENDSESSION, FALSE, 0);
        SendMessageA(main.handle(), WM_ENDSESSION, FALSE, 0);
        user::Press(VK_SPACE);
        EXPECT_TRUE(Shows(kGreenScreen));
        SendMessageA(show, WM_ENDSESSION, TRUE, 0);
        SendMessageA(main.handle(), WM_ENDSESSION, TRUE, 0);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Red"));
        EndBy(show, VK_ESCAPE);
    });
}

TEST_F(ShowingASet, CoversTheDisplayAfterThatHasChanged) {
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        // As it would be after the display has become larger.
        SetWindowPos(show, nullptr, 0, 0, 320, 240, SWP_NOMOVE | SWP_NOZORDER);
        MoveWindow(GetDlgItem(show, ID_BootScreen), 0, 0, 320, 240, TRUE);
        SendMessageA(show, WM_DISPLAYCHANGE, 32,
                     MAKELPARAM(GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)));
        ExpectCoversDisplay(show);
        EXPECT_TRUE(Shows(kRed));
        EndBy(show, VK_ESCAPE);
    });
}

}  // namespace
}  // namespace vistrel::test
