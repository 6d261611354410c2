#include "tests/monkey/monkey.h"

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <numeric>

#include "tests/support/user/clean_start.h"

namespace vistrel::test {
namespace {

constexpr DWORD kPatience = 60000;

struct TopWindows {
    DWORD process;
    std::vector<HWND> found;
};

BOOL CALLBACK AddIfOfProcess(HWND window, LPARAM search) {
    auto& windows = *reinterpret_cast<TopWindows*>(search);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (IsWindowVisible(window) && process == windows.process) windows.found.push_back(window);
    return TRUE;
}

/// The visible top windows of a process, topmost first.
std::vector<HWND> TopWindowsOf(DWORD process) {
    TopWindows windows{process, {}};
    EnumWindows(AddIfOfProcess, reinterpret_cast<LPARAM>(&windows));
    return windows.found;
}

BOOL CALLBACK CloseIfOfAnother(HWND window, LPARAM program) {
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    const bool known = owner == static_cast<DWORD>(program) || owner == GetCurrentProcessId();
    const LONG style = GetWindowLongA(window, GWL_STYLE);
    if (!known && IsWindowVisible(window) && (style & WS_CAPTION) == WS_CAPTION) {
        // Who asks yes or no cannot be closed.
        PostMessageA(window, WM_COMMAND, IDNO, 0);
        PostMessageA(window, WM_CLOSE, 0, 0);
    }
    return TRUE;
}

bool IsMereHelper(HWND window) {
    const std::string kind = user::ClassOf(window);
    return kind == TOOLTIPS_CLASSA || kind == "ComboLBox" || kind == "#32768" ||
           kind == "SysDragImage";
}

bool Answers(HWND window) {
    DWORD_PTR result = 0;
    return SendMessageTimeoutA(window, WM_NULL, 0, 0, SMTO_NORMAL, kPatience, &result) ||
           !IsWindow(window);
}

}  // namespace

void Monkey::Act(unsigned seed, int steps, DWORD milliseconds) {
    random_.seed(seed);
    StartAnew();
    const DWORD start = GetTickCount();
    int done = 0;
    while (!failed_ && done < steps && GetTickCount() - start < milliseconds) {
        Step();
        ++done;
    }
    std::printf("The monkey did %d things, with seed %u\n", done, seed);
    if (held_ != INVALID_HANDLE_VALUE) CloseHandle(held_);
    ChangeDisplaySettingsA(nullptr, 0);
}

std::span<const Monkey::Deed> Monkey::WhatCouldBeDone() {
    if (MenuIsOpen()) return AtMenu();
    const HWND other = OtherWindow();
    if (!other) return AtMainWindow();
    return user::ClassOf(other) == "#32770" ? AtDialog() : AtOtherWindow();
}

void Monkey::Step() {
    const auto deeds = WhatCouldBeDone();
    int place = Below(std::accumulate(deeds.begin(), deeds.end(), 0,
                                      [](int sum, const Deed& d) { return sum + d.weight; }));
    const auto deed = std::find_if(deeds.begin(), deeds.end(),
                                   [&](const Deed& d) { return (place -= d.weight) < 0; });
    const HWND other = OtherWindow();
    log_.push_back(
        std::string(deed->name) +
        (other ? " in " + user::ClassOf(other) + " \"" + user::TextOf(other) + "\"" : ""));
    asked_.push_back((this->*deed->act)());
    if (!Settle()) return Fail("the program does not answer any more");
    CloseOtherPrograms();
    Judge();
    // What was asked for last may still be under way on a busy machine.
    constexpr std::size_t kMayBeLate = 4;
    if (NothingIsGoingOn() && asked_.size() > kMayBeLate)
        asked_.erase(asked_.begin(), asked_.end() - kMayBeLate);
    if (!failed_ && !IsRunning()) StartAnew();
}

bool Monkey::Settle() {
    WaitUntil([start = GetTickCount()] { return GetTickCount() - start >= 30; });
    for (int i = 0; i < 2; ++i)
        for (const HWND window : TopWindowsOf(process))
            if (!Answers(window)) return false;
    return true;
}

bool Monkey::IsRunning() {
    if (MainWindow()) return true;
    // It may be on its way out.
    const auto status = WaitForEnd();
    if (status != 0u)
        Fail(status ? "the program ended with " + std::to_string(*status)
                    : std::string("the program has no window and does not end"));
    return false;
}

void Monkey::StartAnew() {
    user::StartClean();
    // What it would otherwise look through is the whole drive.
    Store("SearchLogoPath", TextValue("C:\\Pictures\\"));
    Store("LogoPath", TextValue(logos));
    if (OneIn(3)) SpoilSettings();
    if (!Start()) {
        const auto status = WaitForEnd();
        return Fail(status ? "the program ended at its start with " + std::to_string(*status)
                           : "the program does not start");
    }
    Settle();
    TakeAsGiven();
}

void Monkey::TakeAsGiven() {
    library_ = ReadLibrary(logos);
    installed_ = InstalledFiles();
    for (const auto& [path, contents] : installed_)
        everInstalled_[""][std::to_string(std::hash<std::string>{}(contents))] = contents;
}

void Monkey::Judge() {
    const Library now = ReadLibrary(logos);
    const Files installed = InstalledFiles();
    Permits permits;
    for (const Permits& asked : asked_) permits |= asked;
    // A set that is open elsewhere is deleted but for that screen, and so is one with a screen
    // about which the system asks once more.
    permits.changed |= held_ != INVALID_HANDLE_VALUE || (protected_ && permits.removed > 0);
    for (const std::string& what : UnaskedChanges(library_, now, permits)) Fail(what);
    for (const std::string& what :
         UnaskedInstalls(installed_, installed, {&library_, &now, &everInstalled_}, permits))
        Fail(what);
    if (NothingIsGoingOn()) TakeAsGiven();
}

bool Monkey::NothingIsGoingOn() const {
    const HWND main = MainWindow();
    if (!main) return true;
    const HWND edit = FindWindowExA(List(), nullptr, "Edit", nullptr);
    return IsWindowEnabled(main) && !OtherWindow() && !MenuIsOpen() && !edit;
}

HWND Monkey::OtherWindow() const {
    for (const HWND window : TopWindowsOf(process))
        if (user::ClassOf(window) != "Principale" && !IsMereHelper(window) &&
            IsWindowEnabled(window))
            return window;
    return nullptr;
}

int Monkey::SelectedSets() const {
    return static_cast<int>(SendMessageA(List(), LVM_GETSELECTEDCOUNT, 0, 0));
}

void Monkey::CloseOtherPrograms() const {
    EnumWindows(CloseIfOfAnother, static_cast<LPARAM>(process));
}

void Monkey::Fail(const std::string& what) {
    if (!failed_) {
        user::TakeShot("monkey");
        std::printf("After %u things; the last were:\n", static_cast<unsigned>(log_.size()));
        constexpr std::size_t kLast = 40;
        for (std::size_t i = log_.size() > kLast ? log_.size() - kLast : 0; i < log_.size(); ++i)
            std::printf("%6u %s\n", static_cast<unsigned>(i + 1), log_[i].c_str());
    }
    failed_ = true;
    ADD_FAILURE() << what;
}

Files Monkey::InstalledFiles() {
    Files files;
    for (const char* path : {"C:\\LOGO.SYS", "C:\\windows\\LOGOW.SYS", "C:\\windows\\LOGOS.SYS"})
        files[path] = Contents(path).value_or("-");
    return files;
}

std::string Monkey::AnyName() {
    static const std::string kNames[] = {"New",       "new",
                                         "Beep ",     "Dots...",
                                         "a.sls",     "..\\Out",
                                         "x/y",       "CON",
                                         "",          " ",
                                         "K\xf6nig",  "Blue; Red",
                                         "100%",      "Long " + std::string(220, 'g'),
                                         "Sunny Day", "sunrise",
                                         "{a}",       "LOGO.SYS"};
    return OneOf(kNames);
}

POINT Monkey::AnyPointIn(HWND window) {
    RECT r{};
    GetClientRect(window, &r);
    POINT at{Below(std::max<int>(r.right, 1)), Below(std::max<int>(r.bottom, 1))};
    ClientToScreen(window, &at);
    return at;
}

}  // namespace vistrel::test
