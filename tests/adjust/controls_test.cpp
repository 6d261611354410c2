// What every control of "Adjust picture" says of itself, and what is possible when.
#include "adjust/frm_adjust.h"
#include "help/context_numbers.h"
#include "tests/adjust/adjust_fixture.h"
#include "tests/support/user/help_requests.h"

namespace vistrel::test {

using namespace adjust;

using namespace controls;
using namespace editor;
using namespace main_window;

namespace {

BOOL CALLBACK KeepTips(HWND window, LPARAM found) {
    if (user::ClassOf(window) != TOOLTIPS_CLASSA) return TRUE;
    auto* owner = reinterpret_cast<HWND*>(found);
    if (GetWindow(window, GW_OWNER) != owner[0]) return TRUE;
    owner[1] = window;
    return FALSE;
}

/// The text that appears when the pointer rests on a control.
std::string TipOf(HWND window, HWND control) {
    HWND found[2] = {window, nullptr};
    EnumThreadWindows(GetWindowThreadProcessId(window, nullptr), KeepTips,
                      reinterpret_cast<LPARAM>(found));
    char text[256] = "";
    TOOLINFOA info{};
    info.cbSize = TTTOOLINFOA_V1_SIZE;
    info.hwnd = window;
    info.uId = reinterpret_cast<UINT_PTR>(control);
    info.lpszText = text;
    SendMessageA(found[1], TTM_GETTEXTA, 0, reinterpret_cast<LPARAM>(&info));
    return text;
}

/// The controls at which the tab key can stop, but the row of tabs.
std::vector<HWND> ControlsOf(HWND window) {
    std::vector<HWND> controls;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const std::string kind = user::ClassOf(child);
        if (kind != "Static" && kind != WC_TABCONTROLA) controls.push_back(child);
    }
    return controls;
}

using AdjustControls = Adjusting;

TEST_F(AdjustControls, HaveEachATipAndAHelpAndThePictureOnlyAHelp) {
    user::HelpRequests requests;
    Window::SetHelpFile("C:\\test\\vistrl.hlp");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        for (const HWND control : ControlsOf(window)) {
            const std::string name = std::to_string(GetDlgCtrlID(control));
            // A tip would lie over the picture that is looked at.
            EXPECT_EQ(TipOf(window, control).empty(), control == Item(window, ID_ScreenBox))
                << name;
            HELPINFO info{};
            info.cbSize = sizeof info;
            info.iContextType = HELPINFO_WINDOW;
            info.hItemHandle = control;
            SendMessageA(window, WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
            EXPECT_GE(requests.Next().data, help_number::ScreenBox) << name;
        }
        CloseBy(editor, window, IDCANCEL);
        EXPECT_NE(TipOf(editor.handle(), editor.AdjustButton.handle()), "");
    });
}

TEST_F(AdjustControls, OfTheFramingAreThoseOfItsKind) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        const auto possible = [&] {
            std::string text;
            for (const int id : {ID_ZoomBar, ID_BorderKind, ID_BtnBorderColor})
                text += Enabled(window, id) ? '+' : '-';
            return text;
        };
        EXPECT_EQ(possible(), "---");
        Press(window, ID_OptFraming + 1);
        EXPECT_EQ(possible(), "+--");
        Press(window, ID_OptFraming + 2);
        EXPECT_EQ(possible(), "-++");
        Choose(window, ID_BorderKind, 1);
        EXPECT_EQ(possible(), "-+-");
        CloseBy(editor, window, IDCANCEL);
    });
}

TEST_F(AdjustControls, OfTheTextAreGreyUntilThereIsALine) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        TurnTo(window, 2);
        const int ofALine[] = {ID_BtnEditLine,  ID_BtnDeleteLine, ID_BtnFont,
                               ID_BtnTextColor, ID_EdgeKind,      ID_AlignKind};
        for (const int id : ofALine) EXPECT_FALSE(Enabled(window, id)) << id;
        AddLine(window, "Soon");
        for (const int id : ofALine) EXPECT_TRUE(Enabled(window, id)) << id;
        EXPECT_TRUE(user::Click(Item(window, ID_BtnDeleteLine)));
        Await([&] { return !Enabled(window, ID_BtnDeleteLine); }, "line deleted");
        user::LetFinish(window);
        for (const int id : ofALine) EXPECT_FALSE(Enabled(window, id)) << id;
        CloseBy(editor, window, IDCANCEL);
    });
}

// A control that is hidden would act on its access key if it were not disabled too.
TEST_F(AdjustControls, OfOtherPagesDoNotActOnTheirAccessKeys) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        TurnTo(window, 1);
        // Some systems pass over what is hidden, others do not.
        for (const int id : {ID_OptFraming + 1, ID_BtnTurnLeft, ID_BtnAddLine, ID_TextLines})
            EXPECT_FALSE(Enabled(window, id)) << id;
        user::Press('F', {VK_MENU});  // Fill
        user::Press('A', {VK_MENU});  // Auto, and on the page of the text Add
        Await([&] { return SendMessageA(Item(window, ID_ChkAuto), BM_GETCHECK, 0, 0) == 1; },
              "auto ticked");
        EXPECT_EQ(SendMessageA(Item(window, ID_OptFraming + 1), BM_GETCHECK, 0, 0), 0);
        CloseBy(editor, window, IDCANCEL);
    });
}

TEST_F(AdjustControls, AFontThatIsGoneAndADiskWithoutRoomAreTold) {
    TextLine line;
    line.text = "Soon";
    line.font.face = "No Such Font";
    FrmAdjust adjust({photo, {}, {line}}, [] { return std::string(); });
    ASSERT_TRUE(adjust.ReadPicture());
    std::string font, disk;
    user::Meanwhile acting([&] {
        font = user::AnswerBox(IDOK).text;
        const HWND window = WaitForIt();
        disk = PressOkAndAnswer(window).text;
        PostMessageA(window, WM_CLOSE, 0, 0);
    });
    adjust.ShowModal(nullptr);
    acting.Finish();
    EXPECT_EQ(font, "The font No Such Font is not there any more. Another one stands for it.");
    EXPECT_EQ(disk, "The screen cannot be written. The disk of temporary files may be full.");
    EXPECT_EQ(adjust.Screen(), "");
}

/// Turns the pages until this control is seen. A window that has just come to the front can let go
/// of Ctrl, and the key is pressed again.
bool KeysTurnTo(HWND window, int control) {
    constexpr int kTries = 3;
    for (int i = 0; i < kTries; ++i) {
        user::Press(VK_TAB, {VK_CONTROL});
        if (WaitUntil([&] { return IsWindowVisible(GetDlgItem(window, control)) != 0; }, 3000))
            return true;
    }
    return false;
}

TEST_F(AdjustControls, TheTabsAreTurnedByKeysToo) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        EXPECT_TRUE(KeysTurnTo(window, ID_ChkAuto));
        EXPECT_TRUE(KeysTurnTo(window, ID_TextLines));
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(window));
        Settle(editor);
    });
}

}  // namespace
}  // namespace vistrel::test
