// Deleting sets, slots and files in the Logo browser.
#include "tests/editor/editor_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace editor;
using namespace main_window;

namespace {

using Deleting = LogoBrowser;
TEST_F(Deleting, AsksBeforeASetIsDeletedAndDoesNothingOnNo) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().confirmLogosetDelete = 1;
        ChooseSet(editor, "Red");
        const user::Box box = RunAndAnswer(editor, ID_EliminaSetBtn, IDNO);
        EXPECT_EQ(box.title, "Confirm deletions");
        EXPECT_EQ(box.text,
                  "Are you sure you want to delete Red logo set? This operation will delete all "
                  "files contained in '" +
                      logos + "Red' folder!");
        EXPECT_EQ(box.icon, static_cast<unsigned>(MB_ICONQUESTION));
        EXPECT_EQ(box.default_button, IDYES);
        EXPECT_TRUE(Exists(logos + "Red\\LOGO.SYS"));
        EXPECT_EQ(editor.LoadedSet, "Red");
        EXPECT_FALSE(editor.LibraryChanged);
    });
}

TEST_F(Deleting, DeletesASetForGoodAndForgetsIt) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().confirmLogosetDelete = 1;
        main.Preferences().deleteInTheRecycleBin = 0;
        ChooseSet(editor, "Blue");
        const Names before = InTheBin();
        RunAndAnswer(editor, ID_EliminaSetBtn, IDYES);
        EXPECT_EQ(InTheBin(), before);
        EXPECT_FALSE(Exists(logos + "Blue"));
        EXPECT_EQ(main.InstalledSet(), std::nullopt);  // it was the installed one
        EXPECT_EQ(editor.NameLogoSet.Count(), 2);
        EXPECT_EQ(editor.NameLogoSet.FindItem("Blue"), -1);
        EXPECT_EQ(editor.NameLogoSet.Text(), "");
        EXPECT_EQ(editor.LoadedSet, "");
        EXPECT_TRUE(editor.LibraryChanged);
        EXPECT_FALSE(editor.EliminaSetBtn.Enabled());
        for (PictureBox& slot : editor.ImgPreview) {
            EXPECT_FALSE(slot.HasPicture());
            EXPECT_EQ(slot.Tag(), "");
        }
    });
}

TEST_F(Deleting, DeletesWithoutAQuestionWhereTheUserWantsNone) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().confirmLogosetDelete = 0;
        main.Preferences().deleteInTheRecycleBin = 0;
        ChooseSet(editor, "Red");
        Run(editor, ID_EliminaSetBtn);
        EXPECT_FALSE(Exists(logos + "Red"));
        EXPECT_EQ(main.InstalledSet(), "Blue");
    });
}

TEST_F(Deleting, ForgetsASetWhoseFolderSurvives) {
    MakeFolders(logos + "Red\\kept\\");
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().confirmLogosetDelete = 0;
        main.Preferences().deleteInTheRecycleBin = 0;
        ChooseSet(editor, "Red");
        Run(editor, ID_EliminaSetBtn);
        EXPECT_EQ(NamesIn(logos + "Red\\"), (Names{"kept"}));
        EXPECT_EQ(editor.NameLogoSet.FindItem("Red"), -1);
        EXPECT_FALSE(editor.ImgPreview[0].HasPicture());
    });
}

TEST_F(Deleting, MovesASetIntoTheRecycleBinWhenTheShellMay) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().confirmLogosetDelete = 0;
        main.Preferences().deleteInTheRecycleBin = 1;
        ChooseSet(editor, "Red");
        const std::size_t before = InTheBin().size();
        RunAndAnswerShell(editor, ID_EliminaSetBtn, IDYES);
        EXPECT_EQ(InTheBin().size(), before + 3);
        EXPECT_FALSE(Exists(logos + "Red"));
        EXPECT_EQ(editor.NameLogoSet.FindItem("Red"), -1);
    });
}

