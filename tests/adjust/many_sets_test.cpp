// Sets of many pictures that are selected in the Logo browser's list.
#include <algorithm>

#include "tests/adjust/adjust_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

class ManySets : public Adjusting {
 protected:
    ManySets() {
        for (const char* name : {"b.jpg", "c.jpg", "d.jpg"})
            Put(pictures + name, JpgOf(TestPicture(80, 60)));
        Put(pictures + "broken.jpg", "This is no picture.");
    }

    /// Clicks a picture and selects so many more below it by the keyboard.
    static void SelectFrom(SelPictureForm& editor, const std::string& name, std::size_t more) {
        user::ClickAt(PointOfItem(editor, name));
        Await([&] { return editor.LogoList.SelectedItems().size() == 1; }, "one selected");
        for (std::size_t i = 0; i < more; ++i) user::Press(VK_DOWN, {VK_SHIFT});
        Await([&] { return editor.LogoList.SelectedItems().size() == more + 1; }, "all selected");
    }
    /// Selects an item or takes it out, as a click with Ctrl does.
    static void Toggle(SelPictureForm& editor, const std::string& name, bool selected) {
        LVITEMA item{};
        item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
        item.state = LVIS_FOCUSED | (selected ? LVIS_SELECTED : 0u);
        SendMessageA(editor.LogoList.handle(), LVM_SETITEMSTATE,
                     static_cast<WPARAM>(editor.LogoList.FindItem(name)),
                     reinterpret_cast<LPARAM>(&item));
    }
    static HWND OpenMany(SelPictureForm& editor) {
        PostMessageA(editor.handle(), WM_COMMAND, ID_ItmManySets, 0);
        const HWND window = user::WaitForTop("FrmManySets");
        user::Activate(window);
        user::LetFinish(window);
        return window;
    }
    static std::string DoneText(HWND window) { return user::TextOf(Item(window, ID_LblManyDone)); }
    static std::vector<std::string> LeftOutOf(HWND window) {
        const HWND list = Item(window, ID_LeftOut);
        std::vector<std::string> texts;
        for (LRESULT i = 0; i < SendMessageA(list, LB_GETCOUNT, 0, 0); ++i) {
            char text[256] = "";
            SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(i), reinterpret_cast<LPARAM>(text));
            texts.push_back(text);
        }
        return texts;
    }
};

TEST_F(ManySets, OfPicturesThatAreSelectedTogether) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        SelectFrom(editor, "b.jpg", 3);  // broken.jpg, c.jpg, d.jpg
        Toggle(editor, "c.jpg", false);
        EXPECT_EQ(editor.LogoList.SelectedItems().size(), 3u);
        user::RightClickAt(PointOfItem(editor, "d.jpg"));
        const HMENU menu = user::WaitForPopUp();
        EXPECT_EQ(seen::RowOf(menu, ID_ItmManySets).text, "&Make sets of these pictures...");
        EXPECT_FALSE(seen::RowOf(menu, ID_BrowserDelete).enabled);
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmManySets));
        const HWND window = user::WaitForTop("FrmManySets");
        user::Activate(window);
        user::TakeShot("many-before");
        EXPECT_TRUE(user::Click(Item(window, ID_BtnMakeSets)));
        Await([&] { return DoneText(window).starts_with("Done"); }, "done");
        user::TakeShot("many-after");
        EXPECT_EQ(DoneText(window), "Done: 2 sets were made.");
        EXPECT_EQ(LeftOutOf(window), Names{"broken.jpg: cannot be read"});
        EXPECT_EQ(user::TextOf(Item(window, IDCANCEL)), "Close");
        CloseBy(editor, window, IDCANCEL);
        EXPECT_GE(editor.NameLogoSet.FindItem("b.sls"), 0);
        EXPECT_TRUE(editor.LibraryChanged);
    });
    compose::Composition filled;
    filled.framing.kind = compose::FramingKind::Fill;
    EXPECT_TRUE(Contents(logos + "b.sls\\LOGO.SYS") == MadeOf(pictures + "b.jpg", filled));
    EXPECT_EQ(NamesIn(logos + "d.sls\\"), Names{"LOGO.SYS"});
    EXPECT_FALSE(Exists(logos + "c.sls\\LOGO.SYS"));
}

