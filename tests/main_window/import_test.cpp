// Folders dropped on the list become sets.
#include <ole2.h>

#include "tests/main_window/file_drag_source.h"
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

using namespace main_window;

namespace {

class Importing : public MainWindow98 {
 protected:
    /// A folder outside the library with one screen that says its name.
    std::string Outside(const std::string& name) {
        const std::string folder = root + "outside\\" + name;
        MakeFolders(folder + "\\");
        Put(folder + "\\LOGO.SYS", "screen of " + name);
        return folder;
    }

    /// Drags these paths onto the middle of the list with the mouse; `meanwhile` answers questions.
    /// True when the drop was taken.
    void Drop(const std::vector<std::string>& paths,
              const std::function<void(Principale& main)>& answer,
              const std::function<void(Principale& main)>& look, bool asFiles = true) {
        OleInitialize(nullptr);
        {
            FileDragSource source({4, 4}, paths, asFiles);
            WithMainWindow([&](Principale& main) {
                user::Drag(user::CentreOf(source.window()), user::CentreOf(main.MyList.handle()));
                answer(main);
                EXPECT_TRUE(WaitUntil([&] { return source.effect() != ~DWORD{0}; }, 60000));
                effect_ = source.effect();
                look(main);
            });
        }
        OleUninitialize();
    }
    static void NoQuestion(Principale&) {}

