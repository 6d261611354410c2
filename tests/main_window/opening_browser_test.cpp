// The Logo browser opens a moment after its command: what may come between, and what is seen.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace main_window;

namespace {

bool pointerWasHourglass = false;
int ticks = 0;

LRESULT CALLBACK LookAtPointer(int code, WPARAM wide, LPARAM data) {
    if (code == HCBT_CREATEWND && user::ClassOf(reinterpret_cast<HWND>(wide)) == "SelPictureForm")
        pointerWasHourglass = seen::PointerIsHourglass();
    return CallNextHookEx(nullptr, code, wide, data);
}

LRESULT CALLBACK CountTicks(int code, WPARAM wide, LPARAM data) {
    const auto& message = *reinterpret_cast<const MSG*>(data);
    if (message.message == WM_TIMER && user::ClassOf(message.hwnd) == "Principale") ++ticks;
    return CallNextHookEx(nullptr, code, wide, data);
}

/// Sees what happens to the thread that made it while it lives.
class Hook {
 public:
    Hook(int kind, HOOKPROC procedure)
        : hook_(SetWindowsHookExA(kind, procedure, nullptr, GetCurrentThreadId())) {}
    ~Hook() { UnhookWindowsHookEx(hook_); }
    Hook(const Hook&) = delete;
    Hook& operator=(const Hook&) = delete;

 private:
    HHOOK hook_;
};

void Close(HWND browser) {
    PostMessageA(browser, WM_CLOSE, 0, 0);
    EXPECT_TRUE(user::WaitUntilGone(browser));
}

class OpeningTheBrowser : public MainWindow98 {
 protected:
    /// Opens the Logo browser and makes it the active window; null if it did not come.
    HWND OpenBrowser(Principale& main) {
        StartCommand(main, ID_ToolBrowser);
        const HWND browser = user::WaitForTop("SelPictureForm");
        return browser && user::Activate(browser) ? browser : nullptr;
    }
};

TEST_F(OpeningTheBrowser, WaitsUntilTheWindowInFrontIsClosed) {
    WithMainWindow([&](Principale& main) {
        StartCommand(main, ID_ToolBrowser);
        StartCommand(main, ID_ToolAbout);
        const HWND about = user::WaitForTop("FrmAboutReg");
        ASSERT_NE(about, nullptr);
        EXPECT_EQ(user::WaitForTop("SelPictureForm", "", 0, 500), nullptr);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(about));
        const HWND browser = user::WaitForTop("SelPictureForm");
        ASSERT_NE(browser, nullptr);
        Close(browser);
        EXPECT_TRUE(IsWindowEnabled(main.handle()));
    });
}

TEST_F(OpeningTheBrowser, ShowsTheHourglassWhileItIsMade) {
    const Hook hook(WH_CBT, LookAtPointer);
    pointerWasHourglass = false;
    WithMainWindow([&](Principale& main) {
        StartCommand(main, ID_ToolBrowser);
        const HWND browser = user::WaitForTop("SelPictureForm");
        ASSERT_NE(browser, nullptr);
        EXPECT_TRUE(pointerWasHourglass);
        EXPECT_TRUE(WaitUntil([] { return !seen::PointerIsHourglass(); }));
        Close(browser);
        EXPECT_FALSE(seen::PointerIsHourglass());
    });
}

TEST_F(OpeningTheBrowser, EndsTheWaitingForItOnceItIsOpen) {
    const Hook hook(WH_GETMESSAGE, CountTicks);
    ticks = 0;
    WithMainWindow([&](Principale& main) {
        const HWND browser = OpenBrowser(main);
        ASSERT_NE(browser, nullptr);
        const int before = ticks;
        EXPECT_GT(before, 0);
        EXPECT_FALSE(WaitUntil([&] { return ticks > before + 1; }, 400));
        Close(browser);
    });
}

TEST_F(OpeningTheBrowser, KeepsTheSetSelectedThatIsRenamedThere) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        const HWND browser = OpenBrowser(main);
        ASSERT_NE(browser, nullptr);
        // Chosen in the name's list, typed over, updated.
        const HWND name = GetDlgItem(browser, ID_NameLogoSet);
        SendMessageA(name, CB_SETCURSEL, 2, 0);
        SendMessageA(browser, WM_COMMAND, MAKEWPARAM(ID_NameLogoSet, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(name));
        user::Press('N', {VK_MENU});
        user::Press(VK_HOME);
        user::Press(VK_END, {VK_SHIFT});
        user::Type("Crimson");
        EXPECT_TRUE(WaitUntil([&] { return user::TextOf(name) == "Crimson"; }));
        EXPECT_TRUE(user::Click(GetDlgItem(browser, ID_ActButton)));
        EXPECT_TRUE(user::ChooseFromPopUp(ID_OkButton + 1));
        EXPECT_TRUE(WaitUntil([&] { return Exists(logos + "Crimson"); }));
        Close(browser);
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(main.handle()) != 0; }));
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Crimson"; }));
        Settle(main);
        EXPECT_EQ(main.Imag[0].Tag(), logos + "Crimson\\LOGO.SYS");
    });
}

TEST_F(OpeningTheBrowser, KeepsTheSetSelectedWhoseFolderIsRenamedInTheBrowsersList) {
    Store("SearchLogoPath", TextValue(logos));
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        const HWND browser = OpenBrowser(main);
        ASSERT_NE(browser, nullptr);
        const HWND list = GetDlgItem(browser, ID_LogoList);
        EXPECT_TRUE(WaitUntil([&] { return seen::FocusIn(browser) == list; }));
        user::Type("red");
        user::Press(VK_F2);
        EXPECT_TRUE(WaitUntil([&] { return SendMessageA(list, LVM_GETEDITCONTROL, 0, 0) != 0; }));
        user::Type("Crimson");
        user::Press(VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return Exists(logos + "Crimson"); }));
        Close(browser);
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(main.handle()) != 0; }));
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Crimson"; }));
    });
}

}  // namespace
}  // namespace vistrel::test
