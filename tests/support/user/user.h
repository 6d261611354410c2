// A user for tests: acts on real windows, of this process or another, with the real mouse and
// keyboard, and reads what a user could read.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/support/user/poll.h"

namespace vistrel::user {

/// Runs `actions` on a thread of its own while the thread that made it goes on, so that a user can
/// answer a message box or choose from a menu that holds this thread up. The actions must not use
/// GoogleTest's macros: let them note what they saw, and check it after `Finish`.
class Meanwhile {
 public:
    explicit Meanwhile(std::function<void()> actions);
    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;
    ~Meanwhile() { Finish(); }

    /// Waits until the actions are done, while this thread's windows go on working.
    void Finish();

 private:
    std::function<void()> actions_;
    HANDLE thread_;
};

// Finding windows.

/// The visible top window of this class, topmost first, or null. An empty title and a process of 0
/// stand for any; several windows of a class are told apart by `title`.
HWND FindTop(const std::string& window_class, const std::string& title = "", DWORD process = 0);

/// Waits until there is such a window, and returns it; null if none came.
HWND WaitForTop(const std::string& window_class, const std::string& title = "", DWORD process = 0,
                DWORD milliseconds = 20000);

/// Waits until the window's thread, one of this process, has done what it was doing and all that
/// was posted to it before; `window` must not be of a thread that does not look for messages.
void LetFinish(HWND window);

/// Waits until the window is no more.
bool WaitUntilGone(HWND window, DWORD milliseconds = 20000);

/// The control with this number, of `window` or of one of its child windows, or null.
HWND Control(HWND window, int id);

// Reading.

std::string TextOf(HWND window);
std::string ClassOf(HWND window);

// Mouse, in screen pixels. Positions of controls are centres.

POINT CentreOf(HWND window);
/// Brings the window's top window to the front and waits until it is there.
bool Activate(HWND window);
/// Whether this top window is in front. Where nobody is, it is brought there as by a user's click.
bool IsInFront(HWND window);
void MoveTo(POINT point);
void ClickAt(POINT point);
void DoubleClickAt(POINT point);
void RightClickAt(POINT point);
/// Presses the left button at one point, moves in small steps to the other and lets go.
void Drag(POINT from, POINT to);
/// The same along a line; at each of its corners `atCorner` waits until it has been looked at.
void DragThrough(const std::vector<POINT>& points, const std::function<void()>& atCorner);
/// As Drag, with the right button.
void RightDrag(POINT from, POINT to);

/// Turns the wheel by notches, forwards or (below 0) backwards, with the pointer where it is.
void TurnWheel(int notches);

/// Clicks the middle of a window. Returns false, without a click, when it cannot be seen there
/// within a second because it is hidden or another window lies above it.
bool Click(HWND window);
bool DoubleClick(HWND window);
/// Clicks the middle of a window until a top window of this class is there, which that opens;
/// clicks again when none comes in seconds. Null when none comes at all.
HWND ClickToOpen(HWND window, const std::string& window_class);
/// Clicks a check box or option button until it shows another mark; clicks again when none comes in
/// seconds. Returns whether it does.
bool ClickToMark(HWND button);
bool RightClick(HWND window);

// Keyboard: goes to the window that has the focus.

/// Presses and lets go a key, with these keys (VK_CONTROL, VK_MENU, VK_SHIFT) held down.
void Press(WORD key, const std::vector<WORD>& held = {});
/// Holds a key down while something else is done. The key may be lost meanwhile: a screen tells
/// late, when the mouse was let go, which keys it has seen pressed. Who finds nothing done does it
/// again.
void WhileHolding(WORD key, const std::function<void()>& act);
/// Types ANSI text.
void Type(const std::string& text);

// Menus of this process; use a `Meanwhile` when the menu belongs to the thread of the test.

/// Chooses a command from the menu bar of a window with the mouse. Returns false, without a click,
/// when the menu bar has no such command.
bool ChooseFromMenuBar(HWND window, unsigned command);
/// Waits for a pop-up menu and chooses a command from it with the mouse. When the menu does not
/// have it the menu is closed and the result is false.
bool ChooseFromPopUp(unsigned command);
/// The pop-up menu that is open (wait for it), or null.
HMENU WaitForPopUp();
/// Opens the pop-up menu of what has the focus by the keyboard; presses again when none comes in
/// seconds. Null when none comes at all.
HMENU PopUpByKey();

/// Opens a menu of the menu bar by Alt and its letter; presses again when none comes in seconds.
/// The open menu's window, of this process (0 is any); null when none comes at all.
HWND OpenMenuByLetter(char letter, DWORD process);

// Message boxes.

/// What a user sees of a message box.
struct Box {
    HWND window = nullptr;  ///< null when no box came
    std::string title;
    std::string text;
    unsigned icon = 0;         ///< MB_ICON... or 0 without an icon; only of this process's boxes
    std::vector<int> buttons;  ///< IDOK, IDYES, ... from left to right
    int default_button = 0;    ///< the one that Enter presses
};

/// Waits for a message box, of this process or any (`process` 0 is this one).
Box WaitForBox(DWORD process = 0, DWORD milliseconds = 20000);
/// Waits for a message box, presses this button and waits until the box is closed. When it stays
/// for seconds the button is pressed again.
Box AnswerBox(int button, DWORD process = 0);
/// The same with a question that the shell asks, which is no message box. False when there was none
/// or it stayed.
bool AnswerShell(int button, DWORD process = 0);

/// Keeps what the screen shows, or the part of it that a window takes, as NAME.png in the folder
/// that the environment variable VISTREL_SHOTS names; does nothing without it.
void TakeShot(const std::string& name, HWND window = nullptr);

}  // namespace vistrel::user
