// Screens that the system would not show as they are meant: named in words where they are selected,
// and mended by a menu's command.
#include "pictures/screen/check.h"
#include "tests/boot_show/boot_show_fixture.h"
#include "tests/pictures/screen/broken_screens.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

constexpr COLORREF kDarkRed = RGB(128, 0, 0);

std::string TextOf(const Bytes& bytes) { return std::string(bytes.begin(), bytes.end()); }

std::string BrokenFile(screen::ScreenFault fault) {
    for (const BrokenScreen& broken : BrokenScreens())
        if (broken.fault == fault) return TextOf(broken.file);
    return "";
}

bool IsSound(const std::string& path) {
    const std::string file = Contents(path).value_or("");
    const Bytes bytes(file.begin(), file.end());
    return screen::FaultsOfScreen(bytes).empty();
}

class Faults : public BootShow {
 protected:
    Faults() {
        Put(screens + "LOGO.SYS", encoded);
        Put(pictures + "encoded.sys", encoded);
        Put(pictures + "flashing.sys", flashing);
        Put(pictures + "sound.sys", ScreenFile(0, 255, 0));
        Put(pictures + "photo.bmp", BmpOf(TestPicture(320, 400)));
    }

    static std::string Line(SelPictureForm& editor) {
        return user::TextOf(editor.LblWritten.handle());
    }
    /// Chooses "Mend" from a picture's menu and answers the question; what was asked.
    static user::Box MendAndAnswer(HWND picture, int answer) {
        EXPECT_TRUE(user::RightClick(picture));
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmMend));
        return user::AnswerBox(answer);
    }
    static bool OffersToMend(HWND picture) {
        EXPECT_TRUE(user::RightClick(picture));
        const bool offers = seen::RowOf(user::WaitForPopUp(), ID_ItmMend).enabled;
        DismissMenu();
        return offers;
    }

    const std::string encoded = BrokenFile(screen::ScreenFault::RunLengthEncoded);
    const std::string flashing = BrokenFile(screen::ScreenFault::CountOfColors);
};

TEST_F(Faults, OfASetAreNamedWhereItIsSelected) {
    WithMainWindow([&](Principale& main) {
        const auto said = [&] { return user::TextOf(main.LblFaults.handle()); };
        const std::string words = "Windows would not show LOGO.SYS: it is run-length encoded.";
        EXPECT_EQ(said(), words);
        EXPECT_TRUE(seen::ShowsColor(main.LblFaults.handle(), kDarkRed));
        EXPECT_EQ(seen::TipOver(main.Imag[0].handle()), words);
        EXPECT_EQ(seen::TipOver(main.LblFaults.handle()), words);
        user::TakeShot("faults-main");
        ClickSet(main, "Red");
        EXPECT_EQ(said(), "");
        EXPECT_FALSE(IsWindowVisible(main.LblFaults.handle()));
        EXPECT_EQ(user::TextOf(main.LblScreen[0].handle()), "LOGO.SYS\r\nStartup screen");
    });
}

TEST_F(Faults, OfSeveralScreensAreToldBrieflyAndWhollyInTheTips) {
    Put(screens + "LOGOW.SYS", flashing);
    Put(screens + "LOGOS.SYS", "no picture");
    WithMainWindow([&](Principale& main) {
        EXPECT_EQ(user::TextOf(main.LblFaults.handle()),
                  "LOGO.SYS is run-length encoded.\r\n"
                  "LOGOW.SYS gives a count where the first moving colour belongs.\r\n"
                  "LOGOS.SYS is no bitmap.");
        EXPECT_EQ(seen::TipOver(main.Imag[1].handle()),
                  "Windows would show LOGOW.SYS with flashing colours: it gives a count where the "
                  "first moving colour belongs.");
        for (const controls::Label& label : main.LblScreen)
            EXPECT_TRUE(seen::ShowsColor(label.handle(), kDarkRed));
        user::TakeShot("faults-main-all");
        // As many words as there is room for.
        const auto saysIn = [&](int width, int height) {
            SetWindowPos(main.handle(), nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER);
            return user::TextOf(main.LblFaults.handle());
        };
        EXPECT_TRUE(saysIn(1000, 700).starts_with("Windows would not show LOGO.SYS"));
        Put(screens + "LOGO.SYS", flashing);
        Put(screens + "LOGOS.SYS", flashing);
        Command(main, ID_ItmRefresh);
        EXPECT_EQ(saysIn(10, 10),
                  "LOGO.SYS: flashing colours\r\n"
                  "LOGOW.SYS: flashing colours\r\n"
                  "LOGOS.SYS: flashing colours");
        ClickSet(main, "Red");
        for (const controls::Label& label : main.LblScreen)
            EXPECT_FALSE(seen::ShowsColor(label.handle(), kDarkRed));
    });
}

