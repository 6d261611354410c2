// Fonts and colours that are chosen in the system's dialogs, by mouse and keyboard.
#include <cmath>

#include "adjust/frm_adjust.h"
#include "adjust/text_line.h"
#include "pictures/preview/draw_letters.h"
#include "tests/adjust/adjust_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace adjust;
using namespace editor;
using namespace main_window;
using namespace pictures;

namespace {

// The parts of the system's dialogs, by the numbers that it documents for their templates.
constexpr int kFaces = 0x470;
constexpr int kStyles = 0x471;
constexpr int kSizes = 0x472;
constexpr int kBasicColors = 0x2D0;
constexpr int kColorsAcross = 8;
constexpr int kColorsDown = 6;

class ChosenLooks : public Adjusting {
 protected:
    /// Presses a button that opens a dialog of the system and returns the dialog in front.
    static HWND OpenDialog(HWND window, int button) {
        EXPECT_TRUE(user::Click(Item(window, button)));
        const HWND dialog = user::WaitForTop("#32770");
        EXPECT_NE(dialog, nullptr);
        user::Activate(dialog);
        return dialog;
    }
    static void CloseDialog(HWND window, HWND dialog, int button) {
        EXPECT_TRUE(user::Click(Item(dialog, button)));
        EXPECT_TRUE(user::WaitUntilGone(dialog));
        user::LetFinish(window);
    }
    /// The lists that the dialog shows open.
    static HWND ListOf(HWND dialog, int id) {
        return FindWindowExA(Item(dialog, id), nullptr, "ComboLBox", nullptr);
    }
    static std::string RowText(HWND list, LRESULT row) {
        char text[256] = "";
        SendMessageA(list, LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text));
        return text;
    }
    static LRESULT RowOf(HWND list, const std::string& text) {
        return SendMessageA(list, LB_FINDSTRINGEXACT, static_cast<WPARAM>(-1),
                            reinterpret_cast<LPARAM>(text.c_str()));
    }
    /// Clicks a row of one of the lists.
    static void ClickRow(HWND dialog, int id, LRESULT row) {
        const HWND list = ListOf(dialog, id);
        SendMessageA(list, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
        RECT r{};
        SendMessageA(list, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&r));
        POINT at{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
        ClientToScreen(list, &at);
        user::ClickAt(at);
        const std::string text = RowText(list, row);
        Await([&] { return user::TextOf(Item(dialog, id)) == text; }, "row chosen");
    }
    /// Clicks one of the basic colours of the dialog and returns what it looks like.
    static COLORREF ClickColor(HWND dialog, int across, int down) {
        RECT r{};
        GetWindowRect(Item(dialog, kBasicColors), &r);
        const POINT at{r.left + (2 * across + 1) * (r.right - r.left) / (2 * kColorsAcross),
                       r.top + (2 * down + 1) * (r.bottom - r.top) / (2 * kColorsDown)};
        RedrawWindow(dialog, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN);
        COLORREF color = 0;
        // What is drawn comes to the screen a little later; none of the cells is grey.
        Await(
            [&] {
                color = seen::PixelAt(at);
                return GetRValue(color) != GetGValue(color) || GetGValue(color) != GetBValue(color);
            },
            "colours drawn");
        user::ClickAt(at);
        return color;
    }
    /// The screen of the photograph with one line on it.
    std::string ScreenWith(const TextLine& line) const {
        compose::Composition composition;
        composition.text = MasksOf({DrawnLine(line)});
        return MadeOf(photo, composition);
    }
    static TextLine FirstLine(const std::string& text) {
        TextLine line;
        line.text = text;
        line.y = kLogoHeight * 5 / 6;
        return line;
    }
};

TEST_F(ChosenLooks, AFontAndItsSizeAreThoseOfTheLine) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        TurnTo(window, 2);
        AddLine(window, "Soon");
        const HWND dialog = OpenDialog(window, ID_BtnFont);
        // What the line has already is chosen.
        const std::string now = preview::FaceFor("Arial");
        EXPECT_EQ(user::TextOf(Item(dialog, kFaces)), now);
        EXPECT_EQ(user::TextOf(Item(dialog, kSizes)), "36");
        const HWND faces = ListOf(dialog, kFaces);
        const LRESULT other = RowOf(faces, now) == 0 ? 1 : 0;
        const std::string face = RowText(faces, other);
        ClickRow(dialog, kFaces, other);
        ClickRow(dialog, kStyles, 0);
        ClickRow(dialog, kSizes, RowOf(ListOf(dialog, kSizes), "48"));
        user::TakeShot("adjust-font-dialog");
        CloseDialog(window, dialog, IDOK);
        user::TakeShot("adjust-font-chosen");
        // It is asked again with what was chosen.
        const HWND again = OpenDialog(window, ID_BtnFont);
        EXPECT_EQ(user::TextOf(Item(again, kFaces)), face);
        EXPECT_EQ(user::TextOf(Item(again, kSizes)), "48");
        CloseDialog(window, again, IDCANCEL);
        CloseBy(editor, window, IDOK);
        TextLine line = FirstLine("Soon");
        line.font.face = face;
        line.font.tenthsOfPoint = 480;
        line.font.weight = 400;
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == ScreenWith(line)) << face;
    });
}

