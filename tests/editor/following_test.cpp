// What a session of the Logo browser names by path or by set when that is renamed or deleted:
// slots, preview, the browsed folder, the names of sets.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "tests/editor/editor_fixture.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;

namespace {

using Following = LogoBrowser;
Names NamesOffered(SelPictureForm& editor) {
    Names names;
    for (int i = 0; i < editor.NameLogoSet.Count(); ++i)
        names.push_back(editor.NameLogoSet.Item(i));
    return names;
}

TEST_F(Following, BlanksAndDotsAtTheEndOfATypedNameAreCut) {
    Put(pictures + "old.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        RenameItem(editor, "old.sys", "new.sys . ");
        Await([&] { return Listed(editor) == Names{"..", "new.sys"}; }, "listed");
        EXPECT_TRUE(Exists(pictures + "new.sys"));
        EXPECT_EQ(editor.LogoList.ItemText(editor.LogoList.SelectedItem()), "new.sys");
    });
}

TEST_F(Following, ANameThatLeadsElsewhereIsRefused) {
    MakeFolders(pictures + "zoo\\");
    Put(pictures + "old.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (const char* name : {"..\\out.sys", "zoo/in.sys", "NUL", "a*b.sys", "..."}) {
            RenameItem(editor, "old.sys", name);
            const user::Box box = user::AnswerBox(IDOK);
            EXPECT_EQ(box.text, std::string("Cannot rename old.sys. A file or folder named ") +
                                    name + " already exists or the name is not valid.");
            Settle(editor);
            EXPECT_EQ(Listed(editor), (Names{"..", "zoo", "old.sys"}));
        }
        EXPECT_EQ(NamesIn(pictures + "zoo\\"), Names{});
        EXPECT_FALSE(Exists(root + "out.sys"));
    });
}

TEST_F(Following, AChangeOfCaseReachesDiskAndList) {
    Put(pictures + "old.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        RenameItem(editor, "old.sys", "OLD.sys");
        Await([&] { return Listed(editor) == Names{"..", "OLD.sys"}; }, "listed");
        EXPECT_EQ(NamesIn(pictures), (Names{"OLD.sys"}));
    });
}

/// Begins to rename an item and types, without Enter.
void TypeOverLabel(SelPictureForm& editor, const std::string& typed) {
    SendMessageA(editor.handle(), WM_COMMAND, ID_BrowserRename, 0);
    EXPECT_TRUE(WaitUntil([&] { return editor.LogoList.EditingLabel(); }));
    user::Type(typed);
    const auto edit =
        reinterpret_cast<HWND>(SendMessageA(editor.LogoList.handle(), LVM_GETEDITCONTROL, 0, 0));
    EXPECT_TRUE(WaitUntil([&] { return user::TextOf(edit) == typed; }));
}

TEST_F(Following, ACommandTakesTheNameThatIsBeingTyped) {
    Put(pictures + "old.sys", ScreenFile(255, 0, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "old.sys");
        TypeOverLabel(editor, "new.sys");
        Run(editor, ID_ItmSetLogo);
        EXPECT_EQ(NamesIn(pictures), (Names{"new.sys"}));
        EXPECT_EQ(editor.ImgPreview[0].Tag(), pictures + "new.sys");
    });
}

TEST_F(Following, TheItemIsRenamedWhoseLabelIsEditedAndNotTheSelectedOne) {
    Put(pictures + "a.sys", ScreenFile(255, 0, 0));
    Put(pictures + "b.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "a.sys");
        TypeOverLabel(editor, "c.sys");
        Pick(editor, "b.sys");
        Run(editor, ID_BrowserRefresh);
        EXPECT_EQ(Contents(pictures + "c.sys"), ScreenFile(255, 0, 0));
        EXPECT_EQ(NamesIn(pictures), (Names{"b.sys", "c.sys"}));
    });
}

TEST_F(Following, ClosingTakesTheNameThatIsBeingTyped) {
    Put(pictures + "old.sys", ScreenFile(255, 0, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "old.sys");
        TypeOverLabel(editor, "new.sys");
        PostMessageA(editor.handle(), WM_CLOSE, 0, 0);
        Await([&] { return !editor.IsOpen(); }, "closed");
        EXPECT_EQ(NamesIn(pictures), (Names{"new.sys"}));
    });
}

