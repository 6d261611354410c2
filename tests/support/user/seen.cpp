#include "tests/support/user/seen.h"

#include <commctrl.h>

#include "tests/support/user/poll.h"
#include "tests/support/user/user.h"

namespace vistrel::seen {

namespace {

HWND ShownTip() {
    for (HWND tip = nullptr; (tip = FindWindowExA(nullptr, tip, TOOLTIPS_CLASSA, nullptr));) {
        DWORD process = 0;
        GetWindowThreadProcessId(tip, &process);
        if (process == GetCurrentProcessId() && IsWindowVisible(tip)) return tip;
    }
    return nullptr;
}

MenuRow RowAt(HMENU menu, int place) {
    char text[256] = "";
    MENUITEMINFOA item = {};
    item.cbSize = sizeof item;
    item.fMask = MIIM_TYPE | MIIM_ID | MIIM_STATE | MIIM_SUBMENU;
    item.dwTypeData = text;
    item.cch = sizeof text;
    GetMenuItemInfoA(menu, static_cast<UINT>(place), TRUE, &item);
    MenuRow row;
    row.separator = (item.fType & MFT_SEPARATOR) != 0;
    row.id = item.hSubMenu || row.separator ? 0 : item.wID;
    row.text = row.separator ? "" : text;
    row.enabled = (item.fState & (MFS_GRAYED | MFS_DISABLED)) == 0;
    row.checked = (item.fState & MFS_CHECKED) != 0;
    row.isDefault = (item.fState & MFS_DEFAULT) != 0;
    row.opens = item.hSubMenu;
    return row;
}

}  // namespace

std::vector<ToolButton> ButtonsOf(HWND bar) {
    std::vector<ToolButton> buttons;
    const auto count = static_cast<int>(SendMessageA(bar, TB_BUTTONCOUNT, 0, 0));
    for (int i = 0; i < count; ++i) {
        TBBUTTON button = {};
        SendMessageA(bar, TB_GETBUTTON, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(&button));
        const bool gap = (button.fsStyle & TBSTYLE_SEP) != 0;
        buttons.push_back(gap ? ToolButton{} : ButtonOf(bar, button.idCommand));
    }
    return buttons;
}

ToolButton ButtonOf(HWND bar, int id) {
    const LRESULT state = SendMessageA(bar, TB_GETSTATE, static_cast<WPARAM>(id), 0);
    if (state == -1) return {};
    return {id, (state & TBSTATE_ENABLED) != 0, (state & TBSTATE_CHECKED) != 0,
            (state & TBSTATE_HIDDEN) == 0};
}

POINT CentreOfButton(HWND bar, int id) {
    const LRESULT place = SendMessageA(bar, TB_COMMANDTOINDEX, static_cast<WPARAM>(id), 0);
    RECT r = {};
    SendMessageA(bar, TB_GETITEMRECT, static_cast<WPARAM>(place), reinterpret_cast<LPARAM>(&r));
    POINT centre = {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    ClientToScreen(bar, &centre);
    return centre;
}

std::vector<MenuRow> RowsOf(HMENU menu) {
    std::vector<MenuRow> rows;
    const int count = GetMenuItemCount(menu);
    for (int i = 0; i < count; ++i) rows.push_back(RowAt(menu, i));
    return rows;
}

std::vector<std::string> TextsOf(HMENU menu) {
    std::vector<std::string> texts;
    for (const MenuRow& row : RowsOf(menu)) texts.push_back(row.separator ? "-" : row.text);
    return texts;
}

MenuRow RowOf(HMENU menu, unsigned id) {
    for (const MenuRow& row : RowsOf(menu)) {
        if (!row.opens && !row.separator && row.id == id) return row;
        if (!row.opens) continue;
        if (MenuRow inner = RowOf(row.opens, id); !inner.text.empty()) return inner;
    }
    return {};
}

std::string TipAt(POINT point) {
    // Late news of where the X server saw the pointer can end the wait for a tip. A user then
    // leaves and comes again.
    constexpr int kTries = 4;
    for (int i = 0; i < kTries; ++i) {
        // A tip of before would be taken for this one.
        user::MoveTo({0, 0});
        WaitUntil([] { return ShownTip() == nullptr; });
        user::MoveTo({point.x - 2, point.y});
        user::MoveTo(point);
        HWND tip = nullptr;
        if (!WaitUntil([&] { return (tip = ShownTip()) != nullptr; }, 3000)) continue;
        char text[256] = "";
        SendMessageA(tip, WM_GETTEXT, sizeof text, reinterpret_cast<LPARAM>(text));
        return text;
    }
    return {};
}

std::string TipOver(HWND window) { return TipAt(user::CentreOf(window)); }

std::vector<HWND> HelpersOf(HWND window) {
    const DWORD thread = GetWindowThreadProcessId(window, nullptr);
    std::vector<HWND> found;
    for (const char* kind : {TOOLTIPS_CLASSA, "ComboLBox"})
        for (HWND helper = nullptr; (helper = FindWindowExA(nullptr, helper, kind, nullptr));)
            if (GetWindowThreadProcessId(helper, nullptr) == thread) found.push_back(helper);
    return found;
}

HWND FocusIn(HWND window) {
    GUITHREADINFO info{};
    info.cbSize = sizeof info;
    GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info);
    return info.hwndFocus;
}

COLORREF PixelAt(POINT point) {
    const HDC screen = GetDC(nullptr);
    const COLORREF color = GetPixel(screen, point.x, point.y);
    ReleaseDC(nullptr, screen);
    return color;
}

bool ComesToShow(HWND control, COLORREF color) {
    return WaitUntil([&] { return PixelAt(user::CentreOf(control)) == color; });
}

bool ShowsColor(HWND window, COLORREF color) {
    RedrawWindow(window, nullptr, nullptr, RDW_UPDATENOW);
    // Nothing was left to paint where the window's own thread had begun: let it finish.
    SendMessageA(window, WM_NULL, 0, 0);
    RECT r = {};
    GetClientRect(window, &r);
    const HDC dc = GetDC(window);
    const HDC memory = CreateCompatibleDC(dc);
    const HBITMAP bitmap = CreateCompatibleBitmap(dc, r.right, r.bottom);
    const HGDIOBJ former = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, r.right, r.bottom, dc, 0, 0, SRCCOPY);
    bool found = false;
    for (int y = 0; y < r.bottom && !found; ++y)
        for (int x = 0; x < r.right && !found; ++x) found = GetPixel(memory, x, y) == color;
    SelectObject(memory, former);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(window, dc);
    return found;
}

HCURSOR Pointer() {
    CURSORINFO info = {};
    info.cbSize = sizeof info;
    return GetCursorInfo(&info) ? info.hCursor : nullptr;
}

bool PointerIsHourglass() {
    return Pointer() == LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_WAIT));
}

}  // namespace vistrel::seen
