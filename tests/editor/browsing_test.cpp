// Walking through folders and drives, and looking at pictures.
#include <algorithm>

#include "tests/editor/editor_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace editor;
using namespace main_window;

namespace {

using Browsing = LogoBrowser;
std::string IconOf(SelPictureForm& editor, const std::string& name) {
    return editor.LogoList.ItemIcon(editor.LogoList.FindItem(name));
}

TEST_F(Browsing, ListsPicturesByTheLastFourCharactersOfTheirNames) {
    Put(pictures + "a.jpg", "");
    Put(pictures + "b.JPEG", "");
    Put(pictures + "c.txt", "");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(Listed(editor), (Names{"..", "a.jpg"}));
    });
}

TEST_F(Browsing, ListsFoldersFirstAndEachGroupByNameWhateverItsCase) {
    MakeFolders(pictures + "zoo\\");
    MakeFolders(pictures + "Attic\\");
    for (const char* name : {"b.GIF", "A.bmp", "c.Sys", "aa.JPG"}) Put(pictures + name, "");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(Listed(editor),
                  (Names{"..", "Attic", "zoo", "A.bmp", "aa.JPG", "b.GIF", "c.Sys"}));
    });
}

TEST_F(Browsing, MarksFoldersScreensAndOtherPictures) {
    MakeFolders(pictures + "zoo\\");
    Put(pictures + "a.sys", "");
    Put(pictures + "b.bmp", "");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(IconOf(editor, ".."), "closed");
        EXPECT_EQ(IconOf(editor, "zoo"), "closed");
        EXPECT_EQ(IconOf(editor, "a.sys"), "sys");
        EXPECT_EQ(IconOf(editor, "b.bmp"), "im");
    });
}

TEST_F(Browsing, LeavesHiddenAndSystemEntriesOut) {
    for (const char* name : {"io.sys", "hidden.sys", "system.sys", "seen.sys"})
        Put(pictures + name, "");
    GiveAttributes(pictures + "io.sys", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    GiveAttributes(pictures + "hidden.sys", FILE_ATTRIBUTE_HIDDEN);
    GiveAttributes(pictures + "system.sys", FILE_ATTRIBUTE_SYSTEM);
    MakeFolders(pictures + "RECYCLED\\");
    GiveAttributes(pictures + "RECYCLED", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_EQ(Listed(editor), (Names{"..", "seen.sys"}));
    });
}

TEST_F(Browsing, AHiddenFolderCanBeLeftAgain) {
    MakeFolders(pictures + "hidden\\inside\\");
    GiveAttributes(pictures + "hidden", FILE_ATTRIBUTE_HIDDEN);
    GiveAttributes(pictures + "hidden\\inside", FILE_ATTRIBUTE_HIDDEN);
    Store("SearchLogoPath", TextValue(pictures + "hidden\\inside\\"));
    WithEditor(
        [&](Principale&, SelPictureForm& editor) { EXPECT_EQ(Listed(editor), (Names{".."})); });
}

TEST_F(Browsing, DoubleClicksGoIntoFoldersAndUpAgain) {
    MakeFolders(pictures + "zoo\\");
    Put(pictures + "zoo\\tiger.gif", "");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Open(editor, "zoo");
        Await([&] { return editor.CurPath.Text() == pictures + "zoo\\"; }, "opened");
        Settle(editor);
        EXPECT_EQ(editor.CurrentFolder, pictures + "zoo\\");
        EXPECT_EQ(Listed(editor), (Names{"..", "tiger.gif"}));
        Open(editor, "..");
        Await([&] { return editor.CurPath.Text() == pictures; }, "gone up");
        Settle(editor);
        EXPECT_EQ(Listed(editor), (Names{"..", "zoo"}));
    });
}

TEST_F(Browsing, BackspaceGoesUpAndStopsAtTheRoot) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        SetForegroundWindow(editor.handle());
        EXPECT_TRUE(user::Click(editor.LogoList.handle()));
        for (const std::string& folder : {root, std::string("C:\\")}) {
            user::Press(VK_BACK);
            Await([&] { return editor.CurPath.Text() == folder; }, folder.c_str());
        }
        Settle(editor);
        EXPECT_EQ(editor.LogoList.FindItem(".."), -1);
        user::Press(VK_BACK);
        user::Press(VK_DOWN);  // a key that shows when the one before it has been handled
        Await([&] { return editor.LogoList.SelectedItem() >= 0; }, "item selected");
        EXPECT_EQ(editor.CurrentFolder, "C:\\");
    });
}

