// Renaming in place, and changing the format by the name.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "platform/fault.h"
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;
using namespace platform;

namespace {

class Renaming : public MainWindow98 {
 protected:
    /// Edits a set's label by F2, types a name and presses Enter.
    void Rename(Principale& main, const std::string& name, const std::string& newName) {
        BeginRenaming(main, name, newName);
        user::TakeShot("rename_in_place");
        user::Press(VK_RETURN);
    }
    static bool Shows(Principale& main, const std::string& name) {
        const bool shown = WaitUntil(
            [&] { return !main.MyList.EditingLabel() && main.MyList.FindItem(name) >= 0; });
        Settle(main);
        return shown;
    }
};

TEST_F(Renaming, RenamesTheFolderAndKeepsTheSetSelected) {
    WithMainWindow([&](Principale& main) {
        Rename(main, "Red", "Scarlet");
        EXPECT_TRUE(Shows(main, "Scarlet"));
        EXPECT_TRUE(WaitUntil([&] { return main.Imag[0].Tag() == logos + "Scarlet\\LOGO.SYS"; }));
        EXPECT_TRUE(Exists(logos + "Scarlet\\LOGO.SYS"));
        EXPECT_FALSE(Exists(logos + "Red"));
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_EQ(main.MyList.ItemIcon(main.MyList.FindItem("Scarlet")), "multilogo");
    });
}

TEST_F(Renaming, KeepsTheInstalledSetInstalledUnderItsNewName) {
    WithMainWindow([&](Principale& main) {
        Rename(main, "Blue", "Azure");
        EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Azure"; }));
    });
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Azure"));
}

TEST_F(Renaming, LeavesTheSetOutOfTheRotationUnderItsNewName) {
    Store("LeftOutOfRotation", TextValue("Blue/Red"));
    WithMainWindow([&](Principale& main) {
        Rename(main, "Red", "Azure");
        EXPECT_TRUE(Shows(main, "Azure"));
    });
    EXPECT_EQ(Stored("LeftOutOfRotation"), SavedText("Blue/Azure"));
}

TEST_F(Renaming, AsksBeforeAMultiLogoSetBecomesASingleLogoSet) {
    WithMainWindow([&](Principale& main) {
        Rename(main, "Red", "Red.SLS");
        const auto box = user::AnswerBox(IDYES);
        EXPECT_EQ(box.text,
                  "Would you like to change your logoset format from Multi Logo to Single Logo?");
        EXPECT_EQ(box.icon, unsigned{MB_ICONQUESTION});
        EXPECT_EQ(box.default_button, IDYES);
        EXPECT_TRUE(Shows(main, "Red.SLS"));
        EXPECT_TRUE(WaitUntil([&] { return main.LogoType.Text() == "Single logo"; }));
        EXPECT_EQ(main.MyList.ItemIcon(main.MyList.FindItem("Red.SLS")), "singlelogo");
        // The name alone is the format: nothing in the folder changes.
        EXPECT_TRUE(Exists(logos + "Red.SLS\\LOGOW.SYS"));
    });
}

TEST_F(Renaming, AsksBeforeASingleLogoSetBecomesAMultiLogoSetAndLeavesAllAtNo) {
    WithMainWindow([&](Principale& main) {
        Rename(main, "Green.SLS", "Green");
        const auto box = user::AnswerBox(IDNO);
        EXPECT_EQ(box.text,
                  "Would you like to change your logoset format from Single Logo to Multi Logo?");
        EXPECT_TRUE(Shows(main, "Green.SLS"));
        EXPECT_TRUE(Exists(logos + "Green.SLS"));
        EXPECT_FALSE(Exists(logos + "Green"));
        EXPECT_EQ(main.MyList.ItemIcon(main.MyList.FindItem("Green.SLS")), "singlelogo");
    });
}

TEST_F(Renaming, ChangesTheFormatUnaskedWhereThePreferenceIsOff) {
    WithMainWindow([&](Principale& main) {
        main.Preferences().confirmLogoTypeChange = 0;
        Rename(main, "Red", "Red.sls");
        EXPECT_TRUE(Shows(main, "Red.sls"));
        EXPECT_EQ(main.MyList.ItemIcon(main.MyList.FindItem("Red.sls")), "singlelogo");
    });
}

TEST_F(Renaming, TakesAChangeOfCaseOfTheEndingForNoChangeOfFormat) {
    WithMainWindow([&](Principale& main) {
        Rename(main, "Green.SLS", "Green.sls");
        EXPECT_TRUE(Shows(main, "Green.sls"));
        EXPECT_TRUE(WaitUntil([&] { return main.Imag[0].Tag() == logos + "Green.sls\\LOGO.SYS"; }));
    });
}

TEST_F(Renaming, TellsThatTheNameIsTakenOrIllegalAndKeepsTheOld) {
    for (const char* name : {"Blue", "a/b", "a?b"}) {
        WithMainWindow([&](Principale& main) {
            Rename(main, "Red", name);
            const auto box = user::AnswerBox(IDOK);
            EXPECT_EQ(box.text,
                      "Cannot rename folder. The folder already exists or has an invalid name");
            EXPECT_EQ(box.icon, unsigned{MB_ICONEXCLAMATION});
            EXPECT_TRUE(Shows(main, "Red"));
        });
        EXPECT_TRUE(Exists(logos + "Red\\LOGO.SYS")) << name;
    }
}

TEST_F(Renaming, NeverMovesASetElsewhere) {
    PutSet("Inner", 1, 1, 1);
    for (const char* name : {"..\\Out", "Blue\\Moved", "Blue/Moved", "..", "a:b", "a*", "NUL"}) {
        WithMainWindow([&](Principale& main) {
            Rename(main, "Red", name);
            EXPECT_EQ(user::AnswerBox(IDOK).text,
                      "Cannot rename folder. The folder already exists or has an invalid name")
                << name;
            EXPECT_TRUE(Shows(main, "Red")) << name;
            EXPECT_EQ(main.MyList.Count(), 4);
        });
        EXPECT_EQ(NamesIn(root),
                  (std::vector<std::string>{"boot", "logos", "program", "startup", "windows"}));
        EXPECT_EQ(NamesIn(logos + "Blue\\"),
                  (std::vector<std::string>{"LOGO.SYS", "LOGOS.SYS", "LOGOW.SYS"}));
        EXPECT_TRUE(Exists(logos + "Red\\LOGO.SYS")) << name;
    }
}

TEST_F(Renaming, CutsBlanksAndDotsAtTheEndBeforeAnythingElse) {
    for (const char* typed : {"Beep ", "Beep..", "Beep . "}) {
        WithMainWindow([&](Principale& main) {
            Rename(main, "Blue", typed);
            EXPECT_TRUE(Shows(main, "Beep")) << typed;
            EXPECT_EQ(main.DefaultLogo.Text(), "Beep");
            EXPECT_EQ(main.Imag[0].Tag(), logos + "Beep\\LOGO.SYS");
            EXPECT_EQ(MiddleOf(main.Imag[0]), kBlueScreen);
        });
        EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Beep"));
        MoveFileA((logos + "Beep").c_str(), (logos + "Blue").c_str());
        Store("DefaultLogoSet", TextValue("Blue"));
    }
}

TEST_F(Renaming, AsksBeforeAnEndingWithABlankBehindItChangesTheFormat) {
    WithMainWindow([&](Principale& main) {
        Rename(main, "Red", "Scarlet.SLS ");
        EXPECT_EQ(user::AnswerBox(IDYES).text,
                  "Would you like to change your logoset format from Multi Logo to Single Logo?");
        EXPECT_TRUE(Shows(main, "Scarlet.SLS"));
        EXPECT_EQ(main.MyList.ItemIcon(main.MyList.FindItem("Scarlet.SLS")), "singlelogo");
    });
}

TEST_F(Renaming, DoesNothingWithALabelThatIsEmptiedOrUnchanged) {
    WithMainWindow([&](Principale& main) {
        for (const char* typed : {"", "Red", "Red ", "Red."}) {
            ClickSet(main, "Blue");
            ClickSet(main, "Red");
            user::Press(VK_F2);
            ASSERT_TRUE(WaitUntil([&] { return main.MyList.EditingLabel(); }));
            if (*typed)
                user::Type(typed);
            else
                user::Press(VK_DELETE);
            user::Press(VK_RETURN);
            EXPECT_TRUE(Shows(main, "Red")) << typed;
            EXPECT_EQ(user::FindTop("#32770"), nullptr) << typed;
        }
        EXPECT_EQ(Selected(main), "Red");
    });
    EXPECT_TRUE(Exists(logos + "Red\\LOGO.SYS"));
}

// Windows reports such an edit, Wine calls it cancelled.
TEST_F(Renaming, TouchesNoFolderWhereTheListReportsAnUnchangedLabel) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        char text[] = "Red";
        NMLVDISPINFOA edit{};
        edit.hdr = {main.MyList.handle(), ID_MyList, UINT(LVN_BEGINLABELEDITA)};
        edit.item.iItem = 2;
        edit.item.pszText = text;
        SendMessageA(main.handle(), WM_NOTIFY, ID_MyList, reinterpret_cast<LPARAM>(&edit));
        edit.hdr.code = UINT(LVN_ENDLABELEDITA);
        fault::Reset();
        EXPECT_FALSE(
            SendMessageA(main.handle(), WM_NOTIFY, ID_MyList, reinterpret_cast<LPARAM>(&edit)));
        EXPECT_EQ(fault::Counted(), 0);
    });
}

