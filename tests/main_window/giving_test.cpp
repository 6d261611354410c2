// Sets that are exported to ZIP files and imported from them.
#include <ole2.h>

#include "tests/main_window/file_drag_source.h"
#include "tests/main_window/open_file.h"
#include "tests/support/machine/zip_file.h"
#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace main_window;

namespace {

class Giving : public MainWindow98 {
 protected:
    /// For the user's thread: chooses a command of the Logo menu by its letter.
    void ChooseByKey(char letter) {
        user::OpenMenuByLetter('L', 0);
        user::Press(letter);
    }

    /// For the user's thread: types a path into the dialog of this title and confirms it.
    static bool AnswerDialog(const std::string& title, const std::string& path) {
        const HWND dialog = user::WaitForTop("#32770", title);
        if (!dialog) return false;
        user::Activate(dialog);
        user::TakeShot("dialog_" + title.substr(0, 6));
        user::Type(path);
        user::Press(VK_RETURN);
        return user::WaitUntilGone(dialog);
    }

    /// Drags files onto the list; `answer` answers what is asked, then `look` looks.
    void Drop(const Names& paths, const std::function<void(Principale& main)>& answer,
              const std::function<void(Principale& main)>& look) {
        OleInitialize(nullptr);
        {
            FileDragSource source({4, 4}, paths);
            WithMainWindow([&](Principale& main) {
                user::Drag(user::CentreOf(source.window()), user::CentreOf(main.MyList.handle()));
                answer(main);
                EXPECT_TRUE(WaitUntil([&] { return source.effect() != ~DWORD{0}; }, 60000));
                look(main);
            });
        }
        OleUninitialize();
    }
    static void NoQuestion(Principale&) {}

    std::string Archive(const std::vector<Packed>& files) {
        Put(zip, ZipOf(files));
        return zip;
    }

    const std::string zip = root + "given.zip";
};

TEST_F(Giving, ExportsTheSelectedSetByTheKeyboardAndImportsItAgain) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        ChooseByKey('X');
        EXPECT_TRUE(AnswerDialog("Export logo set", zip));
        EXPECT_TRUE(WaitUntil([&] { return Exists(zip); }));
        Settle(main);
        EXPECT_EQ(user::FindTop("#32770"), nullptr);

        RemoveTree(logos + "Red");
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(main.NumLogo.Text(), " 2 logo sets");
        ChooseByKey('I');
        EXPECT_TRUE(AnswerDialog("Import logo sets", zip));
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "Red"; }));
        Settle(main);
        EXPECT_EQ(main.NumLogo.Text(), " 3 logo sets");
        EXPECT_EQ(MiddleOf(main.Imag[0]), kRed);
        EXPECT_EQ(main.MyList.ItemIcon(main.MyList.SelectedItem()), "multilogo");
        user::TakeShot("imported", main.handle());
    });
    EXPECT_TRUE(Contents(logos + "Red\\LOGOS.SYS") == ScreenFile(255, 0, 0));
}

TEST_F(Giving, ShowsAllSetsAgainWhereSomeOnlyWereFound) {
    Archive({{"New/LOGO.SYS", ScreenFile(255, 0, 0)}});
    WithMainWindow([&](Principale& main) {
        user::Press('F', {VK_CONTROL});
        EXPECT_TRUE(
            WaitUntil([&] { return seen::FocusIn(main.handle()) == main.FindBox.handle(); }));
        user::Type("Blue");
        EXPECT_TRUE(WaitUntil([&] { return main.MyList.Count() == 1; }));
        ChooseByKey('I');
        EXPECT_TRUE(AnswerDialog("Import logo sets", zip));
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "New"; }));
        Settle(main);
        EXPECT_EQ(main.NumLogo.Text(), " 4 logo sets");
        EXPECT_EQ(user::TextOf(main.FindBox.handle()), "");
    });
}

TEST_F(Giving, ProposesTheNameOfTheSetAndAddsTheEnding) {
    std::string proposed;
    WithMainWindow([&](Principale& main) {
        StartCommand(main, ID_ToolExport);
        const HWND dialog = user::WaitForTop("#32770", "Export logo set");
        ASSERT_NE(dialog, nullptr);
        const HWND field = user::Control(dialog, 0x47C);
        proposed = user::TextOf(field ? field : user::Control(dialog, 0x480));
        EXPECT_TRUE(AnswerDialog("Export logo set", root + "mine"));
        EXPECT_TRUE(WaitUntil([&] { return Exists(root + "mine.zip"); }));
    });
    EXPECT_EQ(proposed, "Blue.zip");
}

