// What the screen in "Adjust picture" shows, and the bytes that light, turning and text give.
#include <cmath>

#include "adjust/text_line.h"
#include "pictures/compose/geometry.h"
#include "tests/adjust/adjust_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace adjust;
using namespace editor;
using namespace main_window;
using namespace pictures;
using namespace reduce;

namespace {

using AdjustedScreen = Adjusting;

bool IsNear(COLORREF color, int red, int green, int blue) {
    return std::abs(GetRValue(color) - red) < 24 && std::abs(GetGValue(color) - green) < 24 &&
           std::abs(GetBValue(color) - blue) < 24;
}

/// A picture of one colour.
std::string Plain(std::uint8_t red, std::uint8_t green, std::uint8_t blue, int width, int height) {
    RgbPicture picture{width, height, {}};
    for (int i = 0; i < width * height; ++i)
        picture.pixels.insert(picture.pixels.end(), {red, green, blue});
    return BmpOf(picture);
}

TEST_F(AdjustedScreen, ShowsTheOriginalWhileTheButtonIsHeld) {
    Put(pictures + "dark.bmp", Plain(60, 60, 60, 64, 48));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "dark.bmp");
        Await([&] { return IsNear(ColorAt(window, 160, 200), 60, 60, 60); }, "as it was");
        TurnTo(window, 1);
        Slide(window, ID_LightBar, 100);
        Await([&] { return IsNear(ColorAt(window, 160, 200), 187, 187, 187); }, "lighter");
        const POINT button = user::CentreOf(Item(window, ID_BtnOriginal));
        HoldUntil(
            button, [&] { return IsNear(ColorAt(window, 160, 200), 60, 60, 60); }, "original");
        LetGo(button);
        Await([&] { return IsNear(ColorAt(window, 160, 200), 187, 187, 187); }, "adjusted again");
        CloseBy(editor, window, IDCANCEL);
    });
}

TEST_F(AdjustedScreen, ADoubleClickSetsASliderBack) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        TurnTo(window, 1);
        Slide(window, ID_LightBar + 1, 40);
        EXPECT_EQ(user::TextOf(Item(window, ID_LblLightValue + 1)), "+40");
        EXPECT_TRUE(user::DoubleClick(Item(window, ID_LightBar + 1)));
        Await([&] { return user::TextOf(Item(window, ID_LblLightValue + 1)) == "0"; }, "set back");
        EXPECT_EQ(SendMessageA(Item(window, ID_LightBar + 1), TBM_GETPOS, 0, 0), 0);
        Slide(window, ID_LightBar + 3, -20);
        Press(window, ID_ChkAuto);
        Choose(window, ID_DitherKind, 1);
        Press(window, ID_BtnReset);
        EXPECT_EQ(user::TextOf(Item(window, ID_LblLightValue + 3)), "0");
        EXPECT_EQ(SendMessageA(Item(window, ID_ChkAuto), BM_GETCHECK, 0, 0), 0);
        EXPECT_EQ(SendMessageA(Item(window, ID_DitherKind), CB_GETCURSEL, 0, 0), 0);
        CloseBy(editor, window, IDOK);
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(photo, {}));
    });
}

TEST_F(AdjustedScreen, IsMadeInTheLightThatTheSlidersSay) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        TurnTo(window, 1);
        const int values[] = {20, -30, 50, -60};
        for (int i = 0; i < 4; ++i) Slide(window, ID_LightBar + i, values[i]);
        Press(window, ID_ChkAuto);
        Choose(window, ID_DitherKind, 4);
        CloseBy(editor, window, IDOK);
        compose::Composition composition;
        composition.light = {20, -30, 200, -60, true};
        composition.dither = Dither::Strong;
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(photo, composition));
    });
}

TEST_F(AdjustedScreen, IsTurnedAsSeenAndMirrored) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        // Red is above; turned to the right it is at the right, mirrored at the left.
        Press(window, ID_BtnTurnRight);
        Await([&] { return GetRValue(ColorAt(window, 300, 380)) > 200; }, "turned");
        Press(window, ID_ChkMirror);
        Await([&] { return GetRValue(ColorAt(window, 20, 380)) > 200; }, "mirrored");
        // As it is seen now, to the right once more: red comes to the top.
        Press(window, ID_BtnTurnRight);
        Await([&] { return IsNear(ColorAt(window, 20, 30), 250, 20, 20); }, "turned as seen");
        CloseBy(editor, window, IDOK);
        compose::Composition composition;
        composition.orientation = {0, true};
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(photo, composition));
    });
}

TEST_F(AdjustedScreen, KeepsItsMiddleWhenItIsTurnedAndMirrored) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        Press(window, ID_OptFraming + 1);
        const SIZE box = BoxSize(window);
        DragInBox(window, {100, 50}, {160, 50});
        compose::Composition composition;
        composition.framing.kind = compose::FramingKind::Fill;
        composition.framing = compose::MovedBy({800, 300}, composition,
                                               60.0 * kLogoWidth / static_cast<double>(box.cx), 0);
        for (const int id :
             {ID_BtnTurnRight, ID_BtnTurnRight, ID_BtnTurnLeft, ID_BtnTurnLeft, ID_ChkMirror})
            Press(window, id);
        CloseBy(editor, window, IDOK);
        composition.orientation.mirrored = true;
        composition.framing.centreX = compose::kWhole - composition.framing.centreX;
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(photo, composition));
    });
}

