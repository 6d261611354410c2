#include "tests/options/options_fixture.h"

#include "controls/message_loop.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using options::FrmOptions;

Preferences::Preferences() : main(locations) {
    main.settings.logoPath = logos;
    main.settings.bootRoot = "C:\\";
    Put(program + "Rotaline.lnk", "link to Rotaline");
    Put(program + "Shufflet.lnk", "link to Shufflet");
}

void Preferences::WithDialog(const std::function<void(FrmOptions&)>& user, FrmOptions::Page first) {
    FrmOptions options(main, first);
    ASSERT_TRUE(options.Create(nullptr));
    options.Show();
    user::Meanwhile acting([&] {
        user::Activate(options.handle());
        user(options);
        if (options.IsOpen()) PostMessageA(options.handle(), WM_COMMAND, IDCANCEL, 0);
    });
    controls::RunLoopWhileOpen(options);
    acting.Finish();
}

void Preferences::ClickTab(FrmOptions& options, int number) {
    RECT r{};
    SendMessageA(options.TabStrip1.handle(), 0x1300 + 10 /* TCM_GETITEMRECT */,
                 static_cast<WPARAM>(number - 1), reinterpret_cast<LPARAM>(&r));
    POINT at{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    ClientToScreen(options.TabStrip1.handle(), &at);
    user::ClickAt(at);
    WaitUntil([&] { return options.MyFrame[number - 1].Visible(); });
}

HWND Preferences::FocusOf(FrmOptions& options) { return seen::FocusIn(options.handle()); }

bool Preferences::HasFocus(FrmOptions& options, const controls::Control& control) {
    return WaitUntil([&] { return FocusOf(options) == control.handle(); });
}

bool Preferences::PageIsShown(FrmOptions& options, int number) {
    return WaitUntil([&] {
        for (int i = 0; i < 5; ++i)
            if ((IsWindowVisible(options.MyFrame[i].handle()) != 0) != (i == number - 1))
                return false;
        return true;
    });
}

void Preferences::PressOk(FrmOptions& options) {
    user::Click(options.BtnOK.handle());
    WaitUntil([&] { return !options.IsOpen(); });
}

void Preferences::SetFocusOn(HWND dialog, HWND control) {
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

}  // namespace vistrel::test
