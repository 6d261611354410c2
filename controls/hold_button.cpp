#include "controls/hold_button.h"

#include <windows.h>

namespace vistrel::controls {

// Only the real button knows when it looks pressed: it comes up when the pointer is drawn off it,
// and goes down again when it comes back.
bool HoldButton::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                           std::intptr_t& result) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_LBUTTONUP:
        case WM_MOUSEMOVE:
        case WM_KEYDOWN:
        case WM_KEYUP:
        case WM_KILLFOCUS:
        case WM_CAPTURECHANGED:
        case BM_SETSTATE:
            break;
        default:
            return Control::OnMessage(message, wParam, lParam, result);
    }
    result = PassOn(message, wParam, lParam);
    const bool down = (Send(BM_GETSTATE) & BST_PUSHED) != 0;
    if (down == down_) return true;
    down_ = down;
    if (Held) Held(down);
    return true;
}

}  // namespace vistrel::controls
