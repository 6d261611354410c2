// The list of sets seen as thumbnails.
#include <windows.h>
// The others need windows.h first.
#include <commctrl.h>
#include <ole2.h>

#include <algorithm>

#include "tests/main_window/file_drag_source.h"
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"
#include "thumbnails/cache.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

class ThumbnailView : public MainWindow98 {
 protected:
    /// Opens the main window with its sets seen as thumbnails.
    void WithThumbnails(const std::function<void(Principale& main)>& user) {
        Store("Thumbnails", TextValue("1"));
        WithMainWindow(user);
    }

    /// The part of the screen that a set's picture takes.
    static RECT PictureOf(Principale& main, const std::string& set) {
        const HWND list = main.MyList.handle();
        RECT r{};
        r.left = LVIR_ICON;
        SendMessageA(list, LVM_GETITEMRECT, static_cast<WPARAM>(main.MyList.FindItem(set)),
                     reinterpret_cast<LPARAM>(&r));
        MapWindowPoints(list, nullptr, reinterpret_cast<POINT*>(&r), 2);
        const Size size = main.MyList.PictureSize();
        const LONG left = (r.left + r.right - size.width) / 2;
        const LONG top = (r.top + r.bottom - size.height) / 2;
        return {left, top, left + size.width, top + size.height};
    }
    static POINT MiddleOfPicture(Principale& main, const std::string& set) {
        const RECT r = PictureOf(main, set);
        return {(r.left + r.right) / 2, (r.top + r.bottom) / 2};
    }
    /// Whether a set is seen in this colour, soon.
    static bool IsSeen(Principale& main, const std::string& set, COLORREF color) {
        return WaitUntil([&] { return seen::PixelAt(MiddleOfPicture(main, set)) == color; });
    }
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
    static void TurnWheel(int notches) {
        INPUT turn{};
        turn.type = INPUT_MOUSE;
        turn.mi.dwFlags = MOUSEEVENTF_WHEEL;
        turn.mi.mouseData = static_cast<DWORD>(notches * WHEEL_DELTA);
        SendInput(1, &turn, sizeof turn);
    }
    /// How many pictures the file keeps that was made anew, by its size.
    std::size_t Kept() const {
        constexpr std::size_t kBeforePixels = 32 + 640 * 32;
        // The program has it open.
        WIN32_FIND_DATAA found{};
        FindClose(FindFirstFileA(cache.c_str(), &found));
        const std::size_t size = found.nFileSizeLow;
        return size < kBeforePixels ? 0 : (size - kBeforePixels) / (128 * 96 * 2);
    }
    void SetTimeOf(const std::string& path, DWORD low) {
        const HANDLE file =
            CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        const FILETIME time{low, 0x01be0000};
        SetFileTime(file, nullptr, nullptr, &time);
        CloseHandle(file);
    }

    const std::string cache = program + "thumbnails.dat";
};

