// The list of sets seen as thumbnails.
#include <ole2.h>
#include <windows.h>

#include <utility>

#include "tests/main_window/file_drag_source.h"
#include "tests/set_list/thumbnails_fixture.h"
#include "tests/support/user/held_objects.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

class Thumbnails : public ThumbnailView {
 protected:
    /// How many pixels in the lower left corner of a set's picture, where its marks are, have not
    /// the picture's colour.
    static int MarkPixels(Principale& main, const std::string& set, COLORREF color) {
        const RECT r = PictureOf(main, set);
        int count = 0;
        for (LONG y = r.bottom - 22; y < r.bottom; ++y)
            for (LONG x = r.left; x < r.left + 46; ++x)
                if (seen::PixelAt({x, y}) != color) ++count;
        return count;
    }
    static LONG ViewOf(Principale& main) {
        return GetWindowLongA(main.MyList.handle(), GWL_STYLE) & LVS_TYPEMASK;
    }
};

TEST_F(Thumbnails, IsChosenFromTheMenuAndShowsStartupScreensInFourToThree) {
    WithMainWindow([&](Principale& main) {
        EXPECT_TRUE(user::ChooseFromMenuBar(main.handle(), ID_ToolThumbnailView));
        EXPECT_TRUE(IsSeen(main, "Blue", kBlueScreen));
        EXPECT_TRUE(IsSeen(main, "Green.SLS", kGreenScreen));
        EXPECT_TRUE(IsSeen(main, "Red", kRed));
        EXPECT_EQ(ViewOf(main), LVS_ICON);
        const RECT r = PictureOf(main, "Red");
        EXPECT_EQ((r.right - r.left) * 3, (r.bottom - r.top) * 4);
        for (const POINT at : {POINT{r.left, r.top}, POINT{r.right - 1, r.bottom - 1}})
            EXPECT_EQ(seen::PixelAt(at), kRed);
        EXPECT_EQ(seen::PixelAt({r.left - 1, r.top}), GetSysColor(COLOR_BTNSHADOW));
        // The name is under it.
        EXPECT_GE(PointOfSet(main, "Red").y, r.bottom);
        user::TakeShot("thumbnails");
    });
    EXPECT_EQ(Stored("Thumbnails"), SavedText("1"));
    EXPECT_EQ(Stored("View"), SavedText("0"));
}

TEST_F(Thumbnails, ScrollsDownwardsWhateverTheViewBeforeDid) {
    for (int i = 10; i < 90; ++i) MakeFolders(logos + "Set " + std::to_string(i) + "\\");
    WithMainWindow([&](Principale& main) {
        const auto bars = [&] {
            return GetWindowLongA(main.MyList.handle(), GWL_STYLE) & (WS_HSCROLL | WS_VSCROLL);
        };
        EXPECT_EQ(bars(), WS_HSCROLL);
        Command(main, ID_ToolThumbnailView);
        EXPECT_EQ(bars(), WS_VSCROLL);
        user::TakeShot("thumbnails_scroll");
        Command(main, ID_ToolListView);
        EXPECT_EQ(bars(), WS_HSCROLL);
    });
}

TEST_F(Thumbnails, IsThereAgainAtTheNextStartAndLeavesTheOtherViewsAsTheyWere) {
    Store("View", TextValue("1"));
    WithThumbnails([&](Principale& main) { EXPECT_TRUE(IsSeen(main, "Red", kRed)); });
    EXPECT_EQ(Stored("View"), SavedText("1"));
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(ViewOf(main), LVS_ICON);
        Command(main, ID_ToolListView);
        EXPECT_EQ(ViewOf(main), LVS_LIST);
    });
    EXPECT_EQ(Stored("Thumbnails"), SavedText("0"));
    EXPECT_EQ(Stored("View"), SavedText("0"));
}

TEST_F(Thumbnails, IsTheOnlyOneMarkedInEveryMenu) {
    WithMainWindow([&](Principale& main) {
        const int tools[] = {ID_ToolListView, ID_ToolReportView, ID_ToolThumbnailView};
        const int items[] = {ID_ItmViewType, ID_ItmViewType + 1, ID_ItmThumbnailView};
        for (const int chosen : {2, 0, 2, 1}) {
            Command(main, chosen == 2 ? ID_ItmThumbnailView : tools[chosen]);
            RECT r{};
            GetClientRect(main.handle(), &r);
            POINT corner{r.right - 2, r.bottom - 2};
            ClientToScreen(main.handle(), &corner);
            user::RightClickAt(corner);
            const HMENU menu = user::WaitForPopUp();
            for (int i = 0; i < 3; ++i) {
                EXPECT_EQ(seen::RowOf(menu, static_cast<unsigned>(items[i])).checked, i == chosen);
                EXPECT_EQ(
                    seen::RowOf(GetMenu(main.handle()), static_cast<unsigned>(tools[i])).checked,
                    i == chosen);
            }
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
        }
    });
}

