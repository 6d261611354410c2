// Colours that begin to move, from the Logo browser's first slot to the bytes of the set's screen.
#include <algorithm>

#include "animate/document.h"
#include "pictures/screen/check.h"
#include "tests/animate/animate_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

constexpr std::size_t kScreenFile = 129078;

std::vector<std::uint8_t> BytesOf(const std::string& file) { return {file.begin(), file.end()}; }

TEST_F(Moving, ABarIsAddedDraggedAndSavedIntoASet) {
    std::string made;
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        EXPECT_FALSE(Enabled(window, ID_BtnDeleteLayer));
        user::TakeShot("moving-empty");
        AddLayer(window, 0);
        user::TakeShot("moving-bar");
        // From the middle of the bar upwards, then its lower edge down.
        DragOver(window, {160, 382}, {160, 182});
        DragOver(window, {160, 191}, {160, 231});
        user::TakeShot("moving-dragged");
        CloseBy(editor, window, IDOK);
        made = editor.ImgPreview[0].Tag();
        EXPECT_NE(made, still);
        EXPECT_TRUE(editor.SetChanged);
        editor.OptOnlyStart.Click();
        TypeName(editor, "Mine.SLS");
        Run(editor, ID_OkButton);
    });
    const auto file = Contents(logos + "Mine.SLS\\LOGO.SYS");
    ASSERT_TRUE(file);
    EXPECT_EQ(file->size(), kScreenFile);
    EXPECT_TRUE(screen::FaultsOfScreen(BytesOf(*file)).empty());
    const screen::IndexedScreen screen = ScreenOf(logos + "Mine.SLS\\LOGO.SYS");
    EXPECT_EQ(screen.firstAnimated, 236);
    const screen::ScreenBounds bar = MovingPart(screen);
    EXPECT_EQ(bar.left, 0);
    EXPECT_EQ(bar.right, 320);
    EXPECT_NEAR(bar.top, 172, 2);
    EXPECT_NEAR(bar.bottom, 232, 2);
}

/// The document that a file begins with.
animate::Document DocumentOf(const screen::IndexedScreen& screen) {
    return *animate::BeginDocument(screen, std::nullopt);
}

std::string FileOf(const screen::IndexedScreen& screen) {
    const auto bytes = screen::ScreenFile(screen);
    return {bytes.begin(), bytes.end()};
}

TEST_F(Moving, NothingTouchedGivesTheSameScreen) {
    Put(pictures + "turning.sys", ScreenFile(10, 200, 30, 200));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (const char* name : {"still.sys", "turning.sys"}) {
            Fill(editor, name, 0);
            const screen::IndexedScreen before = ScreenOf(pictures + name);
            const HWND window = OpenOnSlot(editor);
            EXPECT_EQ(LayerCount(window), before.IsAnimated() && !MovingPart(before).IsEmpty());
            CloseBy(editor, window, IDOK);
            EXPECT_TRUE(ScreenOf(editor.ImgPreview[0].Tag()) == before) << name;
        }
    });
}

TEST_F(Moving, CancelLeavesTheSlotAsItWas) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const std::string before = *Contents(still);
        editor.SetChanged = false;
        const HWND window = OpenOnSlot(editor);
        AddLayer(window, 0);
        GiveKeys(window, ID_MovingBox);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(window));
        Settle(editor);
        EXPECT_EQ(editor.ImgPreview[0].Tag(), still);
        EXPECT_TRUE(Contents(still) == before);
        EXPECT_FALSE(editor.SetChanged);
        EXPECT_EQ(editor.List1.Count(), 0);
    });
}

