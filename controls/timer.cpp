#include "controls/timer.h"

#include <windows.h>

namespace vistrel::controls {

void Timer::SetEnabled(bool enabled) {
    // The timer's address is its number, so the window finds it by its message alone.
    const auto number = reinterpret_cast<UINT_PTR>(this);
    if (enabled)
        enabled_ = SetTimer(window_, number, interval_, nullptr) != 0;
    else if (enabled_) {
        KillTimer(window_, number);
        enabled_ = false;
    }
}

void Timer::TickSoon() {
    SetEnabled(true);
    PostMessageA(window_, WM_TIMER, reinterpret_cast<WPARAM>(this), 0);
}

}  // namespace vistrel::controls
