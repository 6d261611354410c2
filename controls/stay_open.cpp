#include "controls/stay_open.h"

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <cstring>

namespace vistrel::controls {
namespace {

/// The property of a window that holds its own procedure.
constexpr const char* kFormerProcedure = "VistrelFormerProcedure";

LRESULT CALLBACK PassOverClose(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message == WM_CLOSE) return 0;
    const auto former = reinterpret_cast<WNDPROC>(GetPropA(window, kFormerProcedure));
    if (message == WM_NCDESTROY) {
        RemovePropA(window, kFormerProcedure);
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
    }
    return CallWindowProcA(former, window, message, wParam, lParam);
}

bool IsHelper(HWND window) {
    char name[64] = "";
    GetClassNameA(window, name, sizeof name);
    return std::strcmp(name, TOOLTIPS_CLASSA) == 0 || std::strcmp(name, "ComboLBox") == 0;
}

BOOL CALLBACK LetStayOpen(HWND window, LPARAM) {
    if (!IsHelper(window) || GetPropA(window, kFormerProcedure)) return TRUE;
    const auto former = reinterpret_cast<HANDLE>(GetWindowLongPtrA(window, GWLP_WNDPROC));
    if (SetPropA(window, kFormerProcedure, former))
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&PassOverClose));
    return TRUE;
}

}  // namespace

void LetHelpersStayOpen() { EnumThreadWindows(GetCurrentThreadId(), &LetStayOpen, 0); }

}  // namespace vistrel::controls
