// The preferences' page "Rotation".
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "resources/ids.h"
#include "tests/options/options_fixture.h"

namespace vistrel::test {

using namespace options;

namespace {

class PreferencesOfRotation : public Preferences {
 protected:
    PreferencesOfRotation() {
        for (const char* set : {"Blue", "Green.SLS", "Red"}) MakeFolders(logos + set + "\\");
        main.settings.logoPath = logos;
    }

    /// What stands in the real list, a "+" before each that is checked.
    static Names Listed(FrmOptions& options) {
        const HWND list = user::Control(options.handle(), ID_RotationList);
        Names names;
        for (int i = 0; i < ListView_GetItemCount(list); ++i) {
            char text[260] = "";
            LVITEMA item{};
            item.pszText = text;
            item.cchTextMax = sizeof text;
            SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(i),
                         reinterpret_cast<LPARAM>(&item));
            names.push_back((ListView_GetCheckState(list, i) ? "+" : "-") + std::string(text));
        }
        return names;
    }
    /// For the user's thread: clicks the box of a set.
    static void ClickBoxOf(FrmOptions& options, int index) {
        const HWND list = user::Control(options.handle(), ID_RotationList);
        RECT r{};
        r.left = LVIR_LABEL;
        SendMessageA(list, LVM_GETITEMRECT, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&r));
        POINT at{r.left - 8, (r.top + r.bottom) / 2};
        ClientToScreen(list, &at);
        user::ClickAt(at);
    }
    static bool Lists(FrmOptions& options, const Names& names) {
        return WaitUntil([&] { return Listed(options) == names; });
    }
};

TEST_F(PreferencesOfRotation, ShowAllSetsCheckedAtFirst) {
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 5);
        EXPECT_TRUE(Lists(options, {"+Blue", "+Green.SLS", "+Red"}));
        user::TakeShot("preferences_rotation", options.handle());
        PressOk(options);
    });
    EXPECT_EQ(main.settings.leftOutOfRotation, "");
}

TEST_F(PreferencesOfRotation, LeaveOutWhatTheUserClears) {
    main.settings.leftOutOfRotation = "Red";
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 5);
        EXPECT_TRUE(Lists(options, {"+Blue", "+Green.SLS", "-Red"}));
        ClickBoxOf(options, 1);
        EXPECT_TRUE(Lists(options, {"+Blue", "-Green.SLS", "-Red"}));
        ClickBoxOf(options, 2);
        EXPECT_TRUE(Lists(options, {"+Blue", "-Green.SLS", "+Red"}));
        SetFocusOn(options.handle(), options.RotationList.handle());
        user::Press(VK_SPACE);
        EXPECT_TRUE(Lists(options, {"-Blue", "-Green.SLS", "+Red"}));
        EXPECT_EQ(main.settings.leftOutOfRotation, "Red");
        PressOk(options);
    });
    EXPECT_EQ(main.settings.leftOutOfRotation, "Blue/Green.SLS");
}

TEST_F(PreferencesOfRotation, CheckAndClearAllAtOnce) {
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 5);
        user::Click(options.BtnNoSets.handle());
        EXPECT_TRUE(Lists(options, {"-Blue", "-Green.SLS", "-Red"}));
        user::Click(options.BtnAllSets.handle());
        EXPECT_TRUE(Lists(options, {"+Blue", "+Green.SLS", "+Red"}));
        user::Click(options.BtnNoSets.handle());
        PressOk(options);
    });
    EXPECT_EQ(main.settings.leftOutOfRotation, "Blue/Green.SLS/Red");
}

TEST_F(PreferencesOfRotation, StayAsTheyWereWithoutOkAndWithoutThePage) {
    main.settings.leftOutOfRotation = "Red/gone";
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 5);
        user::Click(options.BtnNoSets.handle());
        EXPECT_TRUE(Lists(options, {"-Blue", "-Green.SLS", "-Red"}));
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([&] { return !options.IsOpen(); }));
    });
    EXPECT_EQ(main.settings.leftOutOfRotation, "Red/gone");
    WithDialog([&](FrmOptions& options) { PressOk(options); });
    EXPECT_EQ(main.settings.leftOutOfRotation, "Red/gone");
}

TEST_F(PreferencesOfRotation, KeepWhatWasClickedWhileOtherPagesAreTurned) {
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 5);
        ClickBoxOf(options, 0);
        ClickTab(options, 1);
        ClickTab(options, 5);
        EXPECT_TRUE(Lists(options, {"-Blue", "+Green.SLS", "+Red"}));
    });
}

}  // namespace
}  // namespace vistrel::test
