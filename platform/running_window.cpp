#include "platform/running_window.h"

#include <windows.h>

namespace vistrel::platform {
namespace {

struct OwnedSearch {
    HWND owner;
    HWND found;
};

BOOL CALLBACK IsOwnedAndSeen(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<OwnedSearch*>(parameter);
    const bool isTip = (GetWindowLongA(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW) != 0;
    if (isTip || !IsWindowVisible(window) || GetWindow(window, GW_OWNER) != search.owner)
        return TRUE;
    search.found = window;
    return FALSE;
}

/// The window that a disabled one waits for, and so on: the one that can be worked with. The one
/// that was active last is not asked for, since activating the main window makes it that one.
HWND WindowToAnswer(HWND window) {
    while (!IsWindowEnabled(window)) {
        OwnedSearch search = {window, nullptr};
        EnumWindows(IsOwnedAndSeen, reinterpret_cast<LPARAM>(&search));
        if (!search.found) break;
        window = search.found;
    }
    return window;
}

}  // namespace

bool WindowOfClassExists(const std::string& windowClass) {
    return FindWindowA(windowClass.c_str(), nullptr) != nullptr;
}

bool BringToFront(const std::string& windowClass) {
    const HWND window = FindWindowA(windowClass.c_str(), nullptr);
    if (!window || !IsWindowVisible(window)) return false;
    if (IsIconic(window)) ShowWindow(window, SW_RESTORE);
    // An owned window brings its owners along.
    SetForegroundWindow(WindowToAnswer(window));
    return true;
}

}  // namespace vistrel::platform
