// What the Logo browser says and shows: captions, menus, tips, colours and pointers.
#include <atomic>
#include <cmath>
#include <set>

#include "tests/editor/editor_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace core;
using namespace editor;
using namespace main_window;

namespace {

using Appearance = LogoBrowser;
TEST_F(Appearance, EveryCaptionIsAsItShouldBe) {
    const struct {
        int id;
        const char* text;
    } captions[] = {
        {ID_Label1, "Select log&os:"},
        {ID_ImageInfo, "No logo selected"},
        {ID_AdjustButton, "Ad&just..."},
        {ID_LblSlot, "LOGO.SYS\r\nStartup screen"},
        {ID_LblSlot + 1, "LOGOW.SYS\r\nWait screen"},
        {ID_LblSlot + 2, "LOGOS.SYS\r\nShutdown screen"},
        {ID_AddButton, "Add"},
        {ID_AddButton + 1, "Add"},
        {ID_AddButton + 2, "Add"},
        {ID_DeleteButton, "Delete"},
        {ID_DeleteButton + 1, "Delete"},
        {ID_DeleteButton + 2, "Delete"},
        {ID_LblNotAval, "Default wait/shutdown screens"},
        {ID_LblNotAval + 1, "Only startup logo"},
        {ID_LblNotAval + 2, "Only startup logo"},
        {ID_Frame1, "Choose type of logo set"},
        {ID_OptCompSet, "Co&mplete set"},
        {ID_OptDefShut, "De&fault wait/shutdown screens"},
        {ID_OptOnlyStart, "&Startup screen only"},
        {ID_Label3, "&Name of the logo set:"},
        {ID_ActButton, "Ac&tion..."},
        {ID_CloseButton, "Finis&h"},
    };
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(user::TextOf(editor.handle()), "Logo browser");
        for (const auto& caption : captions)
            EXPECT_EQ(user::TextOf(GetDlgItem(editor.handle(), caption.id)), caption.text);
    });
}

TEST_F(Appearance, TheMenusSayWhatTheyDo) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(seen::TextsOf(ActionMenu(editor)),
                  (Names{"Create n&ew set", "Up&date set", "D&elete set", "Delete &all images"}));
        user::RightClickAt(PointOfItem(editor, ".."));
        EXPECT_EQ(seen::TextsOf(user::WaitForPopUp()),
                  (Names{"&Rename\tF2", "&Delete\tDel", "&Refresh\tF5", "-", "Set as &LOGO.SYS",
                         "Set as LOGO&W.SYS", "Set as LOGO&S.SYS", "-", "Ad&just...",
                         "&Make sets of these pictures...", "-", "Show as at &start\tF11", "&Mend",
                         "Moving &colours..."}));
        DismissMenu();
    });
}

TEST_F(Appearance, MenusAndButtonsShowWhatIsPossible) {
    Put(pictures + "new.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const auto enabled = [&] {
            std::string states;
            for (const seen::MenuRow& row : seen::RowsOf(ActionMenu(editor)))
                states += row.enabled ? '+' : '-';
            return states;
        };
        EXPECT_EQ(enabled(), "---+");
        EXPECT_FALSE(IsWindowEnabled(editor.AddButton[0].handle()));
        ChooseSet(editor, "Red");
        EXPECT_EQ(enabled(), "++++");
        Fill(editor, "new.sys", 0);
        EXPECT_EQ(enabled(), "-+-+");
        TypeName(editor, "Crimson");
        EXPECT_EQ(enabled(), "++-+");
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(enabled(), "--++");
    });
}

TEST_F(Appearance, EmptySlotsSaySoFromTheBeginning) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const COLORREF grey = GetSysColor(COLOR_GRAYTEXT);
        for (const PictureBox& slot : editor.ImgPreview)
            EXPECT_TRUE(seen::ShowsColor(slot.handle(), grey));
        EXPECT_TRUE(seen::ShowsColor(editor.CurView.handle(), grey));
    });
}

TEST_F(Appearance, TipsNameTheSlots) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const char* tips[] = {"LOGO.SYS: startup screen", "LOGOW.SYS: wait screen",
                              "LOGOS.SYS: shutdown screen"};
        for (int i = 0; i < 3; ++i)
            EXPECT_EQ(seen::TipOver(editor.ImgPreview[i].handle()), tips[i]);
    });
}

