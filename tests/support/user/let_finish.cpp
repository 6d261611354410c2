// Waiting until a window's thread has done all that it was asked.
#include <atomic>

#include "tests/support/user/poll.h"
#include "tests/support/user/user.h"

namespace vistrel::user {
namespace {

constexpr DWORD kPatience = 20000;
constexpr WPARAM kMark = 0x4D61726B;

std::atomic<LPARAM> last_retrieved{0};
HANDLE retrieved = CreateEventA(nullptr, FALSE, FALSE, nullptr);

LRESULT CALLBACK NoteMark(int code, WPARAM removed, LPARAM parameter) {
    const MSG& message = *reinterpret_cast<const MSG*>(parameter);
    if (code == HC_ACTION && removed == PM_REMOVE && message.message == WM_NULL &&
        message.wParam == kMark) {
        last_retrieved = message.lParam;
        SetEvent(retrieved);
    }
    return CallNextHookEx(nullptr, code, removed, parameter);
}

}  // namespace

void LetFinish(HWND window) {
    // What is sent is answered in the midst of a handler too, where that closes a window or sends
    // something itself. What is posted waits until the handler is done.
    SendMessageA(window, WM_NULL, 0, 0);
    const DWORD thread = GetWindowThreadProcessId(window, nullptr);
    if (thread == 0 || thread == GetCurrentThreadId()) return;
    static std::atomic<LPARAM> marks{0};
    const LPARAM mark = ++marks;
    const HHOOK hook = SetWindowsHookExA(WH_GETMESSAGE, NoteMark, nullptr, thread);
    PostMessageA(window, WM_NULL, kMark, mark);
    const DWORD start = GetTickCount();
    while (last_retrieved < mark && IsWindow(window) && GetTickCount() - start < kPatience)
        WaitForSingleObject(retrieved, 10);
    UnhookWindowsHookEx(hook);
}

}  // namespace vistrel::user
