#include "controls/track_bar.h"

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <cstdlib>

namespace vistrel::controls {

void TrackBar::SetRange(int least, int most, int step, int page, int restAt) {
    // One by one: the message for both takes 16 bits of each.
    Send(TBM_SETRANGEMIN, FALSE, least);
    Send(TBM_SETRANGEMAX, TRUE, most);
    Send(TBM_SETLINESIZE, 0, step);
    Send(TBM_SETPAGESIZE, 0, page);
    restAt_ = restAt;
    // Some versions of the control move the slider for another position only, not for other ends.
    Send(TBM_SETPOS, TRUE, most);
    Send(TBM_SETPOS, TRUE, restAt);
    // One mark, at the place of rest.
    Send(TBM_CLEARTICS, TRUE);
    Send(TBM_SETTIC, 0, restAt);
}

int TrackBar::Value() const { return static_cast<int>(Send(TBM_GETPOS)); }

void TrackBar::SetValue(int value) { Send(TBM_SETPOS, TRUE, value); }

void TrackBar::OnScroll() {
    if (Change) Change();
}

void TrackBar::SetBack() {
    SetValue(restAt_);
    OnScroll();
}

// Not every version of the control is told of double clicks by the system.
bool TrackBar::IsSecondPress(Point at) {
    const long when = GetMessageTime();
    const bool second = static_cast<UINT>(when - pressedWhen_) <= GetDoubleClickTime() &&
                        std::abs(at.x - pressedAt_.x) <= GetSystemMetrics(SM_CXDOUBLECLK) / 2 &&
                        std::abs(at.y - pressedAt_.y) <= GetSystemMetrics(SM_CYDOUBLECLK) / 2;
    pressedWhen_ = when;
    pressedAt_ = second ? Point{-100, -100} : at;
    return second;
}

bool TrackBar::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                         std::intptr_t& result) {
    if (message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK) {
        const Point at{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
        if (IsSecondPress(at) || message == WM_LBUTTONDBLCLK) {
            SetBack();
            result = 0;
            return true;
        }
    }
    return Control::OnMessage(message, wParam, lParam, result);
}

}  // namespace vistrel::controls
