// The Logo menu: its commands, their words, and what each does.
#include "tests/main_window/tool_words.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

constexpr const char* kFolderKey = "SOFTWARE\\Classes\\Folder\\shell\\open\\command";
constexpr const char* kDirectoryKey = "SOFTWARE\\Classes\\Directory\\shell\\open\\command";

// In their order.
constexpr ToolWords kTools[] = {
    {"ToolRename", ID_ToolRename, "&Rename\tF2", "Rename selected logo set", "Logo"},
    {"ToolDelete", ID_ToolDelete, "D&elete\tDel", "Delete selected logo set", "Logo"},
    {"ToolSetDefault", ID_ToolSetDefault, "Set as default", "Set as default", "Logo"},
    {"ToolBrowser", ID_ToolBrowser, "Logo &browser...", "Logo browser", "Logo"},
    {"ToolExplore", ID_ToolExplore, "&Explore", "Opens the folder in Explorer", "Logo"},
    {"ToolRefresh", ID_ToolRefresh, "&Refresh\tF5", "Refreshed the logo sets list", "Logo"},
    {"", 0, "", "", ""},
    {"ToolExport", ID_ToolExport, "E&xport...", "Export selected logo set", "Logo"},
    {"ToolImport", ID_ToolImport, "&Import...", "Import logo sets", "Logo"},
    {"", 0, "", "", ""},
    {"ToolUndoInstall", ID_ToolUndoInstall, "&Undo install\tCtrl+Z",
     "Bring back the previous screens", "Logo"},
    {"", 0, "", "", ""},
    {"ToolDuplicate", ID_ToolDuplicate, "Du&plicate", "Make a copy of the selected logo set",
     "Logo"},
    {"ToolCopy", ID_ToolCopy, "&Copy\tCtrl+C", "Copy for pasting in a folder", "Logo"},
    {"ToolSelectAll", ID_ToolSelectAll, "Select &all\tCtrl+A", "Select all logo sets", "Logo"},
};

using LogoMenu = Commanding;

TEST_F(LogoMenu, HasItsCommandsInTheirOrderAndWords) {
    WithMainWindow([&](Principale& main) { ExpectTools(main, 0, kTools); });
}

TEST_F(LogoMenu, PopsUpTheLogoMenuOfTheBarAtTheRightButton) {
    WithMainWindow([&](Principale& main) {
        user::RightClickAt(PointOfSet(main, "Red"));
        EXPECT_EQ(user::WaitForPopUp(), seen::RowsOf(GetMenu(main.handle())).at(0).opens);
        user::TakeShot("logo_band");
        user::Press(VK_ESCAPE);
    });
}

TEST_F(LogoMenu, PopsUpTheSameMenuByTheKeyboard) {
    Store("DefaultLogoSet", TextValue("gone"));
    WithMainWindow([&](Principale& main) {
        for (const bool selected : {false, true}) {
            if (selected) ClickSet(main, "Red");
            main.MyList.Focus();
            const HMENU menu = user::PopUpByKey();
            EXPECT_EQ(menu, seen::RowsOf(GetMenu(main.handle())).at(0).opens);
            for (const unsigned id : {ID_ToolRename, ID_ToolDelete, ID_ToolSetDefault})
                EXPECT_EQ(seen::RowOf(menu, id).enabled, selected) << id;
            EXPECT_TRUE(seen::RowOf(menu, ID_ToolRefresh).enabled);
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
        }
    });
}

TEST_F(LogoMenu, RenameBeginsToEditTheLabelOfTheSelectedSet) {
    ForEach({ID_ToolRename, ID_ItmRename}, [&](Principale& main, int id) {
        Command(main, id);
        EXPECT_TRUE(main.MyList.EditingLabel());
        EXPECT_EQ(main.MyList.EditedItem(), 0);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([&] { return !main.MyList.EditingLabel(); }));
    });
}

TEST_F(LogoMenu, DeleteAsks) {
    ForEach({ID_ToolDelete, ID_ItmDelete}, [&](Principale& main, int id) {
        StartCommand(main, id);
        EXPECT_EQ(user::AnswerBox(IDNO).title, "Confirm deletions");
    });
}

TEST_F(LogoMenu, SetAsDefaultInstallsTheSelectedSet) {
    ForEach({ID_ToolSetDefault, ID_ItmSetDefault}, [&](Principale& main, int id) {
        DeleteFileA((boot + "LOGO.SYS").c_str());
        main.SelItem("Red");
        Command(main, id);
        EXPECT_EQ(main.DefaultLogo.Text(), "Red");
        EXPECT_EQ(Contents(boot + "LOGO.SYS"), ScreenFile(255, 0, 0));
    });
}

TEST_F(LogoMenu, LogoBrowserOpens) {
    ExpectOpens({ID_ToolBrowser, ID_ItmLogoManager}, "SelPictureForm");
}

TEST_F(LogoMenu, ExploreOpensTheFolderOfTheSetOrTheLogoFolder) {
    for (const char* key : {kFolderKey, kDirectoryKey})
        StoreIn(key, "", TextValueWithNul("C:\\test\\record_arguments.exe \"%1\""));
    ForEach({ID_ToolExplore, ID_ItmExplore}, [&](Principale& main, int id) {
        ClickSet(main, "Red");
        Command(main, id);
        EXPECT_NE(Recorded().find(logos + "Red\""), std::string::npos);
        ClickBelowSets(main);
        Command(main, id);
        EXPECT_NE(Recorded().find(logos + "\""), std::string::npos);
        // Selected by the program it counts as well.
        main.SelItem("Green.SLS");
        Command(main, id);
        EXPECT_NE(Recorded().find(logos + "Green.SLS\""), std::string::npos);
    });
    for (const char* key : {kFolderKey, kDirectoryKey}) ForgetValue(key, "");
}

TEST_F(LogoMenu, RefreshReadsTheLogoFolder) {
    ForEach({ID_ToolRefresh, ID_ItmRefresh}, [&](Principale& main, int id) {
        const std::string name = "New " + std::to_string(id);
        PutSet(name, 1, 2, 3);
        EXPECT_EQ(main.MyList.FindItem(name), -1);
        Command(main, id);
        EXPECT_GE(main.MyList.FindItem(name), 0);
    });
}

}  // namespace
}  // namespace vistrel::test
