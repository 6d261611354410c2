// The least program that shows a list view: what any start costs.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

namespace {

LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_DESTROY) PostQuitMessage(0);
    return DefWindowProcA(window, message, wParam, lParam);
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
    InitCommonControls();
    WNDCLASSA c{};
    c.lpfnWndProc = Procedure;
    c.hInstance = instance;
    c.lpszClassName = "BareList";
    RegisterClassA(&c);
    const HWND window = CreateWindowA("BareList", "", WS_OVERLAPPEDWINDOW, 0, 0, 620, 420, nullptr,
                                      nullptr, instance, nullptr);
    CreateWindowA(WC_LISTVIEWA, "", WS_CHILD | WS_VISIBLE | LVS_LIST, 0, 0, 600, 380, window,
                  nullptr, instance, nullptr);
    ShowWindow(window, SW_SHOW);
    UpdateWindow(window);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
    return 0;
}
