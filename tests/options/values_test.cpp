// The values that the preferences show, and what of them is taken when.
#include <map>

#include "resources/ids.h"
#include "tests/options/options_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace options;

namespace {

TEST_F(Preferences, ShowsTheSettingsInMemory) {
    main.settings.actionOnDoubleClick = 1;
    main.settings.bootRoot = "D:\\";
    main.settings.defaultAction = 1;
    main.settings.customProgName = "Painter";
    main.settings.customProgPath = "C:\\Tools\\PAINTER.EXE";
    main.settings.deleteInTheRecycleBin = 0;
    main.settings.synchronizeLogos = 1;
    main.settings.showSplashScreen = 0;
    main.bootOption = 0;
    main.animation = true;
    WithDialog([&](FrmOptions& options) {
        EXPECT_EQ(options.DblAction.Text(), "Opens the logo browser!");
        EXPECT_EQ(options.DriveHost.Text(), "D");
        EXPECT_EQ(options.ActiveStart.Value(), 0);
        EXPECT_TRUE(options.OptOpen[1].Value());
        EXPECT_FALSE(options.OptOpen[2].Value());
        EXPECT_EQ(options.CustomName.Text(), "Painter");
        EXPECT_EQ(options.CustProg.Text(), "C:\\Tools\\PAINTER.EXE");
        EXPECT_EQ(options.ChkShowAnim.Value(), 0);
        EXPECT_EQ(options.ChkDeleteRecycle.Value(), 0);
        EXPECT_EQ(options.ChkDelConfirm.Value(), 1);
        EXPECT_EQ(options.ChkConfirmChange.Value(), 1);
        EXPECT_EQ(options.ChkShowSplash.Value(), 0);
        EXPECT_EQ(options.ChkSyncronize.Value(), 1);
        EXPECT_EQ(options.TxtLogoPath.Text(), logos);
        EXPECT_TRUE(options.StartUpAction[2].Value());
    });
}

TEST_F(Preferences, TakesEveryChangeAtOk) {
    WithDialog([&](FrmOptions& options) {
        user::Click(options.ChkShowSplash.handle());
        user::Click(options.ChkSyncronize.handle());
        user::Click(options.ActiveStart.handle());
        ClickTab(options, 2);
        user::Click(options.ChkConfirmChange.handle());
        user::Click(options.ChkDelConfirm.handle());
        user::Click(options.ChkDeleteRecycle.handle());
        ClickTab(options, 3);
        user::Click(options.OptOpen[1].handle());
        user::Click(options.ChkShowAnim.handle());
        PressOk(options);
    });
    EXPECT_EQ(main.settings.showSplashScreen, 0);
    EXPECT_EQ(main.settings.synchronizeLogos, 1);
    EXPECT_TRUE(main.bootOptionChanged);
    EXPECT_EQ(main.bootOption, 0);
    EXPECT_EQ(main.settings.confirmLogoTypeChange, 0);
    EXPECT_EQ(main.settings.confirmLogosetDelete, 0);
    EXPECT_EQ(main.settings.deleteInTheRecycleBin, 0);
    EXPECT_EQ(main.settings.defaultAction, 1);
    EXPECT_TRUE(main.animation);
    EXPECT_EQ(main.settings.bootRoot, "C:\\");
    EXPECT_EQ(main.scans, 0);
}

TEST_F(Preferences, ForgetsEveryChangeAtEsc) {
    Put(startup + "Rotaline.lnk", "mine");
    WithDialog([&](FrmOptions& options) {
        user::Click(options.ChkSyncronize.handle());
        ClickTab(options, 4);
        user::Click(options.StartUpAction[1].handle());
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([&] { return !options.IsOpen(); }));
    });
    EXPECT_EQ(main.settings.synchronizeLogos, 0);
    EXPECT_EQ(Contents(startup + "Rotaline.lnk"), "mine");
    EXPECT_FALSE(Exists(startup + "Shufflet.lnk"));
}

TEST_F(Preferences, AcceptsAtEnter) {
    WithDialog([&](FrmOptions& options) {
        user::Click(options.ChkSyncronize.handle());
        user::Press(VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return !options.IsOpen(); }));
    });
    EXPECT_EQ(main.settings.synchronizeLogos, 1);
}

/// The numbers of the check boxes.
std::vector<int> CheckBoxesOf(HWND dialog) {
    std::vector<int> ids;
    for (HWND child = GetWindow(dialog, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (user::ClassOf(child) == "Button" &&
            (GetWindowLongA(child, GWL_STYLE) & BS_TYPEMASK) == BS_AUTOCHECKBOX)
            ids.push_back(GetDlgCtrlID(child));
    return ids;
}

TEST_F(Preferences, KeepEachCheckBoxAsItWasLeftAndNoOtherWithIt) {
    std::map<int, bool> left;
    std::vector<int> ids;
    WithDialog([&](FrmOptions& options) {
        ids = CheckBoxesOf(options.handle());
        for (const int id : ids) left[id] = IsDlgButtonChecked(options.handle(), id) != 0;
    });
    ASSERT_FALSE(ids.empty());
    const auto expectAsLeft = [&](FrmOptions& options) {
        for (const int id : ids)
            EXPECT_EQ(IsDlgButtonChecked(options.handle(), id) != 0, left[id]) << id;
    };
    for (const int id : ids) {
        SCOPED_TRACE("check box " + std::to_string(id));
        WithDialog([&](FrmOptions& options) {
            expectAsLeft(options);
            const HWND box = GetDlgItem(options.handle(), id);
            for (int tab = 1; tab <= 4 && !IsWindowVisible(box); ++tab) ClickTab(options, tab);
            user::Click(box);
            PressOk(options);
        });
        // That one opens clear, whatever was chosen.
        if (id != ID_ChkShowAnim) left[id] = !left[id];
    }
    WithDialog(expectAsLeft);
}

TEST_F(Preferences, UncheckTheAnimationWhenTheBoxIsLeftAlone) {
    main.animation = true;
    WithDialog([&](FrmOptions& options) { PressOk(options); });
    EXPECT_FALSE(main.animation);
}

}  // namespace
}  // namespace vistrel::test
