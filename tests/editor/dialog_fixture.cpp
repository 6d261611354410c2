#include "tests/editor/dialog_fixture.h"

#include <commctrl.h>

#include <cstdlib>

namespace vistrel::test {

void BrowserDialog::GiveKeys(HWND window, int id) {
    SendMessageA(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(window, id)), TRUE);
}

void BrowserDialog::Slide(HWND window, int id, int value) {
    const HWND bar = Item(window, id);
    GiveKeys(window, id);
    for (int tries = 0; tries < 200; ++tries) {
        const int now = static_cast<int>(SendMessageA(bar, TBM_GETPOS, 0, 0));
        if (now == value) return;
        const int page = static_cast<int>(SendMessageA(bar, TBM_GETPAGESIZE, 0, 0));
        const bool many = std::abs(value - now) >= page;
        // What a key does to a horizontal slider.
        const WORD key = value > now ? (many ? VK_NEXT : VK_RIGHT) : (many ? VK_PRIOR : VK_LEFT);
        SendMessageA(bar, WM_KEYDOWN, key, 0);
        SendMessageA(bar, WM_KEYUP, key, 0);
    }
    ADD_FAILURE() << "the slider does not come to " << value;
}

void BrowserDialog::Choose(HWND window, int id, int entry) {
    const HWND combo = Item(window, id);
    SendMessageA(combo, CB_SETCURSEL, static_cast<WPARAM>(entry), 0);
    SendMessageA(window, WM_COMMAND, MAKEWPARAM(id, CBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(combo));
}

}  // namespace vistrel::test
