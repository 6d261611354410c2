// A window that is closed while the loop waits.
#include <gtest/gtest.h>
#include <windows.h>

#include <atomic>

#include "controls/picture_box.h"
#include "controls/window.h"
#include "resources/ids.h"
#include "tests/support/user/poll.h"
#include "tests/support/user/user.h"

namespace vistrel::test {

using namespace controls;

namespace {

class Plain : public Window {
 public:
    Plain() : Window("Principale", IDD_Principale) {}
};

TEST(Closing, EndsTheModalLoopWhereAnotherProgramSentIt) {
    RegisterPictureBoxClass();
    Plain window;
    const DWORD thread = GetCurrentThreadId();
    std::atomic<bool> ended = false;
    bool endedByItself = false;
    user::Meanwhile other([&] {
        const HWND top = user::WaitForTop("Principale");
        Sleep(1000);  // the loop has nothing left to do
        SendMessageA(top, WM_CLOSE, 0, 0);
        endedByItself = WaitUntil([&] { return ended.load(); });
        PostThreadMessageA(thread, WM_NULL, 0, 0);
    });
    window.ShowModal(nullptr);
    ended = true;
    other.Finish();
    EXPECT_TRUE(endedByItself);
}

}  // namespace
}  // namespace vistrel::test
