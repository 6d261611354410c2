// Waiting for something to happen, but not for ever.
#pragma once

#include <windows.h>

namespace vistrel {

/// Lets this thread's windows handle what is queued for them. WM_QUIT is put back, for the loop
/// that it was meant for.
inline void PumpMessages() {
    MSG message;
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        TranslateMessage(&message);
        DispatchMessageA(&message);
    }
}

/// Waits until `condition()` is true while this thread's windows go on working. Returns whether it
/// came true; after `milliseconds` of waiting it returns false.
template <typename Condition>
bool WaitUntil(Condition condition, DWORD milliseconds = 20000) {
    const DWORD start = GetTickCount();
    for (;;) {
        PumpMessages();
        if (condition()) return true;
        if (GetTickCount() - start > milliseconds) return false;
        MsgWaitForMultipleObjects(0, nullptr, FALSE, 10, QS_ALLINPUT);
    }
}

}  // namespace vistrel
