#include "controls/message_loop.h"

#include <windows.h>

#include <algorithm>
#include <vector>

#include "controls/window.h"

namespace vistrel::controls {
namespace {

std::vector<Window*>& openWindows() {
    static std::vector<Window*> windows;
    return windows;
}

Window* WindowOf(HWND handle) {
    for (Window* window : openWindows())
        if (window->handle() == handle || IsChild(window->handle(), handle)) return window;
    return nullptr;
}

void Handle(MSG& message) {
    Window* window = message.hwnd ? WindowOf(message.hwnd) : nullptr;
    if (window) {
        // WM_CHAR exists only after translation, which the dialog manager does itself.
        if (window->HandleKey(&message)) return;
        if (window->HasDialogKeys() && IsDialogMessageA(window->handle(), &message)) return;
    }
    TranslateMessage(&message);
    DispatchMessageA(&message);
}

}  // namespace

void AddToLoop(Window& window) { openWindows().push_back(&window); }

void RemoveFromLoop(Window& window) {
    auto& windows = openWindows();
    windows.erase(std::remove(windows.begin(), windows.end(), &window), windows.end());
    // What another program sends closes a window without a message that the loop would see.
    PostThreadMessageA(GetCurrentThreadId(), WM_NULL, 0, 0);
}

Window* OpenWindowOf(platform::WindowHandle handle) {
    for (Window* window : openWindows())
        if (window->handle() == handle) return window;
    return nullptr;
}

void EndSession() {
    // A window is opened in front of those that are open.
    const std::vector<Window*> windows = openWindows();
    for (auto window = windows.rbegin(); window != windows.rend(); ++window)
        (*window)->SessionEnds();
}

bool InputIsWaiting() { return HIWORD(GetQueueStatus(QS_INPUT)) != 0; }

bool KeyIsWaiting() { return HIWORD(GetQueueStatus(QS_KEY)) != 0; }

void HandleWaiting() {
    MSG message{};
    while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Handle(message);
    }
}

void RunLoopWhileOpen(const Window& window) {
    MSG message{};
    while (window.IsOpen()) {
        if (GetMessageA(&message, nullptr, 0, 0) <= 0) {
            // The end of the program is for the outermost loop too.
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        Handle(message);
    }
}

}  // namespace vistrel::controls
