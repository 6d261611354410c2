// What the tests' user sees is what real windows show.
#include "tests/support/user/seen.h"

#include <commctrl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "tests/support/user/poll.h"
#include "tests/support/user/user.h"

namespace vistrel {
namespace {

using testing::ElementsAre;

constexpr int kBar = 100;
constexpr int kOpen = 200;
constexpr int kSave = 201;

/// A window with a bar of two buttons and a gap.
class SeenTest : public testing::Test {
 protected:
    SeenTest() {
        InitCommonControls();
        WNDCLASSA windowClass = {};
        windowClass.lpfnWndProc = Handle;
        windowClass.lpszClassName = "SeenTest";
        windowClass.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
        windowClass.hbrBackground = static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH));
        RegisterClassA(&windowClass);
        window_ = CreateWindowA("SeenTest", "A window", WS_OVERLAPPEDWINDOW, 40, 40, 400, 300,
                                nullptr, nullptr, nullptr, nullptr);
        bar_ =
            CreateWindowExA(0, TOOLBARCLASSNAMEA, "", WS_CHILD | WS_VISIBLE | TBSTYLE_TOOLTIPS, 0,
                            0, 0, 0, window_, reinterpret_cast<HMENU>(kBar), nullptr, nullptr);
        SendMessageA(bar_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
        AddButton(kOpen, TBSTYLE_BUTTON);
        AddButton(0, TBSTYLE_SEP);
        AddButton(kSave, TBSTYLE_BUTTON);
        ShowWindow(window_, SW_SHOW);
    }
    ~SeenTest() override { DestroyWindow(window_); }

    void AddButton(int id, int style) {
        TBBUTTON button = {};
        button.idCommand = id;
        button.fsState = TBSTATE_ENABLED;
        button.fsStyle = static_cast<BYTE>(style);
        SendMessageA(bar_, TB_ADDBUTTONSA, 1, reinterpret_cast<LPARAM>(&button));
    }

    static LRESULT CALLBACK Handle(HWND window, UINT message, WPARAM wide, LPARAM data) {
        if (message == WM_NOTIFY && reinterpret_cast<NMHDR*>(data)->code == TTN_NEEDTEXTA) {
            auto& text = *reinterpret_cast<TOOLTIPTEXTA*>(data);
            text.lpszText = const_cast<char*>(text.hdr.idFrom == kOpen ? "Opens" : "Saves");
            return 0;
        }
        return DefWindowProcA(window, message, wide, data);
    }

    HWND window_ = nullptr;
    HWND bar_ = nullptr;
};

TEST_F(SeenTest, AButtonsStateIsThatOfTheRealBar) {
    EXPECT_TRUE(seen::ButtonOf(bar_, kOpen).enabled);
    SendMessageA(bar_, TB_ENABLEBUTTON, kOpen, MAKELPARAM(FALSE, 0));
    SendMessageA(bar_, TB_CHECKBUTTON, kSave, MAKELPARAM(TRUE, 0));
    const auto buttons = seen::ButtonsOf(bar_);
    ASSERT_EQ(3U, buttons.size());
    EXPECT_EQ(kOpen, buttons[0].id);
    EXPECT_FALSE(buttons[0].enabled);
    EXPECT_EQ(0, buttons[1].id);
    EXPECT_EQ(kSave, buttons[2].id);
    EXPECT_TRUE(buttons[2].checked);
    EXPECT_FALSE(seen::ButtonOf(bar_, 999).enabled);
}

TEST_F(SeenTest, ATipIsReadWhereItAppears) {
    EXPECT_EQ("Saves", seen::TipAt(seen::CentreOfButton(bar_, kSave)));
    EXPECT_EQ("Opens", seen::TipAt(seen::CentreOfButton(bar_, kOpen)));
}

TEST_F(SeenTest, AMenusRowsAreTheMenusOwn) {
    HMENU inner = CreatePopupMenu();
    AppendMenuA(inner, MF_STRING | MF_GRAYED, 7, "&Deep\tF2");
    HMENU menu = CreatePopupMenu();
    AppendMenuA(menu, MF_STRING | MF_CHECKED, 5, "&First");
    AppendMenuA(menu, MF_SEPARATOR, 0, nullptr);
    AppendMenuA(menu, MF_POPUP, reinterpret_cast<UINT_PTR>(inner), "&Inner");
    SetMenuDefaultItem(menu, 5, FALSE);
    EXPECT_THAT(seen::TextsOf(menu), ElementsAre("&First", "-", "&Inner"));
    EXPECT_TRUE(seen::RowOf(menu, 5).checked);
    EXPECT_TRUE(seen::RowOf(menu, 5).isDefault);
    EXPECT_TRUE(seen::RowOf(menu, 5).enabled);
    EXPECT_EQ("&Deep\tF2", seen::RowOf(menu, 7).text);
    EXPECT_FALSE(seen::RowOf(menu, 7).enabled);
    EXPECT_EQ("", seen::RowOf(menu, 999).text);
    DestroyMenu(menu);
}

TEST_F(SeenTest, AColorIsSeenWhereItIsPainted) {
    EXPECT_TRUE(seen::ShowsColor(window_, RGB(255, 255, 255)));
    EXPECT_FALSE(seen::ShowsColor(window_, RGB(1, 200, 3)));
    const HDC dc = GetDC(window_);
    SetPixel(dc, 100, 200, RGB(1, 200, 3));
    ReleaseDC(window_, dc);
    EXPECT_TRUE(seen::ShowsColor(window_, RGB(1, 200, 3)));
}

TEST_F(SeenTest, TheHourglassIsSeen) {
    user::MoveTo({200, 250});
    ASSERT_TRUE(WaitUntil([] { return !seen::PointerIsHourglass(); }));
    SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_WAIT)));
    EXPECT_TRUE(seen::PointerIsHourglass());
}

}  // namespace
}  // namespace vistrel
