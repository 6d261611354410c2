// The list of sets and the screens of the selected one.
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/held_objects.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace core;
using namespace main_window;

namespace {

using LibraryView = MainWindow98;

TEST_F(LibraryView, ShowsTheInstalledSetSelectedWithItsScreensAndKind) {
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(main.SetNames(), (std::vector<std::string>{"Blue", "Green.SLS", "Red"}));
        EXPECT_EQ(main.MyList.SelectedItem(), 0);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_EQ(main.DefaultLogo.ForeColor(), 0xFF0000);
        EXPECT_EQ(main.LogoType.Text(), "Multi logo");
        EXPECT_EQ(main.NumLogo.Text(), " 3 logo sets");
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(main.Imag[i].Tag(), logos + "Blue\\" + kScreenFileNames[i]);
            EXPECT_EQ(MiddleOf(main.Imag[i]), kBlueScreen);
        }
        user::TakeShot("main_window");
    });
}

TEST_F(LibraryView, LabelsTheThreeScreens) {
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(main.LblScreen[0].Text(), "LOGO.SYS\r\nStartup screen");
        EXPECT_EQ(main.LblScreen[1].Text(), "LOGOW.SYS\r\nWait screen");
        EXPECT_EQ(main.LblScreen[2].Text(), "LOGOS.SYS\r\nShutdown screen");
    });
}

TEST_F(LibraryView, MarksSetsByTheirKind) {
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(main.MyList.ItemIcon(0), "multilogo");
        EXPECT_EQ(main.MyList.ItemIcon(1), "singlelogo");
    });
}

TEST_F(LibraryView, ShowsTheSharedScreensOfASingleLogoSetThatIsClicked) {
    PutSingleSet("Sunset.sls", 255, 0, 0);
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Sunset.sls");
        EXPECT_EQ(main.LogoType.Text(), "Single logo");
        EXPECT_EQ(main.Imag[1].Tag(), logos + "LOGOW.SYS");
        EXPECT_EQ(main.Imag[2].Tag(), logos + "LOGOS.SYS");
        EXPECT_EQ(MiddleOf(main.Imag[0]), kRed);
        EXPECT_EQ(MiddleOf(main.Imag[1]), RGB(255, 255, 255));
    });
}

TEST_F(LibraryView, ShowsNoShutdownPictureWhereTheSetHasNoneButKeepsItsPath) {
    DeleteFileA((logos + "Red\\LOGOS.SYS").c_str());
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        EXPECT_FALSE(main.Imag[2].HasPicture());
        EXPECT_TRUE(Says(main.Imag[2], "no file"));
        EXPECT_EQ(main.Imag[2].Tag(), logos + "Red\\LOGOS.SYS");
    });
}

TEST_F(LibraryView, IsEmptyWhereTheLogoFolderHoldsOnlyTheSharedScreens) {
    for (const char* set : {"Blue", "Green.SLS", "Red"}) RemoveTree(logos + set);
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(main.MyList.Count(), 0);
        EXPECT_EQ(main.NumLogo.Text(), " 0 logo sets");
        EXPECT_EQ(main.LogoType.Text(), "");
        EXPECT_EQ(main.DefaultLogo.Text(), "<Don't know>");
        EXPECT_FALSE(main.Imag[0].HasPicture());
    });
}

TEST_F(LibraryView, KnowsNoInstalledSetWhenTheSettingNamesNoFolder) {
    Store("DefaultLogoSet", TextValue("blue"));  // the case differs
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(main.DefaultLogo.Text(), "<Don't know>");
        EXPECT_EQ(main.MyList.SelectedItem(), -1);
    });
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText(""));
}

TEST_F(LibraryView, CountsOneSetInTheSingular) {
    RemoveTree(logos + "Red");
    RemoveTree(logos + "Green.SLS");
    WithMainWindow([&](Principale& main) { EXPECT_EQ(main.NumLogo.Text(), " 1 logo set"); });
}

TEST_F(LibraryView, ListsNamesWithBlanksDotsQuotesAndAccents) {
    // A name that begins with a dot is a hidden one in Wine.
    for (const char* set : {"A b", "a.b.c", "it's", "caf\xe9 \xfc", "b.SLS"}) PutSet(set, 1, 2, 3);
    PutSet(std::string(200, 'n'), 1, 2, 3);
    WithMainWindow([&](Principale& main) {
        for (const char* set : {"A b", "a.b.c", "it's", "caf\xe9 \xfc", "b.SLS"}) {
            main.SelItem(set);
            EXPECT_EQ(main.Imag[0].Tag(), logos + set + "\\LOGO.SYS");
            EXPECT_TRUE(main.Imag[0].HasPicture());
        }
        EXPECT_GE(main.MyList.FindItem(std::string(200, 'n')), 0);
    });
}