    DWORD effect_ = 0;
};

TEST_F(Importing, AddsThreeFoldersInTheirOrderAndSelectsTheThird) {
    Drop({Outside("Zoo"), Outside("Alpha"), Outside("Mid")}, NoQuestion, [&](Principale& main) {
        EXPECT_EQ(main.SetNames(),
                  (std::vector<std::string>{"Blue", "Green.SLS", "Red", "Zoo", "Alpha", "Mid"}));
        EXPECT_EQ(main.MyList.SelectedItem(), 5);
        EXPECT_EQ(main.Imag[0].Tag(), logos + "Mid\\LOGO.SYS");
        // The count catches up at the next refresh.
        EXPECT_EQ(main.NumLogo.Text(), " 3 logo sets");
    });
    EXPECT_EQ(Contents(logos + "Zoo\\LOGO.SYS"), "screen of Zoo");
    EXPECT_EQ(Contents(logos + "Alpha\\LOGO.SYS"), "screen of Alpha");
    EXPECT_TRUE(Exists(root + "outside\\Zoo\\LOGO.SYS"));
}

TEST_F(Importing, AsksBeforeItOverwritesAndLeavesAllAtNo) {
    user::Box box;
    Drop(
        {Outside("Red")}, [&](Principale&) { box = user::AnswerBox(IDNO); },
        [&](Principale& main) {
            EXPECT_EQ(main.MyList.Count(), 3);
            EXPECT_EQ(main.MyList.SelectedItem(), 0);
        });
    EXPECT_EQ(box.text,
              "The selected folder 'Red' already exist in your logo folder. Would you like to "
              "overwrite the existing files?");
    EXPECT_EQ(box.default_button, IDNO);
    EXPECT_EQ(box.icon, unsigned{MB_ICONQUESTION});
    EXPECT_TRUE(Contents(logos + "Red\\LOGO.SYS") == ScreenFile(255, 0, 0));
}

TEST_F(Importing, CopiesOverAnExistingSetAtYesWithoutASecondItem) {
    Drop(
        {Outside("Red")},
        [&](Principale&) {
            WaitUntil([] { return user::FindTop("#32770") != nullptr; });
            user::TakeShot("overwrite_question");
            user::AnswerBox(IDYES);
        },
        [&](Principale& main) {
            EXPECT_EQ(main.MyList.Count(), 3);
            EXPECT_EQ(main.MyList.SelectedItem(), 2);
        });
    EXPECT_EQ(Contents(logos + "Red\\LOGO.SYS"), "screen of Red");
    EXPECT_TRUE(Contents(logos + "Red\\LOGOW.SYS") == ScreenFile(255, 0, 0));
}

TEST_F(Importing, FindsAnExistingSetWhateverItsCase) {
    Drop(
        {Outside("red")},
        [&](Principale& main) {
            const user::Box box = user::WaitForBox();
            EXPECT_EQ(GetForegroundWindow(), box.window);
            EXPECT_EQ(GetWindow(box.window, GW_OWNER), main.handle());
            user::AnswerBox(IDYES);
        },
        [&](Principale& main) {
            EXPECT_EQ(main.SetNames(), (std::vector<std::string>{"Blue", "Green.SLS", "Red"}));
            EXPECT_EQ(Selected(main), "Red");
            EXPECT_TRUE(Says(main.Imag[0], "cannot be read as a picture"));
            EXPECT_EQ(MiddleOf(main.Imag[1]), kRed);
        });
    EXPECT_EQ(Contents(logos + "Red\\LOGO.SYS"), "screen of red");
}

TEST_F(Importing, PassesOverTheRootOfADrive) {
    const auto before = NamesIn(logos);
    for (const char* drive : {"C:\\", "C:"})
        Drop({drive}, NoQuestion, [&](Principale& main) {
            EXPECT_EQ(main.MyList.Count(), 3);
            EXPECT_EQ(Selected(main), "Blue");
        });
    EXPECT_EQ(NamesIn(logos), before);
}

TEST_F(Importing, PassesOverTheLogoFolderItself) {
    const auto before = NamesIn(logos);
    const std::string folder = logos.substr(0, logos.size() - 1);
    std::string capitals = folder;
    CharUpperA(capitals.data());
    for (const std::string& dropped : {folder, capitals})
        Drop({dropped}, NoQuestion, [&](Principale& main) {
            EXPECT_EQ(main.SetNames(), (std::vector<std::string>{"Blue", "Green.SLS", "Red"}));
            EXPECT_EQ(Selected(main), "Blue");
        });
    EXPECT_EQ(NamesIn(logos), before);
}

TEST_F(Importing, GoesOnAfterADeclinedFolder) {
    Drop(
        {Outside("Red"), Outside("New")}, [&](Principale&) { user::AnswerBox(IDNO); },
        [&](Principale& main) {
            EXPECT_EQ(main.MyList.Count(), 4);
            EXPECT_EQ(main.MyList.SelectedItem(), 3);
        });
    EXPECT_TRUE(Contents(logos + "Red\\LOGO.SYS") == ScreenFile(255, 0, 0));
}

TEST_F(Importing, MarksAFolderWithTheEndingInAnyCaseAsSingleLogoSet) {
    Drop({Outside("Dawn.sLs")}, NoQuestion, [&](Principale& main) {
        EXPECT_EQ(main.MyList.ItemIcon(main.MyList.FindItem("Dawn.sLs")), "singlelogo");
        EXPECT_EQ(main.LogoType.Text(), "Single logo");
    });
}

TEST_F(Importing, PassesOverFilesAndSelectsNothingAfterALastOne) {
    Put(root + "outside.txt", "no folder");
    Drop({Outside("New"), root + "outside.txt"}, NoQuestion, [&](Principale& main) {
        EXPECT_EQ(main.MyList.Count(), 4);
        EXPECT_EQ(main.MyList.SelectedItem(), 0);
    });
    EXPECT_FALSE(Exists(logos + "outside.txt"));
}

// What drops need takes a while to load: the window does not wait for it.
TEST_F(Importing, BeginsOnceTheWindowIsThere) {
    Principale main(locations);
    ASSERT_TRUE(main.Create(nullptr));
    main.Show();
    const auto takesDrops = [&] {
        return GetPropA(main.MyList.handle(), "OleDropTargetInterface") != nullptr;
    };
    EXPECT_FALSE(takesDrops());
    EXPECT_TRUE(WaitUntil(takesDrops));
    main.Unload();
}

TEST_F(Importing, EndsTheViewOfTheInstalledScreens) {
    OleInitialize(nullptr);
    {
        FileDragSource source({4, 4}, {Outside("New")});
        WithMainWindow([&](Principale& main) {
            Command(main, ID_ToolShowCurrent);
            user::Drag(user::CentreOf(source.window()), user::CentreOf(main.MyList.handle()));
            EXPECT_TRUE(WaitUntil([&] { return main.DefaultLogo.Text() == "Blue"; }));
            Settle(main);
            EXPECT_EQ(Selected(main), "New");
            EXPECT_EQ(main.Imag[0].Tag(), logos + "New\\LOGO.SYS");
            EXPECT_TRUE(SetToolsEnabled(main));
        });
    }
    OleUninitialize();
}

TEST_F(Importing, EnablesTheSetCommandsWhereNothingWasSelected) {
    Store("DefaultLogoSet", TextValue("gone"));
    Drop({Outside("New")}, NoQuestion, [&](Principale& main) {
        EXPECT_EQ(Selected(main), "New");
        EXPECT_TRUE(SetToolsEnabled(main));
    });
}

TEST_F(Importing, RefusesADropThatIsNoFileList) {
    Drop({}, NoQuestion, [&](Principale& main) { EXPECT_EQ(main.MyList.Count(), 3); }, false);
    EXPECT_EQ(effect_, DWORD{DROPEFFECT_NONE});
}

TEST_F(Importing, TakesReadOnlyFilesAndSubFoldersAlong) {
    const std::string folder = Outside("Deep");
    MakeFolders(folder + "\\more\\");
    Put(folder + "\\more\\note.txt", "note");
    GiveAttributes(folder + "\\LOGO.SYS", FILE_ATTRIBUTE_READONLY);
    Drop({folder}, NoQuestion, [](Principale& main) { EXPECT_EQ(main.MyList.Count(), 4); });
    EXPECT_EQ(Contents(logos + "Deep\\LOGO.SYS"), "screen of Deep");
    EXPECT_EQ(Contents(logos + "Deep\\more\\note.txt"), "note");
}

TEST_F(Importing, TakesThreeHundredFolders) {
    std::vector<std::string> folders;
    for (int i = 0; i < 300; ++i) folders.push_back(Outside("Set " + std::to_string(i)));
    Drop(folders, NoQuestion, [](Principale& main) { EXPECT_EQ(main.MyList.Count(), 303); });
    EXPECT_EQ(Contents(logos + "Set 299\\LOGO.SYS"), "screen of Set 299");
}

TEST_F(Importing, SurvivesDroppingASetOntoItsOwnLibrary) {
    Drop(
        {logos + "Red"}, [](Principale&) { user::AnswerBox(IDYES); },
        [](Principale& main) { EXPECT_EQ(main.MyList.Count(), 3); });
    EXPECT_TRUE(Contents(logos + "Red\\LOGO.SYS") == ScreenFile(255, 0, 0));
}

TEST_F(Importing, TakesAFolderWithAPathOf250Characters) {
    std::string deep = root + "outside\\";
    deep += std::string(250 - deep.size() - 9, 'd');
    MakeFolders(deep + "\\");
    const std::string folder = deep + "\\LongPath";
    CreateDirectoryA(folder.c_str(), nullptr);
    ASSERT_EQ(folder.size(), 250u);
    Drop({folder}, NoQuestion,
         [](Principale& main) { EXPECT_GE(main.MyList.FindItem("LongPath"), 0); });
    EXPECT_TRUE(Exists(logos + "LongPath"));
}

}  // namespace
}  // namespace vistrel::test
