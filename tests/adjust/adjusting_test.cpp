// Adjusting a picture from the Logo browser, to the bytes of the screen that comes of it.
#include <algorithm>

#include "adjust/text_line.h"
#include "pictures/compose/geometry.h"
#include "pictures/convert.h"
#include "tests/adjust/adjust_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace adjust;

using namespace editor;
using namespace main_window;
using namespace pictures;

namespace {

const PictureSize kPhoto{800, 300};

/// The rows of a menu from "Autoshow animation" on.
std::string EndOf(const std::vector<std::string>& rows) {
    std::string end;
    for (std::size_t i = 4; i < rows.size(); ++i) end += (i > 4 ? "," : "") + rows[i];
    return end;
}

TEST_F(Adjusting, APhotographFilledMovedAndLetteredBecomesTheWaitScreenOfASet) {
    std::string expected;
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        user::TakeShot("adjust-stretch");
        EXPECT_TRUE(user::Click(Item(window, ID_OptFraming + 1)));
        Await([&] { return Enabled(window, ID_ZoomBar); }, "filled");
        const SIZE box = BoxSize(window);
        DragInBox(window, {200, 100}, {150, 110});
        user::TakeShot("adjust-fill");
        TurnTo(window, 2);
        AddLine(window, "Hello, wait a while");
        user::TakeShot("adjust-text");
        TextLine text;
        text.text = "Hello, wait a while";
        text.y = kLogoHeight * 5 / 6;
        DrawnLine line(text);
        const POINT grabbed{box.cx / 2, text.y * box.cy / kLogoHeight};
        const POINT dropped{box.cx / 2 + 40, 60};
        DragInBox(window, grabbed, dropped);
        const auto screenX = [&](LONG x) { return x * kLogoWidth / box.cx; };
        const auto screenY = [&](LONG y) { return y * kLogoHeight / box.cy; };
        line.MoveNear(static_cast<int>(text.x - screenX(grabbed.x) + screenX(dropped.x)),
                      static_cast<int>(text.y - screenY(grabbed.y) + screenY(dropped.y)));
        CloseBy(editor, window, IDOK);
        user::TakeShot("adjust-browser");

        compose::Composition composition;
        composition.framing.kind = compose::FramingKind::Fill;
        composition.framing =
            compose::MovedBy(kPhoto, composition, -50.0 * kLogoWidth / static_cast<double>(box.cx),
                             10.0 * kLogoHeight / static_cast<double>(box.cy));
        composition.text = MasksOf({line});
        expected = MadeOf(photo, composition);

        EXPECT_EQ(editor.ImageInfo.Text(), "320 x  400 x  256");
        EXPECT_EQ(editor.ImageInfo.ForeColor(), 32768);
        user::Drag(user::CentreOf(editor.CurView.handle()),
                   user::CentreOf(editor.ImgPreview[1].handle()));
        Await([&] { return editor.ImgPreview[1].HasPicture(); }, "slot filled");
        TypeName(editor, "Mine");
        Run(editor, ID_OkButton);
    });
    EXPECT_TRUE(Contents(logos + "Mine\\LOGOW.SYS") == expected);
}

TEST_F(Adjusting, NothingTouchedGivesTheBytesOfAConversion) {
    const std::string converted = root + "converted.sys";
    ConvertToLogo(photo, converted);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        CloseBy(editor, OpenOn(editor, "photo.jpg"), IDOK);
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == Contents(converted));
    });
}

TEST_F(Adjusting, CancelLeavesAllAsItWas) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        Press(window, ID_OptFraming + 1);
        CloseBy(editor, window, IDCANCEL);
        EXPECT_EQ(editor.CurView.Tag(), photo);
        EXPECT_EQ(editor.ImageInfo.ForeColor(), 65535);
        EXPECT_EQ(editor.List1.Count(), 0);
        // Nor is it remembered.
        const HWND again = OpenOn(editor, "photo.jpg");
        EXPECT_EQ(SendMessageA(Item(again, ID_OptFraming), BM_GETCHECK, 0, 0), BST_CHECKED);
        CloseBy(editor, again, IDCANCEL);
    });
}

TEST_F(Adjusting, APictureThatWasAdjustedOpensWithItsSettings) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        Press(window, ID_OptFraming + 1);
        Slide(window, ID_ZoomBar, 12);
        TurnTo(window, 1);
        Slide(window, ID_LightBar, 30);
        Slide(window, ID_LightBar + 2, -25);
        Choose(window, ID_DitherKind, 3);
        user::TakeShot("adjust-light");
        TurnTo(window, 2);
        AddLine(window, "Good night");
        CloseBy(editor, window, IDOK);
        const auto expectSettings = [&](HWND again) {
            EXPECT_EQ(SendMessageA(Item(again, ID_OptFraming + 1), BM_GETCHECK, 0, 0), BST_CHECKED);
            EXPECT_EQ(user::TextOf(Item(again, ID_LblZoomValue)), "141%");
            EXPECT_EQ(user::TextOf(Item(again, ID_LblLightValue)), "+30");
            EXPECT_EQ(user::TextOf(Item(again, ID_LblLightValue + 2)), "0.71");
            EXPECT_EQ(SendMessageA(Item(again, ID_DitherKind), CB_GETCURSEL, 0, 0), 3);
            EXPECT_EQ(SendMessageA(Item(again, ID_TextLines), LVM_GETITEMCOUNT, 0, 0), 1);
            CloseBy(editor, again, IDCANCEL);
        };
        // From the screen that was made, and from the picture in the list.
        EXPECT_TRUE(user::Click(editor.AdjustButton.handle()));
        expectSettings(WaitForIt());
        expectSettings(OpenOn(editor, "photo.jpg"));
    });
}

