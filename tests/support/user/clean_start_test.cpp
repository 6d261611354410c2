// Each of these tests leaves something behind that would spoil the next one; each begins by looking
// whether it finds nothing.
#include "tests/support/user/clean_start.h"

#include <gtest/gtest.h>

#include "tests/support/user/started_program.h"
#include "tests/support/user/user.h"

namespace vistrel {
namespace {

int OpenBoxes() {
    int open = 0;
    for (HWND box = nullptr; (box = FindWindowExA(nullptr, box, "#32770", "A box"));)
        if (IsWindowVisible(box)) ++open;
    return open;
}

class LeavingBehind : public testing::Test {
 protected:
    LeavingBehind() { EXPECT_EQ("", user::LeftBehind()); }
    // The test before the first of these has looked after nothing either.
    ~LeavingBehind() override { EXPECT_NE("", user::LeftBehind()); }
};

void SendKey(WORD key, DWORD flags) {
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

void SendButton(DWORD flags) {
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    SendInput(1, &input, sizeof input);
}

DWORD WINAPI ShowBox(void*) {
    MessageBoxA(nullptr, "Nobody answers.", "A box", MB_YESNO);
    return 0;
}

DWORD WINAPI ShowMenu(void*) {
    HWND window = CreateWindowA("STATIC", "Owner", WS_POPUP | WS_VISIBLE, 40, 40, 60, 60, nullptr,
                                nullptr, nullptr, nullptr);
    HMENU menu = CreatePopupMenu();
    AppendMenuA(menu, MF_STRING, 1, "One");
    SetForegroundWindow(window);
    TrackPopupMenu(menu, 0, 100, 100, 0, window, nullptr);
    DestroyMenu(menu);
    DestroyWindow(window);
    return 0;
}

void RunBeside(LPTHREAD_START_ROUTINE actions) {
    DWORD id = 0;
    CloseHandle(CreateThread(nullptr, 0, actions, nullptr, 0, &id));
}

TEST_F(LeavingBehind, HeldKeys) {
    // The screen, which knows of no such keys, lets go of them once when a window comes to the
    // front.
    EXPECT_TRUE(WaitUntil([] {
        for (const WORD key : {VK_CONTROL, VK_SHIFT, VK_MENU}) SendKey(key, 0);
        return (GetAsyncKeyState(VK_CONTROL) & GetAsyncKeyState(VK_MENU) & 0x8000) != 0;
    }));
}

TEST_F(LeavingBehind, AHeldMouseButton) {
    SendButton(MOUSEEVENTF_LEFTDOWN);
    EXPECT_TRUE(WaitUntil([] { return (GetAsyncKeyState(VK_LBUTTON) & 0x8000) != 0; }));
}

TEST_F(LeavingBehind, AnOpenBox) {
    RunBeside(ShowBox);
    EXPECT_NE(nullptr, user::WaitForBox().window);
}

TEST_F(LeavingBehind, TwoOpenBoxesBehindEachOther) {
    RunBeside(ShowBox);
    RunBeside(ShowBox);
    // Which of them is in front is not for the test to say.
    EXPECT_TRUE(WaitUntil([] { return OpenBoxes() == 2; }));
}

TEST_F(LeavingBehind, AnOpenMenu) {
    RunBeside(ShowMenu);
    EXPECT_NE(nullptr, user::WaitForPopUp());
}

TEST_F(LeavingBehind, AnotherProgram) {
    const test::StartedProgram program("notepad");
    ASSERT_TRUE(program);
    EXPECT_NE(nullptr, user::WaitForTop("Notepad", "", program.id()));
}

DWORD WINAPI ShowBoxOver(void* window) {
    MessageBoxA(static_cast<HWND>(window), "Nobody answers.", "A box", MB_OKCANCEL);
    return 0;
}

TEST(OverAWindow, WhatIsLeftOpenIsClosed) {
    const HWND window = CreateWindowA("STATIC", "Below", WS_POPUP | WS_VISIBLE, 40, 40, 60, 60,
                                      nullptr, nullptr, nullptr, nullptr);
    DWORD id = 0;
    const HANDLE box = CreateThread(nullptr, 0, ShowBoxOver, window, 0, &id);
    // The window is this thread's: what another one asks of it comes while this one waits.
    EXPECT_TRUE(WaitUntil([&] { return OpenBoxes() == 1 && !IsWindowEnabled(window); }));
    user::CloseWhatIsOver(window);
    EXPECT_TRUE(IsWindowEnabled(window));
    EXPECT_EQ(0, OpenBoxes());
    EXPECT_EQ(WAIT_OBJECT_0, WaitForSingleObject(box, 10000));
    CloseHandle(box);
    DestroyWindow(window);
}

TEST_F(LeavingBehind, NobodyInFront) {
    SetForegroundWindow(GetDesktopWindow());
    EXPECT_TRUE(WaitUntil(user::NobodyIsInFront));
}

TEST(AfterThese, NothingIsLeft) { EXPECT_EQ("", user::LeftBehind()); }

}  // namespace
}  // namespace vistrel
