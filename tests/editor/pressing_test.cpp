// The Logo browser's buttons: pressed while a name that cannot be is still being typed, and where
// the menu of one opens.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "tests/editor/editor_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace editor;
using namespace main_window;

namespace {

class Pressing : public LogoBrowser {
 protected:
    Pressing() { Put(pictures + "a.jpg", JpgOf(TestPicture(80, 60))); }

    static void TypeABadName(SelPictureForm& editor) {
        user::ClickAt(PointOfItem(editor, "a.jpg"));
        Await([&] { return editor.CurView.HasPicture(); }, "examined");
        Settle(editor);
        user::Press(VK_F2);
        Await([&] { return editor.LogoList.EditingLabel(); }, "label edited");
        user::Type("a/b.jpg");
        const auto edit = reinterpret_cast<HWND>(
            SendMessageA(editor.LogoList.handle(), LVM_GETEDITCONTROL, 0, 0));
        Await([&] { return user::TextOf(edit) == "a/b.jpg"; }, "typed");
    }
    static HWND HolderOfTheMouse(SelPictureForm& editor) {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(GetWindowThreadProcessId(editor.handle(), nullptr), &info);
        return info.hwndCapture;
    }
    static RECT PlaceOf(HWND window) {
        RECT r{};
        GetWindowRect(window, &r);
        return r;
    }
};

TEST_F(Pressing, AButtonThatBringsUpAMessageAboutATypedNameComesUpAgain) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Button* const buttons[] = {&editor.AdjustButton,    &editor.AddButton[0],
                                   &editor.DeleteButton[0], &editor.ActButton,
                                   &editor.CloseButton,     &editor.OptOnlyStart};
        for (Button* button : buttons) {
            TypeABadName(editor);
            EXPECT_TRUE(user::Click(button->handle()));
            const user::Box box = user::AnswerBox(IDOK);
            EXPECT_EQ(box.text,
                      "Cannot rename a.jpg. A file or folder named a/b.jpg already exists or the "
                      "name is not valid.");
            Settle(editor);
            EXPECT_EQ(SendMessageA(button->handle(), BM_GETSTATE, 0, 0) & BST_PUSHED, 0)
                << button->id();
            EXPECT_EQ(HolderOfTheMouse(editor), nullptr) << button->id();
            EXPECT_EQ(user::FindTop("FrmAdjust"), nullptr) << button->id();
        }
        // The next click is one as ever.
        EXPECT_TRUE(user::Click(editor.AdjustButton.handle()));
        const HWND adjusting = user::WaitForTop("FrmAdjust");
        EXPECT_NE(adjusting, nullptr);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(adjusting));
    });
}

TEST_F(Pressing, AButtonIsPressedByTheClickThatEndsAGoodName) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        user::ClickAt(PointOfItem(editor, "a.jpg"));
        Await([&] { return editor.CurView.HasPicture(); }, "examined");
        user::Press(VK_F2);
        Await([&] { return editor.LogoList.EditingLabel(); }, "label edited");
        user::Type("b.jpg");
        EXPECT_TRUE(user::Click(editor.AddButton[1].handle()));
        Await([&] { return editor.ImgPreview[1].HasPicture(); }, "added");
        EXPECT_TRUE(Exists(pictures + "b.jpg"));
    });
}

TEST_F(Pressing, TheActionMenuOpensUnderItsButtonWhereThereIsRoom) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        SetWindowPos(editor.handle(), nullptr, 0, 0, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        Settle(editor);
        EXPECT_TRUE(user::Click(editor.ActButton.handle()));
        EXPECT_NE(user::WaitForPopUp(), nullptr);
        const RECT button = PlaceOf(editor.ActButton.handle());
        const RECT menu = PlaceOf(user::FindTop("#32768"));
        EXPECT_EQ(menu.left, button.left);
        EXPECT_EQ(menu.top, button.bottom);
        DismissMenu();
    });
}

TEST_F(Pressing, TheActionMenuOpensAboveItsButtonAtTheBottomOfTheScreen) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const RECT window = PlaceOf(editor.handle());
        const RECT before = PlaceOf(editor.ActButton.handle());
        SetWindowPos(editor.handle(), nullptr, window.left,
                     window.top + GetSystemMetrics(SM_CYSCREEN) - 30 - before.bottom, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER);
        Settle(editor);
        EXPECT_TRUE(user::Click(editor.ActButton.handle()));
        EXPECT_NE(user::WaitForPopUp(), nullptr);
        const RECT button = PlaceOf(editor.ActButton.handle());
        const RECT menu = PlaceOf(user::FindTop("#32768"));
        EXPECT_EQ(menu.left, button.left);
        EXPECT_EQ(menu.bottom, button.top);
        DismissMenu();
    });
}

TEST_F(Pressing, DeleteIsAsItWasAfterALookAtTheSharedScreens) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_TRUE(user::Click(editor.OptDefShut.handle()));
        Await([&] { return editor.ImgPreview[1].HasPicture(); }, "shared screens");
        EXPECT_TRUE(user::Click(editor.OptCompSet.handle()));
        Await([&] { return !editor.ImgPreview[1].HasPicture(); }, "the set's own");
        Settle(editor);
        for (const Button& button : editor.DeleteButton)
            EXPECT_TRUE(IsWindowEnabled(button.handle())) << button.id();
    });
}

}  // namespace
}  // namespace vistrel::test
