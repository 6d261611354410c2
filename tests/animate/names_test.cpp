// What a user reads in the lists of "Moving colours", and the marks on its screen.
#include <algorithm>
#include <utility>

#include "tests/animate/animate_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

class MovingNames : public Moving {
 protected:
    static std::vector<std::string> EntriesOf(HWND window, int id) {
        std::vector<std::string> entries;
        const HWND combo = Item(window, id);
        const auto count = SendMessageA(combo, CB_GETCOUNT, 0, 0);
        for (LRESULT i = 0; i < count; ++i) {
            char text[64] = "";
            SendMessageA(combo, CB_GETLBTEXT, static_cast<WPARAM>(i),
                         reinterpret_cast<LPARAM>(text));
            entries.push_back(text);
        }
        return entries;
    }
    static std::string LayerName(HWND window, int row) {
        char text[64] = "";
        LVITEMA item{};
        item.pszText = text;
        item.cchTextMax = sizeof text;
        SendMessageA(Item(window, ID_Layers), LVM_GETITEMTEXTA, static_cast<WPARAM>(row),
                     reinterpret_cast<LPARAM>(&item));
        return text;
    }
    /// Whether dark and light dots are seen on the way from one pixel of the 320 x 400 to another,
    /// one pixel of the display more or less.
    static bool IsDotted(HWND window, POINT from, POINT to) {
        const POINT begin = OnScreen(window, from.x, from.y), end = OnScreen(window, to.x, to.y);
        const bool across = begin.y == end.y;
        const int steps = std::max(end.x - begin.x, end.y - begin.y);
        const auto isDotted = [&](int aside) {
            bool dark = false, light = false;
            for (int i = 0; i <= steps; ++i) {
                const COLORREF color = seen::PixelAt(across ? POINT{begin.x + i, begin.y + aside}
                                                            : POINT{begin.x + aside, begin.y + i});
                const auto [least, most] =
                    std::minmax({GetRValue(color), GetGValue(color), GetBValue(color)});
                dark |= most < 60;
                light |= least > 200;
            }
            return dark && light;
        };
        return WaitUntil([&] { return isDotted(0) || isDotted(-1) || isDotted(1); }, 2000);
    }
};

using MovingMarks = MovingNames;

TEST_F(MovingNames, OfPatternsAreThoseOfTheirKind) {
    const Names names[] = {{"Gradient", "Pulse", "Stripes", "Comet", "Dots"},
                           {"By brightness", "Left to right", "Top to bottom", "Rings", "Rays",
                            "Diagonal", "Dot by dot", "Piece by piece"},
                           {"Waves", "Rings on water", "Clouds", "Rain", "Stars"}};
    const char* begun[] = {"Bar", "Shimmer: By brightness", "Background: Waves"};
    const char* last[] = {"Bar: Dots", "Shimmer: Piece by piece", "Background: Stars"};
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        for (int kind = 0; kind < 3; ++kind) {
            AddLayer(window, kind);
            EXPECT_EQ(EntriesOf(window, ID_PatternKind), names[kind]);
            EXPECT_EQ(LayerName(window, kind), begun[kind]);
            Choose(window, ID_PatternKind, static_cast<int>(names[kind].size()) - 1);
            EXPECT_EQ(LayerName(window, kind), last[kind]);
        }
        EXPECT_EQ(EntriesOf(window, ID_ChooseBy),
                  (Names{"Rectangle", "Freehand", "Colour", "Colour, joined"}));
        EXPECT_EQ(EntriesOf(window, ID_RunKind),
                  (Names{"Gradient", "Pulse", "Stripes", "Comet", "Colours of the area"}));
        CloseBy(editor, window, IDCANCEL);
    });
}

TEST_F(MovingMarks, AreADottedEdgeRoundWhatIsSelected) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        AddLayer(window, 1);
        // The rectangle that a shimmer begins with: its upper, left, right and lower edge.
        for (const auto& [from, to] : {std::pair{POINT{90, 100}, POINT{200, 100}},
                                       {POINT{80, 110}, POINT{80, 280}},
                                       {POINT{239, 110}, POINT{239, 280}},
                                       {POINT{90, 299}, POINT{200, 299}}})
            EXPECT_TRUE(IsDotted(window, from, to)) << from.x << "," << from.y;
        EXPECT_FALSE(IsDotted(window, {90, 50}, {200, 50}));
        // The other pages show the screen as it is.
        TurnTo(window, 1);
        EXPECT_FALSE(IsDotted(window, {80, 110}, {80, 280}));
        CloseBy(editor, window, IDCANCEL);
    });
}

TEST_F(MovingMarks, AreACrossWhereTheKeysPickAColor) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "still.sys", 0);
        const HWND window = OpenOnSlot(editor);
        AddLayer(window, 1);
        Press(window, ID_BtnInvert);
        Choose(window, ID_ChooseBy, 2);
        // In the middle, as soon as the keys go there: its two arms.
        GiveKeys(window, ID_MovingBox);
        EXPECT_TRUE(IsDotted(window, {157, 200}, {163, 200}));
        EXPECT_TRUE(IsDotted(window, {160, 194}, {160, 206}));
        CloseBy(editor, window, IDCANCEL);
    });
}

}  // namespace
}  // namespace vistrel::test