TEST_F(Appearance, TheWholePathOfTheFolderIsItsTip) {
    MakeFolders(pictures + "zoo\\");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(seen::TipOver(editor.CurPath.handle()), pictures);
        BrowseInto(editor, "zoo");
        EXPECT_EQ(seen::TipOver(editor.CurPath.handle()), pictures + "zoo\\");
    });
}

TEST_F(Appearance, TheListOfDrivesNamesEachBesideThePictureOfItsKind) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        // Pictures: 0 of what can be taken out, 1 of a fixed disk, 2 of a CD-ROM, 3 of a network.
        const std::pair<std::string, LRESULT> drives[] = {{"A:", 0}, {"C:", 1}, {"D:", 1},
                                                          {"E:", 2}, {"N:", 3}, {"Z:", 1}};
        const HWND list = editor.Drive1.handle();
        EXPECT_EQ(SendMessageA(list, CB_GETCOUNT, 0, 0), 6);
        for (WPARAM i = 0; i < 6; ++i) {
            char text[MAX_PATH] = "";
            SendMessageA(list, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(text));
            EXPECT_EQ(std::string(text).substr(0, 2), drives[i].first);
            EXPECT_EQ(SendMessageA(list, CB_GETITEMDATA, i, 0), drives[i].second) << text;
        }
    });
}

/// The colours of a row of pixels where a list of drives shows the letter of the chosen one.
std::set<COLORREF> ColorsOfLetter(HWND list) {
    seen::ShowsColor(list, 0);  // what is left to paint is painted
    RECT r{};
    GetClientRect(list, &r);
    const HDC dc = GetDC(list);
    std::set<COLORREF> colors;
    for (int x = 24; x < 30; ++x) colors.insert(GetPixel(dc, x, r.bottom / 2));
    ReleaseDC(list, dc);
    return colors;
}

TEST_F(Appearance, TheChosenDriveHasTheSystemsColoursWithTheFocusAndWithout) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND list = editor.Drive1.handle();
        using Colors = std::set<COLORREF>;
        EXPECT_EQ(ColorsOfLetter(list),
                  (Colors{GetSysColor(COLOR_WINDOW), GetSysColor(COLOR_WINDOWTEXT)}));
        SendMessageA(editor.handle(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(list), TRUE);
        EXPECT_TRUE(WaitUntil([&] {
            return ColorsOfLetter(list) ==
                   Colors{GetSysColor(COLOR_HIGHLIGHT), GetSysColor(COLOR_HIGHLIGHTTEXT)};
        }));
        user::TakeShot("drive_list");
    });
}

/// How well a text is told from its ground: 1 not at all, 21 black on white.
double Contrast(COLORREF text, COLORREF ground) {
    const auto light = [](COLORREF color) {
        const auto part = [](int byte) {
            const double value = byte / 255.0;
            return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * part(GetRValue(color)) + 0.7152 * part(GetGValue(color)) +
               0.0722 * part(GetBValue(color)) + 0.05;
    };
    const double ratio = light(text) / light(ground);
    return ratio < 1 ? 1 / ratio : ratio;
}

TEST_F(Appearance, TheVerdictsColorCanBeReadOnItsGround) {
    Put(pictures + "ready.sys", ScreenFile(255, 0, 0));
    Put(pictures + "picture.bmp", ScreenFile(255, 0, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const auto expectLegible = [&](long color) {
            const HWND label = editor.ImageInfo.handle();
            Settle(editor);
            EXPECT_TRUE(seen::ShowsColor(label, static_cast<COLORREF>(color))) << color;
            RECT r{};
            GetWindowRect(label, &r);
            // What is painted reaches the screen a moment later.
            EXPECT_TRUE(WaitUntil([&] {
                const COLORREF ground = seen::PixelAt({r.left + 4, r.top + 4});
                return Contrast(static_cast<COLORREF>(color), ground) >= 4.5;
            })) << color;
        };
        expectLegible(255);
        Pick(editor, "ready.sys");
        expectLegible(32768);
        Pick(editor, "picture.bmp");
        expectLegible(65535);
    });
}

TEST_F(Appearance, ThePointerShowsWhatIsDragged) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "new.sys");
        const auto dragIcon =
            reinterpret_cast<HCURSOR>(LoadIconA(GetModuleHandleA(nullptr), "drag"));
        EXPECT_NE(dragIcon, nullptr);
        for (const POINT from :
             {user::CentreOf(editor.CurView.handle()), PointOfItem(editor, "new.sys")}) {
            EXPECT_NE(seen::Pointer(), dragIcon);
            std::atomic<bool> shown = false;
            std::atomic<bool> done = false;
            user::Meanwhile watching([&] {
                while (!done && !shown) shown = seen::Pointer() == dragIcon;
            });
            user::Drag(from, {from.x + 40, from.y + 40});
            done = true;
            watching.Finish();
            EXPECT_TRUE(shown);
            Await([&] { return seen::Pointer() != dragIcon; }, "arrow again");
        }
    });
}

