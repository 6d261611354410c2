// A line of text that is edited in the list, and what the screen shows meanwhile.
#include <algorithm>

#include "adjust/text_line.h"
#include "tests/adjust/adjust_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace adjust;
using namespace editor;
using namespace main_window;
using namespace pictures;

namespace {

class TypedLine : public Adjusting {
 protected:
    TypedLine() {
        RgbPicture dark{64, 48, std::vector<std::uint8_t>(64 * 48 * 3, 40)};
        Put(pictures + "dark.bmp", BmpOf(dark));
    }
    static HWND Label(HWND window) {
        return reinterpret_cast<HWND>(
            SendMessageA(Item(window, ID_TextLines), LVM_GETEDITCONTROL, 0, 0));
    }
    static void StartEdit(HWND window) {
        EXPECT_TRUE(user::Click(Item(window, ID_BtnEditLine)));
        Await([&] { return Label(window) != nullptr; }, "label edited");
    }
    /// How far the white letters reach from the left to the right, in pixels of the screen; 0 for
    /// none.
    static int WidthOfLetters(HWND window) {
        int first = 320, last = -1;
        for (int x = 4; x < 316; x += 2) {
            for (int y = 310; y < 356; y += 6) {
                if (GetGValue(ColorAt(window, x, y)) < 200) continue;
                first = std::min(first, x);
                last = x;
                break;
            }
        }
        return last < 0 ? 0 : last - first + 2;
    }
    static std::string RowText(HWND window, int row) {
        char text[256] = "";
        LVITEMA item{};
        item.pszText = text;
        item.cchTextMax = sizeof text;
        SendMessageA(Item(window, ID_TextLines), LVM_GETITEMTEXTA, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&item));
        return text;
    }
    /// The screen of the picture with one line of this text on it.
    std::string ScreenWith(const std::string& text) const {
        TextLine line;
        line.text = text;
        line.y = kLogoHeight * 5 / 6;
        compose::Composition composition;
        composition.text = MasksOf({DrawnLine(line)});
        return MadeOf(pictures + "dark.bmp", composition);
    }
};

TEST_F(TypedLine, IsSeenOnTheScreenAtEachKey) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "dark.bmp");
        TurnTo(window, 2);
        AddLine(window, "MMMMMMMM");
        const int whole = WidthOfLetters(window);
        EXPECT_GT(whole, 100);
        StartEdit(window);
        user::Type("M");
        Await([&] { return WidthOfLetters(window) > 0 && WidthOfLetters(window) < whole / 4; },
              "one letter");
        const int one = WidthOfLetters(window);
        user::Type("M");
        Await([&] { return WidthOfLetters(window) > one; }, "two letters");
        user::TakeShot("adjust-typing");
        user::Press(VK_BACK);
        user::Press(VK_BACK);
        Await([&] { return WidthOfLetters(window) == 0; }, "no letter");
        EXPECT_NE(Label(window), nullptr);
        user::Press(VK_ESCAPE);
        Await([&] { return Label(window) == nullptr; }, "label left");
        CloseBy(editor, window, IDCANCEL);
    });
}

TEST_F(TypedLine, IsTakenBackByEsc) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "dark.bmp");
        TurnTo(window, 2);
        AddLine(window, "Soon");
        const int before = WidthOfLetters(window);
        StartEdit(window);
        user::Type("Somewhat later");
        Await([&] { return WidthOfLetters(window) > before; }, "typed");
        user::Press(VK_ESCAPE);
        Await([&] { return WidthOfLetters(window) == before; }, "taken back");
        EXPECT_TRUE(IsWindow(window));
        EXPECT_EQ(RowText(window, 0), "Soon");
        CloseBy(editor, window, IDOK);
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == ScreenWith("Soon"));
    });
}

TEST_F(TypedLine, IsTakenByEnterAndTheWindowStays) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "dark.bmp");
        TurnTo(window, 2);
        AddLine(window, "Soon");
        StartEdit(window);
        user::Type("Later");
        user::Press(VK_RETURN);
        Await([&] { return Label(window) == nullptr; }, "label taken");
        EXPECT_TRUE(IsWindow(window));
        EXPECT_EQ(RowText(window, 0), "Later");
        CloseBy(editor, window, IDOK);
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == ScreenWith("Later"));
    });
}

TEST_F(TypedLine, IsTakenByAClickElsewhere) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "dark.bmp");
        TurnTo(window, 2);
        AddLine(window, "Soon");
        StartEdit(window);
        user::Type("Later");
        user::ClickAt(OnScreen(window, 20, 20));
        Await([&] { return Label(window) == nullptr; }, "label taken by the screen");
        Await([&] { return RowText(window, 0) == "Later"; }, "first text");
        // OK is elsewhere too.
        StartEdit(window);
        user::Type("At last");
        CloseBy(editor, window, IDOK);
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == ScreenWith("At last"));
    });
}

TEST_F(TypedLine, ThatIsEmptiedKeepsItsWords) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "dark.bmp");
        TurnTo(window, 2);
        AddLine(window, "Soon");
        const int before = WidthOfLetters(window);
        StartEdit(window);
        user::Press(VK_DELETE);
        Await([&] { return WidthOfLetters(window) == 0; }, "emptied");
        user::Press(VK_RETURN);
        Await([&] { return WidthOfLetters(window) == before; }, "back");
        EXPECT_EQ(RowText(window, 0), "Soon");
        CloseBy(editor, window, IDCANCEL);
    });
}

TEST_F(TypedLine, LongerThanTheScreenIsCutOffAtBothSides) {
    const std::string text(200, 'M');
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "dark.bmp");
        TurnTo(window, 2);
        AddLine(window, text);
        Await([&] { return WidthOfLetters(window) > 300; }, "from side to side");
        user::TakeShot("adjust-long-line");
        CloseBy(editor, window, IDOK);
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == ScreenWith(text));
    });
}

}  // namespace
}  // namespace vistrel::test
