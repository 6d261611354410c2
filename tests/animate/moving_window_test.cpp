// What the controls of "Moving colours" say of themselves, how the screen moves in it, what goes
// wrong, and how the main window opens it.
#include <windows.h>
// The others need windows.h first.
#include <commctrl.h>

#include <set>

#include "animate/frm_animate.h"
#include "animate/read_screen.h"
#include "help/context_numbers.h"
#include "tests/animate/animate_fixture.h"
#include "tests/support/user/help_requests.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace animate;
using namespace controls;
using namespace editor;
using namespace main_window;

namespace {

using MovingWindow = Moving;

TEST_F(MovingWindow, HasATipAndAHelpForEachControl) {
    user::HelpRequests requests;
    Window::SetHelpFile("C:\\test\\vistrl.hlp");
    FrmAnimate animate(*BeginDocument(ScreenOf(still), std::nullopt), logos,
                       [](platform::WindowHandle, const auto&) { return true; });
    ASSERT_TRUE(animate.Create(nullptr));
    for (const auto& [id, control] : animate.controls()) {
        const std::string kind = user::ClassOf(control->handle());
        if (kind == "Static" || kind == WC_TABCONTROLA) continue;
        // A tip would lie over a picture that is looked at.
        const bool pictured = id == ID_MovingBox || id == ID_BoardBox;
        EXPECT_EQ(control->tip().empty(), pictured) << id;
        HELPINFO info{};
        info.cbSize = sizeof info;
        info.iContextType = HELPINFO_WINDOW;
        info.hItemHandle = control->handle();
        SendMessageA(animate.handle(), WM_HELP, 0, reinterpret_cast<LPARAM>(&info));
        const unsigned long number = requests.Next().data;
        EXPECT_GE(number, help_number::MovingBox) << id;
        EXPECT_LE(number, help_number::MovingCancel) << id;
    }
}

// The bar moves all by itself, and nothing else does.
TEST_F(MovingWindow, ShowsTheScreenMovingAndWhatStandsStanding) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        AddLayer(window, 0);
        // The page without the dotted line.
        TurnTo(window, 1);
        const POINT bar = OnScreen(window, 160, 382), picture = OnScreen(window, 160, 150);
        std::set<COLORREF> moving, standing;
        // What the page before showed is gone with the next frame.
        const COLORREF first = seen::PixelAt(bar);
        Await([&] { return seen::PixelAt(bar) != first; }, "moves at all");
        Await(
            [&] {
                moving.insert(seen::PixelAt(bar));
                standing.insert(seen::PixelAt(picture));
                return moving.size() >= 8;
            },
            "moves");
        EXPECT_EQ(standing.size(), 1u);
        for (const char* frame : {"moving-frame-1", "moving-frame-2", "moving-frame-3"}) {
            const COLORREF now = seen::PixelAt(bar);
            user::TakeShot(frame);
            Await([&] { return seen::PixelAt(bar) != now; }, "next frame");
        }
        CloseBy(editor, window, IDCANCEL);
    });
}

TEST_F(MovingWindow, SaysWhatIsPossible) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        const auto possible = [&](std::initializer_list<int> ids) {
            std::string text;
            for (const int id : ids) text += Enabled(window, id) ? '+' : '-';
            return text;
        };
        const auto ofLayers = {ID_BtnDeleteLayer, ID_PatternKind,  ID_SizeBar, ID_ChkReversed,
                               ID_ChooseBy,       ID_ToleranceBar, ID_BtnAll};
        EXPECT_EQ(possible(ofLayers), "-------");
        AddLayer(window, 0);
        EXPECT_EQ(possible(ofLayers), "++++---");
        AddLayer(window, 1);
        // By brightness an area has no size.
        EXPECT_EQ(possible(ofLayers), "++-++-+");
        Choose(window, ID_ChooseBy, 2);
        EXPECT_EQ(possible(ofLayers), "++-++++");
        EXPECT_EQ(user::TextOf(Item(window, ID_LblMovingHint)),
                  "Click a colour of the picture. Shift adds to the area, Ctrl takes away.");
        Press(window, ID_BtnDeleteLayer);
        Press(window, ID_BtnDeleteLayer);
        EXPECT_EQ(LayerCount(window), 0);
        EXPECT_EQ(possible(ofLayers), "-------");
        const auto ofColors = {ID_BtnKey,      ID_BtnKey + 2,   ID_BtnKey + 3,
                               ID_BtnMoreKeys, ID_BtnFewerKeys, ID_BtnGround};
        EXPECT_EQ(possible(ofColors), "------");
        TurnTo(window, 1);
        EXPECT_EQ(possible(ofColors), "++-++-");
        Press(window, ID_BtnMoreKeys);
        EXPECT_EQ(possible(ofColors), "+++-+-");
        Press(window, ID_ChkGround);
        EXPECT_EQ(possible(ofColors), "+++-++");
        CloseBy(editor, window, IDCANCEL);
    });
}

TEST_F(MovingWindow, AScreenThatCannotBeReadIsTold) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        Put(still, "no screen");
        user::RightClick(editor.ImgPreview[0].handle());
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmMoveColors));
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  still + " cannot be read as a screen. It may have been moved or damaged.");
        EXPECT_EQ(user::FindTop("FrmAnimate"), nullptr);
    });
}

