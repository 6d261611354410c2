// One screen alone over the whole display, opened from the Logo browser.
#include "tests/boot_show/boot_show_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

class ShowingAlone : public BootShow {
 protected:
    ShowingAlone() {
        Put(pictures + "moving.sys", ScreenFile(255, 0, 0, 236));
        Put(pictures + "wait.sys", ScreenFile(0, 255, 0));
        Put(pictures + "photo.jpg", JpgOf(TestPicture(400, 200)));
    }

    static HWND ChooseFromMenuOf(HWND picture) {
        EXPECT_TRUE(user::RightClick(picture));
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmShowAtStart));
        return WaitForShow();
    }
    static void FocusOn(SelPictureForm& editor, HWND control) {
        SendMessageA(editor.handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
    }
};

TEST_F(ShowingAlone, F11ShowsTheSelectedPictureWithNothingBehindIt) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "moving.sys");
        Settle(editor);
        const HWND show = ShowByF11(editor.handle());
        EXPECT_TRUE(Moves());
        EndBy(show, VK_SPACE);
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(editor.handle()) != 0; }));
        EXPECT_FALSE(editor.SetChanged);
    });
}

TEST_F(ShowingAlone, APhotographIsSeenAsTheScreenThatItWouldBecome) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "photo.jpg");
        Settle(editor);
        const HWND show = ChooseFromMenuOf(editor.CurView.handle());
        // Over all of the display, whatever its own shape is: its bands are 1, 0 and so on.
        const int width = GetSystemMetrics(SM_CXSCREEN);
        const int height = GetSystemMetrics(SM_CYSCREEN);
        const auto reddish = [](COLORREF c) { return GetRValue(c) > GetGValue(c) + 60; };
        EXPECT_TRUE(WaitUntil([&] { return reddish(seen::PixelAt({width - 30, height / 16})); }));
        user::TakeShot("show-photograph");
        EndBy(show, VK_ESCAPE);
    });
}

TEST_F(ShowingAlone, ASlotMovesOnlyWhereTheSystemWouldMoveIt) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (int slot = 0; slot < 3; ++slot) {
            Fill(editor, "moving.sys", slot);
            const HWND show = ChooseFromMenuOf(editor.ImgPreview[slot].handle());
            EXPECT_EQ(Moves(), slot == 0) << slot;
            EndBy(show, VK_SPACE);
        }
    });
}

TEST_F(ShowingAlone, F11ShowsTheSlotThatHasTheFocus) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "wait.sys", 1);
        Pick(editor, "moving.sys");
        FocusOn(editor, editor.ImgPreview[1].handle());
        const HWND show = ShowByF11(editor.handle());
        EXPECT_TRUE(Shows(kGreenScreen));
        EndBy(show, VK_SPACE);
    });
}

TEST_F(ShowingAlone, F11ShowsWhatIsInTheSlotsWhereNoPictureIsSelected) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Blue");
        const HWND show = ShowByF11(editor.handle());
        EXPECT_TRUE(Shows(kRed));
        user::Press(VK_SPACE);
        EXPECT_TRUE(Shows(kGreenScreen));
        EndBy(show, VK_ESCAPE);
    });
}

TEST_F(ShowingAlone, TheListsMenuShowsTheSelectedPicture) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "wait.sys");
        Settle(editor);
        user::RightClickAt(PointOfItem(editor, "wait.sys"));
        const HMENU menu = user::WaitForPopUp();
        ASSERT_NE(menu, nullptr);
        EXPECT_EQ(seen::RowOf(menu, ID_BrowserShowAtStart).text, "Show as at &start\tF11");
        EXPECT_TRUE(seen::RowOf(menu, ID_BrowserShowAtStart).enabled);
        EXPECT_FALSE(seen::RowOf(menu, ID_BrowserMend).enabled);
        EXPECT_TRUE(user::ChooseFromPopUp(ID_BrowserShowAtStart));
        const HWND show = WaitForShow();
        EXPECT_TRUE(Shows(kGreenScreen));
        EndBy(show, VK_SPACE);
    });
}

TEST_F(ShowingAlone, TheSlotsMenuHasItsOwnItemsInFrontOfThese) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "wait.sys", 1);
        user::RightClick(editor.ImgPreview[1].handle());
        const auto texts = seen::TextsOf(user::WaitForPopUp());
        ASSERT_GE(texts.size(), 10u);
        EXPECT_EQ((std::vector<std::string>(texts.begin() + 4, texts.begin() + 10)),
                  (std::vector<std::string>{"Autoshow animation", "-", "Ad&just...", "-",
                                            "Show as at &start\tF11", "&Mend"}));
        user::TakeShot("show-slot-menu");
        DismissMenu();
        Settle(editor);
        user::RightClick(editor.CurView.handle());
        const auto again = seen::TextsOf(user::WaitForPopUp());
        EXPECT_EQ(again.size(), texts.size() - 2);
        DismissMenu();
    });
}

}  // namespace
}  // namespace vistrel::test
