// The tests' user works: what it does reaches real windows, and what it reads is what they show.
#include "tests/support/user/user.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>

namespace vistrel {
namespace {

using testing::ElementsAre;

constexpr int kButton = 100;
constexpr int kEdit = 101;
constexpr unsigned kFirst = 200;
constexpr unsigned kDeep = 201;
constexpr unsigned kPopUp = 202;
constexpr unsigned kLongWork = WM_APP;

/// A small window with a button, a text and menus, which counts what reaches it.
class UserTest : public testing::Test {
 protected:
    UserTest() {
        WNDCLASSA window_class = {};
        window_class.style = CS_DBLCLKS;
        window_class.lpfnWndProc = Handle;
        window_class.lpszClassName = "UserTest";
        window_class.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
        window_class.hbrBackground = reinterpret_cast<HBRUSH>(COLOR_BTNFACE + 1);
        RegisterClassA(&window_class);
        HMENU inner = CreatePopupMenu();
        AppendMenuA(inner, MF_STRING, 1, "One");
        AppendMenuA(inner, MF_STRING, kDeep, "&Deep");
        HMENU second = CreatePopupMenu();
        AppendMenuA(second, MF_STRING, kFirst, "&First");
        AppendMenuA(second, MF_SEPARATOR, 0, nullptr);
        AppendMenuA(second, MF_POPUP, reinterpret_cast<UINT_PTR>(inner), "&Inner");
        HMENU first = CreatePopupMenu();
        AppendMenuA(first, MF_STRING, 2, "Two");
        HMENU bar = CreateMenu();
        AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(first), "&File");
        AppendMenuA(bar, MF_POPUP, reinterpret_cast<UINT_PTR>(second), "&Other");
        window_ = CreateWindowA("UserTest", "A window", WS_OVERLAPPEDWINDOW, 40, 40, 400, 300,
                                nullptr, bar, nullptr, this);
        CreateWindowA("BUTTON", "Press", WS_CHILD | WS_VISIBLE, 10, 10, 100, 30, window_,
                      reinterpret_cast<HMENU>(kButton), nullptr, nullptr);
        CreateWindowA("EDIT", "", WS_CHILD | WS_VISIBLE, 10, 50, 100, 30, window_,
                      reinterpret_cast<HMENU>(kEdit), nullptr, nullptr);
        pop_up_ = CreatePopupMenu();
        AppendMenuA(pop_up_, MF_STRING, 3, "Three");
        AppendMenuA(pop_up_, MF_STRING, kPopUp, "Four");
        ShowWindow(window_, SW_SHOW);
    }
    ~UserTest() override {
        DestroyWindow(window_);
        DestroyMenu(pop_up_);
    }

    static LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wide, LPARAM data) {
        if (message == WM_CREATE) {
            SetWindowLongPtrA(
                window, GWLP_USERDATA,
                reinterpret_cast<LONG_PTR>(reinterpret_cast<CREATESTRUCTA*>(data)->lpCreateParams));
        }
        auto* test = reinterpret_cast<UserTest*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        if (message == WM_COMMAND && HIWORD(wide) == 0) test->command_ = LOWORD(wide);
        if (message == WM_LBUTTONDBLCLK) ++test->double_clicks_;
        if (message == WM_LBUTTONDOWN) ++test->clicks_;
        if (message == WM_LBUTTONUP) test->let_go_at_ = {LOWORD(data), HIWORD(data)};
        if (message == WM_RBUTTONUP) test->ShowPopUp();
        if (message == kLongWork) test->WorkLong();
        return DefWindowProcA(window, message, wide, data);
    }

    /// In which what is sent is answered.
    void WorkLong() {
        is_working_ = true;
        MSG message;
        const DWORD start = GetTickCount();
        while (GetTickCount() - start < 300)
            PeekMessageA(&message, nullptr, 0, 0, PM_NOREMOVE | PM_QS_SENDMESSAGE);
        is_working_ = false;
    }

    void ShowPopUp() { TrackPopupMenu(pop_up_, 0, 100, 100, 0, window_, nullptr); }

    POINT Inside(int x, int y) const {
        POINT point = {x, y};
        ClientToScreen(window_, &point);
        return point;
    }

    HWND window_ = nullptr;
    std::atomic<bool> is_working_ = false;
    std::atomic<bool> done_ = false;
    HMENU pop_up_ = nullptr;
    unsigned command_ = 0;
    int clicks_ = 0;
    int double_clicks_ = 0;
    POINT let_go_at_ = {};
};

TEST_F(UserTest, FindsWindowsByClassTitleAndProcess) {
    EXPECT_EQ(window_, user::FindTop("UserTest"));
    EXPECT_EQ(window_, user::FindTop("UserTest", "A window", GetCurrentProcessId()));
    EXPECT_EQ(nullptr, user::FindTop("UserTest", "Another window"));
    EXPECT_EQ("Press", user::TextOf(user::Control(window_, kButton)));
    EXPECT_EQ(nullptr, user::Control(window_, 999));
}

TEST_F(UserTest, ClickPressesAButton) {
    ASSERT_TRUE(user::Click(user::Control(window_, kButton)));
    EXPECT_TRUE(WaitUntil([&] { return command_ == kButton; }));
}

