// The Logo browser's list: its order, and who has the keys after it was read anew.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "tests/editor/editor_fixture.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

class BrowserList : public LogoBrowser {
 protected:
    BrowserList() {
        for (const char* name : {"a.sys", "b.sys", "c.sys"})
            Put(pictures + name, ScreenFile(255, 0, 0));
    }

    static void ClickItem(SelPictureForm& editor, const std::string& path,
                          const std::string& name) {
        user::ClickAt(PointOfItem(editor, name));
        Await([&] { return editor.SelectedPicture == path + name; }, "examined");
        Settle(editor);
    }
    static std::string ItemIn(SelPictureForm& editor, LPARAM state) {
        const LRESULT index =
            SendMessageA(editor.LogoList.handle(), LVM_GETNEXTITEM, static_cast<WPARAM>(-1), state);
        return index < 0 ? std::string() : editor.LogoList.ItemText(static_cast<int>(index));
    }
    static std::string Selected(SelPictureForm& editor) { return ItemIn(editor, LVNI_SELECTED); }
    static std::string WithTheKeys(SelPictureForm& editor) { return ItemIn(editor, LVNI_FOCUSED); }
    /// Presses F5 and waits until a picture that has come meanwhile is listed.
    void RefreshByKey(SelPictureForm& editor) {
        Put(pictures + "new.sys", ScreenFile(255, 0, 0));
        user::Press(VK_F5);
        Await([&] { return editor.LogoList.FindItem("new.sys") >= 0; }, "read anew");
        Settle(editor);
    }
    /// Presses Del and answers the shell's question with Yes.
    static void DeleteByKey(SelPictureForm& editor) {
        user::Press(VK_DELETE);
        EXPECT_TRUE(user::AnswerShell(IDYES));
        Settle(editor);
    }
};

TEST_F(BrowserList, BeginsWithTheFolderAboveAndGoesOnInTheSystemsOrder) {
    const bool pairs = GetACP() == 932;
    const std::string odd = pairs ? "\x83\x61\x95\x5C"
                                  : "\xDCn\xEF"
                                    "code";
    for (const std::string& name :
         {std::string("Zoo"), std::string("apple"), odd, std::string("!first")})
        MakeFolders(pictures + name + "\\");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Names expected = {"..", "!first", "apple", odd, "Zoo", "a.sys", "b.sys", "c.sys"};
        if (pairs) std::swap(expected[3], expected[4]);
        EXPECT_EQ(Listed(editor), expected);
    });
}

TEST_F(BrowserList, ReadAnewKeepsTheItemThatWasSelected) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ClickItem(editor, pictures, "b.sys");
        RefreshByKey(editor);
        EXPECT_EQ(Selected(editor), "b.sys");
        EXPECT_EQ(editor.CurView.Tag(), pictures + "b.sys");
        user::Press(VK_F2);
        Await([&] { return editor.LogoList.EditingLabel(); }, "label edited");
        user::Press(VK_ESCAPE);
        Await([&] { return !editor.LogoList.EditingLabel(); }, "given up");
    });
}

TEST_F(BrowserList, ReadAnewKeepsAllItemsThatWereSelected) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ClickItem(editor, pictures, "b.sys");
        user::Press(VK_DOWN, {VK_SHIFT});
        Await([&] { return editor.LogoList.SelectedItems().size() == 2; }, "two selected");
        RefreshByKey(editor);
        EXPECT_EQ(editor.LogoList.SelectedItems(), (std::vector<int>{2, 3}));
        EXPECT_EQ(WithTheKeys(editor), "c.sys");
    });
}

TEST_F(BrowserList, ReadAnewForgetsAPictureThatIsGone) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ClickItem(editor, pictures, "b.sys");
        DeleteFileA((pictures + "b.sys").c_str());
        RefreshByKey(editor);
        EXPECT_EQ(Selected(editor), "");
        EXPECT_EQ(editor.ImageInfo.Text(), "No logo selected");
        EXPECT_TRUE(Says(editor.CurView, "no picture"));
        EXPECT_FALSE(IsWindowEnabled(editor.AddButton[0].handle()));
    });
}

TEST_F(BrowserList, ReadAnewShowsWhatThePictureIsNow) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ClickItem(editor, pictures, "b.sys");
        EXPECT_EQ(MiddleOf(editor.CurView), kRed);
        Put(pictures + "b.sys", ScreenFile(0, 255, 0));
        RefreshByKey(editor);
        EXPECT_EQ(MiddleOf(editor.CurView), kGreenScreen);
    });
}

TEST_F(BrowserList, AfterADeletionTheNextItemHasTheKeysAndNothingIsShown) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ClickItem(editor, pictures, "b.sys");
        DeleteByKey(editor);
        EXPECT_EQ(Listed(editor), (Names{"..", "a.sys", "c.sys"}));
        EXPECT_EQ(WithTheKeys(editor), "c.sys");
        EXPECT_EQ(Selected(editor), "");
        EXPECT_EQ(editor.ImageInfo.Text(), "No logo selected");
        EXPECT_FALSE(editor.CurView.HasPicture());
    });
}

TEST_F(BrowserList, AfterADeletionOfTheLastItemTheOneBeforeHasTheKeys) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ClickItem(editor, pictures, "c.sys");
        DeleteByKey(editor);
        EXPECT_EQ(WithTheKeys(editor), "b.sys");
    });
}

TEST_F(BrowserList, ADeletedSetsScreenIsShownNoMore) {
    Store("SearchLogoPath", TextValue(logos + "Red\\"));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().deleteInTheRecycleBin = 0;
        ChooseSet(editor, "Red");
        ClickItem(editor, logos + "Red\\", "LOGOS.SYS");
        EXPECT_TRUE(user::Click(editor.ActButton.handle()));
        EXPECT_TRUE(user::ChooseFromPopUp(ID_EliminaSetBtn));
        Await([&] { return editor.CurPath.Text() == logos; }, "deleted");
        Settle(editor);
        EXPECT_EQ(editor.ImageInfo.Text(), "No logo selected");
        EXPECT_TRUE(Says(editor.CurView, "no picture"));
        for (const controls::Button& add : editor.AddButton)
            EXPECT_FALSE(IsWindowEnabled(add.handle()));
        EXPECT_FALSE(IsWindowEnabled(editor.AdjustButton.handle()));
    });
}

TEST_F(BrowserList, TheScreenOfAnUpdatedSetIsShownAsItIsNow) {
    Store("SearchLogoPath", TextValue(logos + "Red\\"));
    Put(logos + "Red\\new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        ClickItem(editor, logos + "Red\\", "new.sys");
        EXPECT_TRUE(user::Click(editor.AddButton[2].handle()));
        ClickItem(editor, logos + "Red\\", "LOGOS.SYS");
        EXPECT_EQ(MiddleOf(editor.CurView), kRed);
        EXPECT_TRUE(user::Click(editor.ActButton.handle()));
        EXPECT_TRUE(user::ChooseFromPopUp(ID_OkButton + 1));
        Await([&] { return user::TextOf(editor.LblWritten.handle()) != ""; }, "updated");
        Settle(editor);
        EXPECT_EQ(MiddleOf(editor.CurView), kGreenScreen);
        EXPECT_EQ(editor.CurView.Tag(), logos + "Red\\LOGOS.SYS");
        EXPECT_EQ(Selected(editor), "LOGOS.SYS");
    });
}

}  // namespace
}  // namespace vistrel::test