TEST_F(Moving, ALoadedSetWhoseScreenMovesNowCanBeUpdatedOnly) {
    const auto offers = [](SelPictureForm& editor) {
        const HMENU menu = ActionMenu(editor);
        std::vector<int> commands;
        for (const int command : {ID_OkButton, ID_OkButton + 1, ID_EliminaSetBtn})
            if (seen::RowOf(menu, command).enabled) commands.push_back(command);
        return commands;
    };
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        EXPECT_EQ(offers(editor),
                  (std::vector<int>{ID_OkButton, ID_OkButton + 1, ID_EliminaSetBtn}));
        const HWND window = OpenOnSlot(editor);
        AddLayer(window, 0);
        CloseBy(editor, window, IDOK);
        EXPECT_EQ(offers(editor), std::vector<int>{ID_OkButton + 1});
        Run(editor, ID_OkButton + 1);
    });
    EXPECT_EQ(ScreenOf(logos + "Red\\LOGO.SYS").firstAnimated, 236);
}

TEST_F(Moving, TheItemIsThereForStartupScreensAlone) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (const int slot : {0, 1, 2}) {
            Fill(editor, "still.sys", slot);
            user::RightClick(editor.ImgPreview[slot].handle());
            const HMENU menu = user::WaitForPopUp();
            EXPECT_EQ(seen::RowOf(menu, ID_ItmMoveColors).text, "Moving &colours...");
            EXPECT_EQ(seen::RowOf(menu, ID_ItmMoveColors).enabled, slot == 0) << slot;
            DismissMenu();
        }
        user::RightClick(editor.CurView.handle());
        EXPECT_TRUE(seen::RowOf(user::WaitForPopUp(), ID_ItmMoveColors).enabled);
        DismissMenu();
    });
}

// A photograph becomes a screen first; what stands is reduced from all its colours.
TEST_F(Moving, APhotographMovesWithColorsOfItsOwn) {
    Put(pictures + "photo.jpg", JpgOf(TestPicture(320, 400)));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "photo.jpg");
        Settle(editor);
        user::RightClick(editor.CurView.handle());
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmMoveColors));
        const HWND window = WaitForIt();
        AddLayer(window, 2);
        Choose(window, ID_PatternKind, 3);
        Press(window, ID_BtnAll);
        DragOver(window, {40, 300}, {200, 380});
        user::TakeShot("moving-rain");
        CloseBy(editor, window, IDOK);
        EXPECT_EQ(editor.ImageInfo.ForeColor(), 32768);
        const screen::IndexedScreen screen = ScreenOf(editor.CurView.Tag());
        EXPECT_EQ(screen.firstAnimated, 256 - 32);
        const screen::ScreenBounds rain = MovingPart(screen);
        EXPECT_GE(rain.left, 39);
        EXPECT_LE(rain.right, 202);
        EXPECT_GE(rain.top, 299);
        EXPECT_LE(rain.bottom, 382);
        // What stands has as many colours as the movement leaves.
        std::vector<bool> used(256);
        for (const std::uint8_t index : screen.indices) used[index] = true;
        EXPECT_GT(std::count(used.begin(), used.begin() + screen.firstAnimated, true), 150);
    });
}

TEST_F(Moving, AnAreaIsChosenByRectangleByHandAndByColor) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        // Inside the first rectangle, the added one, between them, and where both lost something.
        const std::vector<POINT> places{{50, 40}, {220, 40}, {150, 40}, {50, 70}, {220, 70}};
        const auto whatMoves = [&] {
            Fill(editor, "still.sys", 0);
            const HWND window = OpenOnSlot(editor);
            AddLayer(window, 1);
            user::TakeShot("moving-shimmer");
            DragOver(window, {20, 20}, {100, 80});
            DragHolding(window, VK_SHIFT, {200, 20}, {240, 80});
            DragHolding(window, VK_CONTROL, {20, 60}, {240, 90});
            user::TakeShot("moving-rectangles");
            CloseBy(editor, window, IDOK);
            const screen::IndexedScreen screen = ScreenOf(editor.ImgPreview[0].Tag());
            std::vector<bool> moves;
            for (const POINT at : places)
                moves.push_back(screen.indices[screen::Area::At(at.x, at.y)] >=
                                screen.firstAnimated);
            return moves;
        };
        const std::vector<bool> expected{true, true, false, false, false};
        std::vector<bool> moves = whatMoves();
        for (int again = 0; again < 4 && moves != expected; ++again) moves = whatMoves();
        EXPECT_EQ(moves, expected);

        Fill(editor, "still.sys", 0);
        const HWND again = OpenOnSlot(editor);
        AddLayer(again, 1);
        // A colour and those near it: a column of the band in which it was clicked.
        Choose(again, ID_ChooseBy, 3);
        user::ClickAt(OnScreen(again, 160, 50));
        Follow(again);
        Slide(again, ID_ToleranceBar, 5);
        user::TakeShot("moving-color");
        CloseBy(editor, again, IDOK);
        const screen::ScreenBounds part = MovingPart(ScreenOf(editor.ImgPreview[0].Tag()));
        EXPECT_EQ(part.top, 0);
        EXPECT_EQ(part.bottom, 100);
        EXPECT_GT(part.left, 60);
        EXPECT_LT(part.right, 260);
    });
}

