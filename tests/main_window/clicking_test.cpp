// Where a mouse button goes down and where it comes up: what counts as a click, and on what.
#include "editor/select_picture_form.h"
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace main_window;

namespace {

class Clicking : public MainWindow98 {
 protected:
    /// Whether nothing came up: the main window still does what its user wants.
    void ExpectNothingOpened(Principale& main) {
        ClickSet(main, "Red");
        EXPECT_EQ(main.MyList.SelectedItem(), 2);
        ClickSet(main, "Blue");
        EXPECT_EQ(user::FindTop("FrmView"), nullptr);
        EXPECT_EQ(user::FindTop("#32768"), nullptr);
    }

    static POINT OnTitleBar(Principale& main) {
        RECT r{};
        GetWindowRect(main.handle(), &r);
        return {r.left + 100, r.top + 12};
    }
};

TEST_F(Clicking, ADragFromTheListThatEndsOnAPictureIsNoClickOnIt) {
    WithMainWindow([&](Principale& main) {
        user::Drag(PointOfSet(main, "Blue"), user::CentreOf(main.Imag[0].handle()));
        ExpectNothingOpened(main);
    });
}

TEST_F(Clicking, ARightDragFromTheListThatEndsOnAPictureOffersNothing) {
    WithMainWindow([&](Principale& main) {
        user::RightDrag(user::CentreOf(main.LblScreen[0].handle()),
                        user::CentreOf(main.Imag[0].handle()));
        ExpectNothingOpened(main);
    });
}

TEST_F(Clicking, AReleaseOnAnotherPictureIsAClickOnNone) {
    WithMainWindow([&](Principale& main) {
        user::Drag(user::CentreOf(main.Imag[0].handle()), user::CentreOf(main.Imag[1].handle()));
        ExpectNothingOpened(main);
    });
}

TEST_F(Clicking, APressThatWasDrawnAwayIsForgotten) {
    WithMainWindow([&](Principale& main) {
        const POINT picture = user::CentreOf(main.Imag[0].handle());
        const POINT label = user::CentreOf(main.LblScreen[0].handle());
        user::Drag(picture, label);
        user::Drag(label, picture);
        ExpectNothingOpened(main);
        ASSERT_TRUE(user::Click(main.Imag[0].handle()));
        const HWND view = user::WaitForTop("FrmView");
        ASSERT_NE(view, nullptr);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(view));
    });
}

TEST_F(Clicking, ADoubleClickOnTheTitleBarMaximisesAndOpensNothing) {
    WithMainWindow([&](Principale& main) {
        // Where a picture will lie when the window fills the screen.
        SetWindowPos(main.handle(), nullptr, 0, 250, 700, 420, SWP_NOZORDER);
        Settle(main);
        RECT r{};
        GetWindowRect(main.handle(), &r);
        user::DoubleClickAt({r.left + 500, r.top + 12});
        EXPECT_TRUE(WaitUntil([&] { return IsZoomed(main.handle()) != 0; }));
        ExpectNothingOpened(main);
    });
}

// The second press opens the picture; its release is over the view that covers the list.
TEST_F(Clicking, TheDoubleClickThatOpensTheActualSizeDoesNotCloseIt) {
    const std::string pictures = root + "pictures\\";
    MakeFolders(pictures);
    Put(pictures + "Big.sys", ScreenFile(255, 0, 0));
    Store("SearchLogoPath", TextValue(pictures));
    WithMainWindow([&](Principale& main) {
        StartCommand(main, ID_ToolBrowser);
        const HWND browser = user::WaitForTop("SelPictureForm");
        ASSERT_NE(browser, nullptr);
        const HWND list = GetDlgItem(browser, ID_LogoList);
        // The view comes up in the middle of the screen: the list's first rows are to lie there.
        RECT place{};
        RECT work{};
        GetWindowRect(list, &place);
        SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
        RECT whole{};
        GetWindowRect(browser, &whole);
        SetWindowPos(browser, nullptr, whole.left + (work.left + work.right) / 2 - place.left - 60,
                     whole.top + (work.top + work.bottom) / 2 - place.top - 20, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER);
        user::LetFinish(browser);
        GetWindowRect(list, &place);
        RECT row{};
        row.left = 2;  // LVIR_LABEL
        SendMessageA(list, 0x1000 + 14 /* LVM_GETITEMRECT */, 1, reinterpret_cast<LPARAM>(&row));
        POINT at{row.left + 8, (row.top + row.bottom) / 2};
        ClientToScreen(list, &at);
        user::DoubleClickAt(at);
        const HWND view = user::WaitForTop("FrmView");
        ASSERT_NE(view, nullptr);
        RECT covered{};
        GetWindowRect(view, &covered);
        EXPECT_TRUE(PtInRect(&covered, at));
        user::Press(VK_SHIFT);  // makes no character, and comes after the release
        EXPECT_FALSE(WaitUntil([&] { return !IsWindow(view); }, 400));
        EXPECT_TRUE(user::Click(view));
        EXPECT_TRUE(user::WaitUntilGone(view));
        PostMessageA(browser, WM_CLOSE, 0, 0);
        EXPECT_TRUE(user::WaitUntilGone(browser));
    });
}

