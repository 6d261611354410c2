// Types of sets, loading them, creating and updating them, and saving the shared screens.
#include "tests/editor/editor_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace core;
using namespace editor;
using namespace main_window;

namespace {

using Saving = LogoBrowser;
const std::string kNewScreen = ScreenFile(10, 20, 30, 236);  // its colours move

std::string SaveError(const std::string& text) {
    return "A directory named " + text + " already exist or bad directory name!";
}

void ExpectSaveError(const user::Box& box, const std::string& text) {
    EXPECT_EQ(box.text, SaveError(text));
    EXPECT_EQ(box.title, "Cannot create directory");
    EXPECT_EQ(box.icon, static_cast<unsigned>(MB_ICONEXCLAMATION));
    EXPECT_EQ(box.buttons, (std::vector<int>{IDOK}));
}

TEST_F(Saving, TypesLayOutTheSlots) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const struct {
            OptionButton& option;
            bool used[3];
            bool nameEnabled;
            const char* action;
        } types[] = {
            {editor.OptOnlyStart, {true, false, false}, true, "Ac&tion..."},
            {editor.OptDefShut, {false, true, true}, false, "Save se&tting"},
            {editor.OptCompSet, {true, true, true}, true, "Ac&tion..."},
        };
        for (const auto& type : types) {
            Press(type.option);
            for (int i = 0; i < 3; ++i) {
                EXPECT_EQ(editor.ImgPreview[i].Visible(), type.used[i]);
                EXPECT_EQ(editor.AddButton[i].Visible(), type.used[i]);
                EXPECT_EQ(editor.DeleteButton[i].Visible(), type.used[i]);
                EXPECT_EQ(editor.LblNotAval[i].Visible(), !type.used[i]);
            }
            EXPECT_EQ(editor.NameLogoSet.Enabled(), type.nameEnabled);
            EXPECT_EQ(editor.ActButton.Text(), type.action);
        }
        EXPECT_EQ(editor.LblNotAval[0].Text(), "Default wait/shutdown screens");
        EXPECT_EQ(editor.LblNotAval[1].Text(), "Only startup logo");
        EXPECT_EQ(editor.LblNotAval[2].Text(), "Only startup logo");
    });
}

TEST_F(Saving, AnotherTypeChangesTheSetAndTheSameTypeDoesNot) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Press(editor.OptCompSet);
        EXPECT_FALSE(editor.SetChanged);
        Press(editor.OptOnlyStart);
        EXPECT_TRUE(editor.SetChanged);
    });
}

TEST_F(Saving, DefaultScreensShowTheLogoFoldersOwn) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Press(editor.OptDefShut);
        EXPECT_EQ(editor.ImgPreview[1].Tag(), logos + "LOGOW.SYS");
        EXPECT_EQ(editor.ImgPreview[2].Tag(), logos + "LOGOS.SYS");
        EXPECT_TRUE(editor.ImgPreview[1].HasPicture());
    });
}

TEST_F(Saving, LoadsASetsScreensIntoTheSlots) {
    DeleteFileA((logos + "Red\\LOGOS.SYS").c_str());
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        for (int i = 0; i < 3; ++i) {
            EXPECT_EQ(editor.ImgPreview[i].Tag(), logos + "Red\\" + kScreenFileNames[i]);
            EXPECT_EQ(editor.ImgPreview[i].HasPicture(), i < 2);
            EXPECT_EQ(editor.DeleteButton[i].Enabled(), i < 2);
        }
        EXPECT_EQ(editor.LoadedIndex, 2);
        EXPECT_FALSE(editor.SetChanged || editor.NameChanged || editor.OptionSetByCode);
        ChooseSet(editor, "Green.SLS");
        EXPECT_TRUE(editor.OptOnlyStart.Value());
        EXPECT_EQ(editor.ImgPreview[1].Tag(), logos + "Green.SLS\\LOGOW.SYS");
        EXPECT_FALSE(editor.SetChanged);
        ChooseSet(editor, "Blue");
        EXPECT_TRUE(editor.OptCompSet.Value());
        EXPECT_TRUE(editor.ImgPreview[1].Visible());
    });
}

TEST_F(Saving, ConvertsAPictureIntoATemporaryFileThatGoesWithTheSession) {
    Put(pictures + "a.bmp", BmpOf(TestPicture(64, 48)));
    std::string converted;
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "a.bmp", 0);
        converted = editor.ImgPreview[0].Tag();
        EXPECT_EQ(editor.List1.Count(), 1);
        EXPECT_EQ(editor.List1.Item(0), converted);
        EXPECT_EQ(Contents(converted).value_or("").size(), 129078u);
        EXPECT_TRUE(editor.ImgPreview[0].HasPicture());
        EXPECT_EQ(Contents(pictures + "a.bmp"), BmpOf(TestPicture(64, 48)));
    });
    EXPECT_FALSE(Exists(converted));
}

