// An area that is drawn freehand, with the mouse and with the keys alone, and a colour that is
// taken by the space bar.
#include "animate/document.h"
#include "tests/animate/animate_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

constexpr int kFreehand = 1;
constexpr int kColor = 2;

class Freehand : public Moving {
 protected:
    /// A shimmer whose area is chosen in this way, with the keys on the screen.
    static HWND OpenWithShimmer(SelPictureForm& editor, int way) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        AddLayer(window, 1);
        Choose(window, ID_ChooseBy, way);
        GiveKeys(window, ID_MovingBox);
        return window;
    }

    /// Draws with the left button through these pixels of the 320 x 400.
    static void Draw(HWND window, std::vector<POINT> corners) {
        for (POINT& corner : corners) corner = OnScreen(window, corner.x, corner.y);
        user::DragThrough(corners, [=] { Follow(window); });
        Follow(window);
    }
    static void DrawHolding(WORD key, HWND window, const std::vector<POINT>& corners) {
        user::WhileHolding(key, [&] { Draw(window, corners); });
    }
    static std::vector<POINT> Square(int left, int top, int right, int bottom) {
        return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
    }

    static void PressTimes(WORD key, int times, const std::vector<WORD>& held = {}) {
        for (int i = 0; i < times; ++i) user::Press(key, held);
    }
    /// From the cross and back to it, each side so many steps of the keys long.
    static void DrawByKeys(HWND window, int steps, const std::vector<WORD>& held = {}) {
        user::Press(VK_SPACE, held);
        PressTimes(VK_RIGHT, steps);
        PressTimes(VK_DOWN, steps);
        PressTimes(VK_LEFT, steps);
        user::Press(VK_SPACE);
        Follow(window);
    }
    static std::string Hint(HWND window) { return user::TextOf(Item(window, ID_LblMovingHint)); }
    /// What the first slot's screen is when this area of the picture moves.
    void ExpectMoves(SelPictureForm& editor, const screen::Area& area) {
        EXPECT_EQ(MovingArea(editor), area);
    }
    static screen::Area MovingArea(SelPictureForm& editor) {
        const screen::IndexedScreen made = ScreenOf(editor.ImgPreview[0].Tag());
        screen::Area moving;
        for (std::size_t i = 0; i < made.indices.size(); ++i)
            moving.in[i] = made.IsAnimated() && made.indices[i] >= made.firstAnimated;
        return moving;
    }
    static screen::Area InsideOf(int left, int top, int right, int bottom) {
        const screen::ScreenPoint corners[] = {
            {left, top}, {right, top}, {right, bottom}, {left, bottom}};
        return screen::LassoArea(corners);
    }
};

TEST_F(Freehand, GoesRoundWithTheMouseAddsWithShiftAndTakesAwayWithCtrl) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenWithShimmer(editor, kFreehand);
        Draw(window, Square(40, 40, 200, 200));
        DrawHolding(VK_SHIFT, window, Square(220, 220, 300, 300));
        DrawHolding(VK_CONTROL, window, Square(100, 100, 140, 140));
        user::TakeShot("moving-freehand");
        CloseBy(editor, window, IDOK);
        const screen::Area moving = MovingArea(editor);
        EXPECT_TRUE(moving.Has(60, 60));
        EXPECT_TRUE(moving.Has(180, 190));
        EXPECT_TRUE(moving.Has(260, 260));
        EXPECT_FALSE(moving.Has(120, 120));
        EXPECT_FALSE(moving.Has(210, 210));
        EXPECT_FALSE(moving.Has(20, 120));
        const screen::ScreenBounds bounds = screen::BoundsOf(moving);
        EXPECT_NEAR(bounds.left, 40, 2);
        EXPECT_NEAR(bounds.bottom, 300, 2);
    });
}

TEST_F(Freehand, IsOneChangeForEachLine) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenWithShimmer(editor, kFreehand);
        Draw(window, Square(40, 40, 200, 200));
        Draw(window, Square(60, 60, 100, 100));
        Press(window, ID_BtnUndo);
        CloseBy(editor, window, IDOK);
        EXPECT_NEAR(screen::BoundsOf(MovingArea(editor)).right, 200, 2);
    });
}

// A point and back is no area; nor is a press where nothing was drawn.
TEST_F(Freehand, LeavesTheAreaAtAMereClick) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenWithShimmer(editor, kFreehand);
        user::ClickAt(OnScreen(window, 20, 20));
        Follow(window);
        CloseBy(editor, window, IDOK);
        ExpectMoves(editor, screen::RectangleArea(80, 100, 160, 200));
    });
}

TEST_F(Freehand, IsDrawnByTheArrowKeysFromSpaceToSpace) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenWithShimmer(editor, kFreehand);
        EXPECT_EQ(Hint(window),
                  "Draw round it; by keys from Space to Space. Shift adds, Ctrl takes away.");
        // The cross begins in the middle; with Shift it goes one pixel at a time.
        PressTimes(VK_LEFT, 10);
        user::Press(VK_UP, {VK_SHIFT});
        Follow(window);
        user::TakeShot("moving-cross");
        user::Press(VK_SPACE);
        Follow(window);
        EXPECT_EQ(Hint(window),
                  "The arrow keys draw, with Shift finely. Space ends the line, Esc gives it up.");
        PressTimes(VK_RIGHT, 8);
        PressTimes(VK_DOWN, 8);
        // The mouse that moves over the screen is not meant.
        user::MoveTo(OnScreen(window, 300, 20));
        PressTimes(VK_LEFT, 8);
        Follow(window);
        user::TakeShot("moving-line-by-keys");
        user::Press(VK_SPACE);
        Follow(window);
        // The line is at its end: this moves the cross alone.
        user::Press(VK_DOWN);
        CloseBy(editor, window, IDOK);
        ExpectMoves(editor, InsideOf(100, 199, 148, 247));
    });
}