TEST_F(Giving, ExportIsEnabledWithASelectedSetOnlyAndImportAlways) {
    Store("DefaultLogoSet", TextValue("gone"));
    WithMainWindow([&](Principale& main) {
        const HMENU menu = seen::RowsOf(GetMenu(main.handle())).at(0).opens;
        EXPECT_FALSE(seen::RowOf(menu, ID_ToolExport).enabled);
        EXPECT_TRUE(seen::RowOf(menu, ID_ToolImport).enabled);
        ClickSet(main, "Red");
        EXPECT_TRUE(seen::RowOf(menu, ID_ToolExport).enabled);
    });
}

TEST_F(Giving, SaysWhatKeepsAnExportFromItsFile) {
    MakeFolders(logos + "Empty\\");
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Empty");
        StartCommand(main, ID_ToolExport);
        EXPECT_TRUE(AnswerDialog("Export logo set", zip));
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  "There is nothing to export: Empty has no screens of its own.");
        EXPECT_FALSE(Exists(zip));
    });
}

TEST_F(Giving, SaysWhereAScreenCannotBeRead) {
    const OpenFile open(logos + "Red\\LOGOW.SYS");
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        StartCommand(main, ID_ToolExport);
        EXPECT_TRUE(AnswerDialog("Export logo set", zip));
        EXPECT_EQ(user::AnswerBox(IDOK).text, "A screen of Red cannot be read.");
        EXPECT_FALSE(Exists(zip));
    });
}

TEST_F(Giving, SaysWhereTheFileCannotBeWrittenAndLeavesIt) {
    Put(zip, "in use");
    WithMainWindow([&](Principale& main) {
        const OpenFile open(zip);
        ClickSet(main, "Red");
        StartCommand(main, ID_ToolExport);
        const HWND dialog = user::WaitForTop("#32770", "Export logo set");
        user::Activate(dialog);
        user::Type(zip);
        user::Press(VK_RETURN);
        // Whether to replace it is the dialog's own question.
        WaitUntil([&] { return user::FindTop("#32770") != dialog; });
        user::AnswerBox(IDYES);
        EXPECT_EQ(user::AnswerBox(IDOK).text,
                  zip + " cannot be written. The disk may be full, or the file protected.");
    });
    EXPECT_EQ(Contents(zip), "in use");
}

TEST_F(Giving, SaysWhichSetOfAFileCannotBeTakenAndTakesTheOthers) {
    Put(logos + "New", "a file of that name");
    user::Box box;
    Drop(
        {Archive({{"New/LOGO.SYS", "x"}, {"Other/LOGO.SYS", ScreenFile(0, 0, 255)}})},
        [&](Principale&) { box = user::AnswerBox(IDOK); },
        [&](Principale& main) {
            EXPECT_EQ(main.SetNames(), (Names{"Blue", "Green.SLS", "Red", "Other"}));
        });
    EXPECT_EQ(box.text,
              "New cannot be taken into the logo folder. A file of that name may be there, or one "
              "that is in use.");
    EXPECT_EQ(Contents(logos + "New"), "a file of that name");
}

TEST_F(Giving, TakesADroppedFileOfSetsAndShowsTheLastOfThem) {
    Drop({Archive({{"City/LOGO.SYS", ScreenFile(255, 0, 0)},
                   {"City/LOGOW.SYS", ScreenFile(0, 255, 0)},
                   {"more/Sea.bmp", ScreenFile(0, 255, 0)}})},
         NoQuestion, [&](Principale& main) {
             EXPECT_EQ(main.SetNames(), (Names{"Blue", "Green.SLS", "Red", "City", "Sea.SLS"}));
             EXPECT_EQ(Selected(main), "Sea.SLS");
             EXPECT_EQ(main.NumLogo.Text(), " 5 logo sets");
             EXPECT_EQ(main.LogoType.Text(), "Single logo");
             EXPECT_EQ(MiddleOf(main.Imag[0]), kGreenScreen);
             user::TakeShot("dropped", main.handle());
         });
    EXPECT_TRUE(Contents(logos + "City\\LOGOW.SYS") == ScreenFile(0, 255, 0));
    EXPECT_EQ(NamesIn(logos),
              (Names{"Blue", "City", "Green.SLS", "LOGOS.SYS", "LOGOW.SYS", "Red", "Sea.SLS"}));
}

