// What a user sees of windows of this process: the real button, the menu's own text, the tip that
// appears, a colour on the screen; not what our own objects believe. For any thread.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace vistrel::seen {

/// One place of a bar of buttons; a gap has number 0.
struct ToolButton {
    int id = 0;
    bool enabled = false;
    bool checked = false;
    bool shown = false;
};

/// The places of a bar of buttons from left to right.
std::vector<ToolButton> ButtonsOf(HWND bar);
/// The button with this number; all false when the bar has none.
ToolButton ButtonOf(HWND bar, int id);
/// The middle of a button on the screen, to click at or rest on.
POINT CentreOfButton(HWND bar, int id);

/// One place of a menu; a separator has no text, a row that opens a menu has it in `opens`.
struct MenuRow {
    unsigned id = 0;
    std::string text;  ///< with "&" and, behind a tab, the key
    bool enabled = false;
    bool checked = false;
    bool isDefault = false;
    bool separator = false;
    HMENU opens = nullptr;
};

/// The rows of a menu from top to bottom.
std::vector<MenuRow> RowsOf(HMENU menu);
/// Their texts, "-" for a separator.
std::vector<std::string> TextsOf(HMENU menu);
/// The row with this number, in the menu or in one that it opens; without text when there is none.
MenuRow RowOf(HMENU menu, unsigned id);

/// Rests the pointer at a point of the screen until a tip appears, and returns its text; empty when
/// none came within some seconds.
std::string TipAt(POINT point);
/// The same in the middle of a window.
std::string TipOver(HWND window);

/// The windows that controls of this window's thread keep on the screen for themselves, seen or
/// not: tips, and the lists that boxes drop.
std::vector<HWND> HelpersOf(HWND window);

/// The control that has the keyboard among the windows of this window's thread, or null.
HWND FocusIn(HWND window);

/// The colour of a pixel of the screen.
COLORREF PixelAt(POINT point);
/// Waits for a control's middle to be painted in this colour. Returns false after some seconds.
bool ComesToShow(HWND control, COLORREF color);
/// Whether any pixel of a window, as the screen shows it, has this colour. Text has its own colour
/// only where the font is not smoothed.
bool ShowsColor(HWND window, COLORREF color);

/// The pointer that the screen shows now.
HCURSOR Pointer();
bool PointerIsHourglass();

}  // namespace vistrel::seen