TEST_F(Adjusting, ASlotsPictureIsMadeAnewOfThePhotographAndPutBack) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "photo.jpg", 2);
        const std::string converted = editor.ImgPreview[2].Tag();
        user::RightClick(editor.ImgPreview[2].handle());
        const HMENU menu = user::WaitForPopUp();
        EXPECT_EQ(seen::RowOf(menu, ID_ItmAdjustSlot + 2).text, "Ad&just...");
        EXPECT_EQ(
            EndOf(seen::TextsOf(menu)),
            "Autoshow animation,-,Ad&just...,-,Show as at &start\tF11,&Mend,Moving &colours...");
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmAdjustSlot + 2));
        const HWND window = WaitForIt();
        Press(window, ID_OptFraming + 1);
        CloseBy(editor, window, IDOK);
        EXPECT_NE(editor.ImgPreview[2].Tag(), converted);
        compose::Composition filled;
        filled.framing.kind = compose::FramingKind::Fill;
        EXPECT_TRUE(Contents(editor.ImgPreview[2].Tag()) == MadeOf(photo, filled));
        EXPECT_TRUE(editor.SetChanged);
        // The browser's own picture has no such item, nor has an empty slot a menu.
        user::RightClick(editor.CurView.handle());
        EXPECT_EQ(EndOf(seen::TextsOf(user::WaitForPopUp())),
                  "Autoshow animation,-,Show as at &start\tF11,&Mend,Moving &colours...");
        DismissMenu();
    });
}

TEST_F(Adjusting, WhatWasAdjustedIsDraggedFromTheListToo) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        Press(window, ID_OptFraming + 2);
        CloseBy(editor, window, IDOK);
        const std::string screen = editor.CurView.Tag();
        user::Drag(PointOfItem(editor, "photo.jpg"), user::CentreOf(editor.ImgPreview[0].handle()));
        Await([&] { return editor.ImgPreview[0].Tag() == screen; }, "slot filled");
    });
}

TEST_F(Adjusting, IsTheLastItemOfTheListsMenu) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        user::RightClickAt(PointOfItem(editor, "photo.jpg"));
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmAdjust));
        CloseBy(editor, WaitForIt(), IDCANCEL);
    });
}

TEST_F(Adjusting, TheArrowKeysMoveThePictureByAPixel) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        Press(window, ID_OptFraming + 1);
        SendMessageA(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(window, ID_ScreenBox)),
                     TRUE);
        for (int i = 0; i < 3; ++i) user::Press(VK_LEFT);
        user::Type("+");
        Await([&] { return user::TextOf(Item(window, ID_LblZoomValue)) == "109%"; }, "zoomed");
        user::Type("+");
        Await([&] { return user::TextOf(Item(window, ID_LblZoomValue)) == "118%"; }, "larger");
        user::Type("-");
        Await([&] { return user::TextOf(Item(window, ID_LblZoomValue)) == "109%"; }, "smaller");
        CloseBy(editor, window, IDOK);
        compose::Composition composition;
        composition.framing.kind = compose::FramingKind::Fill;
        for (int i = 0; i < 3; ++i)
            composition.framing = compose::MovedBy(kPhoto, composition, -1, 0);
        for (const int zoom : {1091, 1189, 1091})
            composition.framing = compose::ZoomedAt(kPhoto, composition, zoom, 160, 200);
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(photo, composition));
    });
}

TEST_F(Adjusting, APictureThatIsGoneIsTold) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        const std::string bytes = *Contents(photo);
        DeleteFileA(photo.c_str());
        EXPECT_EQ(
            PressOkAndAnswer(window).text,
            photo + " cannot be read any more. When it is back in its place, press OK again.");
        EXPECT_TRUE(IsWindow(window));
        Put(photo, bytes);
        CloseBy(editor, window, IDOK);
        EXPECT_EQ(editor.ImageInfo.ForeColor(), 32768);
        DeleteFileA(photo.c_str());
        PostMessageA(editor.AdjustButton.handle(), BM_CLICK, 0, 0);
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  photo + " cannot be read as a picture. It may have been moved or damaged.");
        EXPECT_EQ(user::FindTop("FrmAdjust"), nullptr);
    });
}

