// The window "Moving colours" over the Logo browser or the main window, used by mouse and keyboard.
#pragma once

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <string>

#include "pictures/screen/moving_screen.h"
#include "tests/editor/dialog_fixture.h"

namespace vistrel::test {

class Moving : public BrowserDialog {
 protected:
    Moving();

    // For the user's thread. `window` is the window "Moving colours".

    /// Waits for the window, which some command opens, and brings it to the front.
    static HWND WaitForIt();
    /// Opens the window on the picture in the first slot, by its menu.
    static HWND OpenOnSlot(editor::SelPictureForm& editor);
    /// Presses OK or Cancel and waits until the window is gone and the browser has followed.
    static void CloseBy(editor::SelPictureForm& editor, HWND window, int button);
    /// Waits until the window has handled what the user did.
    static void Follow(HWND window);

    /// Drags over the picture with Shift or Ctrl held.
    static void DragHolding(HWND window, WORD key, POINT from, POINT to);
    /// Clicks the tab of a page, from 0.
    static void TurnTo(HWND window, int page);
    /// Adds something that moves by the button and its menu: 0 a bar, 1 a shimmer, 2 a background.
    static void AddLayer(HWND window, int kind);
    static int LayerCount(HWND window);

    /// A point of the screen that the box shows, told in pixels of the 320 x 400.
    static POINT OnScreen(HWND window, int x, int y);
    /// Drags from one pixel of the 320 x 400 to another.
    static void DragOver(HWND window, POINT from, POINT to);

    /// The screen of a file.
    static screen::IndexedScreen ScreenOf(const std::string& path);
    /// The pixels (x, y from 0) whose entries move, as the smallest rectangle around them.
    static screen::ScreenBounds MovingPart(const screen::IndexedScreen& screen);

    /// A startup screen of many colours, in which nothing moves.
    const std::string still = pictures + "still.sys";
};

}  // namespace vistrel::test
