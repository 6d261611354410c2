// The Logo browser by keyboard: where the keys go at first, and what each does.
#include "tests/editor/editor_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace editor;
using namespace main_window;

namespace {

using Keyboard = LogoBrowser;
void FocusTo(SelPictureForm& editor, const Control& control) {
    SendMessageA(editor.handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control.handle()), TRUE);
}

bool ViewOpensAndCloses(WORD key) {
    const HWND view = user::WaitForTop("FrmView");
    if (!view) return false;
    user::Press(key);
    return user::WaitUntilGone(view);
}

TEST_F(Keyboard, BeginsInTheList) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(seen::FocusIn(editor.handle()), editor.LogoList.handle());
    });
}

TEST_F(Keyboard, TypingReplacesTheNameThatTheBoxShowsAtFirst) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(SendMessageA(editor.NameLogoSet.handle(), CB_GETEDITSEL, 0, 0),
                  MAKELPARAM(0, 4));  // "Blue"
        user::Press('N', {VK_MENU});
        Await(
            [&] {
                return IsChild(editor.NameLogoSet.handle(), seen::FocusIn(editor.handle())) != 0;
            },
            "in the name's field");
        user::Type("Fresh");
        Await([&] { return user::TextOf(editor.NameLogoSet.handle()) == "Fresh"; }, "replaced");
    });
}

TEST_F(Keyboard, EnterOpensFoldersAndBackspaceLeavesThem) {
    MakeFolders(pictures + "ark\\");
    MakeFolders(pictures + "zoo\\");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "zoo");
        user::Press(VK_RETURN);
        Await([&] { return editor.CurPath.Text() == pictures + "zoo\\"; }, "opened");
        Pick(editor, "..");
        user::Press(VK_RETURN);
        Await([&] { return editor.CurPath.Text() == pictures; }, "gone up");
        // The folder that was left is selected.
        user::Press(VK_RETURN);
        Await([&] { return editor.CurPath.Text() == pictures + "zoo\\"; }, "opened again");
        user::Press(VK_BACK);
        Await([&] { return editor.CurPath.Text() == pictures; }, "gone up again");
    });
}

TEST_F(Keyboard, EnterOnAPictureShowsItAsADoubleClickDoes) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "new.sys");
        user::Press(VK_RETURN);
        EXPECT_TRUE(ViewOpensAndCloses(VK_SPACE));
        Settle(editor);
        EXPECT_EQ(user::FindTop("FrmView"), nullptr);
    });
}

TEST_F(Keyboard, EnterElsewhereOpensNothing) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "new.sys");
        FocusTo(editor, editor.CurView);
        user::Press(VK_RETURN);
        user::Press(VK_SPACE);
        const HWND view = user::WaitForTop("FrmView");
        EXPECT_NE(view, nullptr);
        user::Press(VK_SPACE);
        EXPECT_TRUE(user::WaitUntilGone(view));
        Settle(editor);
        // Enter had not opened one before.
        EXPECT_EQ(user::FindTop("FrmView"), nullptr);
    });
}

TEST_F(Keyboard, F2RenamesAndKeysOfTheEditingDoNoMore) {
    Put(pictures + "old.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "old.sys");
        user::Press(VK_F2);
        Await([&] { return editor.LogoList.EditingLabel(); }, "label edited");
        user::Press(VK_DELETE);
        user::Type("new.sys");
        user::Press(VK_RETURN);
        Await([&] { return Listed(editor) == Names{"..", "new.sys"}; }, "renamed");
        Settle(editor);
        EXPECT_EQ(user::FindTop("FrmView"), nullptr);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
    });
}

TEST_F(Keyboard, DelDeletesAndF5Refreshes) {
    Put(pictures + "a.sys", "");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "a.sys");
        user::Press(VK_DELETE);
        EXPECT_TRUE(user::AnswerShell(IDYES));
        Await([&] { return Listed(editor) == Names{".."}; }, "deleted");
        Put(pictures + "b.sys", "");
        user::Activate(editor.handle());
        FocusTo(editor, editor.LogoList);
        user::Press(VK_F5);
        Await([&] { return Listed(editor) == Names{"..", "b.sys"}; }, "refreshed");
    });
}

TEST_F(Keyboard, EscFinishesAndAsksAsFinishDoes) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        FocusTo(editor, editor.LogoList);
        user::Press(VK_ESCAPE);
        const user::Box box = user::AnswerBox(IDNO);
        EXPECT_EQ(box.text, "You haven't saved the last changes. Would you like to discard them?");
        EXPECT_TRUE(editor.IsOpen());
        user::Press(VK_ESCAPE);
        user::AnswerBox(IDYES);
        Await([&] { return !editor.IsOpen(); }, "closed");
    });
}

TEST_F(Keyboard, TabReachesThePicturesThatThereAre) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        user::Press(VK_TAB);
        Await([&] { return seen::FocusIn(editor.handle()) == editor.OptCompSet.handle(); },
              "an empty preview passed over");
        Fill(editor, "new.sys", 1);
        FocusTo(editor, editor.LogoList);
        user::Press(VK_TAB);
        Await([&] { return seen::FocusIn(editor.handle()) == editor.CurView.handle(); },
              "preview reached");
        for (int i = 0; i < 3 && seen::FocusIn(editor.handle()) != editor.ImgPreview[1].handle();
             ++i) {
            const HWND before = seen::FocusIn(editor.handle());
            user::Press(VK_TAB);
            Await([&] { return seen::FocusIn(editor.handle()) != before; }, "next control");
        }
        FocusTo(editor, editor.DeleteButton[0]);
        user::Press(VK_TAB);
        Await([&] { return seen::FocusIn(editor.handle()) == editor.ImgPreview[1].handle(); },
              "slot reached");
    });
}

TEST_F(Keyboard, AFrameMarksThePictureThatHasTheKeys) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "new.sys");
        const HWND box = editor.CurView.handle();
        const auto marked = [&] { return seen::ShowsColor(box, RGB(255, 0, 255)); };
        EXPECT_FALSE(marked());
        FocusTo(editor, editor.CurView);
        EXPECT_TRUE(marked());
        FocusTo(editor, editor.LogoList);
        EXPECT_FALSE(marked());
    });
}

TEST_F(Keyboard, SpaceAndTheMenuKeyAreThePicturesButtons) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        Fill(editor, "new.sys", 2);
        for (const PictureBox* box : {&editor.CurView, &editor.ImgPreview[2]}) {
            FocusTo(editor, *box);
            user::Press(VK_SPACE);
            EXPECT_TRUE(ViewOpensAndCloses(VK_SPACE));
            Settle(editor);
            EXPECT_EQ(user::FindTop("FrmView"), nullptr);  // the key that closed it opens none
            Await([&] { return seen::FocusIn(editor.handle()) == box->handle(); }, "focus back");
            const HMENU menu = user::PopUpByKey();
            EXPECT_EQ(menu, main.OpenWithMenu(box->Tag()));
            RECT shown{};
            GetWindowRect(user::FindTop("#32768"), &shown);
            const POINT middle = user::CentreOf(box->handle());
            EXPECT_NEAR(shown.left, middle.x, 4);
            EXPECT_NEAR(shown.top, middle.y, 4);
            DismissMenu();
        }
    });
}

TEST_F(Keyboard, TheMenuKeyOpensTheListsMenu) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "new.sys");
        ASSERT_NE(user::PopUpByKey(), nullptr);
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmSetLogo));
        Await([&] { return editor.ImgPreview[0].Tag() == pictures + "new.sys"; }, "slot filled");
    });
}

}  // namespace
}  // namespace vistrel::test
