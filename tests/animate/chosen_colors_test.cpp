// Colours that are chosen in the system's dialog, the order of the board, and the gaps between
// dots, drops and stars.
#include <algorithm>
#include <cstdlib>

#include "animate/document.h"
#include "pictures/screen/board.h"
#include "tests/animate/animate_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

using screen::ScreenColor;

class ChosenColors : public Moving {
 protected:
    /// Presses a button that opens the system's dialog, types a colour there and presses `answer`.
    /// The colour that the dialog began with.
    static ScreenColor Pick(HWND window, int id, const ScreenColor& typed, int answer = IDOK) {
        EXPECT_TRUE(user::Click(Item(window, id)));
        const HWND dialog = user::WaitForTop("#32770", "Color");
        EXPECT_NE(dialog, nullptr);
        user::Activate(dialog);
        constexpr int kMore = 719, kParts[] = {706, 707, 708};  // red, green, blue
        user::Click(GetDlgItem(dialog, kMore));
        ScreenColor begun{};
        for (std::size_t i = 0; i < 3; ++i) {
            const HWND part = GetDlgItem(dialog, kParts[i]);
            Await([&] { return IsWindowVisible(part) != 0; }, "all of the dialog");
            begun[i] = static_cast<std::uint8_t>(std::atoi(user::TextOf(part).c_str()));
        }
        const auto isTyped = [&](std::size_t i) {
            return user::TextOf(GetDlgItem(dialog, kParts[i])) == std::to_string(typed[i]);
        };
        // The dialog works all numbers out anew at each letter, on a busy machine late.
        constexpr int kTries = 3;
        for (int tries = 0; tries < kTries && !(isTyped(0) && isTyped(1) && isTyped(2)); ++tries) {
            for (std::size_t i = 0; i < 3; ++i)
                EXPECT_TRUE(TypeOver(GetDlgItem(dialog, kParts[i]), std::to_string(typed[i])));
            WaitUntil([] { return false; }, 200);
        }
        EXPECT_TRUE(user::Click(GetDlgItem(dialog, answer)));
        EXPECT_TRUE(user::WaitUntilGone(dialog));
        Follow(window);
        return begun;
    }

    /// Puts a number into a box in place of what is there. Where the double click that marks it
    /// came apart, then once more.
    static bool TypeOver(HWND box, const std::string& number) {
        constexpr int kTries = 3;
        for (int i = 0; i < kTries; ++i) {
            EXPECT_TRUE(user::DoubleClick(box));
            user::Type(number);
            if (WaitUntil([&] { return user::TextOf(box) == number; }, 2000)) return true;
        }
        return false;
    }

    static bool Shows(HWND control, const ScreenColor& color) {
        return seen::ComesToShow(control, RGB(color[0], color[1], color[2]));
    }
    static POINT Cell(HWND window, int entry) {
        RECT r{};
        GetClientRect(Item(window, ID_BoardBox), &r);
        POINT at{(2 * (entry % 16) + 1) * r.right / 32, (2 * (entry / 16) + 1) * r.bottom / 32};
        ClientToScreen(Item(window, ID_BoardBox), &at);
        return at;
    }
    /// Marks several. Where Shift was lost meanwhile, then once more.
    static void Mark(HWND window, int from, int to) {
        const std::string words = "Colours " + std::to_string(std::min(from, to) + 1) + " to " +
                                  std::to_string(std::max(from, to) + 1);
        constexpr int kTries = 3;
        for (int i = 0; i < kTries; ++i) {
            user::ClickAt(Cell(window, from));
            user::WhileHolding(VK_SHIFT, [&] {
                user::ClickAt(Cell(window, to));
                Follow(window);
            });
            if (user::TextOf(Item(window, ID_LblEntry)).starts_with(words)) return;
        }
        ADD_FAILURE() << "not marked: " << words;
    }
    /// The window on the board, the screen in it being the first slot's.
    static HWND OpenOnBoard(SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        TurnTo(window, 2);
        return window;
    }
    screen::IndexedScreen Finish(SelPictureForm& editor, HWND window) {
        CloseBy(editor, window, IDOK);
        return ScreenOf(editor.ImgPreview[0].Tag());
    }
};

TEST_F(ChosenColors, OfWhatMovesAreThoseOfTheSystemsDialog) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        AddLayer(window, 0);
        TurnTo(window, 1);
        EXPECT_EQ(Pick(window, ID_BtnKey + 1, {200, 10, 20}), (ScreenColor{32, 96, 255}));
        EXPECT_TRUE(Shows(Item(window, ID_KeySwatch + 1), ScreenColor{200, 10, 20}));
        user::TakeShot("moving-colours");
        // What was chosen before is where the dialog begins; cancelled, it changes nothing.
        EXPECT_EQ(Pick(window, ID_BtnKey + 1, {1, 2, 3}, IDCANCEL), (ScreenColor{200, 10, 20}));
        EXPECT_TRUE(Shows(Item(window, ID_KeySwatch + 1), ScreenColor{200, 10, 20}));
        EXPECT_EQ(Pick(window, ID_BtnKey, {0, 90, 0}), (ScreenColor{0, 0, 64}));
        const screen::IndexedScreen made = Finish(editor, window);
        screen::Ring ring;
        ring.shape = screen::RingShape::Comet;
        ring.keys = {{0, 90, 0}, {200, 10, 20}, {224, 240, 255}};
        const auto colors = screen::RingColors(ring);
        for (std::size_t i = 0; i < colors.size(); ++i)
            EXPECT_EQ(made.palette[236 + i], colors[i]) << i;
    });
}

