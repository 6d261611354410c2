// What a window makes of its table of controls.
#include <gtest/gtest.h>
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "controls/label.h"
#include "controls/list_view.h"
#include "controls/window.h"
#include "resources/ids.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;

namespace {

constexpr int kNoSuchControl = 999;

/// The text that the window's tips have for a child of it.
std::string TipOf(HWND window, HWND child) {
    char text[64] = "";
    TOOLINFOA info{};
    info.cbSize = TTTOOLINFOA_V1_SIZE;
    info.hwnd = window;
    info.uId = reinterpret_cast<UINT_PTR>(child);
    info.lpszText = text;
    for (const HWND helper : seen::HelpersOf(window))
        if (GetWindow(helper, GW_OWNER) == window)
            SendMessageA(helper, TTM_GETTEXTA, 0, reinterpret_cast<LPARAM>(&info));
    return text;
}

class Tabled : public Window {
 public:
    explicit Tabled(int labelId) : Window("Principale", IDD_Principale) {
        const Part parts[] = {
            {list, ID_MyList, 17, "The sets"},
            {label, labelId},
        };
        AddParts(parts);
    }

    ListView list;
    Label label;
    bool loaded = false;

 protected:
    void Form_Load() override { loaded = true; }
};

TEST(TableOfControls, TiesEachMemberToItsChildItsHelpAndItsTip) {
    Tabled window(ID_NumLogo);
    ASSERT_TRUE(window.Create(nullptr));
    EXPECT_EQ(window.list.handle(), GetDlgItem(window.handle(), ID_MyList));
    EXPECT_EQ(window.label.handle(), GetDlgItem(window.handle(), ID_NumLogo));
    EXPECT_EQ(TipOf(window.handle(), window.list.handle()), "The sets");
    EXPECT_EQ(TipOf(window.handle(), window.label.handle()), "");
    EXPECT_EQ(window.list.helpNumber(), 17);
    EXPECT_EQ(window.label.helpNumber(), 0);
}

TEST(TableOfControls, OpensNoWindowWhoseTemplateLacksAControl) {
    Tabled window(kNoSuchControl);
    EXPECT_FALSE(window.Create(nullptr));
    EXPECT_FALSE(window.loaded);
    EXPECT_FALSE(window.IsOpen());
    EXPECT_EQ(FindWindowA("Principale", nullptr), nullptr);
}

}  // namespace
}  // namespace vistrel::test