TEST_F(Renaming, AsksAboutTheFormatForExactlyOneOnly) {
    WithMainWindow([&](Principale& main) {
        main.Preferences().confirmLogoTypeChange = 2;
        Rename(main, "Red", "Red.SLS");
        EXPECT_TRUE(Shows(main, "Red.SLS"));
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
    });
}

TEST_F(Renaming, ShowsTheIconAskedForAfterAFailedChangeOfFormatUntilTheNextRefresh) {
    PutSingleSet("Taken.SLS", 1, 2, 3);
    WithMainWindow([&](Principale& main) {
        main.Preferences().confirmLogoTypeChange = 0;
        Rename(main, "Red", "Taken.SLS");
        user::AnswerBox(IDOK);
        EXPECT_TRUE(Shows(main, "Red"));
        EXPECT_EQ(main.MyList.ItemIcon(main.MyList.FindItem("Red")), "singlelogo");
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(main.MyList.ItemIcon(main.MyList.FindItem("Red")), "multilogo");
    });
}

TEST_F(Renaming, TakesTheSameNameInOtherCaseWithoutAMessage) {
    WithMainWindow([&](Principale& main) {
        Rename(main, "Red", "RED");
        EXPECT_TRUE(Shows(main, "RED"));
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        EXPECT_EQ(main.MyList.Count(), 3);
    });
    EXPECT_TRUE(Exists(logos + "RED\\LOGO.SYS"));
}