TEST_F(Thumbnails, MarksTheInstalledSetAndSingleLogoSets) {
    WithThumbnails([&](Principale& main) {
        ClickSet(main, "Red");
        EXPECT_TRUE(IsSeen(main, "Blue", kBlueScreen));
        EXPECT_TRUE(IsSeen(main, "Green.SLS", kGreenScreen));
        EXPECT_TRUE(IsSeen(main, "Red", kRed));
        EXPECT_GT(MarkPixels(main, "Blue", kBlueScreen), 100);
        EXPECT_GT(MarkPixels(main, "Green.SLS", kGreenScreen), 100);
        EXPECT_EQ(MarkPixels(main, "Red", kRed), 0);
        Command(main, ID_ToolSetDefault);
        EXPECT_TRUE(WaitUntil([&] {
            return MarkPixels(main, "Red", kRed) > 100 &&
                   MarkPixels(main, "Blue", kBlueScreen) == 0;
        }));
        const int single = MarkPixels(main, "Green.SLS", kGreenScreen);
        ClickSet(main, "Green.SLS");
        Command(main, ID_ToolSetDefault);
        // Both marks, beside each other.
        EXPECT_TRUE(
            WaitUntil([&] { return MarkPixels(main, "Green.SLS", kGreenScreen) > single + 100; }));
    });
}

TEST_F(Thumbnails, FramesTheSelectedSet) {
    WithThumbnails([&](Principale& main) {
        ClickSet(main, "Red");
        const auto frameOf = [&](const char* set) {
            const RECT r = PictureOf(main, set);
            return seen::PixelAt({r.left - 2, r.top + 10});
        };
        EXPECT_TRUE(WaitUntil([&] { return frameOf("Red") == GetSysColor(COLOR_HIGHLIGHT); }));
        user::Press(VK_UP);
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Blue"; }));
        EXPECT_TRUE(WaitUntil([&] { return frameOf("Red") == GetSysColor(COLOR_WINDOW); }));
    });
}

TEST_F(Thumbnails, ShowsTheScreensOfTheSetWhosePictureIsClickedAndInstallsAtADoubleClick) {
    WithThumbnails([&](Principale& main) {
        user::ClickAt(MiddleOfPicture(main, "Red"));
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Red"; }));
        EXPECT_TRUE(WaitUntil([&] { return main.Imag[0].Tag() == logos + "Red\\LOGO.SYS"; }));
        EXPECT_TRUE(SetToolsEnabled(main));
        user::DoubleClickAt(MiddleOfPicture(main, "Red"));
        EXPECT_TRUE(WaitUntil([&] { return user::TextOf(main.DefaultLogo.handle()) == "Red"; }));
        // It lies in the second row, where keys go by places.
        user::Press(VK_UP);
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Blue"; }));
        user::Press(VK_RIGHT);
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Green.SLS"; }));
        user::Press(VK_RETURN);
        EXPECT_TRUE(
            WaitUntil([&] { return user::TextOf(main.DefaultLogo.handle()) == "Green.SLS"; }));
    });
}

TEST_F(Thumbnails, RenamesAndDeletesByKeys) {
    WithThumbnails([&](Principale& main) {
        main.Preferences().deleteInTheRecycleBin = 0;
        BeginRenaming(main, "Red", "Scarlet");
        user::TakeShot("thumbnails_renaming");
        user::Press(VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return Exists(logos + "Scarlet\\LOGO.SYS"); }));
        EXPECT_TRUE(IsSeen(main, "Scarlet", kRed));
        user::Press(VK_DELETE);
        user::AnswerBox(IDYES);
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.Count() == 2; }));
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Green.SLS"; }));
    });
}

TEST_F(Thumbnails, PopsUpTheLogoMenuOverAPicture) {
    WithThumbnails([&](Principale& main) {
        user::RightClickAt(MiddleOfPicture(main, "Red"));
        EXPECT_EQ(user::WaitForPopUp(), seen::RowsOf(GetMenu(main.handle())).at(0).opens);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
        EXPECT_EQ(Selected(main), "Red");
    });
}