TEST_F(Following, SlotsOfARenamedFolderFollowAndThoseOfALongerNameStay) {
    Put(pictures + "zoo.sys", ScreenFile(1, 2, 3));
    Put(pictures + "zoo.sys2.sys", ScreenFile(1, 2, 3));
    MakeFolders(pictures + "ark\\");
    MakeFolders(pictures + "ark2\\");
    Put(pictures + "ark\\a.sys", ScreenFile(1, 2, 3));
    Put(pictures + "ark2\\a.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "zoo.sys2.sys", 0);
        BrowseInto(editor, "ark");
        Fill(editor, "a.sys", 1);
        BrowseInto(editor, "..");
        BrowseInto(editor, "ark2");
        Fill(editor, "a.sys", 2);
        BrowseInto(editor, "..");
        RenameItem(editor, "ark", "boat");
        Await([&] { return Exists(pictures + "boat"); }, "folder renamed");
        RenameItem(editor, "zoo.sys", "garden.sys");
        Await([&] { return Exists(pictures + "garden.sys"); }, "file renamed");
        Settle(editor);
        EXPECT_EQ(editor.ImgPreview[0].Tag(), pictures + "zoo.sys2.sys");
        EXPECT_EQ(editor.ImgPreview[1].Tag(), pictures + "boat\\a.sys");
        EXPECT_EQ(editor.ImgPreview[2].Tag(), pictures + "ark2\\a.sys");
    });
}

TEST_F(Following, TheSelectedPictureOfARenamedFolderCanStillBePutIntoASlot) {
    MakeFolders(pictures + "ark\\");
    Put(pictures + "ark\\a.sys", ScreenFile(255, 0, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        BrowseInto(editor, "ark");
        Pick(editor, "a.sys");
        BrowseInto(editor, "..");
        RenameItem(editor, "ark", "boat");
        Await([&] { return Exists(pictures + "boat"); }, "folder renamed");
        Settle(editor);
        EXPECT_EQ(editor.CurView.Tag(), pictures + "boat\\a.sys");
        Press(editor.AddButton[0]);
        EXPECT_EQ(editor.ImgPreview[0].Tag(), pictures + "boat\\a.sys");
        EXPECT_EQ(MiddleOf(editor.ImgPreview[0]), kRed);
    });
}

TEST_F(Following, ADeletedPictureIsSelectedNoMore) {
    Put(pictures + "a.sys", ScreenFile(255, 0, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "a.sys");
        RunAndAnswerShell(editor, ID_BrowserDelete, IDYES);
        EXPECT_EQ(editor.ImageInfo.Text(), "No logo selected");
        EXPECT_FALSE(editor.CurView.HasPicture());
        EXPECT_FALSE(IsWindowEnabled(editor.AddButton[0].handle()));
    });
}

TEST_F(Following, ARenamedSetIsRenamedInTheSessionAndInTheMainWindow) {
    Store("SearchLogoPath", TextValue(logos));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        ChooseSet(editor, "Blue");
        RenameItem(editor, "Blue", "Navy");
        Await([&] { return Exists(logos + "Navy"); }, "renamed");
        Settle(editor);
        EXPECT_EQ(editor.NameLogoSet.Text(), "Navy");
        EXPECT_EQ(NamesOffered(editor), (Names{"Green.SLS", "Red", "Navy"}));
        Run(editor, ID_OkButton + 1);  // an update would say so if it did not find the set
        EXPECT_EQ(user::FindTop("#32770"), nullptr);
        Press(editor.CloseButton);
        Await([&] { return !editor.IsOpen(); }, "closed");
        EXPECT_EQ(main.DefaultLogo.Text(), "Navy");
        EXPECT_EQ(main.SetNames(), (Names{"Green.SLS", "Navy", "Red"}));
    });
}

TEST_F(Following, ASetThatIsLeftOutOfTheRotationStaysSoUnderItsNewNameUntilItIsDeleted) {
    Store("SearchLogoPath", TextValue(logos));
    Store("LeftOutOfRotation", TextValue("Blue/Red"));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        RenameItem(editor, "Blue", "Navy");
        Await([&] { return Exists(logos + "Navy"); }, "renamed");
        Settle(editor);
        EXPECT_EQ(main.Preferences().leftOutOfRotation, "Navy/Red");
        Pick(editor, "Red");
        RunAndAnswerShell(editor, ID_BrowserDelete, IDYES);
        EXPECT_EQ(main.Preferences().leftOutOfRotation, "Navy");
    });
    EXPECT_EQ(Stored("LeftOutOfRotation"), SavedText("Navy"));
}

TEST_F(Following, ASetThatIsNotLoadedKeepsTheLoadedOneInItsPlace) {
    Store("SearchLogoPath", TextValue(logos));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        RenameItem(editor, "Blue", "Navy");
        Await([&] { return Exists(logos + "Navy"); }, "renamed");
        Settle(editor);
        EXPECT_EQ(editor.NameLogoSet.Text(), "Red");
        TypeName(editor, "Crimson");
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(NamesIn(logos),
                  (Names{"Crimson", "Green.SLS", "LOGOS.SYS", "LOGOW.SYS", "Navy"}));
    });
}

