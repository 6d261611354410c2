// The Logo browser's list: its order, and who has the keys after it was read anew.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "tests/editor/editor_fixture.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

using Names = std::vector<std::string>;

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
        const HWND question = user::WaitForTop("#32770");
        user::Activate(question);
        EXPECT_TRUE(user::Click(GetDlgItem(question, IDYES)));
        EXPECT_TRUE(user::WaitUntilGone(question));
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

}  // namespace
}  // namespace vistrel::test