TEST_F(Browsing, ShowsAnotherDriveFromItsRoot) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_TRUE(user::Click(editor.Drive1.handle()));
        Await([&] { return SendMessageA(editor.Drive1.handle(), CB_GETDROPPEDSTATE, 0, 0) != 0; },
              "list open");
        user::Press('Z');
        user::Press(VK_RETURN);
        Await([&] { return editor.CurrentFolder == "Z:\\"; }, "drive changed");
        Settle(editor);
        EXPECT_EQ(editor.CurPath.Text(), "Z:");
        EXPECT_EQ(editor.LogoList.FindItem(".."), -1);
    });
}

TEST_F(Browsing, RefusesADriveThatCannotBeReadAndGoesBack) {
    Put(pictures + "a.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        // A drive that has gone since the list was filled.
        const HWND list = editor.Drive1.handle();
        const auto gone =
            SendMessageA(list, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>("R: [GONE]"));
        SendMessageA(list, CB_SETCURSEL, static_cast<WPARAM>(gone), 0);
        PostMessageA(editor.handle(), WM_COMMAND, MAKEWPARAM(ID_Drive1, CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
        const user::Box box = user::AnswerBox(IDOK);
        Settle(editor);
        EXPECT_EQ(box.text, "Drive R: isn't accessible! Check it and retry.");
        EXPECT_EQ(box.icon, static_cast<unsigned>(MB_ICONHAND));
        EXPECT_EQ(box.buttons, (std::vector<int>{IDOK}));
        EXPECT_EQ(editor.Drive1.Drive().substr(0, 2), "C:");
        EXPECT_EQ(editor.CurrentFolder, pictures);
        EXPECT_EQ(editor.CurPath.Text(), pictures);
        EXPECT_EQ(Listed(editor), (Names{"..", "a.sys"}));
    });
}

TEST_F(Browsing, ListsTheFixedFolderWhateverIsBrowsed) {
    MakeFolders("C:\\programmi\\vistrel95\\inside\\");
    Put("C:\\programmi\\vistrel95\\readme.txt", "");
    Put("C:\\programmi\\vistrel95\\logo.sys", "");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        SendMessageA(editor.handle(), WM_COMMAND, MAKEWPARAM(ID_Dir1, LBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(editor.Dir1.handle()));
        Names listed = Listed(editor);
        std::sort(listed.begin(), listed.end());
        EXPECT_EQ(listed, (Names{"inside", "logo.sys", "readme.txt"}));
        EXPECT_EQ(editor.CurrentFolder, pictures);
    });
    RemoveTree("C:\\programmi");
}

TEST_F(Browsing, AScreenIsReadyAndTheSamePictureAsABitmapIsConverted) {
    Put(pictures + "ready.SYS", ScreenFile(255, 0, 0));
    Put(pictures + "picture.bmp", ScreenFile(255, 0, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "ready.SYS");
        EXPECT_EQ(editor.ImageInfo.Text(), "320 x  400 x  256");
        EXPECT_EQ(editor.ImageInfo.ForeColor(), 32768);
        EXPECT_TRUE(editor.IsSysFile);
        Pick(editor, "picture.bmp");
        EXPECT_EQ(editor.ImageInfo.Text(), "320 x  400 x  256");
        EXPECT_EQ(editor.ImageInfo.ForeColor(), 65535);
        EXPECT_FALSE(editor.IsSysFile);
    });
}

TEST_F(Browsing, OtherSizesAndDepthsAreConverted) {
    Put(pictures + "a.sys", BmpOf(TestPicture(320, 400)));
    Put(pictures + "b.gif", GifOf(TestPicture(64, 48)));
    Put(pictures + "c.jpg", JpgOf(TestPicture(320, 400)));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (const auto& [name, facts] :
             {std::pair("a.sys", "320 x  400 x  16777216"), std::pair("b.gif", "64 x  48 x  256"),
              std::pair("c.jpg", "320 x  400 x  16777216")}) {
            Pick(editor, name);
            EXPECT_EQ(editor.ImageInfo.Text(), facts);
            EXPECT_EQ(editor.ImageInfo.ForeColor(), 65535);
        }
    });
}

TEST_F(Browsing, ShowsThePictureAndEnablesTheSlots) {
    Put(pictures + "red.sys", ScreenFile(255, 0, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_FALSE(editor.CurView.HasPicture());
        Pick(editor, "red.sys");
        Await([&] { return MiddleOf(editor.CurView) == kRed; }, "red shown");
        EXPECT_EQ(editor.CurView.Tag(), pictures + "red.sys");
        EXPECT_EQ(editor.SelectedPicture, pictures + "red.sys");
        EXPECT_TRUE(editor.SlotsEnabled);
        for (Button& add : editor.AddButton) EXPECT_TRUE(add.Enabled());
    });
}