TEST_F(AdjustedScreen, IsMadeLargerByTheWheelWhereThePointerIs) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        EXPECT_TRUE(user::Click(Item(window, ID_OptFraming + 1)));
        user::MoveTo(OnScreen(window, 80, 100));
        const auto isLarger = [&] { return user::TextOf(Item(window, ID_LblZoomValue)) == "109%"; };
        // A turn is lost where the window is not quite in front yet.
        constexpr int kTries = 3;
        for (int i = 0; i < kTries && !isLarger(); ++i) {
            user::TurnWheel(1);
            WaitUntil(isLarger, 5000);
        }
        EXPECT_TRUE(isLarger());
        CloseBy(editor, window, IDOK);
        compose::Composition composition;
        composition.framing.kind = compose::FramingKind::Fill;
        composition.framing = compose::ZoomedAt({800, 300}, composition, 1091, 80, 100);
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(photo, composition));
    });
}

TEST_F(AdjustedScreen, HasABorderOfTheChosenColourOrOfThePicturesEdge) {
    Put(pictures + "wide.bmp", Plain(200, 40, 40, 300, 100));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "wide.bmp");
        Press(window, ID_OptFraming + 2);
        Await([&] { return IsNear(ColorAt(window, 160, 30), 0, 0, 0); }, "black border");
        PostMessageA(Item(window, ID_BtnBorderColor), BM_CLICK, 0, 0);
        const HWND dialog = user::WaitForTop("#32770");
        for (const auto& [id, value] : {std::pair{706, "0"}, {707, "0"}, {708, "255"}}) {
            SetDlgItemTextA(dialog, id, value);  // red, green and blue
            SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(id, EN_UPDATE),
                         reinterpret_cast<LPARAM>(GetDlgItem(dialog, id)));
        }
        PostMessageA(dialog, WM_COMMAND, IDOK, 0);
        EXPECT_TRUE(user::WaitUntilGone(dialog));
        Await([&] { return IsNear(ColorAt(window, 160, 30), 0, 0, 255); }, "blue border");
        Choose(window, ID_BorderKind, 1);
        Await([&] { return IsNear(ColorAt(window, 160, 30), 200, 40, 40); }, "blurred edge");
        CloseBy(editor, window, IDOK);
        compose::Composition composition;
        composition.framing.kind = compose::FramingKind::Fit;
        composition.framing.border = compose::Border::BlurredEdge;
        composition.framing.borderColor = {0, 0, 255};
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(pictures + "wide.bmp", composition));
    });
}

TEST_F(AdjustedScreen, TakesAReadyMadeLineOfTheMenu) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        TurnTo(window, 2);
        PostMessageA(Item(window, ID_BtnReadyMade), BM_CLICK, 0, 0);
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ReadyLine));
        const HWND lines = Item(window, ID_TextLines);
        Await([&] { return SendMessageA(lines, LVM_GETITEMCOUNT, 0, 0) == 1; }, "line added");
        Choose(window, ID_EdgeKind, 2);
        Choose(window, ID_AlignKind, 0);
        SendMessageA(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(window, ID_ScreenBox)),
                     TRUE);
        user::Press(VK_UP);
        user::Press(VK_RIGHT);
        user::TakeShot("adjust-ready-made");
        user::LetFinish(window);
        CloseBy(editor, window, IDOK);
        TextLine text;
        text.text = "One moment, please...";
        text.edge = LetterEdge::Shadow;
        text.alignment = Alignment::Left;
        text.x = kMarginAcross + 1;
        text.y = kLogoHeight * 5 / 6 - 1;
        compose::Composition composition;
        composition.text = MasksOf({DrawnLine(text)});
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(photo, composition));
    });
}

TEST_F(AdjustedScreen, FollowsTheHandAndTheColorsFollowWhenItRests) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        Press(window, ID_OptFraming + 1);
        TurnTo(window, 2);
        AddLine(window, "Here");
        // While the hand is down, dots mark where a line stops by itself.
        const auto margin = [&] {
            for (int y = 20; y < 60; ++y)
                if (ColorAt(window, kMarginAcross, y) == RGB(255, 255, 255)) return true;
            return false;
        };
        EXPECT_FALSE(margin());
        const POINT to = OnScreen(window, 160, 100);
        Hold(OnScreen(window, 160, 333));
        Await(
            [&] {
                // From place to place: dots vanish when the hand rests.
                MoveHeld({to.x, to.y - 20});
                MoveHeld(to);
                return margin();
            },
            "guides");
        user::TakeShot("adjust-guides");
        LetGo(to);
        Await([&] { return !margin(); }, "guides gone");
        CloseBy(editor, window, IDCANCEL);
    });
}

}  // namespace
}  // namespace vistrel::test