TEST_F(Moving, WhatMovesOnAnotherScreenIsLaidOverThisOne) {
    screen::IndexedScreen other = ScreenOf(still);
    other.firstAnimated = 240;
    for (int i = 0; i < 16; ++i) other.palette[240 + i] = {std::uint8_t(15 * i), 0, 200};
    for (std::size_t i = 0; i < other.indices.size(); ++i) {
        const int x = static_cast<int>(i % 320), y = static_cast<int>(i / 320);
        const bool moves = x >= 100 && x < 180 && y >= 40 && y < 60;
        other.indices[i] = moves ? std::uint8_t(240 + x % 16) : 0;
    }
    Put(logos + "other.sys", FileOf(other));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        EXPECT_TRUE(user::Click(Item(window, ID_BtnAddLayer)));
        EXPECT_TRUE(user::ChooseFromPopUp(ID_AddLayer + 3));
        const HWND dialog = user::WaitForTop("#32770", "Moving colours of another screen");
        EXPECT_NE(dialog, nullptr);
        user::Activate(dialog);
        // It looks in the logo folder first.
        user::Type("other.sys");
        user::Press(VK_RETURN);
        EXPECT_TRUE(user::WaitUntilGone(dialog));
        Await([&] { return LayerCount(window) == 1; }, "added");
        user::TakeShot("moving-other");
        CloseBy(editor, window, IDOK);
        const screen::IndexedScreen made = ScreenOf(editor.ImgPreview[0].Tag());
        EXPECT_EQ(made.firstAnimated, 240);
        EXPECT_EQ(MovingPart(made), (screen::ScreenBounds{100, 40, 180, 60}));
        for (int i = 240; i < 256; ++i) EXPECT_EQ(made.palette[i], other.palette[i]) << i;
        for (int x = 100; x < 180; ++x) {
            const std::size_t at = screen::Area::At(x, 50);
            EXPECT_EQ(made.indices[at], other.indices[at]) << x;
        }
    });
}

TEST_F(Moving, EachChangeIsUndoneAndMadeAgain) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        EXPECT_FALSE(Enabled(window, ID_BtnUndo));
        AddLayer(window, 0);
        AddLayer(window, 2);
        Choose(window, ID_PatternKind, 1);
        DragOver(window, {40, 40}, {300, 200});
        TurnTo(window, 1);
        Slide(window, ID_CountBar, 40);
        const auto shows = [&](const char* count) {
            return [=] { return user::TextOf(Item(window, ID_LblCountValue)) == count; };
        };
        // All steps of one slider are one change.
        user::Press('Z', {VK_CONTROL});
        Await(shows("20"), "slider undone");
        int steps = 1;
        for (; Enabled(window, ID_BtnUndo) && steps < 20; ++steps) {
            EXPECT_EQ(LayerCount(window), steps < 4 ? 2 : 1) << steps;
            Press(window, ID_BtnUndo);
        }
        EXPECT_EQ(steps, 5);
        EXPECT_EQ(LayerCount(window), 0);
        while (--steps > 0) Press(window, ID_BtnRedo);
        user::Press('Y', {VK_CONTROL});
        Await(shows("40"), "slider set again");
        EXPECT_EQ(LayerCount(window), 2);
        EXPECT_FALSE(Enabled(window, ID_BtnRedo));
        CloseBy(editor, window, IDOK);
        EXPECT_EQ(ScreenOf(editor.ImgPreview[0].Tag()).firstAnimated, 216);
    });
}

