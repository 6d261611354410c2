// Start and end of every Windows test program.
#include <gtest/gtest.h>
#include <windows.h>

#include <cstdio>

#include "tests/support/user/clean_start.h"

namespace {

/// Says where a crash happened and ends the program: nobody is there to answer a debugger.
LONG WINAPI ReportCrash(EXCEPTION_POINTERS* exception) {
    const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
    const auto address = reinterpret_cast<ULONG_PTR>(record.ExceptionAddress);
    const auto base = reinterpret_cast<ULONG_PTR>(GetModuleHandleA(nullptr));
    // The linker's own base, for addr2line.
    std::printf("Exception %08lx at %p (0x140000000 + 0x%llx)\n", record.ExceptionCode,
                record.ExceptionAddress, static_cast<unsigned long long>(address - base));
    std::fflush(stdout);
    TerminateProcess(GetCurrentProcess(), 3);
    return EXCEPTION_EXECUTE_HANDLER;
}

/// On a busy machine the first program of a prefix may run before the prefix has its drives.
void WaitForDriveC() {
    constexpr DWORD kDriveC = 1 << 2;
    for (int i = 0; i < 200 && !(GetLogicalDrives() & kDriveC); ++i) Sleep(100);
}

/// The first window of a prefix brings up Wine's desktop, which takes the focus once: let that be
/// over before the first test.
void WakeDesktop() {
    HWND window = CreateWindowExA(WS_EX_TOOLWINDOW, "STATIC", "", WS_POPUP | WS_VISIBLE, 0, 0, 1, 1,
                                  nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(window);
}

/// Keeps one test's misfortune from the next, and says what a failed one has left behind.
class CleanStarts : public testing::EmptyTestEventListener {
    void OnTestStart(const testing::TestInfo&) override { vistrel::user::StartClean(); }

    void OnTestEnd(const testing::TestInfo& test) override {
        if (test.result()->Failed())
            std::printf("Afterwards:\n%s", vistrel::user::LeftBehind().c_str());
    }
};

}  // namespace

int main(int count, char** arguments) {
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    testing::InitGoogleTest(&count, arguments);
    SetUnhandledExceptionFilter(ReportCrash);
    WaitForDriveC();
    WakeDesktop();
    testing::UnitTest::GetInstance()->listeners().Append(new CleanStarts);
    const int status = RUN_ALL_TESTS();
    // The runner demands this line.
    std::printf("Test program ended with status %d\n", status);
    return status;
}
