// Windows of other programs.
#include "platform/running_window.h"

#include <windows.h>

namespace vistrel::platform {

bool WindowOfClassExists(const std::string& windowClass) {
    return FindWindowA(windowClass.c_str(), nullptr) != nullptr;
}

bool BringToFront(const std::string& windowClass) {
    const HWND window = FindWindowA(windowClass.c_str(), nullptr);
    if (!window || !IsWindowVisible(window)) return false;
    if (IsIconic(window)) ShowWindow(window, SW_RESTORE);
    SetForegroundWindow(window);
    const HWND inFront = GetLastActivePopup(window);
    if (inFront != window) SetForegroundWindow(inFront);
    return true;
}

}  // namespace vistrel::platform
