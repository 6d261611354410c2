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

bool Window::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                       std::intptr_t& result) {
    switch (message) {
        case WM_COMMAND:
            return OnCommand(wParam, lParam);
        case WM_NOTIFY: {
            const auto* header = reinterpret_cast<const NMHDR*>(lParam);
            Control* control = Find(static_cast<int>(header->idFrom));
            result = control && control->handle() == header->hwndFrom
                         ? control->OnNotify(reinterpret_cast<void*>(lParam))
                         : OnNotify(reinterpret_cast<void*>(lParam));
            return true;
        }
        case WM_HSCROLL: {
            Control* control = ControlOf(reinterpret_cast<HWND>(lParam));
            if (!control) return false;
            control->OnScroll();
            return true;
        }
        case WM_MOUSEWHEEL:
            return Form_MouseWheel(
                static_cast<short>(HIWORD(wParam)),
                {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))});
        case WM_CTLCOLORSTATIC: {
            const Control* control = ControlOf(reinterpret_cast<HWND>(lParam));
            if (!control || control->TextColor() < 0) return false;
            SetTextColor(reinterpret_cast<HDC>(wParam),
                         static_cast<COLORREF>(control->TextColor()));
            SetBkMode(reinterpret_cast<HDC>(wParam), TRANSPARENT);
            const platform::BrushHandle own = control->BackBrush();
            result = reinterpret_cast<std::intptr_t>(own ? own : GetSysColorBrush(COLOR_BTNFACE));
            return true;
        }
        case WM_DRAWITEM: {
            const auto& item = *reinterpret_cast<const DRAWITEMSTRUCT*>(lParam);
            Control* control = ControlOf(item.hwndItem);
            if (!control) return false;
            control->OnDrawItem(&item);
            result = TRUE;
            return true;
        }
        case WM_SETCURSOR: {
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
        case WM_TIMER:
            for (Timer* timer : timers_) {
                if (reinterpret_cast<std::uintptr_t>(timer) != wParam) continue;
                // One that was stopped may have ticked before.
                if (timer->Enabled() && timer->Tick) timer->Tick();
                return true;
            }
            return false;
        case WM_SIZE:
            if (wParam != SIZE_MINIMIZED) Form_Resize(ClientSize());
            return false;
        case WM_GETMINMAXINFO: {
            const Size least = SmallestSize();
            auto& info = *reinterpret_cast<MINMAXINFO*>(lParam);
            info.ptMinTrackSize = {least.width, least.height};
            return least.width > 0;
        }
        case WM_PAINT: {
            PAINTSTRUCT paint{};
            const HDC dc = BeginPaint(handle_, &paint);
            Form_Paint(dc);
            EndPaint(handle_, &paint);
            return true;
        }
        case WM_INITMENUPOPUP:
            if (HIWORD(lParam) == FALSE) MenuOpens(reinterpret_cast<HMENU>(wParam));
            return false;
        case WM_HELP:
            return OnHelp(lParam);
        case WM_CONTEXTMENU:
            return OnContextMenu(
                reinterpret_cast<HWND>(wParam),
                {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))},
                lParam == -1);
        case WM_PALETTECHANGED: {
            // What its own picture boxes changed, they have just painted with.
            const auto changer = reinterpret_cast<HWND>(wParam);
            if (changer != handle_ && !IsChild(handle_, changer)) RepaintPictures();
            return true;
        }
        case WM_QUERYNEWPALETTE:
            // The window becomes the active one. Behind others its pictures were matched to colours
            // of theirs; now they bring in their own.
            UnrealizeObject(DisplayPalette());
            RepaintPictures();
            result = TRUE;
            return true;
        case WM_CLOSE:
            // Whoever asks from outside asks every window: those behind a modal one stay, so that
            // the user has somewhere to go back to.
            if (IsEnabled()) Unload();
            return true;
        case WM_QUERYENDSESSION:
            EndEdits();
            result = MayEndSession();
            return true;
        case WM_ENDSESSION:
            if (wParam) EndSession();
            return true;
        case WM_DESTROY:
            OnDestroy();
            return false;
        default:
            return false;
    }
}

}  // namespace vistrel::controls
