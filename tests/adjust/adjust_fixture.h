// The window "Adjust picture" over the Logo browser, used by mouse and keyboard.
#pragma once

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <string>

#include "pictures/compose/composition.h"
#include "tests/editor/dialog_fixture.h"

namespace vistrel::test {

class Adjusting : public BrowserDialog {
 protected:
    Adjusting();

    // For the user's thread. `window` is the window "Adjust picture".

    /// Selects a picture and opens the window by its button; returns it in front.
    static HWND OpenOn(editor::SelPictureForm& editor, const std::string& picture);
    /// Waits for the window, which some command opens, and brings it to the front.
    static HWND WaitForIt();
    /// Presses OK or Cancel and waits until the window is gone and the browser has followed.
    static void CloseBy(editor::SelPictureForm& editor, HWND window, int button);
    /// Presses OK, which asks or tells something: answers with OK and returns what was said.
    static user::Box PressOkAndAnswer(HWND window);

    /// Clicks the tab of a page, from 0.
    static void TurnTo(HWND window, int page);
    /// Adds a line of text by the button and types it.
    static void AddLine(HWND window, const std::string& text);

    /// A point of the screen that the box shows, told in pixels of the 320 x 400.
    static POINT OnScreen(HWND window, int x, int y);
    /// Drags something in the box; the points are told in its own pixels from its corner.
    static void DragInBox(HWND window, POINT from, POINT to);
    static SIZE BoxSize(HWND window);
    /// Presses the left button at a point of the screen and holds it, moves it, lets it go.
    static void Hold(POINT at);
    /// Presses and holds until something is seen; a press that was lost is repeated.
    static void HoldUntil(POINT at, const std::function<bool()>& condition, const char* what);
    static void MoveHeld(POINT to);
    static void LetGo(POINT at);

    /// The bytes of the screen that a picture becomes.
    std::string MadeOf(const std::string& path, const compose::Composition& composition) const;
    /// What a box shows at a point of the 320 x 400.
    static COLORREF ColorAt(HWND window, int x, int y);

    /// A wide photograph, in bands.
    const std::string photo = pictures + "photo.jpg";
};

}  // namespace vistrel::test