TEST_F(ManySets, ThreeAtATimeWithABorder) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        SelectFrom(editor, "b.jpg", 3);
        const HWND window = OpenMany(editor);
        Press(window, ID_OptManyFraming + 1);
        Press(window, ID_OptManyKind + 1);
        EXPECT_TRUE(user::Click(Item(window, ID_BtnMakeSets)));
        Await([&] { return DoneText(window) == "Done: 1 set was made."; }, "done");
        CloseBy(editor, window, IDCANCEL);
    });
    compose::Composition fitted;
    fitted.framing.kind = compose::FramingKind::Fit;
    EXPECT_TRUE(Contents(logos + "b\\LOGOS.SYS") == MadeOf(pictures + "d.jpg", fitted));
}

TEST_F(ManySets, CanBeStoppedBetweenTwoPictures) {
    Names names;
    for (int i = 0; i < 30; ++i) {
        names.push_back("x" + std::to_string(100 + i) + ".jpg");
        Put(pictures + names.back(), JpgOf(TestPicture(320, 240)));
    }
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (const std::string& name : names) Toggle(editor, name, true);
        EXPECT_EQ(editor.LogoList.SelectedItems().size(), names.size());
        const HWND window = OpenMany(editor);
        PostMessageA(Item(window, ID_BtnMakeSets), BM_CLICK, 0, 0);
        Await([&] { return Exists(logos + "x101.sls\\LOGO.SYS"); }, "two made");
        PostMessageA(Item(window, IDCANCEL), BM_CLICK, 0, 0);
        Await([&] { return DoneText(window).starts_with("Stopped"); }, "stopped");
        CloseBy(editor, window, IDCANCEL);
    });
    std::size_t made = 0;
    for (const std::string& name : NamesIn(logos)) {
        if (!name.starts_with("x1")) continue;
        ++made;
        EXPECT_EQ(NamesIn(logos + name + "\\"), Names{"LOGO.SYS"}) << name;
    }
    EXPECT_GE(made, 2u);
    EXPECT_LT(made, names.size());
}

TEST_F(ManySets, APictureClickedAloneIsExaminedAsBefore) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        user::ClickAt(PointOfItem(editor, "b.jpg"));
        Await([&] { return editor.SelectedPicture == pictures + "b.jpg"; }, "first shown");
        Toggle(editor, "d.jpg", true);
        Await([&] { return editor.SelectedPicture == pictures + "d.jpg"; }, "second shown");
        user::ClickAt(PointOfItem(editor, "c.jpg"));
        Await([&] { return editor.SelectedPicture == pictures + "c.jpg"; }, "third shown");
        EXPECT_EQ(editor.LogoList.SelectedItems().size(), 1u);
    });
}

TEST_F(ManySets, CloseHasTheKeysAndTheFrameWhenAllAreMade) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        SelectFrom(editor, "c.jpg", 1);
        const HWND window = OpenMany(editor);
        EXPECT_TRUE(user::Click(Item(window, ID_BtnMakeSets)));
        Await([&] { return DoneText(window).starts_with("Done"); }, "done");
        user::LetFinish(window);
        user::TakeShot("many-done", window);
        EXPECT_EQ(seen::FocusIn(window), Item(window, IDCANCEL));
        const auto isDefault = [&](int id) {
            return (SendMessageA(Item(window, id), WM_GETDLGCODE, 0, 0) & DLGC_DEFPUSHBUTTON) != 0;
        };
        EXPECT_TRUE(isDefault(IDCANCEL));
        EXPECT_FALSE(isDefault(ID_BtnMakeSets));
        user::Press(VK_RETURN);
        EXPECT_TRUE(user::WaitUntilGone(window));
        Settle(editor);
    });
}

}  // namespace
}  // namespace vistrel::test