TEST_F(ChosenColors, OfOneEntryChangeThatEntryAlone) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOnBoard(editor);
        const screen::IndexedScreen before = ScreenOf(still);
        // Of several the one that was marked last.
        Mark(window, 20, 23);
        EXPECT_EQ(Pick(window, ID_BtnEntryColor, {9, 8, 7}), before.palette[23]);
        EXPECT_EQ(Pick(window, ID_BtnEntryColor, {70, 80, 90}, IDCANCEL), (ScreenColor{9, 8, 7}));
        screen::IndexedScreen expected = before;
        expected.palette[23] = {9, 8, 7};
        EXPECT_TRUE(Finish(editor, window) == expected);
    });
}

TEST_F(ChosenColors, AreSortedWhereTheyAreMarked) {
    struct Case {
        int button;
        screen::ColorOrder order;
    };
    for (const Case& sort : {Case{ID_BtnSort, screen::ColorOrder::Brightness},
                             Case{ID_BtnSort + 1, screen::ColorOrder::Hue}}) {
        WithEditor([&](Principale&, SelPictureForm& editor) {
            const HWND window = OpenOnBoard(editor);
            // From the last to the first, which is the same.
            Mark(window, 200, 10);
            EXPECT_TRUE(user::Click(Item(window, sort.button)));
            Follow(window);
            user::TakeShot("moving-sorted-" + std::to_string(sort.button - ID_BtnSort));
            screen::IndexedScreen expected = ScreenOf(still);
            screen::SortEntries(expected, 10, 200, sort.order);
            EXPECT_FALSE(expected == ScreenOf(still));
            EXPECT_TRUE(Finish(editor, window) == expected) << sort.button;
        });
    }
}

// With one marked: what moves is in an order that is meant.
TEST_F(ChosenColors, AreAllSortedThatStandWhereOneIsMarked) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOnBoard(editor);
        screen::IndexedScreen expected = ScreenOf(still);
        user::ClickAt(Cell(window, 240));
        Follow(window);
        Press(window, ID_BtnFirst);
        Press(window, ID_BtnSort);
        screen::SetFirstMoving(expected, 240);
        screen::SortEntries(expected, 0, 239, screen::ColorOrder::Brightness);
        EXPECT_TRUE(Finish(editor, window) == expected);

        const HWND again = OpenOnBoard(editor);
        Press(again, ID_BtnSort);
        expected = ScreenOf(still);
        screen::SortEntries(expected, 0, 255, screen::ColorOrder::Brightness);
        EXPECT_TRUE(Finish(editor, again) == expected);
    });
}

TEST_F(ChosenColors, OfTheGapsLieBetweenTheDrops) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        AddLayer(window, 2);
        Choose(window, ID_PatternKind, 3);
        Press(window, ID_BtnAll);
        TurnTo(window, 1);
        EXPECT_FALSE(Enabled(window, ID_BtnGround));
        EXPECT_TRUE(user::Click(Item(window, ID_ChkGround)));
        Await([&] { return Enabled(window, ID_BtnGround); }, "gaps");
        EXPECT_EQ(Pick(window, ID_BtnGround, {0, 70, 60}), (ScreenColor{0, 0, 0}));
        EXPECT_TRUE(Shows(Item(window, ID_GroundSwatch), ScreenColor{0, 70, 60}));
        user::TakeShot("moving-gaps");
        const screen::IndexedScreen made = Finish(editor, window);
        EXPECT_EQ(made.firstAnimated, 224);
        std::size_t gaps = 0;
        for (const std::uint8_t index : made.indices) {
            if (index >= made.firstAnimated) continue;
            EXPECT_EQ(made.palette[index], (ScreenColor{0, 70, 60}));
            if (++gaps > made.indices.size() / 4) break;
        }
        EXPECT_GT(gaps, made.indices.size() / 4);

        // Without them the picture is seen between the drops.
        Fill(editor, "still.sys", 0);
        const HWND again = OpenOnSlot(editor);
        AddLayer(again, 2);
        Choose(again, ID_PatternKind, 3);
        Press(again, ID_BtnAll);
        TurnTo(again, 1);
        Press(again, ID_ChkGround);
        Press(again, ID_ChkGround);
        EXPECT_FALSE(Enabled(again, ID_BtnGround));
        const screen::IndexedScreen pictured = Finish(editor, again);
        std::vector<bool> stands(256);
        for (const std::uint8_t index : pictured.indices)
            stands[index] = index < pictured.firstAnimated;
        EXPECT_GT(std::count(stands.begin(), stands.end(), true), 100);
    });
}

}  // namespace
}  // namespace vistrel::test
