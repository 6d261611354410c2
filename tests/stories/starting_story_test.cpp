// How the program comes up.
#include "resources/ids.h"
#include "tests/stories/running_program.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {
namespace {

using Starting = RunningProgram;

bool IsActiveTitleAt(POINT at) {
    const COLORREF color = seen::PixelAt(at);
    // Of the classic colours the active title goes from navy to light blue; the other is grey.
    return GetBValue(color) >= 128 && GetRValue(color) < 64;
}

TEST_F(Starting, IsInFrontAndActiveWithoutTheSplashScreenToo) {
    for (const char* splash : {"0", "1"}) {
        Store("ShowSplashScreen", TextValue(splash));
        const StartedProgram program(kOpenProgram);
        ASSERT_TRUE(program);
        const HWND main = user::WaitForTop("Principale", "", program.id(), 60000);
        ASSERT_NE(main, nullptr);
        EXPECT_TRUE(WaitUntil([&] { return GetForegroundWindow() == main; })) << splash;
        RECT r{};
        GetWindowRect(main, &r);
        EXPECT_TRUE(WaitUntil([&] { return IsActiveTitleAt({r.left + 200, r.top + 10}); }))
            << splash;
        // Keys reach the list without a click.
        const HWND list = user::Control(main, ID_MyList);
        EXPECT_TRUE(WaitUntil([&] { return seen::FocusIn(main) == list; }));
        user::TakeShot(std::string("started_with_splash_") + splash);
        PostMessageA(main, WM_CLOSE, 0, 0);
        EXPECT_EQ(program.WaitForEnd(), 0u);
    }
}

/// What the system shows in a program's name when something is wrong with a drive: asked within the
/// program itself.
DWORD ErrorModeOf(DWORD process) {
    const HANDLE program = OpenProcess(PROCESS_ALL_ACCESS, FALSE, process);
    const auto ask = reinterpret_cast<LPTHREAD_START_ROUTINE>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("kernel32"), "GetErrorMode")));
    const HANDLE asking = CreateRemoteThread(program, nullptr, 0, ask, nullptr, 0, nullptr);
    WaitForSingleObject(asking, 20000);
    DWORD mode = 0;
    EXPECT_TRUE(GetExitCodeThread(asking, &mode));
    CloseHandle(asking);
    CloseHandle(program);
    return mode;
}

TEST_F(Starting, KeepsTheSystemsQuestionForADiskAway) {
    ASSERT_NE(Start(), nullptr);
    EXPECT_EQ(ErrorModeOf(process) & SEM_FAILCRITICALERRORS, DWORD{SEM_FAILCRITICALERRORS});
    Close();
}

}  // namespace
}  // namespace vistrel::test