TEST_F(Thumbnails, TakesAFolderThatIsDroppedOnIt) {
    MakeFolders(root + "outside\\New\\");
    Put(root + "outside\\New\\LOGO.SYS", ScreenFile(255, 0, 0));
    Store("Thumbnails", TextValue("1"));
    OleInitialize(nullptr);
    {
        FileDragSource source({4, 4}, {root + "outside\\New"});
        WithMainWindow([&](Principale& main) {
            user::Drag(user::CentreOf(source.window()), user::CentreOf(main.MyList.handle()));
            EXPECT_TRUE(WaitUntil([&] { return source.effect() != ~DWORD{0}; }, 60000));
            EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "New"; }));
            EXPECT_TRUE(IsSeen(main, "New", kRed));
        });
    }
    OleUninitialize();
}

TEST_F(Thumbnails, GrowsAndShrinksByTheWheelAndTheKeysWithCtrlAndByTheMenu) {
    WithThumbnails([&](Principale& main) {
        const auto width = [&] {
            const RECT r = PictureOf(main, "Red");
            return r.right - r.left;
        };
        ClickSet(main, "Red");
        EXPECT_EQ(width(), 96);
        const POINT at = MiddleOfPicture(main, "Red");
        user::MoveTo(at);
        for (const int expected : {112, 128}) {
            user::WhileHolding(VK_CONTROL, [] { user::TurnWheel(1); });
            EXPECT_TRUE(WaitUntil([&] { return width() == expected; })) << expected;
        }
        EXPECT_TRUE(IsSeen(main, "Red", kRed));
        user::TakeShot("thumbnails_large");
        const auto enabled = [&](unsigned id) {
            return seen::RowOf(GetMenu(main.handle()), id).enabled;
        };
        EXPECT_TRUE(WaitUntil([&] { return !enabled(ID_ToolLargerThumbnails); }));
        for (const LONG expected : {112, 96, 80}) {
            user::Press(VK_SUBTRACT, {VK_CONTROL});
            EXPECT_TRUE(WaitUntil([&] { return width() == expected; })) << expected;
        }
        EXPECT_TRUE(enabled(ID_ToolLargerThumbnails));
        user::Press(VK_ADD, {VK_CONTROL});
        EXPECT_TRUE(WaitUntil([&] { return width() == 96; }));
        Command(main, ID_ToolSmallerThumbnails);
        Command(main, ID_ToolSmallerThumbnails);
        Command(main, ID_ToolSmallerThumbnails);
        EXPECT_EQ(width(), 64);
        EXPECT_FALSE(enabled(ID_ToolSmallerThumbnails));
        EXPECT_TRUE(IsSeen(main, "Red", kRed));
        user::TakeShot("thumbnails_small");
    });
    EXPECT_EQ(Stored("ThumbnailSize"), SavedText("-2"));
    WithMainWindow([&](Principale& main) { EXPECT_EQ(main.MyList.PictureSize().width, 64); });
}

TEST_F(Thumbnails, HasNoOtherSizesInTheOtherViews) {
    WithMainWindow([&](Principale& main) {
        for (const unsigned id : {ID_ToolLargerThumbnails, ID_ToolSmallerThumbnails})
            EXPECT_FALSE(seen::RowOf(GetMenu(main.handle()), id).enabled);
        user::Press(VK_ADD, {VK_CONTROL});
        Settle(main);
    });
    EXPECT_EQ(Stored("ThumbnailSize"), SavedText("0"));
}

TEST_F(Thumbnails, TakesSizesOutOfRangeForTheNearest) {
    for (const auto& [stored, width] : {std::pair{"99", 128}, std::pair{"-32768", 64}}) {
        Store("ThumbnailSize", TextValue(stored));
        WithThumbnails([&](Principale& main) {
            EXPECT_EQ(main.MyList.PictureSize().width, width);
            EXPECT_TRUE(IsSeen(main, "Blue", RGB(0, 0, 255)));
        });
    }
}

TEST_F(Thumbnails, HoldsNoMoreHandlesAfterManyLooksAndSizes) {
    WithThumbnails([&](Principale& main) {
        const auto look = [&] {
            Command(main, ID_ToolLargerThumbnails);
            Command(main, ID_ToolRefresh);
            EXPECT_TRUE(IsSeen(main, "Red", kRed));
            Command(main, ID_ToolListView);
            Command(main, ID_ToolThumbnailView);
            Command(main, ID_ToolSmallerThumbnails);
            EXPECT_TRUE(IsSeen(main, "Red", kRed));
        };
        look();
        const HeldObjects before = CountHeldObjects();
        for (int i = 0; i < 20; ++i) look();
        EXPECT_FALSE(CountHeldObjects().AreMoreThan(before, 4));
    });
}

}  // namespace
}  // namespace vistrel::test
