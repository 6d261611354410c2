// Opening, starting, copying and deleting by the shell.
#include "platform/shell.h"

#include <windows.h>

#include <cstdint>

#include "platform/fault.h"

namespace vistrel::platform {

namespace {

/// Runs one operation of the shell (FO_) with its flags (FOF_). Both lists end in a second NUL: a
/// string of paths, each with a NUL of its own, has that one behind it.
bool RunFileOperation(WindowHandle owner, UINT operation, const std::string& from,
                      const std::string& to, FILEOP_FLAGS flags) {
    if (fault::ShouldFail()) return false;
    SHFILEOPSTRUCTA request = {};
    request.hwnd = owner;
    request.wFunc = operation;
    request.pFrom = from.c_str();
    request.pTo = to.empty() ? nullptr : to.c_str();
    request.fFlags = flags;
    return SHFileOperationA(&request) == 0 && !request.fAnyOperationsAborted;
}

}  // namespace

bool ShellOpen(WindowHandle owner, const std::string& target, const std::string& workingFolder,
               ShowState show) {
    if (fault::ShouldFail()) return false;
    const HINSTANCE result = ShellExecuteA(owner, nullptr, target.c_str(), nullptr,
                                           workingFolder.c_str(), static_cast<int>(show));
    // Everything up to 32 is an error number.
    return reinterpret_cast<std::intptr_t>(result) > 32;
}

bool StartProgram(const std::string& commandLine) {
    if (fault::ShouldFail()) return false;
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESHOWWINDOW;
    startup.wShowWindow = SW_SHOWNORMAL;
    PROCESS_INFORMATION process = {};
    // CreateProcessA may write into the command line, so it gets a copy of its own.
    std::string line = commandLine;
    if (!CreateProcessA(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process))
        return false;
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return true;
}

bool ShellCopyOver(WindowHandle owner, const std::string& from, const std::string& toFolder) {
    return RunFileOperation(owner, FO_COPY, from + '\0', toFolder + '\0', FOF_NOCONFIRMATION);
}

bool ShellDeleteToBin(WindowHandle owner, const std::vector<std::string>& paths) {
    std::string list;
    for (const std::string& path : paths) list += path + '\0';
    return RunFileOperation(owner, FO_DELETE, list, {}, FOF_ALLOWUNDO);
}

}  // namespace vistrel::platform
