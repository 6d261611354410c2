#include "tests/main_window/help_listener.h"

#include <utility>

namespace vistrel::test {
namespace {

std::optional<HelpListener::Request> lastRequest;

/// The head of what the system sends to its viewer; names and data follow at their offsets.
struct Message {
    WORD size;
    WORD command;
    LONG data;
    LONG reserved;
    WORD fileNameAt;
    WORD dataAt;
};

LRESULT CALLBACK Listen(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != WM_COPYDATA) return DefWindowProcA(window, message, wParam, lParam);
    const auto* bytes =
        static_cast<const char*>(reinterpret_cast<const COPYDATASTRUCT*>(lParam)->lpData);
    const auto& head = *reinterpret_cast<const Message*>(bytes);
    HelpListener::Request request{head.command, static_cast<unsigned long>(head.data), ""};
    if (head.fileNameAt) request.file = bytes + head.fileNameAt;
    lastRequest = request;
    return TRUE;
}

}  // namespace

HelpListener::HelpListener() {
    WNDCLASSA c{};
    c.lpfnWndProc = Listen;
    c.hInstance = GetModuleHandleA(nullptr);
    c.lpszClassName = "MS_WINHELP";
    RegisterClassA(&c);
    window_ = CreateWindowA("MS_WINHELP", "", WS_POPUP, 0, 0, 1, 1, nullptr, nullptr, c.hInstance,
                            nullptr);
    lastRequest.reset();
}

HelpListener::~HelpListener() {
    DestroyWindow(window_);
    UnregisterClassA("MS_WINHELP", GetModuleHandleA(nullptr));
}

const std::optional<HelpListener::Request>& HelpListener::asked() const { return lastRequest; }

HelpListener::Request HelpListener::Take() {
    return std::exchange(lastRequest, std::nullopt).value_or(Request{});
}

}  // namespace vistrel::test