TEST_F(Faults, AreMendedAfterAQuestionAndLeaveTheRestAsItIs) {
    GiveAttributes(screens + "LOGO.SYS", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    const auto wait = Contents(screens + "LOGOW.SYS");
    WithMainWindow([&](Principale& main) {
        EXPECT_FALSE(OffersToMend(main.Imag[1].handle()));
        user::Box box = MendAndAnswer(main.Imag[0].handle(), IDNO);
        EXPECT_EQ(box.text, screens +
                                "LOGO.SYS is run-length encoded. Would you like to mend it? What "
                                "is right stays as it is.");
        EXPECT_EQ(box.title, "Vistrel");
        EXPECT_EQ(box.icon, unsigned{MB_ICONQUESTION});
        Settle(main);
        EXPECT_EQ(Contents(screens + "LOGO.SYS"), encoded);

        MendAndAnswer(main.Imag[0].handle(), IDYES);
        EXPECT_TRUE(WaitUntil([&] { return main.LblFaults.Text().empty(); }));
        EXPECT_TRUE(IsSound(screens + "LOGO.SYS"));
        EXPECT_TRUE(main.Imag[0].HasPicture());
        EXPECT_FALSE(OffersToMend(main.Imag[0].handle()));
    });
    EXPECT_EQ(AttributesOf(screens + "LOGO.SYS"),
              unsigned{FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN});
    EXPECT_EQ(Contents(screens + "LOGOW.SYS"), wait);
    EXPECT_EQ(NamesIn(screens).size(), 3u);
    GiveAttributes(screens + "LOGO.SYS", FILE_ATTRIBUTE_NORMAL);
}

TEST_F(Faults, StayWhereTheFileCannotBeWritten) {
    GiveAttributes(screens + "LOGO.SYS", FILE_ATTRIBUTE_HIDDEN);
    const HANDLE held = CreateFileA((screens + "LOGO.SYS").c_str(), GENERIC_READ, FILE_SHARE_READ,
                                    nullptr, OPEN_EXISTING, 0, nullptr);
    WithMainWindow([&](Principale& main) {
        MendAndAnswer(main.Imag[0].handle(), IDYES);
        const user::Box box = user::AnswerBox(IDOK);
        EXPECT_EQ(box.text, screens +
                                "LOGO.SYS cannot be written and is as it was. The disk may be full "
                                "or write-protected, or another program may be using the file.");
        EXPECT_EQ(box.icon, unsigned{MB_ICONEXCLAMATION});
        Settle(main);
        EXPECT_EQ(main.LblFaults.Text(),
                  "Windows would not show LOGO.SYS: it is run-length encoded.");
    });
    CloseHandle(held);
    EXPECT_EQ(Contents(screens + "LOGO.SYS"), encoded);
    EXPECT_EQ(AttributesOf(screens + "LOGO.SYS"), unsigned{FILE_ATTRIBUTE_HIDDEN});
    EXPECT_EQ(NamesIn(screens).size(), 3u);
}

TEST_F(Faults, OfTheSelectedPictureAreNamedInTheLogoBrowser) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "encoded.sys");
        Settle(editor);
        EXPECT_EQ(Line(editor), "Windows would not show encoded.sys: it is run-length encoded.");
        EXPECT_TRUE(seen::ShowsColor(editor.LblWritten.handle(), kDarkRed));
        EXPECT_EQ(user::TextOf(editor.ImageInfo.handle()), "320 x  400 x  256");
        user::TakeShot("faults-browser");
        // What will be converted is no screen yet.
        for (const char* name : {"photo.bmp", "sound.sys"}) {
            Pick(editor, name);
            Settle(editor);
            EXPECT_EQ(Line(editor), "") << name;
        }
    });
}