TEST_F(Appearance, TheHourglassShowsWhileTheBrowserWorks) {
    Put(pictures + "large.bmp", BmpOf(TestPicture(1600, 1600)));
    for (const char* screen : kScreenFileNames)
        Put(logos + "Red\\" + screen, BmpOf(TestPicture(1600, 1600)));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        const auto hourglassDuring = [&](const std::function<void()>& work) {
            user::MoveTo(user::CentreOf(editor.Frame1.handle()));
            Await([] { return !seen::PointerIsHourglass(); }, "arrow before");
            std::atomic<bool> shown = false;
            std::atomic<bool> done = false;
            user::Meanwhile watching([&] {
                while (!done && !shown) shown = seen::PointerIsHourglass();
            });
            work();
            done = true;
            watching.Finish();
            Await([] { return !seen::PointerIsHourglass(); }, "arrow afterwards");
            return shown.load();
        };
        EXPECT_TRUE(hourglassDuring([&] { Pick(editor, "large.bmp"); }));
        EXPECT_TRUE(hourglassDuring([&] { Press(editor.AddButton[0]); }));
        EXPECT_TRUE(hourglassDuring([&] { ChooseSet(editor, "Red"); }));
        // While the shell asks, the deletion goes on.
        main.Preferences().deleteInTheRecycleBin = 1;
        EXPECT_TRUE(hourglassDuring([&] { RunAndAnswerShell(editor, ID_EliminaSetBtn, IDYES); }));
    });
}

TEST_F(Appearance, TheRoomOfALargeScreenGoesToThePictures) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ShowWindow(editor.handle(), SW_MAXIMIZE);
        Settle(editor);
        const Size client = editor.ClientSize();
        int pictures = 0;
        for (const PictureBox* box :
             {&editor.CurView, &editor.ImgPreview[0], &editor.ImgPreview[1], &editor.ImgPreview[2]})
            pictures += box->Bounds().width * box->Bounds().height;
        EXPECT_GE(pictures, client.width * client.height * 9 / 20);
    });
}

/// The width that a label's text takes, broken into lines as the label does.
LONG WidthOfText(const controls::Label& label) {
    RECT r{};
    GetClientRect(label.handle(), &r);
    const HDC dc = GetDC(label.handle());
    SelectObject(dc, reinterpret_cast<HFONT>(SendMessageA(label.handle(), WM_GETFONT, 0, 0)));
    DrawTextA(dc, user::TextOf(label.handle()).c_str(), -1, &r, DT_CALCRECT | DT_WORDBREAK);
    ReleaseDC(label.handle(), dc);
    return r.right - r.left;
}

TEST_F(Appearance, WhatStandsInPlaceOfASlotKeepsAMarginWithinItsFrame) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Press(editor.OptDefShut);
        user::TakeShot("shared-screens", editor.handle());
        RECT frame{};
        GetWindowRect(editor.SlotFrame[0].handle(), &frame);
        constexpr LONG kMargin = 8;
        EXPECT_LE(WidthOfText(editor.LblNotAval[0]), frame.right - frame.left - 2 * kMargin);
    });
}

}  // namespace
}  // namespace vistrel::test
