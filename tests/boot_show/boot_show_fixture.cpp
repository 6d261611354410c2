#include "tests/boot_show/boot_show_fixture.h"

#include "tests/support/user/seen.h"

namespace vistrel::test {

BootShow::BootShow() {
    Put(screens + "LOGO.SYS", ScreenFile(255, 0, 0));
    Put(screens + "LOGOW.SYS", ScreenFile(0, 255, 0));
    Put(screens + "LOGOS.SYS", ScreenFile(0, 0, 255));
}

HWND BootShow::WaitForShow() {
    const HWND show = user::WaitForTop("FrmBootShow");
    if (!show) {
        ADD_FAILURE() << "nothing covers the display";
        return nullptr;
    }
    user::Activate(show);
    SendMessageA(show, WM_NULL, 0, 0);
    return show;
}

HWND BootShow::ShowByF11(HWND window) {
    EXPECT_TRUE(user::Activate(window));
    user::Press(VK_F11);
    return WaitForShow();
}

COLORREF BootShow::Middle() {
    return seen::PixelAt({GetSystemMetrics(SM_CXSCREEN) / 2, GetSystemMetrics(SM_CYSCREEN) / 2});
}

bool BootShow::Shows(COLORREF color) {
    return WaitUntil([&] { return Middle() == color; });
}

bool BootShow::Moves() {
    // A screen that stands still is first what lay there, then black, then drawn.
    constexpr int kMore = 3;
    COLORREF last = Middle();
    int changes = 0;
    const auto changesOn = [&] {
        changes += Middle() != last;
        last = Middle();
        return changes >= kMore;
    };
    return WaitUntil(changesOn, 2000);
}

void BootShow::EndBy(HWND show, WORD key) {
    user::Press(key);
    EXPECT_TRUE(user::WaitUntilGone(show));
}

}  // namespace vistrel::test