TEST_F(Faults, OfTheSlotsAreNamedInTheLogoBrowser) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "flashing.sys", 1);
        Pick(editor, "sound.sys");
        Settle(editor);
        const std::string words =
            "Windows would show the wait screen with flashing colours: it gives a count where the "
            "first moving colour belongs.";
        EXPECT_EQ(Line(editor), words);
        EXPECT_EQ(user::TextOf(editor.LblSlot[1].handle()), "LOGOW.SYS\r\nWait screen");
        EXPECT_TRUE(seen::ShowsColor(editor.LblSlot[1].handle(), kDarkRed));
        EXPECT_FALSE(seen::ShowsColor(editor.LblSlot[0].handle(), kDarkRed));
        // A slot that the set does not use says nothing.
        Press(editor.OptOnlyStart);
        EXPECT_EQ(Line(editor), "");
        Press(editor.OptCompSet);
        EXPECT_EQ(Line(editor), words);
        Press(editor.DeleteButton[1]);
        EXPECT_EQ(Line(editor), "");
    });
}

TEST_F(Faults, DoNotHideWhatWasWritten) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "flashing.sys", 0);
        Pick(editor, "sound.sys");
        TypeName(editor, "New");
        Run(editor, ID_OkButton);
        EXPECT_EQ(Line(editor), "Created New: LOGO.SYS");
        EXPECT_FALSE(seen::ShowsColor(editor.LblWritten.handle(), kDarkRed));
        EXPECT_EQ(Contents(logos + "New\\LOGO.SYS"), flashing);
    });
}

TEST_F(Faults, OfASlotAreMendedInTheLogoBrowser) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "encoded.sys", 0);
        EXPECT_TRUE(Line(editor).starts_with("Windows would not show encoded.sys"));
        MendAndAnswer(editor.ImgPreview[0].handle(), IDYES);
        // In the slot and in the browser it is the same file.
        EXPECT_TRUE(WaitUntil([&] { return Line(editor).empty(); }));
        EXPECT_TRUE(IsSound(pictures + "encoded.sys"));
        EXPECT_TRUE(editor.ImgPreview[0].HasPicture());
        Pick(editor, "photo.bmp");
        Settle(editor);
        EXPECT_FALSE(OffersToMend(editor.CurView.handle()));
    });
}

TEST_F(Faults, OfTheSelectedPictureAreMendedByTheListsMenu) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "flashing.sys");
        Settle(editor);
        user::RightClickAt(PointOfItem(editor, "flashing.sys"));
        EXPECT_TRUE(seen::RowOf(user::WaitForPopUp(), ID_BrowserMend).enabled);
        EXPECT_TRUE(user::ChooseFromPopUp(ID_BrowserMend));
        user::AnswerBox(IDYES);
        EXPECT_TRUE(WaitUntil([&] { return Line(editor).empty(); }));
        EXPECT_TRUE(IsSound(pictures + "flashing.sys"));
    });
}

TEST_F(Faults, MendedInTheLogoBrowserAreGoneFromTheMainWindow) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Blue");
        MendAndAnswer(editor.ImgPreview[0].handle(), IDYES);
        EXPECT_TRUE(WaitUntil([&] { return Line(editor).empty(); }));
        EXPECT_TRUE(editor.LibraryChanged);
    });
    EXPECT_TRUE(IsSound(screens + "LOGO.SYS"));
}

}  // namespace
}  // namespace vistrel::test