TEST_F(Saving, CreatesACompleteSetAndTakesScreensByteForByte) {
    Put(pictures + "new.sys", kNewScreen);
    Put(pictures + "a.gif", GifOf(TestPicture(64, 48)));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        TypeName(editor, "Fresh");
        Fill(editor, "new.sys", 0);
        Fill(editor, "a.gif", 1);
        Fill(editor, "new.sys", 2);
        Run(editor, ID_OkButton);
        EXPECT_EQ(Contents(logos + "Fresh\\LOGO.SYS"), kNewScreen);
        EXPECT_EQ(Contents(logos + "Fresh\\LOGOW.SYS").value_or("").size(), 129078u);
        EXPECT_EQ(Contents(logos + "Fresh\\LOGOS.SYS"), kNewScreen);
        EXPECT_EQ(editor.NameLogoSet.FindItem("Fresh"), 3);
        EXPECT_EQ(editor.LoadedIndex, 3);
        EXPECT_EQ(editor.LoadedSet, "Fresh");
        EXPECT_FALSE(editor.OkButton[0].Enabled() || editor.OkButton[1].Enabled());
        EXPECT_TRUE(editor.EliminaSetBtn.Enabled());
        EXPECT_FALSE(editor.SetChanged || editor.NameChanged);
        EXPECT_TRUE(editor.LibraryChanged);
    });
}

TEST_F(Saving, CreatesAStartupOnlySetUnderTheEndingInLowerCase) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        TypeName(editor, "Lone");
        Press(editor.OptOnlyStart);
        Fill(editor, "new.sys", 0);
        Run(editor, ID_OkButton);
        EXPECT_EQ(NamesIn(logos + "Lone.sls\\"), (Names{"LOGO.SYS"}));
        EXPECT_EQ(editor.NameLogoSet.Text(), "Lone.sls");
    });
}

TEST_F(Saving, CreatesASetThatLacksScreensWithoutAWord) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        TypeName(editor, "Bare");
        Run(editor, ID_OkButton);
        EXPECT_TRUE(Exists(logos + "Bare"));
        EXPECT_EQ(NamesIn(logos + "Bare\\"), Names{});
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
    });
}

TEST_F(Saving, RefusesToCreateASetOfANameThatIsTakenOrIllegal) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "new.sys", 0);
        for (const char* name : {"Red", "a?b"}) {
            TypeName(editor, name);
            Await([&] { return editor.OkButton[0].Enabled(); }, "create enabled");
            ExpectSaveError(RunAndAnswer(editor, ID_OkButton, IDOK), name);
            EXPECT_TRUE(editor.SetChanged && editor.NameChanged);
            EXPECT_EQ(editor.NameLogoSet.Count(), 3);
        }
        EXPECT_EQ(Contents(logos + "Red\\LOGO.SYS"), ScreenFile(255, 0, 0));
    });
}

TEST_F(Saving, UpdatesOneScreenAndLeavesTheOthersAsTheyAre) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Fill(editor, "new.sys", 1);
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(Contents(logos + "Red\\LOGO.SYS"), ScreenFile(255, 0, 0));
        EXPECT_EQ(Contents(logos + "Red\\LOGOW.SYS"), kNewScreen);
        EXPECT_EQ(Contents(logos + "Red\\LOGOS.SYS"), ScreenFile(255, 0, 0));
        EXPECT_FALSE(editor.OkButton[0].Enabled() || editor.OkButton[1].Enabled());
        EXPECT_FALSE(editor.SetChanged);
    });
}

TEST_F(Saving, RenamesTheFolderOfAnUpdatedSetAndItsUnchangedSlotsFollow) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        ChooseSet(editor, "Blue");
        TypeName(editor, "Navy");
        Run(editor, ID_OkButton + 1);
        EXPECT_FALSE(Exists(logos + "Blue"));
        for (const char* screen : kScreenFileNames)
            EXPECT_EQ(Contents(logos + "Navy\\" + screen), ScreenFile(0, 0, 255));
        EXPECT_EQ(editor.ImgPreview[2].Tag(), logos + "Navy\\LOGOS.SYS");
        EXPECT_EQ(editor.NameLogoSet.FindItem("Blue"), -1);
        EXPECT_EQ(editor.NameLogoSet.Item(editor.LoadedIndex), "Navy");
        EXPECT_EQ(editor.NameLogoSet.Text(), "Navy");
        EXPECT_EQ(main.InstalledSet(), "Navy");  // it was the installed one
    });
}

TEST_F(Saving, LeavesComboAndFilesWhenTheRenameFails) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        TypeName(editor, "Blue");
        ExpectSaveError(RunAndAnswer(editor, ID_OkButton + 1, IDOK), "Blue");
        EXPECT_EQ(editor.NameLogoSet.FindItem("Red"), 2);
        EXPECT_EQ(editor.NameLogoSet.Count(), 3);
        EXPECT_TRUE(editor.NameChanged);
        EXPECT_EQ(Contents(logos + "Blue\\LOGO.SYS"), ScreenFile(0, 0, 255));
        EXPECT_EQ(Contents(logos + "Red\\LOGO.SYS"), ScreenFile(255, 0, 0));
    });
}