TEST_F(Freehand, ByKeysAddsWithShiftAndTakesAwayWithCtrl) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenWithShimmer(editor, kFreehand);
        DrawByKeys(window, 8);  // the cross is then 48 further down
        user::Press(VK_UP);
        user::Press(VK_RIGHT);
        DrawByKeys(window, 4, {VK_CONTROL});
        PressTimes(VK_DOWN, 10);
        DrawByKeys(window, 2, {VK_SHIFT});
        CloseBy(editor, window, IDOK);
        screen::Area expected = InsideOf(160, 200, 208, 248);
        screen::Remove(expected, InsideOf(166, 242, 190, 266));
        screen::Add(expected, InsideOf(166, 326, 178, 338));
        ExpectMoves(editor, expected);
    });
}

TEST_F(Freehand, GivesTheLineUpByEsc) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenWithShimmer(editor, kFreehand);
        user::Press(VK_SPACE);
        PressTimes(VK_RIGHT, 4);
        PressTimes(VK_DOWN, 4);
        user::Press(VK_ESCAPE);
        Follow(window);
        EXPECT_TRUE(IsWindow(window));
        // And one that has not left its first point.
        user::Press(VK_SPACE);
        user::Press(VK_ESCAPE);
        Follow(window);
        EXPECT_TRUE(IsWindow(window));
        EXPECT_EQ(Hint(window).substr(0, 4), "Draw");
        CloseBy(editor, window, IDOK);
        ExpectMoves(editor, screen::RectangleArea(80, 100, 160, 200));
    });
}

TEST_F(Freehand, EndsTheLineWhereAnotherThingIsDone) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenWithShimmer(editor, kFreehand);
        const auto draws = [&] { return Hint(window).starts_with("The arrow keys draw"); };
        const auto begin = [&] {
            GiveKeys(window, ID_MovingBox);
            user::Press(VK_SPACE);
            Await(draws, "drawing");
        };
        begin();
        Press(window, ID_ChkReversed);
        EXPECT_FALSE(draws());
        begin();
        Choose(window, ID_ChooseBy, kColor);
        Choose(window, ID_ChooseBy, kFreehand);
        EXPECT_FALSE(draws());
        begin();
        TurnTo(window, 1);
        TurnTo(window, 0);
        EXPECT_FALSE(draws());
        AddLayer(window, 2);
        begin();
        user::ClickAt([&] {
            RECT r{LVIR_BOUNDS, 0, 0, 0};
            const HWND layers = Item(window, ID_Layers);
            SendMessageA(layers, LVM_GETITEMRECT, 0, reinterpret_cast<LPARAM>(&r));
            POINT at{r.left + 10, (r.top + r.bottom) / 2};
            ClientToScreen(layers, &at);
            return at;
        }());
        Await([&] { return !draws(); }, "the other layer");
        CloseBy(editor, window, IDCANCEL);
    });
}

// A release whose press has been undone meanwhile is the mouse's all the same.
TEST_F(Freehand, IsNotBegunByTheMousesRelease) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenWithShimmer(editor, kFreehand);
        user::MoveTo(OnScreen(window, 40, 40));
        Follow(window);
        // With its place: late news can have moved the pointer.
        const POINT from = OnScreen(window, 40, 40);
        const int width = GetSystemMetrics(SM_CXSCREEN), height = GetSystemMetrics(SM_CYSCREEN);
        mouse_event(MOUSEEVENTF_LEFTDOWN | MOUSEEVENTF_MOVE | MOUSEEVENTF_ABSOLUTE,
                    static_cast<DWORD>((from.x * 65536 + width - 1) / width),
                    static_cast<DWORD>((from.y * 65536 + height - 1) / height), 0, 0);
        Follow(window);
        for (const POINT& at : Square(40, 40, 90, 90)) {
            user::MoveTo(OnScreen(window, at.x, at.y));
            Follow(window);
        }
        // Something is drawn that can be taken back.
        Await([&] { return Enabled(window, ID_BtnUndo); }, "drawn");
        user::Press('Z', {VK_CONTROL});
        Follow(window);
        mouse_event(MOUSEEVENTF_LEFTUP, 0, 0, 0, 0);
        Follow(window);
        EXPECT_EQ(Hint(window).substr(0, 4), "Draw");
        CloseBy(editor, window, IDOK);
        ExpectMoves(editor, screen::RectangleArea(80, 100, 160, 200));
    });
}

TEST_F(Freehand, TheSpaceBarTakesTheColorAtTheCrossAddsAndTakesAway) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenWithShimmer(editor, kColor);
        const pictures::RgbPicture picture =
            screen::StillPicture(animate::BeginDocument(ScreenOf(still), std::nullopt)->picture);
        const auto like = [&](int y) {
            return screen::LikeColorArea(picture, {160, y}, 20, false);
        };
        screen::Area expected = like(200);
        user::Press(VK_SPACE);
        PressTimes(VK_UP, 20);
        user::Press(VK_SPACE, {VK_SHIFT});
        screen::Add(expected, like(80));
        PressTimes(VK_DOWN, 40);
        user::Press(VK_SPACE, {VK_SHIFT});
        // At the same place once more: it goes away again.
        user::Press(VK_SPACE, {VK_CONTROL});
        screen::Remove(expected, like(320));
        Follow(window);
        user::TakeShot("moving-color-by-keys");
        CloseBy(editor, window, IDOK);
        ExpectMoves(editor, expected);
    });
}

}  // namespace
}  // namespace vistrel::test
