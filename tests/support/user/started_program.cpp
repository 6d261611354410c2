#include "tests/support/user/started_program.h"

#include <cstdio>

#include "tests/support/user/poll.h"

namespace vistrel::test {

namespace {

/// On a busy machine Wine now and then gives up a process that has hardly begun.
bool CreateProcessInWine(std::string commandLine, PROCESS_INFORMATION& process) {
    constexpr int kTries = 3;
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    for (int i = 0; i < kTries; ++i) {
        if (CreateProcessA(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr,
                           nullptr, &startup, &process))
            return true;
        if (GetLastError() != ERROR_INTERNAL_ERROR) return false;
    }
    return false;
}

}  // namespace

StartedProgram::StartedProgram(const std::string& commandLine) {
    PROCESS_INFORMATION process = {};
    if (!CreateProcessInWine(commandLine, process)) {
        std::printf("%s does not start: error %lu\n", commandLine.c_str(), GetLastError());
        return;
    }
    CloseHandle(process.hThread);
    handle_ = process.hProcess;
    id_ = process.dwProcessId;
}

StartedProgram::~StartedProgram() {
    if (handle_) CloseHandle(handle_);
}

std::optional<DWORD> StartedProgram::WaitForEnd(DWORD milliseconds) const {
    DWORD status = 0;
    // This program's own windows answer meanwhile: what comes to the front may wait for that.
    const auto hasEnded = [this] { return WaitForSingleObject(handle_, 0) == WAIT_OBJECT_0; };
    if (!handle_ || !WaitUntil(hasEnded, milliseconds) || !GetExitCodeProcess(handle_, &status))
        return std::nullopt;
    return status;
}

void StartedProgram::Terminate() const {
    if (!handle_) return;
    TerminateProcess(handle_, 1);
    WaitForSingleObject(handle_, 20000);
}

}  // namespace vistrel::test