TEST_F(ThumbnailView, IsChosenFromTheMenuAndShowsStartupScreensInFourToThree) {
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

TEST_F(ThumbnailView, ScrollsDownwardsWhateverTheViewBeforeDid) {
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

TEST_F(ThumbnailView, IsThereAgainAtTheNextStartAndLeavesTheOtherViewsAsTheyWere) {
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

TEST_F(ThumbnailView, IsTheOnlyOneMarkedInEveryMenu) {
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

TEST_F(ThumbnailView, MarksTheInstalledSetAndSingleLogoSets) {
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

TEST_F(ThumbnailView, FramesTheSelectedSet) {
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

TEST_F(ThumbnailView, ShowsTheScreensOfTheSetWhosePictureIsClickedAndInstallsAtADoubleClick) {
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

TEST_F(ThumbnailView, RenamesAndDeletesByKeys) {
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

TEST_F(ThumbnailView, PopsUpTheLogoMenuOverAPicture) {
    WithThumbnails([&](Principale& main) {
        user::RightClickAt(MiddleOfPicture(main, "Red"));
        EXPECT_EQ(user::WaitForPopUp(), seen::RowsOf(GetMenu(main.handle())).at(0).opens);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
        EXPECT_EQ(Selected(main), "Red");
    });
}

TEST_F(ThumbnailView, TakesAFolderThatIsDroppedOnIt) {
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

TEST_F(ThumbnailView, ShowsAScreenThatHasChangedAfterF5) {
    WithThumbnails([&](Principale& main) {
        EXPECT_TRUE(IsSeen(main, "Red", kRed));
        Put(logos + "Red\\LOGO.SYS", ScreenFile(0, 255, 0));
        SetTimeOf(logos + "Red\\LOGO.SYS", 1);
        ClickSet(main, "Red");
        user::Press(VK_F5);
        EXPECT_TRUE(IsSeen(main, "Red", kGreenScreen));
        EXPECT_EQ(Selected(main), "Red");
    });
}

TEST_F(ThumbnailView, TakesAPictureFromItsFileWhileTheScreenIsTheSame) {
    const std::string screen = logos + "Red\\LOGO.SYS";
    SetTimeOf(screen, 1);
    WithThumbnails([&](Principale& main) { EXPECT_TRUE(IsSeen(main, "Red", kRed)); });
    // Another picture, though by size and time it is the same file.
    Put(screen, ScreenFile(0, 255, 0));
    SetTimeOf(screen, 1);
    WithThumbnails([&](Principale& main) { EXPECT_TRUE(IsSeen(main, "Red", kRed)); });
    SetTimeOf(screen, 2);
    WithThumbnails([&](Principale& main) { EXPECT_TRUE(IsSeen(main, "Red", kGreenScreen)); });
}

TEST_F(ThumbnailView, ShowsKeptPicturesWithTheListAndLooksAtTheirScreensLater) {
    WithThumbnails([&](Principale& main) {
        EXPECT_TRUE(IsSeen(main, "Red", kRed));
        EXPECT_TRUE(IsSeen(main, "Green.SLS", kGreenScreen));
    });
    Principale main(locations);
    main.Create(nullptr);
    main.Show();
    HandleWaiting();
    std::vector<bool> painted;
    const auto paint = main.MyList.PaintPicture;
    main.MyList.PaintPicture = [&](auto target, int index, Point at) {
        painted.push_back(paint(target, index, at));
        return painted.back();
    };
    Put(logos + "Red\\LOGO.SYS", ScreenFile(0, 255, 0));
    SetTimeOf(logos + "Red\\LOGO.SYS", 1);
    SendMessageA(main.handle(), WM_COMMAND, ID_ToolRefresh, 0);
    UpdateWindow(main.MyList.handle());
    EXPECT_EQ(painted, std::vector<bool>(3, true));
    // No message has been handled since.
    POINT at = MiddleOfPicture(main, "Red");
    ScreenToClient(main.MyList.handle(), &at);
    const HDC dc = GetDC(main.MyList.handle());
    EXPECT_EQ(GetPixel(dc, at.x, at.y), kRed);
    ReleaseDC(main.MyList.handle(), dc);
    EXPECT_TRUE(WaitUntil([&] {
        HandleWaiting();
        return seen::PixelAt(MiddleOfPicture(main, "Red")) == kGreenScreen;
    }));
    // It was never without a picture.
    EXPECT_EQ(std::count(painted.begin(), painted.end(), false), 0);
    main.Unload();
}

TEST_F(ThumbnailView, ForgetsThePictureOfAScreenThatIsGone) {
    WithThumbnails([&](Principale& main) { EXPECT_TRUE(IsSeen(main, "Red", kRed)); });
    const std::string screen = logos + "Red\\LOGO.SYS";
    EXPECT_TRUE(thumbnails::Cache(cache).FindOfPath(screen));
    DeleteFileA(screen.c_str());
    WithThumbnails([&](Principale& main) {
        EXPECT_TRUE(IsSeen(main, "Blue", kBlueScreen));
        EXPECT_TRUE(WaitUntil([&] {
            const RECT r = PictureOf(main, "Red");
            return seen::PixelAt({r.left + 4, r.top + 4}) == GetSysColor(COLOR_BTNFACE);
        }));
    });
    EXPECT_FALSE(thumbnails::Cache(cache).FindOfPath(screen));
    EXPECT_TRUE(thumbnails::Cache(cache).FindOfPath(logos + "Blue\\LOGO.SYS"));
}

TEST_F(ThumbnailView, MakesPicturesAnewWhereTheirFileIsDamagedOrCannotBeWritten) {
    WithThumbnails([&](Principale& main) { EXPECT_TRUE(IsSeen(main, "Red", kRed)); });
    const std::string good = Contents(cache).value_or("");
    EXPECT_FALSE(good.empty());
    for (const std::string& bad :
         {std::string(), std::string("x"), std::string(good.size(), '\xff'),
          good.substr(0, good.size() / 2), good.substr(0, 100) + std::string(40000, 'y')}) {
        Put(cache, bad);
        WithThumbnails([&](Principale& main) { EXPECT_TRUE(IsSeen(main, "Red", kRed)); });
    }
    Put(cache, "x");
    GiveAttributes(cache, FILE_ATTRIBUTE_READONLY);
    WithThumbnails([&](Principale& main) { EXPECT_TRUE(IsSeen(main, "Red", kRed)); });
    GiveAttributes(cache, FILE_ATTRIBUTE_NORMAL);
    EXPECT_EQ(Contents(cache), "x");
}

TEST_F(ThumbnailView, ShowsTheKindOfASetWithoutAScreenOrWithABrokenOne) {
    DeleteFileA((logos + "Red\\LOGO.SYS").c_str());
    Put(logos + "Green.SLS\\LOGO.SYS", "no screen");
    WithThumbnails([&](Principale& main) {
        EXPECT_TRUE(IsSeen(main, "Blue", kBlueScreen));
        for (const char* set : {"Red", "Green.SLS"}) {
            const RECT r = PictureOf(main, set);
            EXPECT_EQ(seen::PixelAt({r.left + 4, r.top + 4}), GetSysColor(COLOR_BTNFACE)) << set;
        }
        user::TakeShot("thumbnails_without_screens");
    });
    EXPECT_EQ(Kept(), 1u);
}

TEST_F(ThumbnailView, ReadsNothingThatIsNotSeen) {
    for (int i = 10; i < 90; ++i) PutSingleSet("Set " + std::to_string(i) + ".SLS", 255, 0, 0);
    WithThumbnails([&](Principale& main) {
        std::size_t inView = 0;
        for (int i = 0; i < main.MyList.Count(); ++i) inView += main.MyList.IsInView(i);
        EXPECT_GT(inView, 3u);
        EXPECT_LT(inView, 60u);
        EXPECT_TRUE(WaitUntil([&] { return Kept() == inView; })) << Kept() << " of " << inView;
        user::TakeShot("thumbnails_many");
        ClickSet(main, "Blue");
        user::Press(VK_END);
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Set 89.SLS"; }));
        EXPECT_TRUE(IsSeen(main, "Set 89.SLS", kRed));
        // Some between them have not been seen.
        EXPECT_LT(Kept(), 80u);
        const int top = main.MyList.TopItem();
        EXPECT_GT(top, 0);
        user::Press(VK_F5);
        Settle(main);
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.TopItem() == top; }));
        EXPECT_EQ(Selected(main), "Set 89.SLS");
    });
}

TEST_F(ThumbnailView, GrowsAndShrinksByTheWheelAndTheKeysWithCtrlAndByTheMenu) {
    WithThumbnails([&](Principale& main) {
        const auto width = [&] {
            const RECT r = PictureOf(main, "Red");
            return r.right - r.left;
        };
        ClickSet(main, "Red");
        EXPECT_EQ(width(), 96);
        const POINT at = MiddleOfPicture(main, "Red");
        user::MoveTo(at);
        for (const int expected : {112, 128})
            EXPECT_TRUE(WaitUntil([&] {
                if (width() == expected) return true;
                user::WhileHolding(VK_CONTROL, [] { TurnWheel(1); });
                return WaitUntil([&] { return width() == expected; }, 3000);
            }));
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

TEST_F(ThumbnailView, HasNoOtherSizesInTheOtherViews) {
    WithMainWindow([&](Principale& main) {
        for (const unsigned id : {ID_ToolLargerThumbnails, ID_ToolSmallerThumbnails})
            EXPECT_FALSE(seen::RowOf(GetMenu(main.handle()), id).enabled);
        user::Press(VK_ADD, {VK_CONTROL});
        Settle(main);
    });
    EXPECT_EQ(Stored("ThumbnailSize"), SavedText("0"));
}

TEST_F(ThumbnailView, TakesSizesOutOfRangeForTheNearest) {
    for (const auto& [stored, width] : {std::pair{"99", 128}, std::pair{"-32768", 64}}) {
        Store("ThumbnailSize", TextValue(stored));
        WithThumbnails([&](Principale& main) {
            EXPECT_EQ(main.MyList.PictureSize().width, width);
            EXPECT_TRUE(IsSeen(main, "Blue", RGB(0, 0, 255)));
        });
    }
}

TEST_F(ThumbnailView, HoldsNoMoreHandlesAfterManyLooksAndSizes) {
    WithThumbnails([&](Principale& main) {
        const auto handles = [] {
            return GetGuiResources(GetCurrentProcess(), GR_GDIOBJECTS) +
                   GetGuiResources(GetCurrentProcess(), GR_USEROBJECTS);
        };
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
        const DWORD before = handles();
        for (int i = 0; i < 20; ++i) look();
        EXPECT_LE(handles(), before + 4);
    });
}

}  // namespace
}  // namespace vistrel::test
