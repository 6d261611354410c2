#include "tests/stories/installed_program.h"

#include <gtest/gtest.h>
#include <windows.h>
// These need windows.h first.
#include <shlobj.h>
#include <tlhelp32.h>

#include "tests/support/machine/machine.h"
#include "tests/support/user/poll.h"
#include "tests/support/user/started_program.h"

namespace vistrel::test {

namespace {

/// Whether a program runs whose name begins like this.
bool IsRunning(const std::string& beginning) {
    HANDLE processes = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
    PROCESSENTRY32 process{};
    process.dwSize = sizeof process;
    bool found = false;
    for (BOOL more = Process32First(processes, &process); more && !found;
         more = Process32Next(processes, &process))
        found = std::string(process.szExeFile).starts_with(beginning);
    CloseHandle(processes);
    return found;
}

}  // namespace

bool HasInstaller() { return Exists("C:\\test\\vistrel-setup.exe"); }

std::optional<unsigned long> InstallSilently(const std::string& arguments) {
    return StartedProgram("C:\\test\\vistrel-setup.exe /S " + arguments).WaitForEnd();
}

bool UninstallSilently(const std::string& folder) {
    if (StartedProgram("\"" + folder + "uninst.exe\" /S").WaitForEnd() != 0u) return false;
    // It goes on as a copy of itself, Un.exe.
    return WaitUntil([] { return !IsRunning("Un"); }) && !Exists(folder + "uninst.exe");
}

std::string TargetOf(const std::string& link) {
    CoInitialize(nullptr);
    IShellLinkA* shellLink = nullptr;
    IPersistFile* file = nullptr;
    char target[MAX_PATH] = "";
    CoCreateInstance(CLSID_ShellLink, nullptr, CLSCTX_INPROC_SERVER, IID_IShellLinkA,
                     reinterpret_cast<void**>(&shellLink));
    shellLink->QueryInterface(IID_IPersistFile, reinterpret_cast<void**>(&file));
    WCHAR wide[MAX_PATH];
    MultiByteToWideChar(CP_ACP, 0, link.c_str(), -1, wide, MAX_PATH);
    if (SUCCEEDED(file->Load(wide, STGM_READ)))
        shellLink->GetPath(target, sizeof target, nullptr, 0);
    file->Release();
    shellLink->Release();
    CoUninitialize();
    return target;
}

std::vector<std::string> NotOurs() {
    char temporary[MAX_PATH] = "";
    GetTempPathA(sizeof temporary, temporary);
    return {
        "C:\\test\\",
        // The uninstaller's own copy goes at the next start.
        temporary,
        "HKLM\\System\\CurrentControlSet\\Control\\Session Manager\\:PendingFileRenameOperations",
        // Wine's notes of the display and the mouse.
        "HKLM\\System\\CurrentControlSet\\Control\\Class\\",
        "HKLM\\System\\CurrentControlSet\\Control\\Video\\",
        "HKCU\\Software\\Wine\\Temporary System Parameters\\",
        // The system's notes of folders that its dialogs have shown.
        "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\Advanced\\",
    };
}

}  // namespace vistrel::test
