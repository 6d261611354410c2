// Making a set the installed one, from each place where the command stands.
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace main_window;

namespace {

class Installing : public MainWindow98 {
 protected:
    void ExpectInstalled(const std::string& startup, const std::string& others) {
        EXPECT_TRUE(Contents(boot + "LOGO.SYS") == Contents(startup + "LOGO.SYS"));
        EXPECT_TRUE(Contents(windows + "LOGOW.SYS") == Contents(others + "LOGOW.SYS"));
        EXPECT_TRUE(Contents(windows + "LOGOS.SYS") == Contents(others + "LOGOS.SYS"));
    }
};

TEST_F(Installing, FromTheToolbar) {
    PutScreens(boot, "old");
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        RECT r{};
        SendMessageA(main.ActiveBar1.bar(), 0x0400 + 29 /* TB_GETITEMRECT */, 2,
                     reinterpret_cast<LPARAM>(&r));
        POINT at{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
        ClientToScreen(main.ActiveBar1.bar(), &at);
        user::ClickAt(at);
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Red"; }));
        user::TakeShot("installed_red");
    });
    ExpectInstalled(logos + "Red\\", logos + "Red\\");
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Red"));
}

TEST_F(Installing, FromTheMenuBar) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Green.SLS");
        EXPECT_TRUE(user::ChooseFromMenuBar(main.handle(), ID_ToolSetDefault));
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Green.SLS"; }));
    });
    ExpectInstalled(logos + "Green.SLS\\", logos);
}

TEST_F(Installing, FromThePopUpMenuOfTheList) {
    WithMainWindow([&](Principale& main) {
        user::RightClickAt(PointOfSet(main, "Red"));
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ToolSetDefault));
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Red"; }));
    });
    ExpectInstalled(logos + "Red\\", logos + "Red\\");
}

TEST_F(Installing, ByADoubleClick) {
    WithMainWindow([&](Principale& main) {
        user::DoubleClickAt(PointOfSet(main, "Red"));
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Red"; }));
    });
    ExpectInstalled(logos + "Red\\", logos + "Red\\");
}

TEST_F(Installing, NotByADoubleClickBelowTheLastSet) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        POINT at = PointOfSet(main, "Red");
        at.y += 60;
        user::DoubleClickAt(at);
        // The list takes these clicks before the next one.
        ClickSet(main, "Green.SLS");
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        main.Preferences().actionOnDoubleClick = 1;
        user::DoubleClickAt(at);
        ClickSet(main, "Red");
        EXPECT_FALSE(main.Timer1.Enabled());
        EXPECT_EQ(user::FindTop("SelPictureForm"), nullptr);
    });
    EXPECT_FALSE(Exists(boot + "LOGO.SYS"));
}

TEST_F(Installing, WithoutSynchronizingTakesMirrorkinBack) {
    Store("Synchronize logos", TextValue("1"));
    WithMainWindow([&](Principale& main) {
        main.SelItem("Red");
        Command(main, ID_ToolSetDefault);
        main.Preferences().synchronizeLogos = 0;
        Command(main, ID_ToolSetDefault);
    });
    EXPECT_EQ(StoredIn(kRunKey, "Mirrorkin"), std::nullopt);
    EXPECT_FALSE(Exists(program + "Mirrorkin.ini"));
}

TEST_F(Installing, ShowsTheHourglassMeanwhile) {
    Put(logos + "Red\\LOGO.SYS", std::string(60'000'000, 'x'));
    WithMainWindow([&](Principale& main) {
        main.SelItem("Red");
        user::MoveTo(user::CentreOf(main.MyList.handle()));
        Settle(main);
        EXPECT_FALSE(seen::PointerIsHourglass());
        StartCommand(main, ID_ToolSetDefault);
        EXPECT_TRUE(WaitUntil([] { return seen::PointerIsHourglass(); }));
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Red"; }));
        EXPECT_TRUE(WaitUntil([] { return !seen::PointerIsHourglass(); }));
    });
}

TEST_F(Installing, OnlyTheStartupScreenWhileSynchronizingAndMirrorkinIsRegistered) {
    Store("Synchronize logos", TextValue("1"));
    PutScreens(windows, "old");
    WithMainWindow([&](Principale& main) {
        main.SelItem("Red");
        Command(main, ID_ToolSetDefault);
    });
    EXPECT_TRUE(Contents(boot + "LOGO.SYS") == Contents(logos + "Red\\LOGO.SYS"));
    EXPECT_EQ(Contents(windows + "LOGOW.SYS"), "old LOGOW.SYS");
    EXPECT_EQ(StoredIn(kRunKey, "Mirrorkin"), SavedText(program + "Mirrorkin.exe /auto"));
    EXPECT_TRUE(Exists(program + "Mirrorkin.ini"));
}

TEST_F(Installing, SelectsTheInstalledSetAtTheNextStart) {
    WithMainWindow([&](Principale& main) {
        main.SelItem("Green.SLS");
        Command(main, ID_ItmSetDefault);
    });
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(main.DefaultLogo.Text(), "Green.SLS");
        EXPECT_EQ(main.MyList.SelectedItem(), 1);
    });
}

TEST_F(Installing, SurvivesASetThatVanished) {
    WithMainWindow([&](Principale& main) {
        main.SelItem("Red");
        RemoveTree(logos + "Red");
        Command(main, ID_ToolSetDefault);
        EXPECT_EQ(main.DefaultLogo.Text(), "Red");
    });
    EXPECT_FALSE(Exists(boot + "LOGO.SYS"));
}

}  // namespace
}  // namespace vistrel::test
