// A small window in front of all others, to drag from and to drop on.
#pragma once

#include <windows.h>

namespace vistrel::test {

/// Makes and shows a window of this class, whose top left corner is there.
inline HWND MakeSmallWindow(const char* windowClass, WNDPROC procedure, POINT at) {
    WNDCLASSA c{};
    c.lpfnWndProc = procedure;
    c.hInstance = GetModuleHandleA(nullptr);
    c.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    c.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_WINDOW + 1);
    c.lpszClassName = windowClass;
    RegisterClassA(&c);
    const HWND window = CreateWindowExA(WS_EX_TOPMOST, windowClass, "", WS_POPUP | WS_BORDER, at.x,
                                        at.y, 60, 40, nullptr, nullptr, c.hInstance, nullptr);
    ShowWindow(window, SW_SHOWNOACTIVATE);
    UpdateWindow(window);
    return window;
}

}  // namespace vistrel::test
