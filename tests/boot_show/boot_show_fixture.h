// Screens over the whole display, opened from the main window and from the Logo browser.
#pragma once

#include <string>

#include "tests/editor/editor_fixture.h"

namespace vistrel::test {

class BootShow : public LogoBrowser {
 protected:
    /// A set whose screens are red, green and blue.
    BootShow();

    using LogoBrowser::Settle;
    using MainWindow98::Settle;

    // For the user's thread. `show` is the window that covers the display.

    /// Waits for the window and brings it to the front.
    static HWND WaitForShow();
    static HWND ShowByF11(HWND window);
    /// What is seen in the middle of the display.
    static COLORREF Middle();
    static bool Shows(COLORREF color);
    /// Whether what is seen in the middle changes within a moment.
    static bool Moves();
    /// Presses a key and waits until the window is gone.
    static void EndBy(HWND show, WORD key);

    const std::string screens = logos + "Blue\\";
};

}  // namespace vistrel::test
