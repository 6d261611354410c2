// When a thumbnail is made, kept in the file of thumbnails and taken from there.
#include <windows.h>

#include <algorithm>
#include <vector>

#include "tests/set_list/thumbnails_fixture.h"
#include "thumbnails/cache.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

class KeptThumbnails : public ThumbnailView {
 protected:
    /// How many pictures the file keeps that was made anew, by its size.
    std::size_t Kept() const {
        constexpr std::size_t kBeforePixels = 32 + 640 * 32;
        // The program has it open.
        WIN32_FIND_DATAA found{};
        FindClose(FindFirstFileA(cache.c_str(), &found));
        const std::size_t size = found.nFileSizeLow;
        return size < kBeforePixels ? 0 : (size - kBeforePixels) / (128 * 96 * 2);
    }
    static void SetTimeOf(const std::string& path, DWORD low) {
        const HANDLE file =
            CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr);
        const FILETIME time{low, 0x01be0000};
        SetFileTime(file, nullptr, nullptr, &time);
        CloseHandle(file);
    }

    const std::string cache = program + "thumbnails.dat";
};

TEST_F(KeptThumbnails, ShowsAScreenThatHasChangedAfterF5) {
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

TEST_F(KeptThumbnails, TakesAPictureFromItsFileWhileTheScreenIsTheSame) {
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

TEST_F(KeptThumbnails, ShowsKeptPicturesWithTheListAndLooksAtTheirScreensLater) {
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

TEST_F(KeptThumbnails, ForgetsThePictureOfAScreenThatIsGone) {
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

TEST_F(KeptThumbnails, MakesPicturesAnewWhereTheirFileIsDamagedOrCannotBeWritten) {
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

TEST_F(KeptThumbnails, ShowsTheKindOfASetWithoutAScreenOrWithABrokenOne) {
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

TEST_F(KeptThumbnails, ReadsNothingThatIsNotSeen) {
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

}  // namespace
}  // namespace vistrel::test