TEST_F(ChosenLooks, ASizeCanBeTypedAndEnterTakesIt) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        TurnTo(window, 2);
        AddLine(window, "Soon");
        const HWND dialog = OpenDialog(window, ID_BtnFont);
        EXPECT_TRUE(
            user::DoubleClick(FindWindowExA(Item(dialog, kSizes), nullptr, "Edit", nullptr)));
        user::Type("90");
        Await([&] { return user::TextOf(Item(dialog, kSizes)) == "90"; }, "size typed");
        user::Press(VK_RETURN);
        EXPECT_TRUE(user::WaitUntilGone(dialog));
        user::LetFinish(window);
        CloseBy(editor, window, IDOK);
        TextLine line = FirstLine("Soon");
        line.font.tenthsOfPoint = 900;
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == ScreenWith(line));
    });
}

TEST_F(ChosenLooks, AColorIsThatOfTheLetters) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        TurnTo(window, 2);
        AddLine(window, "MMMM");
        EXPECT_TRUE(seen::ComesToShow(Item(window, ID_TextSwatch), RGB(255, 255, 255)));
        const HWND dialog = OpenDialog(window, ID_BtnTextColor);
        const COLORREF color = ClickColor(dialog, 3, 1);
        EXPECT_NE(color, RGB(255, 255, 255));
        CloseDialog(window, dialog, IDOK);
        EXPECT_TRUE(seen::ComesToShow(Item(window, ID_TextSwatch), color));
        Await([&] { return seen::ShowsColor(Item(window, ID_ScreenBox), color); }, "letters");
        user::TakeShot("adjust-text-colour");
        CloseBy(editor, window, IDOK);
        TextLine line = FirstLine("MMMM");
        line.color = {GetRValue(color), GetGValue(color), GetBValue(color)};
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == ScreenWith(line));
    });
}

TEST_F(ChosenLooks, AColorIsThatOfTheBorder) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        EXPECT_TRUE(user::Click(Item(window, ID_OptFraming + 2)));
        Await([&] { return Enabled(window, ID_BtnBorderColor); }, "fitted");
        const HWND dialog = OpenDialog(window, ID_BtnBorderColor);
        const COLORREF color = ClickColor(dialog, 5, 2);
        CloseDialog(window, dialog, IDOK);
        EXPECT_TRUE(seen::ComesToShow(Item(window, ID_BorderSwatch), color));
        Await([&] { return ColorAt(window, 160, 20) == color; }, "border");
        const HWND again = OpenDialog(window, ID_BtnBorderColor);
        EXPECT_NE(ClickColor(again, 0, 0), color);
        CloseDialog(window, again, IDCANCEL);
        EXPECT_TRUE(seen::ComesToShow(Item(window, ID_BorderSwatch), color));
        Await([&] { return ColorAt(window, 160, 20) == color; }, "border as before");
        CloseBy(editor, window, IDCANCEL);
    });
}

TEST_F(ChosenLooks, CancelLeavesTheLineAsItWas) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        TurnTo(window, 2);
        AddLine(window, "Soon");
        const HWND font = OpenDialog(window, ID_BtnFont);
        ClickRow(font, kSizes, RowOf(ListOf(font, kSizes), "72"));
        CloseDialog(window, font, IDCANCEL);
        const HWND color = OpenDialog(window, ID_BtnTextColor);
        ClickColor(color, 3, 1);
        CloseDialog(window, color, IDCANCEL);
        EXPECT_TRUE(seen::ComesToShow(Item(window, ID_TextSwatch), RGB(255, 255, 255)));
        CloseBy(editor, window, IDOK);
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == ScreenWith(FirstLine("Soon")));
    });
}

// The dialog would have no row for it and refuse to be closed by OK.
TEST_F(ChosenLooks, OfAFontThatIsGoneTheOneThatStandsForItIsOffered) {
    TextLine line = FirstLine("Soon");
    line.font.face = "No Such Font";
    FrmAdjust adjust({photo, {}, {line}}, [this] { return root + "made.sys"; });
    ASSERT_TRUE(adjust.ReadPicture());
    std::string offered;
    bool gone = false;
    user::Meanwhile acting([&] {
        user::AnswerBox(IDOK);
        const HWND window = WaitForIt();
        TurnTo(window, 2);
        const HWND dialog = OpenDialog(window, ID_BtnFont);
        offered = user::TextOf(Item(dialog, kFaces));
        CloseDialog(window, dialog, IDOK);
        user::Click(Item(window, IDOK));
        gone = user::WaitUntilGone(window);
    });
    adjust.ShowModal(nullptr);
    acting.Finish();
    EXPECT_TRUE(gone);
    EXPECT_NE(offered, "");
    EXPECT_NE(offered, "No Such Font");
    line.font.face = offered;
    EXPECT_TRUE(Contents(root + "made.sys") == ScreenWith(line)) << offered;
}

}  // namespace
}  // namespace vistrel::test