TEST_F(UserTest, ClickIsRefusedOnAHiddenButton) {
    HWND button = user::Control(window_, kButton);
    ShowWindow(button, SW_HIDE);
    EXPECT_FALSE(user::Click(button));
}

TEST_F(UserTest, TwoClicksAreNoDoubleClick) {
    user::ClickAt(Inside(200, 100));
    user::ClickAt(Inside(200, 100));
    EXPECT_TRUE(WaitUntil([&] { return clicks_ == 2; }));
    EXPECT_EQ(0, double_clicks_);
    user::DoubleClickAt(Inside(200, 100));
    EXPECT_TRUE(WaitUntil([&] { return double_clicks_ == 1; }));
}

TEST_F(UserTest, DragEndsWhereTheButtonIsLetGo) {
    user::Drag(Inside(150, 50), Inside(203, 107));
    ASSERT_TRUE(WaitUntil([&] { return let_go_at_.x != 0; }));
    EXPECT_EQ(203, let_go_at_.x);
    EXPECT_EQ(107, let_go_at_.y);
}

TEST_F(UserTest, TypedTextReachesTheFocus) {
    HWND edit = user::Control(window_, kEdit);
    ASSERT_TRUE(user::Click(edit));
    ASSERT_TRUE(WaitUntil([&] { return GetFocus() == edit; }));
    user::Type("caff\xE8 1!");
    user::Press(VK_HOME);
    user::Press(VK_DELETE);
    user::Type("C");
    EXPECT_TRUE(WaitUntil([&] { return user::TextOf(edit) == "Caff\xE8 1!"; }))
        << user::TextOf(edit);
}

TEST_F(UserTest, ChoosesFromTheMenuBar) {
    for (const unsigned command : {kFirst, kDeep}) {
        bool chosen = false;
        user::Meanwhile someone([&] { chosen = user::ChooseFromMenuBar(window_, command); });
        EXPECT_TRUE(WaitUntil([&] { return command_ == command; })) << command;
        someone.Finish();
        EXPECT_TRUE(chosen);
    }
    EXPECT_FALSE(user::ChooseFromMenuBar(window_, 999));
}

TEST_F(UserTest, ChoosesFromAPopUpMenu) {
    // Another time the menu has kept the mark of what was chosen.
    for (int time = 0; time < 2; ++time) {
        command_ = 0;
        bool chosen = false;
        user::Meanwhile someone([&] {
            user::RightClickAt(Inside(200, 100));
            chosen = user::ChooseFromPopUp(kPopUp);
        });
        EXPECT_TRUE(WaitUntil([&] { return command_ == kPopUp; }));
        someone.Finish();
        EXPECT_TRUE(chosen);
        EXPECT_EQ(nullptr, user::FindTop("#32768"));
    }
}

TEST_F(UserTest, LetsAHandlerFinishThatAnswersWhatIsSent) {
    bool was_working = false;
    bool is_working = true;
    user::Meanwhile someone([&] {
        PostMessageA(window_, kLongWork, 0, 0);
        was_working = WaitUntil([&] { return is_working_.load(); });
        user::LetFinish(window_);
        is_working = is_working_;
        done_ = true;
    });
    WaitUntil([&] { return done_.load(); });
    someone.Finish();
    EXPECT_TRUE(was_working);
    EXPECT_FALSE(is_working);
}

TEST_F(UserTest, ReadsAndAnswersAMessageBox) {
    user::Box box;
    user::Meanwhile someone([&] {
        user::WaitForBox();
        user::TakeShot("message_box");
        box = user::AnswerBox(IDNO);
    });
    const int answer = MessageBoxA(window_, "Really?\nYes or no.", "A title",
                                   MB_YESNO | MB_ICONQUESTION | MB_DEFBUTTON2);
    someone.Finish();
    EXPECT_EQ(IDNO, answer);
    EXPECT_EQ("Really?\nYes or no.", box.text);
    EXPECT_EQ("A title", box.title);
    EXPECT_EQ(static_cast<unsigned>(MB_ICONQUESTION), box.icon);
    EXPECT_THAT(box.buttons, ElementsAre(IDYES, IDNO));
    EXPECT_EQ(IDNO, box.default_button);
}

TEST_F(UserTest, EveryIconOfAMessageBoxIsTold) {
    for (const unsigned icon : {0L, MB_ICONHAND, MB_ICONEXCLAMATION, MB_ICONASTERISK}) {
        user::Box box;
        user::Meanwhile someone([&] { box = user::AnswerBox(IDOK); });
        MessageBoxA(window_, "Text", "", MB_OK | icon);
        someone.Finish();
        EXPECT_EQ(icon, box.icon);
    }
}

TEST(Runner, RunsAsAnOrdinaryUserOnWindows98) {
    EXPECT_EQ(4U, GetVersion() & 0xFF);
    EXPECT_EQ(10U, GetVersion() >> 8 & 0xFF);
    // Root could write to the folder that holds every user's programs.
    EXPECT_EQ(INVALID_HANDLE_VALUE, CreateFileA("Z:\\usr\\bin\\vistrel_test", GENERIC_WRITE, 0,
                                                nullptr, CREATE_ALWAYS, 0, nullptr));
    EXPECT_EQ(1252U, GetACP());
}

}  // namespace
}  // namespace vistrel
