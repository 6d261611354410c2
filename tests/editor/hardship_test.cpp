// What does not go well: pictures that cannot be read, files and folders that go, long sessions.
#include "tests/editor/editor_fixture.h"
#include "tests/support/user/held_objects.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

using Hardship = LogoBrowser;
/// The temporary files that conversions leave.
std::size_t TemporaryFiles() {
    char folder[MAX_PATH];
    GetTempPathA(sizeof folder, folder);
    std::size_t count = 0;
    for (const std::string& name : NamesIn(folder))
        if (name.starts_with("~tm")) ++count;
    return count;
}

TEST_F(Hardship, APictureThatCannotBeReadGetsIntoNoSet) {
    const std::string whole = JpgOf(TestPicture(64, 48));
    Put(pictures + "cut.jpg", whole.substr(0, 40));
    Put(pictures + "empty.bmp", "");
    Put(pictures + "text.jpg", "This is no picture.");
    Put(pictures + "text.gif", "This is no picture.");
    Put(pictures + "text.sys", "This is no picture, however long its header may seem to be.");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (const char* name : {"cut.jpg", "empty.bmp", "text.jpg", "text.gif", "text.sys"}) {
            ChooseSet(editor, "Red");
            Fill(editor, name, 1);
            EXPECT_FALSE(editor.ImgPreview[1].HasPicture()) << name;
            RunAndAnswer(editor, ID_OkButton + 1, IDOK);
            EXPECT_EQ(Contents(logos + "Red\\LOGOW.SYS"), ScreenFile(255, 0, 0)) << name;
        }
        TypeName(editor, "Without");
        Await([&] { return editor.OkButton[0].Enabled(); }, "create enabled");
        Run(editor, ID_OkButton);
        EXPECT_FALSE(Exists(logos + "Without\\LOGOW.SYS"));
        EXPECT_TRUE(Exists(logos + "Without\\LOGO.SYS"));
    });
    EXPECT_EQ(TemporaryFiles(), 0u);
}

TEST_F(Hardship, APictureThatIsDeletedAfterItWasSelectedGetsIntoNoSet) {
    Put(pictures + "a.bmp", BmpOf(TestPicture(64, 48)));
    Put(pictures + "b.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (const char* name : {"a.bmp", "b.sys"}) {
            ChooseSet(editor, "Red");
            Pick(editor, name);
            RemoveTree(pictures + name);
            Press(editor.AddButton[2]);
            EXPECT_FALSE(editor.ImgPreview[2].HasPicture()) << name;
            RunAndAnswer(editor, ID_OkButton + 1, IDOK);
            EXPECT_EQ(Contents(logos + "Red\\LOGOS.SYS"), ScreenFile(255, 0, 0)) << name;
        }
    });
}

TEST_F(Hardship, ALogoFolderThatVanishesIsToldAndPassedOver) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        RemoveTree(logos);
        const user::Box box = RunAndAnswer(editor, ID_OkButton + 1, IDOK);
        EXPECT_EQ(box.title, "Cannot create directory");
        ChooseSet(editor, "Blue");
        EXPECT_FALSE(editor.ImgPreview[0].HasPicture());
        TypeName(editor, "New");
        RunAndAnswer(editor, ID_OkButton, IDOK);
        main.Preferences().confirmLogosetDelete = 0;
        main.Preferences().deleteInTheRecycleBin = 0;
        Run(editor, ID_EliminaSetBtn);
        EXPECT_TRUE(editor.IsOpen());
    });
}

TEST_F(Hardship, AFolderThatVanishesWhileItIsBrowsedIsLeft) {
    MakeFolders(pictures + "gone\\deep\\");
    Store("SearchLogoPath", TextValue(pictures + "gone\\deep\\"));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        RemoveTree(pictures + "gone");
        Run(editor, ID_BrowserRefresh);
        EXPECT_EQ(editor.CurPath.Text(), pictures);
        EXPECT_EQ(Listed(editor), (Names{".."}));
    });
}

TEST_F(Hardship, WithoutATemporaryFolderASlotKeepsWhatItHolds) {
    Put(pictures + "a.bmp", BmpOf(TestPicture(64, 48)));
    char before[MAX_PATH] = "";
    GetEnvironmentVariableA("TMP", before, sizeof before);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        SetEnvironmentVariableA("TMP", "C:\\nowhere");
        Fill(editor, "a.bmp", 0);
        SetEnvironmentVariableA("TMP", before);
        EXPECT_EQ(editor.ImgPreview[0].Tag(), logos + "Red\\LOGO.SYS");
        EXPECT_TRUE(editor.ImgPreview[0].HasPicture());
        EXPECT_EQ(editor.List1.Count(), 0);
    });
}

TEST_F(Hardship, TwoHundredConversionsLeaveNothingBehind) {
    Put(pictures + "a.bmp", BmpOf(TestPicture(16, 12)));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "a.bmp");
        for (int i = 0; i < 3; ++i) Press(editor.AddButton[i]);
        const HeldObjects before = CountHeldObjects();
        for (int i = 0; i < 200; ++i) Press(editor.AddButton[i % 3]);
        EXPECT_FALSE(CountHeldObjects().AreMoreThan(before, 5));
        EXPECT_EQ(editor.List1.Count(), 203);
        EXPECT_EQ(TemporaryFiles(), 203u);
    });
    EXPECT_EQ(TemporaryFiles(), 0u);
}

}  // namespace
}  // namespace vistrel::test
