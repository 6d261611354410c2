// What a window does with the messages that the system and its controls send it.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "controls/display_palette.h"
#include "controls/message_loop.h"
#include "controls/timer.h"
#include "controls/window.h"
#include "platform/pointer.h"

namespace vistrel::controls {

bool Window::HandleKey(const void* message) {
    const auto& m = *static_cast<const MSG*>(message);
    if (m.message == WM_KEYDOWN && Form_KeyDown(static_cast<int>(m.wParam))) return true;
    if (m.message == WM_KEYUP) Form_KeyUp(static_cast<int>(m.wParam));
    if (m.message == WM_CHAR) Form_KeyPress(static_cast<char>(m.wParam));
    // A key handler may have closed the window; its message is then nobody's.
    return handle_ == nullptr;
}

bool Window::OnCommand(std::uintptr_t wParam, std::intptr_t lParam) {
    const int id = LOWORD(wParam);
    // A list hands on what the edit of a label says of itself: no command of this window.
    if (lParam != 0 && GetParent(reinterpret_cast<HWND>(lParam)) != handle_) return false;
    if (lParam != 0) {
        if (Control* control = Find(id)) {
            control->OnCommand(HIWORD(wParam));
            return true;
        }
    }
    if (id == kWhatsThis) return true;
    EndEdits();
    if (lParam == 0) {
        // Enter and Esc arrive without a control; a button of that number stands for them.
        if (Control* control = Find(id)) {
            control->OnCommand(BN_CLICKED);
            return true;
        }
    }
    MenuCommand(id);
    return true;
}

bool Window::OnNotification(std::intptr_t lParam, std::intptr_t& result) {
    auto* header = reinterpret_cast<NMHDR*>(lParam);
    Control* control = Find(static_cast<int>(header->idFrom));
    const bool isItsOwn = control && control->handle() == header->hwndFrom;
    result = isItsOwn ? control->OnNotify(header) : OnNotify(header);
    return true;
}

bool Window::OnScroll(std::intptr_t lParam) {
    Control* control = ControlOf(reinterpret_cast<HWND>(lParam));
    if (!control) return false;
    control->OnScroll();
    return true;
}

bool Window::OnStaticColor(std::uintptr_t wParam, std::intptr_t lParam, std::intptr_t& result) {
    const auto dc = reinterpret_cast<HDC>(wParam);
    const Control* control = ControlOf(reinterpret_cast<HWND>(lParam));
    if (!control || control->TextColor() < 0) return false;
    SetTextColor(dc, static_cast<COLORREF>(control->TextColor()));
    SetBkMode(dc, TRANSPARENT);
    const platform::BrushHandle own = control->BackBrush();
    result = reinterpret_cast<std::intptr_t>(own ? own : GetSysColorBrush(COLOR_BTNFACE));
    return true;
}

bool Window::OnDrawItem(std::intptr_t lParam, std::intptr_t& result) {
    const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
    Control* control = ControlOf(item.hwndItem);
    if (!control) return false;
    control->OnDrawItem(&item);
    result = TRUE;
    return true;
}

bool Window::OnSetPointer(std::uintptr_t wParam, std::intptr_t& result) {
    if (platform::BusyPointer::Shown()) {
        SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_WAIT)));
        result = TRUE;
        return true;
    }
    Control* control = ControlOf(reinterpret_cast<HWND>(wParam));
    if (!control || !control->SetPointer()) return false;
    result = TRUE;
    return true;
}

bool Window::OnTimer(std::uintptr_t wParam) {
    for (Timer* timer : timers_) {
        if (reinterpret_cast<std::uintptr_t>(timer) != wParam) continue;
        // One that was stopped may have ticked before.
        if (timer->Enabled() && timer->Tick) timer->Tick();
        return true;
    }
    return false;
}

bool Window::OnSize(std::uintptr_t wParam) {
    if (wParam != SIZE_MINIMIZED) Form_Resize(ClientSize());
    return false;
}