TEST_F(Following, ASetDeletedInTheListIsForgottenAndLeavesTheMainWindow) {
    Store("SearchLogoPath", TextValue(logos));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Pick(editor, "Red");
        RunAndAnswerShell(editor, ID_BrowserDelete, IDYES);
        EXPECT_EQ(NamesOffered(editor), (Names{"Blue", "Green.SLS"}));
        EXPECT_EQ(editor.NameLogoSet.Text(), "");
        EXPECT_FALSE(editor.ImgPreview[0].HasPicture());
        Press(editor.CloseButton);
        Await([&] { return !editor.IsOpen(); }, "closed without a question");
        EXPECT_EQ(main.SetNames(), (Names{"Blue", "Green.SLS"}));
    });
}

TEST_F(Following, ANameTypedForTheNextSetOutlivesTheLoadedOne) {
    Store("SearchLogoPath", TextValue(logos));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        TypeName(editor, "Fresh");
        Pick(editor, "Red");
        RunAndAnswerShell(editor, ID_BrowserDelete, IDYES);
        EXPECT_EQ(editor.NameLogoSet.Text(), "Fresh");
        EXPECT_EQ(NamesOffered(editor), (Names{"Blue", "Green.SLS"}));
        EXPECT_FALSE(editor.ImgPreview[0].HasPicture());
        const HMENU menu = ActionMenu(editor);
        EXPECT_TRUE(seen::RowOf(menu, ID_OkButton).enabled);
        EXPECT_FALSE(seen::RowOf(menu, ID_OkButton + 1).enabled);
        EXPECT_FALSE(seen::RowOf(menu, ID_EliminaSetBtn).enabled);
    });
}

TEST_F(Following, TheDeletedSetsOwnNameGoesThoughItWasTypedAgain) {
    Store("SearchLogoPath", TextValue(logos));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        TypeName(editor, "red");
        Pick(editor, "Red");
        RunAndAnswerShell(editor, ID_BrowserDelete, IDYES);
        EXPECT_EQ(editor.NameLogoSet.Text(), "");
        EXPECT_FALSE(seen::RowOf(ActionMenu(editor), ID_OkButton).enabled);
    });
}

TEST_F(Following, AScreenDeletedInTheListIsGoneFromTheMainWindowToo) {
    Store("SearchLogoPath", TextValue(logos + "Blue\\"));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        Pick(editor, "LOGO.SYS");
        RunAndAnswerShell(editor, ID_BrowserDelete, IDYES);
        Press(editor.CloseButton);
        Await([&] { return !editor.IsOpen(); }, "closed");
        EXPECT_FALSE(main.Imag[0].HasPicture());
        EXPECT_TRUE(main.Imag[1].HasPicture());
    });
}

TEST_F(Following, TheBrowserFollowsTheRenamedFolderThatItShows) {
    Store("SearchLogoPath", TextValue(logos + "Red\\"));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Pick(editor, "LOGO.SYS");
        TypeName(editor, "Crimson");
        Run(editor, ID_OkButton + 1);
        EXPECT_EQ(editor.CurPath.Text(), logos + "Crimson\\");
        EXPECT_EQ(Listed(editor), (Names{"..", "LOGO.SYS", "LOGOS.SYS", "LOGOW.SYS"}));
        EXPECT_EQ(editor.CurView.Tag(), logos + "Crimson\\LOGO.SYS");
        Press(editor.CloseButton);
        Await([&] { return !editor.IsOpen(); }, "closed");
        EXPECT_EQ(main.Preferences().searchLogoPath, logos + "Crimson\\");
    });
}

TEST_F(Following, TheBrowserGoesUpWhenItsFolderIsDeleted) {
    Store("SearchLogoPath", TextValue(logos + "Red\\"));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().deleteInTheRecycleBin = 0;
        ChooseSet(editor, "Red");
        Run(editor, ID_EliminaSetBtn);
        EXPECT_EQ(editor.CurPath.Text(), logos);
        EXPECT_EQ(Listed(editor), (Names{"..", "Blue", "Green.SLS", "LOGOS.SYS", "LOGOW.SYS"}));
    });
}