TEST_F(Browsing, AFileOfNoPictureKindLeavesTheSlotsEnabledButTheyTakeNothing) {
    Put(pictures + "red.sys", ScreenFile(255, 0, 0));
    Put(pictures + "notes.txt", "no picture");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "red.sys");
        editor.LogoList.AddItem("notes.txt", "im");  // as the fixed folder may list it
        Pick(editor, "notes.txt");
        EXPECT_EQ(editor.ImageInfo.Text(), "No logo selected");
        EXPECT_EQ(editor.ImageInfo.ForeColor(), 255);
        EXPECT_TRUE(editor.SlotsEnabled);
        EXPECT_TRUE(editor.AddButton[0].Enabled());
        Press(editor.AddButton[0]);
        EXPECT_EQ(editor.ImgPreview[0].Tag(), "");
        EXPECT_FALSE(editor.SetChanged);
    });
}

TEST_F(Browsing, AFileOfNoPictureKindEnablesNothing) {
    Put(pictures + "notes.txt", "no picture");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        editor.LogoList.AddItem("notes.txt", "im");
        Pick(editor, "notes.txt");
        EXPECT_FALSE(editor.SlotsEnabled);
        EXPECT_FALSE(editor.AddButton[0].Enabled());
    });
}

TEST_F(Browsing, AFolderThatIsSelectedIsNotExamined) {
    MakeFolders(pictures + "odd.sys\\");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "odd.sys");
        EXPECT_EQ(editor.ImageInfo.Text(), "No logo selected");
        EXPECT_EQ(editor.SelectedPicture, "");
    });
}

TEST_F(Browsing, RenamesAFileInPlaceAndSelectsIt) {
    Put(pictures + "old.sys", ScreenFile(1, 2, 3));
    Put(pictures + "other.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "old.sys");
        Run(editor, ID_BrowserRename);
        Await([&] { return editor.LogoList.EditingLabel(); }, "label edited");
        user::Type("zebra.sys");
        user::Press(VK_RETURN);
        Await([&] { return Exists(pictures + "zebra.sys"); }, "renamed");
        Await([&] { return editor.LogoList.FindItem("zebra.sys") == 2; }, "listed");
        Settle(editor);
        EXPECT_EQ(Listed(editor), (Names{"..", "other.sys", "zebra.sys"}));
        EXPECT_EQ(editor.LogoList.SelectedItem(), 2);
        EXPECT_EQ(editor.SelectedPicture, pictures + "zebra.sys");
    });
}

TEST_F(Browsing, KeepsTheListWhenARenameFails) {
    Put(pictures + "old.sys", "");
    Put(pictures + "taken.sys", "");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "old.sys");
        Run(editor, ID_BrowserRename);
        Await([&] { return editor.LogoList.EditingLabel(); }, "label edited");
        user::Type("taken.sys");
        user::Press(VK_RETURN);
        const user::Box box = user::AnswerBox(IDOK);
        Settle(editor);
        EXPECT_EQ(box.icon, static_cast<unsigned>(MB_ICONEXCLAMATION));
        EXPECT_EQ(Listed(editor), (Names{"..", "old.sys", "taken.sys"}));
        EXPECT_TRUE(Exists(pictures + "old.sys"));
    });
}

TEST_F(Browsing, ASlotFollowsItsFileWhenThatIsRenamed) {
    Put(pictures + "old.sys", ScreenFile(1, 2, 3));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Fill(editor, "old.sys", 2);
        Run(editor, ID_BrowserRename);
        Await([&] { return editor.LogoList.EditingLabel(); }, "label edited");
        user::Type("new.sys");
        user::Press(VK_RETURN);
        Await([&] { return editor.ImgPreview[2].Tag() == pictures + "new.sys"; }, "slot follows");
    });
}

TEST_F(Browsing, TheParentFolderIsNeitherRenamedNorDeleted) {
    Put(pictures + "a.sys", "");
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "..");
        Run(editor, ID_BrowserRename);
        EXPECT_FALSE(editor.LogoList.EditingLabel());
        Run(editor, ID_BrowserDelete);
        EXPECT_TRUE(Exists(pictures + "a.sys"));
        user::RightClickAt(PointOfItem(editor, ".."));
        const HMENU menu = user::WaitForPopUp();
        EXPECT_NE(GetMenuState(menu, ID_BrowserRename, MF_BYCOMMAND) & MF_GRAYED, 0u);
        EXPECT_NE(GetMenuState(menu, ID_BrowserDelete, MF_BYCOMMAND) & MF_GRAYED, 0u);
        DismissMenu();
    });
}