TEST_F(LibraryView, SurvivesScreensThatAreBroken) {
    const std::string good = ScreenFile(1, 2, 3);
    std::string huge = good;
    huge.replace(18, 4, std::string("\xff\xff\xff\x7f", 4));
    std::string topDown = ScreenFile(255, 0, 0);
    topDown.replace(22, 4, std::string("\x70\xfe\xff\xff", 4));  // -400
    const struct {
        std::string contents;
        bool shown;
    } screens[] = {{"", false}, {good.substr(0, 53), false}, {huge, false}, {topDown, true}};
    for (const auto& screen : screens) {
        Put(logos + "Red\\LOGO.SYS", screen.contents);
        WithMainWindow([&](Principale& main) {
            ClickSet(main, "Red");
            EXPECT_EQ(main.Imag[0].HasPicture(), screen.shown) << screen.contents.size();
        });
    }
    Put(logos + "Red\\LOGO.SYS", good.substr(0, 129077));
    WithMainWindow([&](Principale& main) { ClickSet(main, "Red"); });
}

TEST_F(LibraryView, FillsABoxThatGrewUntilItsScreenIsDrawnAnew) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        const HWND box = main.Imag[1].handle();
        RECT r{};
        GetClientRect(box, &r);
        SetWindowPos(box, HWND_TOP, 0, 0, r.right + 40, r.bottom + 40, SWP_NOMOVE);
        Settle(main);
        const HDC dc = GetDC(box);
        EXPECT_TRUE(WaitUntil([&] {
            // What it covers now may have been painted over it.
            RedrawWindow(box, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
            return GetPixel(dc, r.right + 20, r.bottom + 20) == kRed;
        }));
        ReleaseDC(box, dc);
    });
}

TEST_F(LibraryView, SurvivesAFolderWhereAScreenShouldBe) {
    DeleteFileA((logos + "Red\\LOGO.SYS").c_str());
    MakeFolders(logos + "Red\\LOGO.SYS\\");
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        EXPECT_FALSE(main.Imag[0].HasPicture());
        EXPECT_TRUE(main.Imag[1].HasPicture());
    });
}

TEST_F(LibraryView, RefreshesAtF5) {
    WithMainWindow([&](Principale& main) {
        PutSet("Zebra", 9, 9, 9);
        ClickSet(main, "Red");
        user::Press(VK_F5);
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.Count() == 4; }));
        EXPECT_TRUE(WaitUntil([&] { return main.NumLogo.Text() == " 4 logo sets"; }));
        Settle(main);
        EXPECT_EQ(Selected(main), "Red");
    });
}

TEST_F(LibraryView, ClearsPicturesAndKindWhereNoInstalledSetIsFoundAnyMore) {
    WithMainWindow([&](Principale& main) {
        RemoveTree(logos + "Blue");
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(Selected(main), "");
        EXPECT_EQ(main.DefaultLogo.Text(), "<Don't know>");
        EXPECT_EQ(main.LogoType.Text(), "");
        for (const PictureBox& box : main.Imag) EXPECT_TRUE(Says(box, "no picture"));
    });
}

TEST_F(LibraryView, ShowsTheHourglassWhileAScreenIsRead) {
    Put(logos + "Red\\LOGO.SYS", LargeScreenFile());
    WithMainWindow([&](Principale& main) {
        user::MoveTo(user::CentreOf(main.MyList.handle()));
        Settle(main);
        EXPECT_FALSE(seen::PointerIsHourglass());
        user::ClickAt(PointOfSet(main, "Red"));
        EXPECT_TRUE(WaitUntil([] { return seen::PointerIsHourglass(); }));
        EXPECT_TRUE(WaitUntil([] { return !seen::PointerIsHourglass(); }));
    });
}

TEST_F(LibraryView, ShowsTheHourglassWhileTheSetsAreRead) {
    for (const char* set : {"Blue", "Green.SLS", "Red"}) RemoveTree(logos + set);
    for (int i = 0; i < 2000; ++i) MakeFolders(logos + "Set " + std::to_string(i) + "\\");
    WithMainWindow([&](Principale& main) {
        user::MoveTo(user::CentreOf(main.MyList.handle()));
        Settle(main);
        EXPECT_FALSE(seen::PointerIsHourglass());
        EXPECT_TRUE(SeesTheHourglass(main, ID_ToolRefresh));
        EXPECT_TRUE(WaitUntil([] { return !seen::PointerIsHourglass(); }));
    });
}

TEST_F(LibraryView, FollowsTheSelectionOfTheKeyboard) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Blue");
        user::Press(VK_DOWN);
        EXPECT_TRUE(WaitUntil([&] { return main.Imag[0].Tag() == logos + "Green.SLS\\LOGO.SYS"; }));
    });
}

TEST_F(LibraryView, HoldsNoMoreHandlesAfterFourHundredSelectionsThanAfterTwoHundred) {
    WithMainWindow([&](Principale& main) {
        const auto select = [&] {
            for (int i = 0; i < 100; ++i) {
                main.SelItem("Red");
                main.SelItem("Green.SLS");
            }
            Settle(main);
        };
        select();
        const HeldObjects before = CountHeldObjects();
        select();
        EXPECT_FALSE(CountHeldObjects().AreMoreThan(before, 4))
            << before << "; " << CountHeldObjects();
    });
}

}  // namespace
}  // namespace vistrel::test
