// Waits until a program's window is open and has painted itself.
// usage: wait_for_window CLASS       returns 0, or 1 when it did not come within two minutes
#include "tests/support/user/user.h"

namespace {

BOOL CALLBACK IsPainted(HWND window, LPARAM all_painted) {
    if (IsWindowVisible(window) && GetUpdateRect(window, nullptr, FALSE)) {
        *reinterpret_cast<bool*>(all_painted) = false;
        return FALSE;
    }
    return TRUE;
}

/// Whether the window answers, and neither it nor a control of it waits to be painted.
bool IsDrawn(HWND window) {
    DWORD_PTR answer = 0;
    if (!SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_ABORTIFHUNG, 1000, &answer)) return false;
    bool all_painted = true;
    IsPainted(window, reinterpret_cast<LPARAM>(&all_painted));
    EnumChildWindows(window, IsPainted, reinterpret_cast<LPARAM>(&all_painted));
    return all_painted;
}

}  // namespace

int main(int count, char** arguments) {
    using namespace vistrel;
    if (count != 2) return 2;
    constexpr DWORD kTwoMinutes = 120000;
    const HWND window = user::WaitForTop(arguments[1], "", 0, kTwoMinutes);
    return window != nullptr && WaitUntil([&] { return IsDrawn(window); }, kTwoMinutes) ? 0 : 1;
}
