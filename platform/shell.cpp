// Opening, starting, copying and deleting by the shell.
#include "platform/shell.h"

#include <windows.h>

#include <cstdint>

#include "platform/fault.h"

namespace vistrel::platform {

namespace {

/// Runs one operation of the shell on double-NUL-terminated lists.
bool RunFileOperation(WindowHandle owner, UINT operation, const char* from, const char* to,
                      unsigned short flags) {
    if (fault::Strikes()) return false;
    SHFILEOPSTRUCTA request = {};
    request.hwnd = owner;
    request.wFunc = operation;
    request.pFrom = from;
    request.pTo = to;
    request.fFlags = flags;
    return SHFileOperationA(&request) == 0 && !request.fAnyOperationsAborted;
}

}  // namespace

bool ShellOpen(WindowHandle owner, const std::string& target, const std::string& workingFolder,
               ShowState show) {
    if (fault::Strikes()) return false;
    const HINSTANCE result = ShellExecuteA(owner, nullptr, target.c_str(), nullptr,
                                           workingFolder.c_str(), static_cast<int>(show));
    // Everything up to 32 is an error number.
    return reinterpret_cast<std::intptr_t>(result) > 32;
}

bool StartProgram(const std::string& commandLine) {
    if (fault::Strikes()) return false;
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

bool ShellCopy(WindowHandle owner, const std::string& from, const std::string& to,
               unsigned short flags) {
    const std::string fromList = from + '\0';
    const std::string toList = to + '\0';
    return RunFileOperation(owner, FO_COPY, fromList.c_str(), toList.c_str(), flags);
}

bool ShellDelete(WindowHandle owner, const std::string& list, unsigned short flags) {
    return RunFileOperation(owner, FO_DELETE, list.c_str(), nullptr, flags);
}

}  // namespace vistrel::platform
