#include "tests/support/user/held_objects.h"

#include <windows.h>

namespace vistrel::test {
namespace {

/// A new object gets the lowest free place, or the one that was left last: above it so many places
/// are looked at as well.
constexpr int kBeyond = 512;

int Handles() {
    const HANDLE event = CreateEventA(nullptr, FALSE, FALSE, nullptr);
    CloseHandle(event);
    const ULONG_PTR end = reinterpret_cast<ULONG_PTR>(event) + 4 * kBeyond;
    int held = 0;
    DWORD flags = 0;
    for (ULONG_PTR handle = 4; handle <= end; handle += 4)
        held += GetHandleInformation(reinterpret_cast<HANDLE>(handle), &flags) != 0;
    return held;
}

int DrawingObjects() {
    int held = 0;
    for (ULONG_PTR place = 1; place <= 0xFFFF; ++place)
        held += GetObjectType(reinterpret_cast<HGDIOBJ>(place)) != 0;
    return held;
}

bool IsWindowOfThisProcess(HWND window) {
    DWORD process = 0;
    return GetWindowThreadProcessId(window, &process) != 0 && process == GetCurrentProcessId();
}

bool IsIcon(HICON icon) {
    ICONINFO parts{};
    if (!GetIconInfo(icon, &parts)) return false;
    DeleteObject(parts.hbmMask);
    DeleteObject(parts.hbmColor);
    return true;
}

int WindowObjects() {
    const HMENU menu = CreateMenu();
    DestroyMenu(menu);
    const ULONG_PTR end = LOWORD(reinterpret_cast<ULONG_PTR>(menu)) + 2 * kBeyond;
    int held = 0;
    // The system counts them in twos, from 0x20.
    for (ULONG_PTR place = 0x20; place <= end; place += 2)
        held += IsMenu(reinterpret_cast<HMENU>(place)) ||
                IsWindowOfThisProcess(reinterpret_cast<HWND>(place)) ||
                IsIcon(reinterpret_cast<HICON>(place));
    return held;
}

}  // namespace

HeldObjects CountHeldObjects() { return {Handles(), DrawingObjects(), WindowObjects()}; }

}  // namespace vistrel::test
