#include "tests/hardship/answering.h"

#include <cstring>
#include <utility>
#include <vector>

#include "tests/hardship/holds.h"
#include "tests/support/user/poll.h"

namespace vistrel::test {
namespace {

/// Of the system's dialogs for files, older and newer ones.
constexpr int kFileNamesOfDialogs[] = {0x480, 0x47C};
constexpr DWORD kTimeToClose = 300;
constexpr const char* kOurs[] = {"SelPictureForm", "FrmOptions", "FrmView",   "FrmAboutReg",
                                 "FrmBootShow",    "FrmAnimate", "FrmAdjust", "FrmManySets"};

BOOL CALLBACK AddIfOpenHere(HWND window, LPARAM list) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process == GetCurrentProcessId() && IsWindowVisible(window))
        reinterpret_cast<std::vector<HWND>*>(list)->push_back(window);
    return TRUE;
}

std::vector<HWND> OpenWindows() {
    std::vector<HWND> windows;
    EnumWindows(AddIfOpenHere, reinterpret_cast<LPARAM>(&windows));
    return windows;
}

bool IsOurs(const std::string& windowClass) {
    for (const char* ours : kOurs)
        if (windowClass == ours) return true;
    return false;
}

void WaitALittle() { MsgWaitForMultipleObjects(0, nullptr, FALSE, 3, QS_ALLINPUT); }

}  // namespace

Answering::Answering(std::string file, std::function<void(HWND window)> inWindow)
    : file_(std::move(file)),
      inWindow_(std::move(inWindow)),
      before_([] {
          const auto open = OpenWindows();
          return std::set<HWND>(open.begin(), open.end());
      }()),
      thread_([this] { Answer(); }) {}

Answering::~Answering() {
    done_ = true;
    thread_.Finish();
}

void Answering::Answer() {
    while (!done_) {
        for (const HWND window : OpenWindows()) {
            // One that another lies over waits for that.
            if (before_.contains(window) || !IsWindowEnabled(window)) continue;
            const std::string windowClass = user::ClassOf(window);
            if (windowClass == "#32770") AnswerDialog(window);
            if (IsOurs(windowClass)) CloseWindow(window);
        }
        WaitALittle();
    }
}

// What is posted may lead to another question: waiting for it here, nobody would answer that.
void Answering::AnswerDialog(HWND dialog) {
    for (const int number : kFileNamesOfDialogs)
        if (const HWND name = GetDlgItem(dialog, number)) {
            SendMessageA(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(file_.c_str()));
            PostMessageA(dialog, WM_COMMAND, IDOK, 0);
            ++filesGiven_;
            WaitUntil([&] { return !IsWindow(dialog) || !IsWindowEnabled(dialog); }, 500);
            return;
        }
    for (const int button : {IDYES, IDOK, IDCANCEL})
        if (const HWND wanted = GetDlgItem(dialog, button)) {
            PostMessageA(wanted, BM_CLICK, 0, 0);
            WaitUntil([&] { return !IsWindow(dialog); }, 500);
            return;
        }
}

void Answering::CloseWindow(HWND window) {
    // What its opening has set going comes first.
    SendMessageA(window, WM_NULL, 0, 0);
    const auto [place, isNew] = acted_.try_emplace(window, GetTickCount());
    if (isNew) {
        ++windows_;
        if (inWindow_) inWindow_(window);
    }
    // What was done in it may close it, after some questions.
    if (inWindow_ && GetTickCount() - place->second < kTimeToClose) return;
    PostMessageA(window, WM_CLOSE, 0, 0);
    WaitUntil([&] { return !IsWindow(window) || !IsWindowEnabled(window); }, 500);
}

namespace {

const UINT kRun = RegisterWindowMessageA("Run in a hardship test");
WNDPROC former = nullptr;

LRESULT CALLBACK RunAction(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
    if (message != kRun) return CallWindowProcA(former, window, message, wParam, lParam);
    (*reinterpret_cast<const std::function<void()>*>(lParam))();
    return 0;
}

}  // namespace

void RunOnThreadOf(HWND window, const std::function<void()>& action) {
    former = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(RunAction)));
    SendMessageA(window, kRun, 0, reinterpret_cast<LPARAM>(&action));
    SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
}

}  // namespace vistrel::test