bool Window::OnSizeLimits(std::intptr_t lParam) {
    const Size least = SmallestSize();
    auto& info = *reinterpret_cast<MINMAXINFO*>(lParam);
    info.ptMinTrackSize = {least.width, least.height};
    return least.width > 0;
}

bool Window::OnPaint() {
    PAINTSTRUCT paint{};
    const HDC dc = BeginPaint(handle_, &paint);
    Form_Paint(dc);
    EndPaint(handle_, &paint);
    return true;
}

bool Window::OnMenuOpens(std::uintptr_t wParam, std::intptr_t lParam) {
    const bool isSystemMenu = HIWORD(lParam) != FALSE;
    if (!isSystemMenu) MenuOpens(reinterpret_cast<HMENU>(wParam));
    return false;
}

bool Window::OnPaletteChanged(std::uintptr_t wParam) {
    // What its own picture boxes changed, they have just painted with.
    const auto changer = reinterpret_cast<HWND>(wParam);
    if (changer != handle_ && !IsChild(handle_, changer)) RepaintPictures();
    return true;
}

// The window becomes the active one. Behind others its pictures were matched to colours of theirs;
// now they bring in their own.
bool Window::OnNewPalette(std::intptr_t& result) {
    UnrealizeObject(DisplayPalette());
    RepaintPictures();
    result = TRUE;
    return true;
}

bool Window::OnClose() {
    // Whoever asks from outside asks every window: those behind a modal one stay, so that the user
    // has somewhere to go back to.
    if (IsEnabled()) Unload();
    return true;
}

bool Window::OnActivation(std::uintptr_t wParam) {
    if (!wParam) Form_ProgramLeft();
    return false;
}

bool Window::OnSessionQuestion(std::intptr_t& result) {
    EndEdits();
    result = MayEndSession();
    return true;
}

bool Window::OnSessionEnd(std::uintptr_t wParam) {
    if (wParam) EndSession();
    return true;
}

bool Window::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                       std::intptr_t& result) {
    // Some messages carry a place on the screen.
    const Point at{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    switch (message) {
        case WM_COMMAND:
            return OnCommand(wParam, lParam);
        case WM_NOTIFY:
            return OnNotification(lParam, result);
        case WM_HSCROLL:
            return OnScroll(lParam);
        case WM_MOUSEWHEEL:
            return Form_MouseWheel(static_cast<short>(HIWORD(wParam)), at);
        case WM_CTLCOLORSTATIC:
            return OnStaticColor(wParam, lParam, result);
        case WM_DRAWITEM:
            return OnDrawItem(lParam, result);
        case WM_SETCURSOR:
            return OnSetPointer(wParam, result);
        case WM_TIMER:
            return OnTimer(wParam);
        case WM_SIZE:
            return OnSize(wParam);
        case WM_GETMINMAXINFO:
            return OnSizeLimits(lParam);
        case WM_PAINT:
            return OnPaint();
        case WM_INITMENUPOPUP:
            return OnMenuOpens(wParam, lParam);
        case WM_HELP:
            return OnHelp(lParam);
        case WM_CONTEXTMENU:
            return OnContextMenu(reinterpret_cast<HWND>(wParam), at, lParam == -1);
        case WM_PALETTECHANGED:
            return OnPaletteChanged(wParam);
        case WM_QUERYNEWPALETTE:
            return OnNewPalette(result);
        case WM_ACTIVATEAPP:
            return OnActivation(wParam);
        case WM_DISPLAYCHANGE:
            Form_DisplayChange();
            return false;
        case WM_CLOSE:
            return OnClose();
        case WM_QUERYENDSESSION:
            return OnSessionQuestion(result);
        case WM_ENDSESSION:
            return OnSessionEnd(wParam);
        case WM_DESTROY:
            OnDestroy();
            return false;
        default:
            return false;
    }
}

}  // namespace vistrel::controls