TEST_F(Browsing, RefreshShowsWhatCameMeanwhile) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Put(pictures + "new.sys", "");
        user::RightClickAt(PointOfItem(editor, ".."));
        EXPECT_TRUE(user::ChooseFromPopUp(ID_BrowserRefresh));
        Await([&] { return Listed(editor) == Names{"..", "new.sys"}; }, "listed");
    });
}

TEST_F(Browsing, TheManageMenuPutsThePictureIntoASlot) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        for (int i = 0; i < 3; ++i) {
            user::RightClickAt(PointOfItem(editor, "new.sys"));
            EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmSetLogo + i));
            Await([&] { return editor.ImgPreview[i].Tag() == pictures + "new.sys"; },
                  "slot filled");
        }
    });
}

TEST_F(Browsing, TheManageMenuOpensForAnUnsteadyHandToo) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        const POINT at = PointOfItem(editor, "new.sys");
        user::RightDrag(at, {at.x + 15, at.y + 5});
        const HMENU menu = user::WaitForPopUp();
        EXPECT_EQ(GetMenuState(menu, ID_ItmSetLogo, MF_BYCOMMAND) & MF_GRAYED, 0u);
        DismissMenu();
    });
}

TEST_F(Browsing, TheManageMenuOffersNoSlotThatIsNotShown) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Press(editor.OptOnlyStart);
        user::RightClickAt(PointOfItem(editor, "new.sys"));
        const HMENU menu = user::WaitForPopUp();
        EXPECT_EQ(GetMenuState(menu, ID_ItmSetLogo, MF_BYCOMMAND) & MF_GRAYED, 0u);
        EXPECT_NE(GetMenuState(menu, ID_ItmSetLogo + 1, MF_BYCOMMAND) & MF_GRAYED, 0u);
        EXPECT_NE(GetMenuState(menu, ID_ItmSetLogo + 2, MF_BYCOMMAND) & MF_GRAYED, 0u);
        DismissMenu();
    });
}

TEST_F(Browsing, AClickOnThePreviewActsOnThePicture) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Pick(editor, "new.sys");
        const HWND view = user::ClickToOpen(editor.CurView.handle(), "FrmView");
        EXPECT_NE(view, nullptr);
        EXPECT_TRUE(user::Click(view));
        EXPECT_TRUE(user::WaitUntilGone(view));
        EXPECT_TRUE(IsWindowEnabled(editor.handle()));
    });
}

TEST_F(Browsing, ADoubleClickOnAPictureActsAsAClickOnThePreview) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale&, SelPictureForm& editor) {
        Open(editor, "new.sys");
        const HWND view = user::WaitForTop("FrmView");
        EXPECT_NE(view, nullptr);
        EXPECT_TRUE(user::Click(view));
        EXPECT_TRUE(user::WaitUntilGone(view));
    });
}

TEST_F(Browsing, ClicksOnEmptyPicturesDoNothing) {
    WithEditor([&](Principale&, SelPictureForm& editor) {
        EXPECT_TRUE(user::Click(editor.CurView.handle()));
        EXPECT_TRUE(user::RightClick(editor.ImgPreview[0].handle()));
        // What comes of a later click shows that these have been handled.
        EXPECT_TRUE(user::Click(editor.OptDefShut.handle()));
        Await([&] { return SendMessageA(editor.OptDefShut.handle(), BM_GETCHECK, 0, 0) != 0; },
              "a click");
        EXPECT_EQ(user::FindTop("FrmView"), nullptr);
        EXPECT_EQ(user::FindTop("#32768"), nullptr);
    });
}

TEST_F(Browsing, ARightClickOnASlotOffersTheMainWindowsOpenWithMenu) {
    Put(pictures + "new.sys", ScreenFile(0, 255, 0));
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        Fill(editor, "new.sys", 1);
        EXPECT_TRUE(user::RightClick(editor.ImgPreview[1].handle()));
        const HMENU menu = user::WaitForPopUp();
        EXPECT_EQ(menu, main.OpenWithMenu(editor.ImgPreview[1].Tag()));
        EXPECT_EQ(GetMenuDefaultItem(menu, FALSE, 0),
                  static_cast<UINT>(main.DefaultOpenWithItem()));
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmOpenAct));
        const HWND view = user::WaitForTop("FrmView");
        EXPECT_NE(view, nullptr);
        EXPECT_TRUE(user::Click(view));
        EXPECT_TRUE(user::WaitUntilGone(view));
        EXPECT_EQ(editor.NameLogoSet.Text(), "Blue");
    });
}

}  // namespace
}  // namespace vistrel::test
