// The pages of the preferences: what stands on them, and turning them by mouse and keyboard.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "resources/ids.h"
#include "tests/options/options_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace options;

namespace {

TEST_F(Preferences, ShowsOnlyThePageOfTheSelectedTab) {
    WithDialog([&](FrmOptions& options) {
        for (int tab = 1; tab <= 5; ++tab) {
            ClickTab(options, tab);
            for (int i = 0; i < 5; ++i)
                EXPECT_EQ(options.MyFrame[i].Visible(), i == tab - 1) << tab;
            EXPECT_EQ(options.TxtLogoPath.Visible(), tab == 1);
            EXPECT_EQ(options.ChkDelConfirm.Visible(), tab == 2);
            EXPECT_EQ(options.CustProg.Visible(), tab == 3);
            EXPECT_EQ(options.StartUpAction[2].Visible(), tab == 4);
            EXPECT_EQ(options.RotationList.Visible(), tab == 5);
            user::TakeShot("preferences_" + std::to_string(tab));
        }
    });
}

TEST_F(Preferences, AreWordedLikeThis) {
    const std::pair<int, const char*> captions[] = {
        {ID_LblLogoPath, "Logo &folder:"},
        {ID_btnBrwFolder, ".&.."},
        {ID_LblDblAction, "Double click on logo set:"},
        {ID_ChkShowSplash, "Show splash screen at startup"},
        {ID_ChkSyncronize, "Synchronize logos (delay wait and shutdown logo copy)"},
        {ID_ActiveStart, "Show startup logo"},
        {ID_LblDriveHost, "Put the startup logo in:"},
        {ID_ChkConfirmChange, "Confirm logo type (single/multi) change"},
        {ID_ChkDelConfirm, "Confirm logo sets deletion"},
        {ID_ChkDeleteRecycle, "Delete logosets in the Recycle Bin"},
        {ID_ChkShowAnim, "Autos&how logo animation"},
        {ID_FrameOpen, "When I click on image"},
        {ID_OptOpen, "&Show it in its actual size"},
        {ID_OptOpen + 1, "Open &Paint"},
        {ID_OptOpen + 2, "Op&en program:"},
        {ID_BtnBrowse, "..."},
        {ID_LblStartUp, "Every time Windows is started run:"},
        {ID_StartUpAction, "Logo &sequential change (Rotaline)"},
        {ID_StartUpAction + 1, "Logo &random change (Shufflet)"},
        {ID_StartUpAction + 2, "&Nothing"},
        {ID_BtnOK, "&OK"},
        {ID_BtnCancel, "&Cancel"},
    };
    WithDialog([&](FrmOptions& options) {
        EXPECT_EQ(user::TextOf(options.handle()), "Preferences");
        for (const auto& [id, caption] : captions)
            EXPECT_EQ(user::TextOf(GetDlgItem(options.handle(), id)), caption);
        std::vector<std::string> tabs;
        const HWND strip = options.TabStrip1.handle();
        for (LRESULT i = 0; i < SendMessageA(strip, TCM_GETITEMCOUNT, 0, 0); ++i) {
            char text[64] = "";
            TCITEMA item{};
            item.mask = TCIF_TEXT;
            item.pszText = text;
            item.cchTextMax = sizeof text;
            SendMessageA(strip, TCM_GETITEMA, static_cast<WPARAM>(i),
                         reinterpret_cast<LPARAM>(&item));
            tabs.push_back(text);
        }
        EXPECT_EQ(tabs, (std::vector<std::string>{"General", "Confirmations", "Images",
                                                  "StartUp settings", "Rotation"}));
        char actions[2][64];
        const HWND combo = options.DblAction.handle();
        EXPECT_EQ(SendMessageA(combo, CB_GETCOUNT, 0, 0), 2);
        for (WPARAM i = 0; i < 2; ++i)
            SendMessageA(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(actions[i]));
        EXPECT_STREQ(actions[0], "Sets the logo set as default");
        EXPECT_STREQ(actions[1], "Opens the logo browser!");
    });
}

TEST_F(Preferences, OpenWithTheLogoFolderSelectedSoThatTypingReplacesIt) {
    WithDialog([&](FrmOptions& options) {
        EXPECT_TRUE(HasFocus(options, options.TxtLogoPath));
        user::Type("D:\\New");
        EXPECT_TRUE(WaitUntil([&] {
            return user::TextOf(options.TxtLogoPath.handle()) == "D:\\New";
        })) << user::TextOf(options.TxtLogoPath.handle());
    });
}

TEST_F(Preferences, OpenWhereThePictureProgramIsSetWhenAskedTo) {
    WithDialog(
        [&](FrmOptions& options) {
            EXPECT_TRUE(PageIsShown(options, 3));
            EXPECT_EQ(SendMessageA(options.TabStrip1.handle(), TCM_GETCURSEL, 0, 0), 2);
            EXPECT_TRUE(HasFocus(options, options.CustProg));
        },
        FrmOptions::kImages);
}

TEST_F(Preferences, TurnTheirPagesByTheKeyboard) {
    WithDialog([&](FrmOptions& options) {
        for (const int page : {2, 3, 4, 5, 1}) {
            user::Press(VK_TAB, {VK_CONTROL});
            EXPECT_TRUE(PageIsShown(options, page)) << page;
            EXPECT_EQ(SendMessageA(options.TabStrip1.handle(), TCM_GETCURSEL, 0, 0), page - 1);
            // Keys go where the user sees it.
            EXPECT_TRUE(IsWindowVisible(FocusOf(options))) << page;
        }
        EXPECT_TRUE(HasFocus(options, options.TxtLogoPath));
        user::Press(VK_TAB, {VK_CONTROL, VK_SHIFT});
        EXPECT_TRUE(PageIsShown(options, 5));
        user::Press(VK_PRIOR, {VK_CONTROL});
        EXPECT_TRUE(PageIsShown(options, 4));
        user::Press(VK_NEXT, {VK_CONTROL});
        EXPECT_TRUE(PageIsShown(options, 5));
        user::Press(VK_TAB);
        EXPECT_TRUE(PageIsShown(options, 5));
    });
}

}  // namespace
}  // namespace vistrel::test