// Whether the system lets a folder be renamed while a file in it is open differs.
TEST_F(Renaming, ShowsWhatTheFolderIsCalledWhileAFileInItIsHeldOpen) {
    const HANDLE file = CreateFileA((logos + "Red\\LOGO.SYS").c_str(), GENERIC_READ, 0, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
    ASSERT_NE(file, INVALID_HANDLE_VALUE);
    WithMainWindow([&](Principale& main) {
        Rename(main, "Red", "Scarlet");
        EXPECT_TRUE(WaitUntil(
            [&] { return user::FindTop("#32770") || main.MyList.FindItem("Scarlet") >= 0; }));
        if (user::FindTop("#32770")) user::AnswerBox(IDOK);
        WaitUntil([&] { return !main.MyList.EditingLabel(); });
        Settle(main);
        EXPECT_EQ(main.MyList.FindItem("Scarlet") >= 0, Exists(logos + "Scarlet"));
        EXPECT_EQ(main.MyList.FindItem("Red") >= 0, Exists(logos + "Red"));
    });
    CloseHandle(file);
}

TEST_F(Renaming, IsGivenUpByEsc) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        user::Press(VK_F2);
        ASSERT_TRUE(WaitUntil([&] { return main.MyList.EditingLabel(); }));
        user::Type("Other");
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(Shows(main, "Red"));
    });
    EXPECT_TRUE(Exists(logos + "Red"));
}

TEST_F(Renaming, LeavesDeleteToTheTextWhileALabelIsEdited) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        user::Press(VK_F2);
        ASSERT_TRUE(WaitUntil([&] { return main.MyList.EditingLabel(); }));
        user::Press(VK_DELETE);
        user::Type("Rosso");
        user::Press(VK_RETURN);
        EXPECT_TRUE(Shows(main, "Rosso"));
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
    });
}

}  // namespace
}  // namespace vistrel::test