// By arrow keys and access keys alone, to the bytes that the same document gives.
TEST_F(Moving, ABarIsMadeByKeysAlone) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        user::Press('A', {VK_MENU});
        EXPECT_NE(user::WaitForPopUp(), nullptr);
        user::Press('B');
        Await([&] { return LayerCount(window) == 1; }, "added");
        Follow(window);
        GiveKeys(window, ID_MovingBox);
        for (const WORD key : {VK_UP, VK_UP, VK_UP}) user::Press(key);
        user::Press(VK_DOWN, {VK_SHIFT});
        user::Press(VK_LEFT, {VK_SHIFT});
        user::Press('O', {VK_MENU});
        Await([&] { return SendMessageA(Item(window, ID_ChkReversed), BM_GETCHECK, 0, 0) == 1; },
              "reversed");
        user::Press(VK_RETURN);
        EXPECT_TRUE(user::WaitUntilGone(window));
        Settle(editor);

        animate::Document document = DocumentOf(ScreenOf(still));
        screen::Layer layer = animate::NewLayer(animate::LayerKind::Bar, document);
        const screen::ScreenBounds bounds = screen::BoundsOf(layer.area);
        layer.area = screen::RectangleArea(0, bounds.top - 3, 319, bounds.bottom - bounds.top + 1);
        layer.reversed = true;
        document.picture.layers.push_back(layer);
        document.picture.ring.shape = screen::RingShape::Comet;
        document.picture.ring.keys = {{0, 0, 64}, {32, 96, 255}, {224, 240, 255}};
        const auto expected = screen::MakeMovingScreen(document.picture);
        EXPECT_TRUE(ScreenOf(editor.ImgPreview[0].Tag()) == *expected);
    });
}

TEST_F(Moving, TheBoardChangesTheColorsByHand) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        TurnTo(window, 2);
        const auto cell = [&](int entry) {
            RECT r{};
            GetClientRect(Item(window, ID_BoardBox), &r);
            POINT at{(2 * (entry % 16) + 1) * r.right / 32, (2 * (entry / 16) + 1) * r.bottom / 32};
            ClientToScreen(Item(window, ID_BoardBox), &at);
            return at;
        };
        const auto severalAreMarked = [&] {
            user::ClickAt(cell(7));
            user::WhileHolding(VK_SHIFT, [&] {
                user::ClickAt(cell(9));
                Follow(window);
            });
            return Enabled(window, ID_BtnExchange);
        };
        Await(severalAreMarked, "several marked");
        EXPECT_EQ(user::TextOf(Item(window, ID_LblEntry)),
                  "Colours 8 to 10: standing. 0 of 256 move.");
        EXPECT_TRUE(user::Click(Item(window, ID_BtnExchange)));
        user::ClickAt(cell(250));
        Await([&] { return !Enabled(window, ID_BtnExchange); }, "one marked");
        EXPECT_TRUE(user::Click(Item(window, ID_BtnFirst)));
        Follow(window);
        user::TakeShot("moving-board");
        EXPECT_EQ(user::TextOf(Item(window, ID_LblEntry)), "Colour 251: moving. 6 of 256 move.");
        EXPECT_TRUE(Enabled(window, ID_BtnStill));
        CloseBy(editor, window, IDOK);
        const screen::IndexedScreen before = ScreenOf(still);
        const screen::IndexedScreen made = ScreenOf(editor.ImgPreview[0].Tag());
        EXPECT_EQ(made.firstAnimated, 250);
        EXPECT_EQ(made.palette[7], before.palette[9]);
        EXPECT_EQ(made.palette[9], before.palette[7]);
        for (std::size_t i = 0; i < made.indices.size(); ++i)
            if (made.palette[made.indices[i]] != before.palette[before.indices[i]]) {
                ADD_FAILURE() << "the picture is another at " << i;
                break;
            }
    });
}

}  // namespace
}  // namespace vistrel::test
