// A screen over a display that has not the shape of a tube: black is what is beside it.
#include "tests/boot_show/boot_show_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace main_window;

namespace {

constexpr COLORREF kBlack = RGB(0, 0, 0);

class OtherShape : public BootShow {
 protected:
    /// Where the screen belongs: 4:3 and as large as the display lets it be, in its middle.
    static RECT PlaceOfScreen() {
        const int width = GetSystemMetrics(SM_CXSCREEN), height = GetSystemMetrics(SM_CYSCREEN);
        const bool wide = 3 * width > 4 * height;
        const int across = wide ? height * 4 / 3 : width;
        const int down = wide ? height : width * 3 / 4;
        const int left = (width - across) / 2, top = (height - down) / 2;
        return {left, top, left + across, top + down};
    }
    static void ExpectBlackBeside(const RECT& place) {
        const int right = GetSystemMetrics(SM_CXSCREEN) - 1;
        const int bottom = GetSystemMetrics(SM_CYSCREEN) - 1;
        for (const POINT& corner :
             {POINT{0, 0}, POINT{right, 0}, POINT{0, bottom}, POINT{right, bottom}})
            EXPECT_EQ(seen::PixelAt(corner), kBlack) << corner.x << "," << corner.y;
        const int x = (place.left + place.right) / 2, y = (place.top + place.bottom) / 2;
        const bool wide = place.left > 0;
        const POINT before = wide ? POINT{place.left - 1, y} : POINT{x, place.top - 1};
        const POINT behind = wide ? POINT{place.right, y} : POINT{x, place.bottom};
        EXPECT_EQ(seen::PixelAt(before), kBlack);
        EXPECT_EQ(seen::PixelAt(behind), kBlack);
    }
    /// The pixels in the screen's four corners.
    static bool CornersAre(const RECT& place, COLORREF color) {
        for (const POINT& corner :
             {POINT{place.left, place.top}, POINT{place.right - 1, place.top},
              POINT{place.left, place.bottom - 1}, POINT{place.right - 1, place.bottom - 1}})
            if (seen::PixelAt(corner) != color) return false;
        return true;
    }
};

TEST_F(OtherShape, LeavesTheDisplayBlackBesideTheScreen) {
    const RECT place = PlaceOfScreen();
    ASSERT_NE(place.left == 0, place.top == 0) << "the display has the shape of a tube";
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        EXPECT_TRUE(WaitUntil([&] { return CornersAre(place, kRed); }));
        ExpectBlackBeside(place);
        user::TakeShot("show-other-shape");
        user::Press(VK_SPACE);
        EXPECT_TRUE(WaitUntil([&] { return CornersAre(place, kGreenScreen); }));
        ExpectBlackBeside(place);
        EndBy(show, VK_ESCAPE);
    });
}

TEST_F(OtherShape, StaysBlackBesideWhatMoves) {
    Put(screens + "LOGO.SYS", ScreenFile(255, 0, 0, 236));
    const RECT place = PlaceOfScreen();
    WithMainWindow([&](Principale& main) {
        const HWND show = ShowByF11(main.handle());
        for (int step = 0; step < 3; ++step) {
            EXPECT_TRUE(Moves());
            ExpectBlackBeside(place);
        }
        EndBy(show, VK_ESCAPE);
    });
}

}  // namespace
}  // namespace vistrel::test
