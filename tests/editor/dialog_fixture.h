// A window that the Logo browser opens over itself, used by mouse and keyboard.
#pragma once

#include "tests/editor/editor_fixture.h"

namespace vistrel::test {

class BrowserDialog : public LogoBrowser {
 protected:
    // For the user's thread. `window` is the window that is open over the browser.

    static HWND Item(HWND window, int id) { return GetDlgItem(window, id); }
    static void Press(HWND window, int id) { SendMessageA(Item(window, id), BM_CLICK, 0, 0); }
    static bool Enabled(HWND window, int id) { return IsWindowEnabled(Item(window, id)) != 0; }
    static void GiveKeys(HWND window, int id);
    /// Moves the slider of a track bar to a value by its keys.
    static void Slide(HWND window, int id, int value);
    /// Chooses an entry of a drop-down list.
    static void Choose(HWND window, int id, int entry);
};

}  // namespace vistrel::test
