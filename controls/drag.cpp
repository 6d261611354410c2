#include "controls/drag.h"

#include <windows.h>

#include <cstdlib>

#include "platform/instance.h"

namespace vistrel::controls {

platform::IconHandle LoadDragIcon(const char* resource) {
    return LoadIconA(platform::ProgramInstance(), resource);
}

bool IsDrag(Point from, Point to) {
    return std::abs(to.x - from.x) >= GetSystemMetrics(SM_CXDRAG) ||
           std::abs(to.y - from.y) >= GetSystemMetrics(SM_CYDRAG);
}

std::optional<Point> DragUntilLetGo(platform::WindowHandle source, platform::IconHandle pointer) {
    SetCapture(source);
    SetCursor(static_cast<HCURSOR>(pointer));
    std::optional<Point> letGo;
    bool dragging = true;
    MSG message{};
    while (dragging && GetCapture() == source) {
        if (GetMessageA(&message, nullptr, 0, 0) <= 0) {
            // The end of the program is for the outermost loop too.
            PostQuitMessage(static_cast<int>(message.wParam));
            break;
        }
        switch (message.message) {
            case WM_LBUTTONUP: {
                POINT at{static_cast<short>(LOWORD(message.lParam)),
                         static_cast<short>(HIWORD(message.lParam))};
                ClientToScreen(message.hwnd, &at);
                letGo = Point{static_cast<int>(at.x), static_cast<int>(at.y)};
                dragging = false;
                break;
            }
            case WM_MOUSEMOVE:
                SetCursor(static_cast<HCURSOR>(pointer));
                break;
            case WM_KEYDOWN:
                if (message.wParam == VK_ESCAPE) dragging = false;
                break;
            case WM_RBUTTONDOWN:
                dragging = false;
                break;
            default:
                DispatchMessageA(&message);
        }
    }
    if (GetCapture() == source) ReleaseCapture();
    SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW)));
    return letGo;
}

}  // namespace vistrel::controls
