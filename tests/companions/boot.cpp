// A machine at boot.
#include "tests/companions/boot.h"

#include <windows.h>

#include "core/generali.h"
#include "tests/support/user/started_program.h"

namespace vistrel::test {

using namespace core;

namespace {

struct WindowSearch {
    DWORD process;
    bool found;
};

BOOL CALLBACK LookAtWindow(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<WindowSearch*>(parameter);
    DWORD owner = 0;
    GetWindowThreadProcessId(window, &owner);
    if (owner == search.process && IsWindowVisible(window)) search.found = true;
    return TRUE;
}

/// Whether the process has a visible top window.
bool ShowsAWindow(DWORD process) {
    WindowSearch search = {process, false};
    EnumWindows(LookAtWindow, reinterpret_cast<LPARAM>(&search));
    return search.found;
}

}  // namespace

Boot::Boot() {
    CleanUp();
    PutInstalled();
    Store("LogoPath", TextValue(logos));
}

Boot::~Boot() { CleanUp(); }

void Boot::CleanUp() {
    for (const char* name :
         {"LOGOW.SYS", "LOGOS.SYS", "~LOGOW.NEW", "~LOGOS.NEW", "~LOGOW.OLD", "~LOGOS.OLD"}) {
        RemoveTree(windows + name);
    }
    for (const char* name : {"LOGO.SYS", "~LOGO.NEW", "~LOGO.OLD"})
        RemoveTree(std::string("C:\\") + name);
    RemoveTree(bin + "Mirrorkin.ini");
}

Boot::Start Boot::Run(const std::string& commandLine) {
    const StartedProgram program(bin + commandLine);
    Start start;
    if (!program) return start;
    std::optional<DWORD> status;
    for (const DWORD begun = GetTickCount(); !status && GetTickCount() - begun < 60000;) {
        status = program.WaitForEnd(5);
        if (ShowsAWindow(program.id())) start.showedAWindow = true;
    }
    if (!status) program.Terminate();
    start.ended = status.has_value();
    start.exitCode = status.value_or(255);
    return start;
}

unsigned long Boot::RunUnseen(const std::string& commandLine) {
    const Start start = Run(commandLine);
    EXPECT_TRUE(start.ended) << commandLine;
    EXPECT_FALSE(start.showedAWindow) << commandLine;
    return start.exitCode;
}

Names Boot::SetsInOrder() const {
    std::vector<std::string> names;
    WIN32_FIND_DATAA found;
    HANDLE search = FindFirstFileA((logos + "*").c_str(), &found);
    do {
        const std::string name = found.cFileName;
        const bool isFolder = (found.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
        if (isFolder && name != "." && name != "..") names.push_back(name);
    } while (FindNextFileA(search, &found));
    FindClose(search);
    return names;
}

void Boot::PutInstalled() {
    Put("C:\\LOGO.SYS", old[0]);
    Put(windows + "LOGOW.SYS", old[1]);
    Put(windows + "LOGOS.SYS", old[2]);
}

Screens Boot::Installed() const {
    return {Contents("C:\\LOGO.SYS").value_or("-"), Contents(windows + "LOGOW.SYS").value_or("-"),
            Contents(windows + "LOGOS.SYS").value_or("-")};
}

std::string Boot::InstalledSet() const {
    const auto stored = Stored("DefaultLogoSet");
    return stored ? CutAtNul(stored->bytes) : "(none)";
}

}  // namespace vistrel::test