TEST_F(Giving, AsksBeforeASetOfAFileReplacesOneAndGoesOnAtNo) {
    user::Box box;
    Drop(
        {Archive({{"red/LOGO.SYS", "x"}, {"New/LOGO.SYS", ScreenFile(0, 0, 255)}})},
        [&](Principale&) { box = user::AnswerBox(IDNO); },
        [&](Principale& main) {
            EXPECT_EQ(main.SetNames(), (Names{"Blue", "Green.SLS", "Red", "New"}));
            EXPECT_EQ(Selected(main), "New");
        });
    EXPECT_EQ(box.text,
              "The selected folder 'red' already exist in your logo folder. Would you like to "
              "overwrite the existing files?");
    EXPECT_EQ(box.default_button, IDNO);
    EXPECT_TRUE(Contents(logos + "Red\\LOGO.SYS") == ScreenFile(255, 0, 0));
}

TEST_F(Giving, ReplacesTheScreensOfASetAtYesWithoutASecondItem) {
    Drop(
        {Archive({{"Red/LOGO.SYS", ScreenFile(0, 0, 255)}})},
        [&](Principale&) { user::AnswerBox(IDYES); },
        [&](Principale& main) {
            EXPECT_EQ(main.SetNames(), (Names{"Blue", "Green.SLS", "Red"}));
            EXPECT_EQ(MiddleOf(main.Imag[0]), kBlueScreen);
            EXPECT_EQ(MiddleOf(main.Imag[1]), kRed);
        });
}

TEST_F(Giving, SaysWhatIsWrongWithADroppedFileAndTakesTheFolderBesideIt) {
    Put(zip, "no archive");
    MakeFolders(root + "outside\\New\\");
    Put(root + "outside\\New\\LOGO.SYS", ScreenFile(0, 255, 0));
    user::Box box;
    Drop(
        {zip, root + "outside\\New"},
        [&](Principale& main) {
            box = user::WaitForBox();
            EXPECT_EQ(GetWindow(box.window, GW_OWNER), main.handle());
            user::TakeShot("broken_archive");
            user::AnswerBox(IDOK);
        },
        [&](Principale& main) {
            EXPECT_EQ(main.SetNames(), (Names{"Blue", "Green.SLS", "Red", "New"}));
        });
    EXPECT_EQ(box.text, zip + " is not a ZIP file.");
    EXPECT_EQ(box.title, "Vistrel");
    EXPECT_EQ(box.icon, unsigned{MB_ICONEXCLAMATION});
}

TEST_F(Giving, ImportingEndsTheViewOfTheInstalledScreens) {
    Archive({{"New/LOGO.SYS", ScreenFile(0, 255, 0)}});
    WithMainWindow([&](Principale& main) {
        Command(main, ID_ToolShowCurrent);
        StartCommand(main, ID_ItmImport);
        EXPECT_TRUE(AnswerDialog("Import logo sets", zip));
        EXPECT_TRUE(WaitUntil([&] { return Selected(main) == "New"; }));
        Settle(main);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        EXPECT_TRUE(SetToolsEnabled(main));
    });
}

TEST_F(Giving, ACancelledDialogChangesNothing) {
    WithMainWindow([&](Principale& main) {
        for (const char* title : {"Export logo set", "Import logo sets"}) {
            StartCommand(main, std::string(title)[0] == 'E' ? ID_ToolExport : ID_ToolImport);
            const HWND dialog = user::WaitForTop("#32770", title);
            ASSERT_NE(dialog, nullptr) << title;
            user::Activate(dialog);
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(user::WaitUntilGone(dialog));
            Settle(main);
        }
        EXPECT_EQ(main.SetNames(), (Names{"Blue", "Green.SLS", "Red"}));
    });
}

}  // namespace
}  // namespace vistrel::test