TEST_F(Following, AFolderThatWentBehindTheBrowsersBackIsNotKeptForTheNextSession) {
    MakeFolders(pictures + "gone\\deep\\");
    Store("SearchLogoPath", TextValue(pictures + "gone\\deep\\"));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        RemoveTree(pictures + "gone");
        Press(editor.CloseButton);
        Await([&] { return !editor.IsOpen(); }, "closed");
        EXPECT_EQ(main.Preferences().searchLogoPath, pictures);
    });
}

TEST_F(Following, TheInstalledSetStaysKnownWhenItIsRenamedBehindTheInstalledView) {
    PutScreens(boot, "installed");
    Store("DefaultLogoSet", TextValue("Blue"));
    WithEditor(
        [&](Principale& main, SelPictureForm& editor) {
            ChooseSet(editor, "Blue");
            TypeName(editor, "Navy");
            Run(editor, ID_OkButton + 1);
            Press(editor.CloseButton);
            Await([&] { return !editor.IsOpen(); }, "closed");
            Command(main, ID_ToolShowCurrent);
            EXPECT_EQ(main.DefaultLogo.Text(), "Navy");
        },
        [&](Principale& main) { Command(main, ID_ToolShowCurrent); });
}

TEST_F(Following, AnUpdateOfAnotherSetLeavesTheInstalledOneAsItIs) {
    WithEditor(
        [&](Principale& main, SelPictureForm& editor) {
            ChooseSet(editor, "Red");
            TypeName(editor, "Crimson");
            Run(editor, ID_OkButton + 1);
            EXPECT_TRUE(Exists(logos + "Crimson"));
            EXPECT_EQ(main.InstalledSet(), "Blue");
        },
        [&](Principale& main) { main.SelItem("Red"); });
}

TEST_F(Following, ANameTypedAgainAndDeletedIsOfferedNoMore) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        main.Preferences().deleteInTheRecycleBin = 0;
        ChooseSet(editor, "Red");
        TypeName(editor, "Re");
        TypeName(editor, "Red");
        Run(editor, ID_OkButton + 1);
        Run(editor, ID_EliminaSetBtn);
        EXPECT_FALSE(Exists(logos + "Red"));
        EXPECT_EQ(NamesOffered(editor), (Names{"Blue", "Green.SLS"}));
    });
}

/// Chooses another logo folder in the preferences, which a picture's click offers: no custom
/// program is set.
void ChooseLogoFolder(Principale& main, SelPictureForm& editor, const std::string& folder) {
    main.Preferences().defaultAction = 2;
    EXPECT_TRUE(user::Click(editor.CurView.handle()));
    user::AnswerBox(IDYES);
    const HWND preferences = user::WaitForTop("FrmOptions");
    EXPECT_NE(preferences, nullptr);
    SetWindowTextA(user::Control(preferences, ID_TxtLogoPath), folder.c_str());
    SendMessageA(preferences, WM_COMMAND, IDOK, 0);
    EXPECT_TRUE(user::WaitUntilGone(preferences));
}

TEST_F(Following, AnotherLogoFolderChosenMeanwhileIsTheOneThatTheSessionIsAbout) {
    const std::string others = root + "others\\";
    MakeFolders(others + "Oak\\");
    Put(pictures + "new.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        ChooseSet(editor, "Red");
        Pick(editor, "new.sys");
        ChooseLogoFolder(main, editor, others);
        Settle(editor);
        EXPECT_EQ(NamesOffered(editor), (Names{"Oak"}));
        EXPECT_EQ(editor.NameLogoSet.Text(), "Red");
        EXPECT_FALSE(seen::RowOf(ActionMenu(editor), ID_OkButton + 1).enabled);
        EXPECT_FALSE(seen::RowOf(ActionMenu(editor), ID_EliminaSetBtn).enabled);
        Run(editor, ID_OkButton);
        EXPECT_EQ(NamesIn(others), (Names{"Oak", "Red"}));
        EXPECT_EQ(Contents(others + "Red\\LOGO.SYS"), ScreenFile(255, 0, 0));
    });
}

TEST_F(Following, ASetLoadedFromAnotherLogoFolderStaysLoadedOverTheNextCommands) {
    const std::string others = root + "others\\";
    MakeFolders(others + "Oak\\");
    Put(pictures + "new.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        Pick(editor, "new.sys");
        ChooseLogoFolder(main, editor, others);
        Settle(editor);
        ChooseSet(editor, "Oak");
        Run(editor, ID_BrowserRefresh);
        Await([&] { return seen::RowOf(ActionMenu(editor), ID_OkButton + 1).enabled; },
              "to update");
        EXPECT_TRUE(seen::RowOf(ActionMenu(editor), ID_EliminaSetBtn).enabled);
    });
}

}  // namespace
}  // namespace vistrel::test
