// The main window by keyboard: the list and the three screens.
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

using Keyboard = MainWindow98;

TEST_F(Keyboard, EnterInTheListIsADoubleClick) {
    WithMainWindow([&](Principale& main) {
        main.Preferences().actionOnDoubleClick = 0;
        ClickSet(main, "Red");
        user::Press(VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return user::TextOf(main.DefaultLogo.handle()) == "Red"; }));
        EXPECT_EQ(Contents(boot + "LOGO.SYS"), ScreenFile(255, 0, 0));
        main.Preferences().actionOnDoubleClick = 1;
        user::Press(VK_RETURN);
        const HWND browser = user::WaitForTop("SelPictureForm");
        EXPECT_NE(browser, nullptr);
        PostMessageA(browser, WM_CLOSE, 0, 0);
        EXPECT_TRUE(user::WaitUntilGone(browser));
    });
}

TEST_F(Keyboard, TabReachesTheScreensWhereSpaceAndTheMenuKeyAreTheButtons) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        for (PictureBox& box : main.Imag) {
            user::Press(VK_TAB);
            EXPECT_TRUE(WaitUntil([&] { return seen::FocusIn(main.handle()) == box.handle(); }));
            user::Press(VK_SPACE);
            const HWND view = user::WaitForTop("FrmView");
            EXPECT_NE(view, nullptr);
            user::Press(VK_SPACE);
            EXPECT_TRUE(user::WaitUntilGone(view));
            Settle(main);
            EXPECT_EQ(user::FindTop("FrmView"), nullptr);
            EXPECT_TRUE(WaitUntil([&] { return seen::FocusIn(main.handle()) == box.handle(); }));
            EXPECT_EQ(user::PopUpByKey(), main.OpenWithMenu(box.Tag()));
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
        }
    });
}

/// Whether a red picture has a dotted frame this far within its edge.
bool HasMarkAt(HWND box, int inset) {
    RedrawWindow(box, nullptr, nullptr, RDW_UPDATENOW);
    SendMessageA(box, WM_NULL, 0, 0);  // what its thread has begun to paint is there
    RECT area{};
    GetClientRect(box, &area);
    const HDC dc = GetDC(box);
    int dots = 0;
    for (int x = inset; x < area.right - inset; ++x)
        if (GetPixel(dc, x, inset) != kRed) ++dots;
    ReleaseDC(box, dc);
    return dots > area.right / 3;
}

TEST_F(Keyboard, ADottedFrameWithinItsEdgeShowsWhichScreenHasTheFocus) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        const HWND startup = main.Imag[0].handle();
        const HWND wait = main.Imag[1].handle();
        EXPECT_FALSE(HasMarkAt(startup, 2));
        user::Press(VK_TAB);
        EXPECT_TRUE(WaitUntil([&] { return HasMarkAt(startup, 2); }));
        EXPECT_FALSE(HasMarkAt(startup, 1));
        user::Press(VK_TAB);
        EXPECT_TRUE(WaitUntil([&] { return !HasMarkAt(startup, 2) && HasMarkAt(wait, 2); }));
    });
}

TEST_F(Keyboard, TheActualSizeShowsAScreenWithoutAFrame) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        user::Press(VK_TAB);
        EXPECT_TRUE(
            WaitUntil([&] { return seen::FocusIn(main.handle()) == main.Imag[0].handle(); }));
        user::Press(VK_SPACE);
        const HWND view = user::WaitForTop("FrmView");
        const HWND picture = user::Control(view, ID_Preview);
        EXPECT_TRUE(WaitUntil([&] { return seen::FocusIn(main.handle()) == picture; }));
        EXPECT_FALSE(HasMarkAt(picture, 2));
        EXPECT_EQ(seen::PixelAt(user::CentreOf(picture)), kRed);
        user::Press(VK_SPACE);
        EXPECT_TRUE(user::WaitUntilGone(view));
    });
}

TEST_F(Keyboard, TabPassesOverAScreenThatIsNotThere) {
    DeleteFileA((logos + "Red\\LOGO.SYS").c_str());
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        user::Press(VK_TAB);
        EXPECT_TRUE(
            WaitUntil([&] { return seen::FocusIn(main.handle()) == main.Imag[1].handle(); }));
    });
}

}  // namespace
}  // namespace vistrel::test