TEST_F(Adjusting, APictureOfAnotherSizeMeanwhileIsShownAnew) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        Put(photo, JpgOf(TestPicture(300, 300)));
        EXPECT_EQ(PressOkAndAnswer(window).text,
                  photo + " has changed. Look whether it is still framed as you like.");
        CloseBy(editor, window, IDOK);
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(photo, {}));
    });
}

TEST_F(Adjusting, APictureThatWasPaintedOverMeanwhileIsShownAnew) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        RgbPicture dark{800, 300, std::vector<std::uint8_t>(std::size_t{800} * 300 * 3, 40)};
        Put(photo, JpgOf(dark));
        EXPECT_EQ(PressOkAndAnswer(window).text,
                  photo + " has changed. Look whether it is still framed as you like.");
        Await([&] { return GetRValue(ColorAt(window, 300, 30)) < 60; }, "shown anew");
        CloseBy(editor, window, IDOK);
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(photo, {}));
    });
}

TEST_F(Adjusting, CancelLeavesASlotAsItWas) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "photo.jpg", 1);
        const std::string before = editor.ImgPreview[1].Tag();
        const std::string bytes = *Contents(before);
        user::RightClick(editor.ImgPreview[1].handle());
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmAdjustSlot + 1));
        const HWND window = WaitForIt();
        Press(window, ID_OptFraming + 1);
        Press(window, ID_ChkMirror);
        CloseBy(editor, window, IDCANCEL);
        EXPECT_EQ(editor.ImgPreview[1].Tag(), before);
        EXPECT_TRUE(Contents(before) == bytes);
    });
}

TEST_F(Adjusting, PicturesOfExtremeShapesAreFilledZoomedAndMoved) {
    Put(pictures + "dot.bmp", BmpOf(TestPicture(1, 1)));
    Put(pictures + "wide.bmp", BmpOf(TestPicture(kLargestSide, 1)));
    Put(pictures + "high.bmp", BmpOf(TestPicture(1, kLargestSide)));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (const char* name : {"dot.bmp", "wide.bmp", "high.bmp"}) {
            const HWND window = OpenOn(editor, name);
            EXPECT_TRUE(user::Click(Item(window, ID_OptFraming + 1)));
            Await([&] { return Enabled(window, ID_ZoomBar); }, "filled");
            Slide(window, ID_ZoomBar, 96);
            DragInBox(window, {200, 100}, {90, 60});
            Press(window, ID_BtnTurnRight);
            Press(window, ID_OptFraming + 2);
            Choose(window, ID_BorderKind, 1);
            CloseBy(editor, window, IDOK);
            EXPECT_EQ(editor.ImageInfo.Text(), "320 x  400 x  256") << name;
            EXPECT_EQ(editor.ImageInfo.ForeColor(), 32768) << name;
        }
    });
}

TEST_F(Adjusting, TheEntryOfTheDitheringIsTheStrengthOfIt) {
    using enum reduce::Dither;
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        HWND again = window;
        int entry = 0;
        for (const reduce::Dither strength : {On, Off, Light, Medium, Strong}) {
            TurnTo(again, 1);
            Choose(again, ID_DitherKind, entry);
            CloseBy(editor, again, IDOK);
            compose::Composition composition;
            composition.dither = strength;
            EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(photo, composition)) << entry;
            if (++entry == 5) return;
            EXPECT_TRUE(user::Click(editor.AdjustButton.handle()));
            again = WaitForIt();
        }
    });
}

TEST_F(Adjusting, OfSeveralLinesEachHasItsOwnPlaceAndOneIsTakenAway) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const HWND window = OpenOn(editor, "photo.jpg");
        TurnTo(window, 2);
        for (const char* text : {"One", "Two", "Three"}) AddLine(window, text);
        Choose(window, ID_AlignKind, 2);
        // By the keyboard to the middle one, which is taken away by its key.
        SendMessageA(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(Item(window, ID_TextLines)),
                     TRUE);
        user::Press(VK_UP);
        user::Press(VK_DELETE);
        const HWND lines = Item(window, ID_TextLines);
        Await([&] { return SendMessageA(lines, LVM_GETITEMCOUNT, 0, 0) == 2; }, "taken away");
        user::TakeShot("adjust-lines");
        CloseBy(editor, window, IDOK);
        TextLine one, two, three;
        one.text = "One";
        one.y = kLogoHeight * 5 / 6;
        two = one;
        two.y = std::min(one.y + DrawnLine(one).mask().letters.height, kLogoHeight - kMarginDown);
        three = two;
        three.text = "Three";
        three.y = std::min(two.y + DrawnLine(two).mask().letters.height, kLogoHeight - kMarginDown);
        DrawnLine last(three);
        last.Align(Alignment::Right);
        compose::Composition composition;
        composition.text = MasksOf({DrawnLine(one), last});
        EXPECT_TRUE(Contents(editor.CurView.Tag()) == MadeOf(photo, composition));
    });
}

}  // namespace
}  // namespace vistrel::test
