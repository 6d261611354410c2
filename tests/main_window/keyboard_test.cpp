// The main window by keyboard: the list and the three screens.
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

using Keyboard = MainWindow98;

HWND FocusIn(const Principale& main) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(main.handle(), nullptr), &info);
    return info.hwndFocus;
}

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
            EXPECT_TRUE(WaitUntil([&] { return FocusIn(main) == box.handle(); }));
            user::Press(VK_SPACE);
            const HWND view = user::WaitForTop("FrmView");
            EXPECT_NE(view, nullptr);
            user::Press(VK_SPACE);
            EXPECT_TRUE(user::WaitUntilGone(view));
            Settle(main);
            EXPECT_EQ(user::FindTop("FrmView"), nullptr);
            EXPECT_TRUE(WaitUntil([&] { return FocusIn(main) == box.handle(); }));
            user::Press(VK_APPS);
            EXPECT_EQ(user::WaitForPopUp(), main.OpenWithMenu());
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
        }
    });
}

TEST_F(Keyboard, TabPassesOverAScreenThatIsNotThere) {
    DeleteFileA((logos + "Red\\LOGO.SYS").c_str());
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        user::Press(VK_TAB);
        EXPECT_TRUE(WaitUntil([&] { return FocusIn(main) == main.Imag[1].handle(); }));
    });
}

}  // namespace
}  // namespace vistrel::test
