// A help viewer for tests: it shows nothing and notes what it is asked for, by whatever program.
#include "tests/support/user/help_requests.h"

#include <cstring>
#include <utility>

#include "tests/support/user/poll.h"

namespace vistrel::user {

namespace {

/// The window by which the system finds a help viewer.
constexpr char kViewerClass[] = "MS_WINHELP";

/// What a viewer is sent; the file's name stands `nameAt` bytes from the beginning.
struct Request {
    WORD size;
    WORD command;
    LONG data;
    LONG reserved;
    WORD nameAt;
    WORD textAt;
};

}  // namespace

HelpRequests::HelpRequests() {
    InitializeCriticalSection(&lock_);
    ready_ = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    DWORD id = 0;
    thread_ = CreateThread(nullptr, 0, Run, this, 0, &id);
    WaitForSingleObject(ready_, INFINITE);
}

HelpRequests::~HelpRequests() {
    PostMessageA(window_, WM_CLOSE, 0, 0);
    WaitForSingleObject(thread_, INFINITE);
    CloseHandle(thread_);
    CloseHandle(ready_);
    DeleteCriticalSection(&lock_);
}

DWORD WINAPI HelpRequests::Run(void* self) {
    auto* requests = static_cast<HelpRequests*>(self);
    WNDCLASSA c = {};
    c.lpfnWndProc = Handle;
    c.hInstance = GetModuleHandleA(nullptr);
    c.lpszClassName = kViewerClass;
    RegisterClassA(&c);
    requests->window_ = CreateWindowA(kViewerClass, "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr,
                                      c.hInstance, nullptr);
    SetWindowLongPtrA(requests->window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(self));
    SetEvent(requests->ready_);
    MSG message;
    while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
    return 0;
}

LRESULT CALLBACK HelpRequests::Handle(HWND window, UINT message, WPARAM wide, LPARAM data) {
    auto* requests = reinterpret_cast<HelpRequests*>(GetWindowLongPtrA(window, GWLP_USERDATA));
    if (message == WM_DESTROY) PostQuitMessage(0);
    if (message != WM_COPYDATA || !requests) return DefWindowProcA(window, message, wide, data);
    const auto* bytes =
        static_cast<const char*>(reinterpret_cast<const COPYDATASTRUCT*>(data)->lpData);
    Request request;
    std::memcpy(&request, bytes, sizeof request);
    EnterCriticalSection(&requests->lock_);
    requests->request_ = {request.command, static_cast<unsigned long>(request.data),
                          request.nameAt ? bytes + request.nameAt : ""};
    LeaveCriticalSection(&requests->lock_);
    return TRUE;
}

HelpRequest HelpRequests::Take() {
    EnterCriticalSection(&lock_);
    HelpRequest taken = std::exchange(request_, {});
    LeaveCriticalSection(&lock_);
    return taken;
}

HelpRequest HelpRequests::Next() {
    HelpRequest next;
    WaitUntil([&] {
        next = Take();
        return next.command != 0;
    });
    return next;
}

bool HelpRequests::None() { return Take().command == 0; }

}  // namespace vistrel::user