TEST_F(Clicking, ADoubleClickOnAPictureOpensTheActualSizeAndLeavesItOpen) {
    WithMainWindow([&](Principale& main) {
        // The view comes up in the middle of the screen: the picture is to lie there.
        RECT work{};
        RECT whole{};
        SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
        GetWindowRect(main.handle(), &whole);
        const POINT picture = user::CentreOf(main.Imag[0].handle());
        SetWindowPos(main.handle(), nullptr, whole.left + (work.left + work.right) / 2 - picture.x,
                     whole.top + (work.top + work.bottom) / 2 - picture.y, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER);
        Settle(main);
        const POINT at = user::CentreOf(main.Imag[0].handle());
        user::DoubleClickAt(at);
        const HWND view = user::WaitForTop("FrmView");
        ASSERT_NE(view, nullptr);
        RECT covered{};
        GetWindowRect(view, &covered);
        EXPECT_TRUE(PtInRect(&covered, at));
        user::Press(VK_SHIFT);  // makes no character, and comes after the second click
        EXPECT_FALSE(WaitUntil([&] { return !IsWindow(view); }, 400));
        // A click of its own closes it, at the same place too.
        user::ClickAt(at);
        EXPECT_TRUE(user::WaitUntilGone(view));
        Settle(main);
        EXPECT_EQ(user::FindTop("FrmView"), nullptr);
    });
}

TEST_F(Clicking, APictureWithoutACustomProgramLeadsToWhereThatIsSet) {
    Store("DefaultAction", TextValue("2"));
    WithMainWindow([&](Principale& main) {
        ASSERT_TRUE(user::Click(main.Imag[0].handle()));
        user::AnswerBox(IDYES);
        const HWND options = user::WaitForTop("FrmOptions");
        ASSERT_NE(options, nullptr);
        // All pages are there until the first is chosen, before anything is painted.
        EXPECT_TRUE(
            WaitUntil([&] { return !IsWindowVisible(GetDlgItem(options, ID_TxtLogoPath)); }));
        EXPECT_TRUE(
            WaitUntil([&] { return IsWindowVisible(GetDlgItem(options, ID_CustProg)) != 0; }));
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(options));
        // By its own command it opens with the first page.
        StartCommand(main, ID_ToolPrefer);
        const HWND again = user::WaitForTop("FrmOptions");
        ASSERT_NE(again, nullptr);
        EXPECT_TRUE(WaitUntil([&] { return !IsWindowVisible(GetDlgItem(again, ID_CustProg)); }));
        EXPECT_TRUE(
            WaitUntil([&] { return IsWindowVisible(GetDlgItem(again, ID_TxtLogoPath)) != 0; }));
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(again));
    });
}

TEST_F(Clicking, TheRightButtonOnTheTitleBarGivesTheSystemsMenu) {
    WithMainWindow([&](Principale& main) {
        user::RightClickAt(OnTitleBar(main));
        const HMENU menu = user::WaitForPopUp();
        ASSERT_NE(menu, nullptr);
        EXPECT_NE(seen::RowOf(menu, SC_CLOSE).text, "");
        EXPECT_EQ(seen::RowOf(menu, ID_ItmPref).text, "");
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
    });
}

TEST_F(Clicking, TheListsMenuIsTheSameByKeyAndOpensAtTheSet) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        user::RightClickAt(PointOfSet(main, "Red"));
        HMENU menu = user::WaitForPopUp();
        ASSERT_NE(menu, nullptr);
        const auto byMouse = seen::TextsOf(menu);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));

        menu = user::PopUpByKey();
        ASSERT_NE(menu, nullptr);
        EXPECT_EQ(seen::TextsOf(menu), byMouse);
        EXPECT_TRUE(seen::RowOf(menu, ID_ToolRename).enabled);
        RECT place{};
        GetWindowRect(user::FindTop("#32768"), &place);
        const POINT set = PointOfSet(main, "Red");
        EXPECT_LT(std::abs(place.left - (set.x - 8)), 8);
        EXPECT_GT(place.top, set.y - 4);
        EXPECT_LT(place.top, set.y + 20);
        user::TakeShot("list_menu_by_key");
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
    });
}

}  // namespace
}  // namespace vistrel::test
