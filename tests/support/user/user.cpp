// Finding windows, reading them, mouse and keyboard of the tests' user.
#include "tests/support/user/user.h"

#include <cstdlib>

#include "tests/support/user/clean_start.h"

namespace vistrel::user {

namespace {

DWORD WINAPI RunActions(void* actions) {
    (*static_cast<std::function<void()>*>(actions))();
    return 0;
}

struct TopWindowSearch {
    std::string window_class;
    std::string title;
    DWORD process;
    HWND found;
};

BOOL CALLBACK IsWantedTop(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<TopWindowSearch*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (!IsWindowVisible(window) || (search.process != 0 && process != search.process) ||
        ClassOf(window) != search.window_class ||
        (!search.title.empty() && TextOf(window) != search.title)) {
        return TRUE;
    }
    search.found = window;
    return FALSE;
}

struct ControlSearch {
    int id;
    HWND found;
};

BOOL CALLBACK IsWantedControl(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<ControlSearch*>(parameter);
    if (GetDlgCtrlID(window) != search.id) return TRUE;
    search.found = window;
    return FALSE;
}

/// A button going down or up at a point of the screen.
INPUT MouseInput(DWORD button, POINT point) {
    // The whole screen is 65536 units wide and high; rounding up hits the pixel itself.
    const LONG width = GetSystemMetrics(SM_CXSCREEN);
    const LONG height = GetSystemMetrics(SM_CYSCREEN);
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = button | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE;
    input.mi.dx = (point.x * 65536 + width - 1) / width;
    input.mi.dy = (point.y * 65536 + height - 1) / height;
    return input;
}

INPUT KeyInput(WORD key, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = static_cast<WORD>(MapVirtualKeyA(key, 0));
    const bool extended = (key >= VK_PRIOR && key <= VK_DOWN) || key == VK_INSERT ||
                          key == VK_DELETE || key == VK_APPS;
    input.ki.dwFlags = flags | (extended ? KEYEVENTF_EXTENDEDKEY : 0);
    return input;
}

void Send(std::vector<INPUT> inputs) {
    SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

/// Whether a click here, now, would make the earlier one a double click.
bool WouldDouble(POINT earlier, DWORD time, POINT point) {
    return GetTickCount() - time <= GetDoubleClickTime() &&
           std::abs(point.x - earlier.x) <= GetSystemMetrics(SM_CXDOUBLECLK) &&
           std::abs(point.y - earlier.y) <= GetSystemMetrics(SM_CYDOUBLECLK);
}

/// Keys that WhileHolding holds down just now.
std::vector<WORD> held;

/// Input that comes with these keys held down at once: what the X server tells late of its own
/// keyboard lets go of keys that are held already.
std::vector<INPUT> WithKeys(const std::vector<WORD>& keys, const std::vector<INPUT>& then) {
    std::vector<INPUT> inputs;
    for (const WORD key : keys) inputs.push_back(KeyInput(key, 0));
    inputs.insert(inputs.end(), then.begin(), then.end());
    return inputs;
}

/// Clicks `times` times at the point. Lets a possible double click with an earlier click pass by.
void ClickButton(POINT point, DWORD down, DWORD up, int times) {
    static DWORD last_click = GetTickCount() - GetDoubleClickTime() - 1;
    static POINT last_point = point;
    MoveTo(point);
    WaitUntil([&] { return !WouldDouble(last_point, last_click, point); });
    for (int i = 0; i < times; ++i)
        Send(WithKeys(held, {MouseInput(down, point), MouseInput(up, point)}));
    last_click = GetTickCount();
    last_point = point;
}

/// Whether a click at this point reaches the window or a part of it.
bool IsSeenAt(HWND window, POINT point) {
    const HWND hit = WindowFromPoint(point);
    return hit == window || IsChild(window, hit);
}

bool WaitUntilSeen(HWND window) {
    return WaitUntil([&] { return IsSeenAt(window, CentreOf(window)); }, 1000);
}

}  // namespace

Meanwhile::Meanwhile(std::function<void()> actions) : actions_(std::move(actions)) {
    DWORD thread_id = 0;
    thread_ = CreateThread(nullptr, 0, RunActions, &actions_, 0, &thread_id);
}

void Meanwhile::Finish() {
    if (thread_ == nullptr) return;
    while (MsgWaitForMultipleObjects(1, &thread_, FALSE, INFINITE, QS_ALLINPUT) != WAIT_OBJECT_0) {
        PumpMessages();
    }
    CloseHandle(thread_);
    thread_ = nullptr;
}

HWND FindTop(const std::string& window_class, const std::string& title, DWORD process) {
    TopWindowSearch search = {window_class, title, process, nullptr};
    EnumWindows(IsWantedTop, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

HWND WaitForTop(const std::string& window_class, const std::string& title, DWORD process,
                DWORD milliseconds) {
    HWND found = nullptr;
    WaitUntil([&] { return (found = FindTop(window_class, title, process)) != nullptr; },
              milliseconds);
    return found;
}

bool WaitUntilGone(HWND window, DWORD milliseconds) {
    return WaitUntil([&] { return !IsWindow(window); }, milliseconds);
}

HWND Control(HWND window, int id) {
    ControlSearch search = {id, nullptr};
    EnumChildWindows(window, IsWantedControl, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

std::string TextOf(HWND window) {
    DWORD_PTR length = 0;
    if (!SendMessageTimeoutA(window, WM_GETTEXTLENGTH, 0, 0, SMTO_ABORTIFHUNG, 5000, &length)) {
        return "";
    }
    std::string text(length + 1, '\0');
    DWORD_PTR copied = 0;
    SendMessageTimeoutA(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                        SMTO_ABORTIFHUNG, 5000, &copied);
    text.resize(copied);
    return text;
}

std::string ClassOf(HWND window) {
    char name[256] = "";
    GetClassNameA(window, name, sizeof name);
    return name;
}

POINT CentreOf(HWND window) {
    RECT area = {};
    GetWindowRect(window, &area);
    return {(area.left + area.right) / 2, (area.top + area.bottom) / 2};
}

bool Activate(HWND window) {
    const HWND top = GetAncestor(window, GA_ROOT);
    // Like a click that did nothing, it is repeated.
    constexpr int kTries = 20;
    for (int i = 0; i < kTries; ++i) {
        SetForegroundWindow(top);
        if (WaitUntil([&] { return GetForegroundWindow() == top; }, 1000)) return true;
    }
    return false;
}

bool IsInFront(HWND window) {
    if (GetForegroundWindow() == window) return true;
    // It may be on its way there.
    if (!WaitUntil([] { return !NobodyIsInFront(); }, 1000)) SetForegroundWindow(window);
    return GetForegroundWindow() == window;
}

void MoveTo(POINT point) {
    // The first moves the X server's pointer as well, which would otherwise be told back to Wine
    // with the next window that opens. Such news can still be under way: the second has the point
    // with it, and so has each button.
    SetCursorPos(point.x, point.y);
    Send({MouseInput(0, point)});
}

void ClickAt(POINT point) { ClickButton(point, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, 1); }

void DoubleClickAt(POINT point) { ClickButton(point, MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, 2); }

void RightClickAt(POINT point) {
    ClickButton(point, MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP, 1);
}

namespace {

/// Has the pointer at a point until nothing moves it away for a while: what the X server tells late
/// of former places would be a corner of what is drawn.
void RestAt(POINT point) {
    MoveTo(point);
    DWORD since = GetTickCount();
    WaitUntil([&] {
        POINT now{};
        GetCursorPos(&now);
        if (now.x != point.x || now.y != point.y) {
            MoveTo(point);
            since = GetTickCount();
        }
        constexpr DWORD kWhile = 100;
        return GetTickCount() - since >= kWhile;
    });
}

void DragWith(DWORD down, DWORD up, const std::vector<POINT>& points,
              const std::function<void()>& atCorner) {
    RestAt(points.front());
    Send(WithKeys(held, {MouseInput(down, points.front())}));
    constexpr int kSteps = 10;
    for (std::size_t i = 1; i < points.size(); ++i) {
        const POINT from = points[i - 1], to = points[i];
        for (int step = 1; step <= kSteps; ++step) {
            MoveTo({from.x + (to.x - from.x) * step / kSteps,
                    from.y + (to.y - from.y) * step / kSteps});
            // Whoever drags looks at each position once; moves in the queue would become one.
            WaitUntil([start = GetTickCount()] { return GetTickCount() - start >= 20; });
        }
        atCorner();
    }
    Send({MouseInput(up, points.back())});
}

}  // namespace

void Drag(POINT from, POINT to) {
    DragThrough({from, to}, [] {});
}

void DragThrough(const std::vector<POINT>& points, const std::function<void()>& atCorner) {
    DragWith(MOUSEEVENTF_LEFTDOWN, MOUSEEVENTF_LEFTUP, points, atCorner);
}

void RightDrag(POINT from, POINT to) {
    DragWith(MOUSEEVENTF_RIGHTDOWN, MOUSEEVENTF_RIGHTUP, {from, to}, [] {});
}

void TurnWheel(int notches) {
    INPUT turn{};
    turn.type = INPUT_MOUSE;
    turn.mi.dwFlags = MOUSEEVENTF_WHEEL;
    turn.mi.mouseData = static_cast<DWORD>(notches * WHEEL_DELTA);
    Send(WithKeys(held, {turn}));
}

bool Click(HWND window) {
    if (!WaitUntilSeen(window)) return false;
    ClickAt(CentreOf(window));
    return true;
}

HWND ClickToOpen(HWND window, const std::string& window_class) {
    constexpr int kTries = 3;
    HWND opened = nullptr;
    for (int i = 0; i < kTries && opened == nullptr; ++i) {
        Click(window);
        opened = WaitForTop(window_class, "", 0, 7000);
    }
    return opened;
}

bool ClickToMark(HWND button) {
    const auto mark = [button] { return SendMessageA(button, BM_GETCHECK, 0, 0); };
    const LRESULT before = mark();
    constexpr int kTries = 3;
    for (int i = 0; i < kTries && mark() == before; ++i) {
        Click(button);
        WaitUntil([&] { return mark() != before; }, 7000);
    }
    return mark() != before;
}

bool DoubleClick(HWND window) {
    if (!WaitUntilSeen(window)) return false;
    DoubleClickAt(CentreOf(window));
    return true;
}

bool RightClick(HWND window) {
    if (!WaitUntilSeen(window)) return false;
    RightClickAt(CentreOf(window));
    return true;
}

namespace {

BOOL CALLBACK IsInUse(HWND window, LPARAM found) {
    if (!IsWindowVisible(window) || !IsWindowEnabled(window) ||
        (GetWindowLongA(window, GWL_STYLE) & WS_CAPTION) != WS_CAPTION) {
        return TRUE;
    }
    *reinterpret_cast<HWND*>(found) = window;
    return FALSE;
}

/// A user whose keys reach nobody clicks the window that he was working with.
void TakeUpKeyboard() {
    if (WaitUntil([] { return !NobodyIsInFront(); }, 1000)) return;
    HWND window = nullptr;
    EnumWindows(IsInUse, reinterpret_cast<LPARAM>(&window));
    if (window != nullptr) Activate(window);
}

bool IsHeld(WORD key) { return (GetAsyncKeyState(key) & 0x8000) != 0; }

// The screen, which knows of no such key, lets go of it once when a window comes to the front,
// which may be just now.
void HoldKey(WORD key) {
    WaitUntil(
        [&] {
            Send({KeyInput(key, 0)});
            return IsHeld(key);
        },
        1000);
}

void LetGoKey(WORD key) { Send({KeyInput(key, KEYEVENTF_KEYUP)}); }

}  // namespace

void WhileHolding(WORD key, const std::function<void()>& act) {
    TakeUpKeyboard();
    HoldKey(key);
    held.push_back(key);
    act();
    held.pop_back();
    LetGoKey(key);
}

void Press(WORD key, const std::vector<WORD>& with) {
    TakeUpKeyboard();
    for (const WORD holding : with) HoldKey(holding);
    Send(WithKeys(with, {KeyInput(key, 0), KeyInput(key, KEYEVENTF_KEYUP)}));
    for (auto holding = with.rbegin(); holding != with.rend(); ++holding) {
        LetGoKey(*holding);
    }
}

void Type(const std::string& text) {
    TakeUpKeyboard();
    std::wstring wide(text.size(), L'\0');
    MultiByteToWideChar(1252, 0, text.data(), static_cast<int>(text.size()), wide.data(),
                        static_cast<int>(wide.size()));
    for (const wchar_t letter : wide) {
        INPUT input = {};
        input.type = INPUT_KEYBOARD;
        input.ki.wScan = letter;
        input.ki.dwFlags = KEYEVENTF_UNICODE;
        INPUT release = input;
        release.ki.dwFlags |= KEYEVENTF_KEYUP;
        Send({input, release});
    }
}

}  // namespace vistrel::user
