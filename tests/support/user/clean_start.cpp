// Takes away what a test has left behind, as far as a user at this screen meets it.
#include "tests/support/user/clean_start.h"

#include <algorithm>
#include <vector>

#include "tests/support/user/user.h"

namespace vistrel::user {
namespace {

constexpr DWORD kPatience = 10000;

DWORD ProcessOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

BOOL CALLBACK Collect(HWND window, LPARAM windows) {
    if (IsWindowVisible(window) && ProcessOf(window) != ProcessOf(GetDesktopWindow()))
        reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
    return TRUE;
}

/// The programs' windows that can be seen, topmost first; the desktop's own are not among them.
std::vector<HWND> OpenWindows() {
    std::vector<HWND> windows;
    EnumWindows(Collect, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

/// A window that this program always has, so that there is one that can be in front: one pixel in
/// the corner of the screen.
constexpr const char* kGround = "Ground";
HWND Ground() {
    static const HWND window =
        CreateWindowExA(WS_EX_TOOLWINDOW, "STATIC", kGround, WS_POPUP | WS_VISIBLE,
                        GetSystemMetrics(SM_CXSCREEN) - 1, GetSystemMetrics(SM_CYSCREEN) - 1, 1, 1,
                        nullptr, nullptr, nullptr, nullptr);
    return window;
}

constexpr struct {
    int key;
    DWORD release;
} kButtons[] = {{VK_LBUTTON, MOUSEEVENTF_LEFTUP},
                {VK_RBUTTON, MOUSEEVENTF_RIGHTUP},
                {VK_MBUTTON, MOUSEEVENTF_MIDDLEUP}};

bool IsHeld(int key) { return (GetAsyncKeyState(key) & 0x8000) != 0; }

bool IsButton(int key) { return key < VK_BACK && key != VK_CANCEL; }

std::vector<int> HeldKeys() {
    std::vector<int> held;
    for (int key = VK_LBUTTON; key < 255; ++key)
        if (IsHeld(key)) held.push_back(key);
    return held;
}

void ReleaseInput() {
    ReleaseCapture();
    for (const auto& button : kButtons) {
        if (!IsHeld(button.key)) continue;
        INPUT input = {};
        input.type = INPUT_MOUSE;
        input.mi.dwFlags = button.release;
        SendInput(1, &input, sizeof input);
    }
    for (const int key : HeldKeys()) {
        if (IsButton(key)) continue;
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wVk = static_cast<WORD>(key);
        input.ki.dwFlags = KEYEVENTF_KEYUP;
        SendInput(1, &input, sizeof input);
    }
}

/// Whether a menu is open; ends it with `end`.
bool MenuIsOpen(bool end) {
    bool open = false;
    for (HWND window : OpenWindows()) {
        GUITHREADINFO info = {};
        info.cbSize = sizeof info;
        if (!GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info) ||
            (info.flags & (GUI_INMENUMODE | GUI_POPUPMENUMODE)) == 0)
            continue;
        open = true;
        if (end && info.hwndMenuOwner) PostMessageA(info.hwndMenuOwner, WM_CANCELMODE, 0, 0);
    }
    return open;
}

/// Whether it is the ground of a test that has started this program and waits for it.
bool IsGround(HWND window) {
    char title[sizeof "Ground."] = "";
    GetWindowTextA(window, title, sizeof title);
    return std::string(title) == kGround;
}

/// What only a test can have opened: boxes of this program, and windows of another one.
bool IsLeftOver(HWND window) {
    return (ProcessOf(window) != GetCurrentProcessId() && !IsGround(window)) ||
           ClassOf(window) == "#32770";
}

HWND LeftOver() {
    for (HWND window : OpenWindows())
        if (IsLeftOver(window)) return window;
    return nullptr;
}

/// Answers a box as lightly as can be, closes any other window.
void Close(HWND window) {
    for (const int button : {IDCANCEL, IDNO, IDOK, IDABORT}) {
        if (ClassOf(window) == "#32770" && GetDlgItem(window, button)) {
            PostMessageA(window, WM_COMMAND, static_cast<WPARAM>(button),
                         reinterpret_cast<LPARAM>(GetDlgItem(window, button)));
            return;
        }
    }
    PostMessageA(window, WM_CLOSE, 0, 0);
}

void EndProgramOf(HWND window) {
    if (ProcessOf(window) == GetCurrentProcessId()) return;
    const HANDLE process = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, ProcessOf(window));
    if (!process) return;
    TerminateProcess(process, 1);
    WaitForSingleObject(process, kPatience);
    CloseHandle(process);
}

/// Programs that do not close themselves are ended.
void CloseLeftOvers() {
    for (HWND window : OpenWindows()) {
        if (!IsLeftOver(window)) continue;
        if (IsWindowEnabled(window)) Close(window);
        if (!WaitUntilGone(window, 2000)) EndProgramOf(window);
    }
}

std::string Describe(HWND window) {
    return ClassOf(window) + " \"" + TextOf(window) + "\" of " +
           (ProcessOf(window) == GetCurrentProcessId() ? "this program" : "another program");
}

}  // namespace

bool NobodyIsInFront() {
    const HWND front = GetForegroundWindow();
    return front == nullptr || front == GetDesktopWindow();
}

void StartClean() {
    ReleaseInput();
    WaitUntil([] { return HeldKeys().empty(); }, kPatience);
    MenuIsOpen(true);
    WaitUntil([] { return !MenuIsOpen(false); }, kPatience);
    // Behind a box there may be another.
    WaitUntil(
        [] {
            CloseLeftOvers();
            return LeftOver() == nullptr;
        },
        kPatience);
    Activate(Ground());
}

void CloseWhatIsOver(HWND window) {
    const auto isOver = [&](HWND other) {
        return other != window && other != Ground() && IsWindowEnabled(other) &&
               ProcessOf(other) == GetCurrentProcessId();
    };
    WaitUntil(
        [&] {
            if (!IsWindow(window) || IsWindowEnabled(window)) return true;
            const std::vector<HWND> open = OpenWindows();
            const auto over = std::find_if(open.begin(), open.end(), isOver);
            if (over != open.end()) {
                Close(*over);
                WaitUntilGone(*over, 2000);
            }
            return false;
        },
        kPatience);
}

std::string LeftBehind() {
    std::string text;
    for (const int key : HeldKeys()) text += "held: key " + std::to_string(key) + "\n";
    if (MenuIsOpen(false)) text += "open: a menu\n";
    for (HWND window : OpenWindows())
        if (IsLeftOver(window)) text += "open: " + Describe(window) + "\n";
    const HWND front = GetForegroundWindow();
    if (front != Ground())
        text += "in front: " + (NobodyIsInFront() ? "nobody" : Describe(front)) + "\n";
    return text;
}

}  // namespace vistrel::user