TEST_F(MovingWindow, WhatCannotBeKeptIsNotLost) {
    int tries = 0;
    FrmAnimate animate(*BeginDocument(ScreenOf(still), std::nullopt), logos,
                       [&](platform::WindowHandle, const auto&) { return ++tries == 2; });
    bool stayed = false;
    user::Meanwhile acting([&] {
        const HWND window = user::WaitForTop("FrmAnimate");
        user::Activate(window);
        SendMessageA(GetDlgItem(window, IDOK), BM_CLICK, 0, 0);
        stayed = IsWindow(window) && IsWindowEnabled(window);
        SendMessageA(GetDlgItem(window, IDOK), BM_CLICK, 0, 0);
        user::WaitUntilGone(window);
    });
    animate.ShowModal(nullptr);
    acting.Finish();
    EXPECT_TRUE(stayed);
    EXPECT_EQ(tries, 2);
}

TEST_F(MovingWindow, LetsTheSessionEndAndLeavesTheScreenAsItWas) {
    const std::string path = logos + "Blue\\LOGO.SYS";
    const std::string before = *Contents(path);
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        Command(main, ID_ToolSetDefault);
        ClickSet(main, "Blue");
        user::RightClick(main.Imag[0].handle());
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmMoveColors));
        const HWND window = WaitForIt();
        AddLayer(window, 0);
        for (const HWND one : {window, main.handle()})
            EXPECT_NE(SendMessageA(one, WM_QUERYENDSESSION, 0, 0), 0);
        // Put off by another program: all goes on.
        for (const HWND one : {window, main.handle()}) SendMessageA(one, WM_ENDSESSION, FALSE, 0);
        EXPECT_EQ(LayerCount(window), 1);
        for (const HWND one : {window, main.handle()})
            EXPECT_NE(SendMessageA(one, WM_QUERYENDSESSION, 0, 0), 0);
        for (const HWND one : {window, main.handle()}) SendMessageA(one, WM_ENDSESSION, TRUE, 0);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Red"));
        EXPECT_TRUE(Contents(path) == before);
        PostMessageA(window, WM_CLOSE, 0, 0);
        EXPECT_TRUE(user::WaitUntilGone(window));
    });
}

TEST_F(MovingWindow, OfTheMainWindowSavesIntoTheSetAfterAQuestion) {
    const std::string path = logos + "Blue\\LOGO.SYS";
    const std::string before = *Contents(path);
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Blue");
        // What the list says of the set follows.
        Command(main, ID_ToolDetailsView);
        const auto listed = [&] {
            constexpr int kMovingColors = 3;
            char text[80] = "";
            LVITEMA item{};
            item.iSubItem = kMovingColors;
            item.pszText = text;
            item.cchTextMax = sizeof text;
            SendMessageA(main.MyList.handle(), LVM_GETITEMTEXTA,
                         static_cast<WPARAM>(main.MyList.FindItem("Blue")),
                         reinterpret_cast<LPARAM>(&item));
            return std::string(text);
        };
        EXPECT_EQ(listed(), "");
        const auto openOn = [&] {
            user::RightClick(main.Imag[0].handle());
            EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmMoveColors));
            return WaitForIt();
        };
        const auto pressOk = [&](HWND window, int answer) {
            PostMessageA(Item(window, IDOK), BM_CLICK, 0, 0);
            return user::AnswerBox(answer).text;
        };
        const HWND window = openOn();
        AddLayer(window, 0);
        EXPECT_EQ(pressOk(window, IDNO),
                  "Would you like to save the screen, as it moves now, over " + path + "?");
        Follow(window);
        EXPECT_TRUE(IsWindow(window));
        EXPECT_TRUE(Contents(path) == before);
        pressOk(window, IDYES);
        EXPECT_TRUE(user::WaitUntilGone(window));
        MainWindow98::Settle(main);
        EXPECT_EQ(ScreenOf(path).firstAnimated, 236);
        EXPECT_EQ(listed(), "20");
        // The preview shows it: the bar is dark at its left end.
        EXPECT_NE(Contents(path), before);
        // Wait and shutdown screens do not move.
        user::RightClick(main.Imag[1].handle());
        EXPECT_FALSE(seen::RowOf(user::WaitForPopUp(), ID_ItmMoveColors).enabled);
        DismissMenu();

        const std::string moving = *Contents(path);
        GiveAttributes(path, FILE_ATTRIBUTE_READONLY);
        const HWND again = openOn();
        Press(again, ID_BtnDeleteLayer);
        PostMessageA(Item(again, IDOK), BM_CLICK, 0, 0);
        user::AnswerBox(IDYES);
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  path + " cannot be written. The disk may be full, or the file protected.");
        Follow(again);
        EXPECT_TRUE(IsWindow(again));
        EXPECT_TRUE(Contents(path) == moving);
        PostMessageA(again, WM_CLOSE, 0, 0);
        EXPECT_TRUE(user::WaitUntilGone(again));
        GiveAttributes(path, 0);
    });
}

}  // namespace
}  // namespace vistrel::test