TEST_F(Deleting, LeavesTheFilesWhenTheShellsQuestionIsDenied) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().confirmLogosetDelete = 0;
        main.Preferences().deleteInTheRecycleBin = 1;
        ChooseSet(editor, "Red");
        RunAndAnswerShell(editor, ID_EliminaSetBtn, IDNO);
        EXPECT_TRUE(Exists(logos + "Red\\LOGO.SYS"));
        EXPECT_EQ(editor.NameLogoSet.FindItem("Red"), -1);  // forgotten all the same
    });
}

TEST_F(Deleting, NeverTakesTheLogoFolderForASetWithoutAName) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().confirmLogosetDelete = 0;
        main.Preferences().deleteInTheRecycleBin = 0;
        ChooseSet(editor, "Red");
        TypeName(editor, "");
        Run(editor, ID_EliminaSetBtn);
        EXPECT_TRUE(Exists(logos + "LOGOW.SYS"));
        EXPECT_TRUE(Exists(logos + "Red\\LOGO.SYS"));
    });
}

TEST_F(Deleting, EmptiesAllSlotsAndLeavesTheCommandsAsTheyAre) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Run(editor, ID_ClearAllButton);
        for (PictureBox& slot : editor.ImgPreview) {
            EXPECT_FALSE(slot.HasPicture());
            EXPECT_EQ(slot.Tag(), "");
        }
        EXPECT_FALSE(editor.SetChanged);
        EXPECT_TRUE(editor.OkButton[0].Enabled());
        EXPECT_TRUE(editor.OkButton[1].Enabled());
        EXPECT_TRUE(editor.EliminaSetBtn.Enabled());
        EXPECT_TRUE(Exists(logos + "Red\\LOGO.SYS"));
    });
}

TEST_F(Deleting, EmptiesOneSlotAndChangesTheSet) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Press(editor.DeleteButton[1]);
        EXPECT_FALSE(editor.ImgPreview[1].HasPicture());
        EXPECT_EQ(editor.ImgPreview[1].Tag(), "");
        EXPECT_TRUE(editor.ImgPreview[0].HasPicture());
        EXPECT_TRUE(editor.SetChanged);
        EXPECT_FALSE(editor.OkButton[0].Enabled());
        EXPECT_TRUE(Exists(logos + "Red\\LOGOW.SYS"));
    });
}

TEST_F(Deleting, AnEmptySlotChangesNothingButTheCommandsAreDecidedAnew) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_FALSE(editor.OkButton[0].Enabled());
        Press(editor.DeleteButton[0]);
        EXPECT_FALSE(editor.SetChanged);
        EXPECT_TRUE(editor.OkButton[0].Enabled());  // "Blue" stands in the name's field
    });
}

TEST_F(Deleting, DeletesAFileOfTheBrowserIntoTheRecycleBin) {
    Put(pictures + "a.sys", "");
    Put(pictures + "b.sys", "");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "a.sys");
        const std::size_t before = InTheBin().size();
        RunAndAnswerShell(editor, ID_BrowserDelete, IDYES);
        EXPECT_EQ(InTheBin().size(), before + 1);
        EXPECT_EQ(Listed(editor), (Names{"..", "b.sys"}));
        EXPECT_FALSE(Exists(pictures + "a.sys"));
        Pick(editor, "b.sys");
        RunAndAnswerShell(editor, ID_BrowserDelete, IDNO);
        EXPECT_EQ(Listed(editor), (Names{"..", "b.sys"}));
    });
}

TEST_F(Deleting, KeepsConvertedFilesUntilTheSessionEnds) {
    Put(pictures + "a.bmp", BmpOf(TestPicture(64, 48)));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().confirmLogosetDelete = 0;
        main.Preferences().deleteInTheRecycleBin = 0;
        ChooseSet(editor, "Red");
        Fill(editor, "a.bmp", 0);
        Run(editor, ID_OkButton + 1);
        Run(editor, ID_EliminaSetBtn);
        EXPECT_FALSE(Exists(logos + "Red"));
        EXPECT_TRUE(Exists(editor.List1.Item(0)));
    });
}

}  // namespace
}  // namespace vistrel::test