TEST_F(Saving, TurnsACompleteSetStartupOnly) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Press(editor.OptOnlyStart);
        Run(editor, ID_OkButton + 1);
        EXPECT_FALSE(Exists(logos + "Red"));
        EXPECT_EQ(NamesIn(logos + "Red.sls\\"), (Names{"LOGO.SYS"}));
        EXPECT_EQ(editor.NameLogoSet.Text(), "Red.sls");
    });
}

TEST_F(Saving, TurnsAStartupOnlySetComplete) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Green.SLS");
        Press(editor.OptCompSet);
        EXPECT_EQ(editor.NameLogoSet.Text(), "Green");
        EXPECT_FALSE(editor.NameChanged);  // nobody typed
        Fill(editor, "new.sys", 1);
        Fill(editor, "new.sys", 2);
        Run(editor, ID_OkButton + 1);
        EXPECT_FALSE(Exists(logos + "Green.SLS"));
        EXPECT_EQ(Contents(logos + "Green\\LOGO.SYS"), ScreenFile(0, 255, 0));
        EXPECT_EQ(Contents(logos + "Green\\LOGOW.SYS"), kNewScreen);
        EXPECT_EQ(Contents(logos + "Green\\LOGOS.SYS"), kNewScreen);
    });
}

TEST_F(Saving, AnUpdateOfAStartupOnlySetEndsAtTheScreensThatAreNotThere) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Green.SLS");
        Fill(editor, "new.sys", 0);
        ExpectSaveError(RunAndAnswer(editor, ID_OkButton + 1, IDOK), pictures + "new.sys");
        EXPECT_EQ(Contents(logos + "Green.SLS\\LOGO.SYS"), kNewScreen);
        EXPECT_TRUE(editor.SetChanged);
        EXPECT_TRUE(editor.OkButton[1].Enabled());
    });
}

TEST_F(Saving, AnEmptySlotDeletesItsScreenAndEndsTheUpdate) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Press(editor.DeleteButton[1]);
        ExpectSaveError(RunAndAnswer(editor, ID_OkButton + 1, IDOK), "");
        EXPECT_EQ(NamesIn(logos + "Red\\"), (Names{"LOGO.SYS", "LOGOS.SYS"}));
        // Now the deletion itself fails.
        ExpectSaveError(RunAndAnswer(editor, ID_OkButton + 1, IDOK), "");
        EXPECT_EQ(NamesIn(logos + "Red\\"), (Names{"LOGO.SYS", "LOGOS.SYS"}));
    });
}

TEST_F(Saving, TheInstalledSetFollowsTheSetSelectedInTheMainWindow) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(main.InstalledSet(), "Red");  // "Blue" was selected and installed
    });
}

TEST_F(Saving, SavesTheSharedScreens) {
    Put(pictures + "new.sys", kNewScreen);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Press(editor.OptDefShut);
        Fill(editor, "new.sys", 2);
        Press(editor.ActButton);
        EXPECT_EQ(Contents(logos + "LOGOW.SYS"), ScreenFile(255, 255, 255));
        EXPECT_EQ(Contents(logos + "LOGOS.SYS"), kNewScreen);
        EXPECT_TRUE(editor.LibraryChanged);
        EXPECT_TRUE(editor.EliminaSetBtn.Enabled());
        EXPECT_FALSE(editor.OkButton[0].Enabled() || editor.OkButton[1].Enabled());
        EXPECT_FALSE(editor.SetChanged);
    });
}

TEST_F(Saving, AnEmptySlotEndsTheSavingOfTheSharedScreens) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Press(editor.OptDefShut);
        Press(editor.DeleteButton[1]);
        ExpectSaveError(PressAndAnswer(editor.ActButton, IDOK), "");
        EXPECT_FALSE(Exists(logos + "LOGOW.SYS"));
        EXPECT_TRUE(Exists(logos + "LOGOS.SYS"));
        EXPECT_TRUE(editor.SetChanged);
    });
}

TEST_F(Saving, AReadOnlySourceLeavesNoReadOnlyScreen) {
    Put(pictures + "new.sys", kNewScreen);
    GiveAttributes(pictures + "new.sys", FILE_ATTRIBUTE_READONLY);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Fill(editor, "new.sys", 0);
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(Contents(logos + "Red\\LOGO.SYS"), kNewScreen);
        EXPECT_EQ(AttributesOf(logos + "Red\\LOGO.SYS") & FILE_ATTRIBUTE_READONLY, 0u);
    });
}

}  // namespace
}  // namespace vistrel::test
