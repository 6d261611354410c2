// The main window's rows.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "tests/hardship/window_commands.h"
#include "tests/support/machine/zip_file.h"

namespace vistrel::test {

using namespace main_window;

namespace {

constexpr const char* kFilesGoOneByOne =
    "its files are erased one after another, and it was asked for";
constexpr const char* kDeletedFirst =
    "the installed screen is deleted before the new one is copied; it can be taken back";
constexpr const char* kShellCopies =
    "the shell copies a folder that is dropped, as it does anywhere";

const std::string kZip = "C:\\machine\\given.zip";
const std::string kLogos = "C:\\machine\\logos\\";

void Give(Stage& stage, int command) {
    SendMessageA(stage.main.handle(), WM_COMMAND, static_cast<WPARAM>(command), 0);
}

template <int command>
void GiveIt(Stage& stage) {
    Give(stage, command);
}

/// Gives a name in the list, or leaves it as it is.
void EndLabelEdit(Stage& stage, const char* name) {
    const HWND list = stage.main.MyList.handle();
    const auto edit = reinterpret_cast<HWND>(SendMessageA(list, LVM_GETEDITCONTROL, 0, 0));
    if (!edit) return;
    if (name) SendMessageA(edit, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(name));
    SendMessageA(edit, WM_KEYDOWN, name ? VK_RETURN : VK_ESCAPE, 0);
}

void Rename(Stage& stage) {
    Give(stage, ID_ToolRename);
    EndLabelEdit(stage, "Scarlet");
}

void Convert(Stage& stage) {
    Give(stage, ID_ItmRename);
    EndLabelEdit(stage, "Red.SLS");
}

void IntoBin(Stage& stage) { stage.main.Preferences().deleteInTheRecycleBin = 1; }

void SelectAll(Stage& stage) { Give(stage, ID_ToolSelectAll); }

// With two sets there is one to choose.
void LeaveTwo(Stage& stage) {
    RunOnThreadOf(stage.main.handle(), [&] { stage.main.MyList.RemoveItem(1); });
}

void ShowInstalledAndBack(Stage& stage) {
    Give(stage, ID_ToolShowCurrent);
    Give(stage, ID_ToolShowCurrent);
}

void Browse(Stage& stage) {
    Give(stage, ID_ToolBrowser);
    // It opens a moment later.
    const HWND main = stage.main.handle();
    WaitUntil([&] { return !IsWindowEnabled(main); }, 1000);
    WaitUntil([&] { return IsWindowEnabled(main) != 0; });
}

void PutArchive(Stage&) {
    Put(kZip,
        ZipOf({{"Red/LOGO.SYS", ScreenFile(1, 2, 3)}, {"New/LOGO.SYS", ScreenFile(4, 5, 6)}}));
}

void PutOlderArchive(Stage&) { Put(kZip, "older"); }

void Duplicate(Stage& stage) {
    Give(stage, ID_ToolDuplicate);
    EndLabelEdit(stage, nullptr);
}

void SeeThumbnails(Stage& stage) {
    Give(stage, ID_ToolThumbnailView);
    Give(stage, ID_ToolLargerThumbnails);
    UpdateWindow(stage.main.MyList.handle());
    Give(stage, ID_ToolSmallerThumbnails);
    Give(stage, ID_ToolListView);
}

void SeeDetails(Stage& stage) {
    constexpr int kDate = 4;
    Give(stage, ID_ToolDetailsView);
    // By the date, backwards, and as the folder has them.
    for (int i = 0; i < 3; ++i) {
        UpdateWindow(stage.main.MyList.handle());
        RunOnThreadOf(stage.main.handle(), [&] { stage.main.MyList.HeadingClick(kDate); });
    }
    Give(stage, ID_ToolListView);
}

/// The picture that the menu of a screen's right button acts on.
void ClickStartupScreen(Stage& stage) {
    RunOnThreadOf(stage.main.handle(), [&] { stage.main.OpenWithMenu(kLogos + "Red\\LOGO.SYS"); });
}

void DamageStartupScreen(Stage& stage) {
    std::string file = ScreenFile(255, 0, 0);
    // It says that its first moving colour is behind the last.
    file[51] = 1;
    Put(kLogos + "Red\\LOGO.SYS", file);
    ClickStartupScreen(stage);
}

void DropIn(Stage& stage) {
    RunOnThreadOf(stage.main.handle(), [&] {
        stage.main.MyList.OLEDragDrop({"C:\\machine\\outside\\New", "C:\\machine\\outside\\Red"});
    });
}

void PutOutside(Stage&) {
    for (const char* set : {"New", "Red"}) {
        const std::string folder = std::string("C:\\machine\\outside\\") + set + "\\";
        MakeFolders(folder);
        Put(folder + "LOGO.SYS", "dropped");
    }
}

void Find(Stage& stage) {
    stage.main.FindBox.SetText("Re");
    WaitUntil([&] { return stage.main.MyList.Count() < 3; }, 1000);
    Give(stage, ID_BtnCancel);
}

void PressOk(HWND window) { PostMessageA(window, WM_COMMAND, IDOK, 0); }

void ChangeAndPressOk(HWND window) {
    for (const int option : {ID_ActiveStart, ID_StartUpAction + 1, ID_ChkShowSplash})
        SendMessageA(user::Control(window, option), BM_CLICK, 0, 0);
    PressOk(window);
}

/// Opens a dialog over the preferences, which are closed without OK.
template <int button>
void PressIn(HWND window) {
    PostMessageA(user::Control(window, button), BM_CLICK, 0, 0);
}

void LeaveAllOut(HWND window) {
    SendMessageA(user::Control(window, ID_BtnNoSets), BM_CLICK, 0, 0);
    PressOk(window);
}

}  // namespace

const std::vector<WindowCommands::Row>& WindowCommands::OfMainWindow() {
    static const std::vector<Row> rows = {
        {{ID_ToolRename}, "rename", nullptr, Rename},
        {{ID_ItmRename}, "rename to another type", nullptr, Convert},
        {{ID_ToolDelete, ID_ItmDelete},
         "delete",
         nullptr,
         GiveIt<ID_ToolDelete>,
         {{"Red"}, false, kFilesGoOneByOne}},
        {{},
         "delete into the bin",
         IntoBin,
         GiveIt<ID_ToolDelete>,
         {{"Red"}, false, kFilesGoOneByOne}},
        {{},
         "delete all",
         SelectAll,
         GiveIt<ID_ToolDelete>,
         {{"Blue", "Green.SLS", "Red"}, false, kFilesGoOneByOne}},
        {{ID_ToolSetDefault, ID_ItmSetDefault},
         "set as default",
         nullptr,
         GiveIt<ID_ToolSetDefault>,
         {{}, true, kDeletedFirst}},
        {{ID_ToolBrowser, ID_ItmLogoManager}, "Logo browser", nullptr, Browse},
        {.commands = {ID_ToolExplore, ID_ItmExplore},
         .name = "explore",
         .run = GiveIt<ID_ToolExplore>,
         .startsOther = true},
        {{ID_ToolRefresh, ID_ItmRefresh}, "refresh", nullptr, GiveIt<ID_ToolRefresh>},
        {.commands = {ID_ToolListView, ID_ItmViewType},
         .name = "list",
         .run = GiveIt<ID_ToolListView>,
         .hasOperations = false},
        {.commands = {ID_ToolReportView, ID_ItmViewType + 1},
         .name = "report",
         .run = GiveIt<ID_ToolReportView>,
         .hasOperations = false},
        {{ID_ToolShowCurrent}, "installed view and back", nullptr, ShowInstalledAndBack},
        {{ID_ItmViewDefOrActual},
         "installed view by the menu",
         nullptr,
         GiveIt<ID_ItmViewDefOrActual>},
        {{ID_ToolRandom, ID_ItmRandomSpin},
         "random change",
         LeaveTwo,
         GiveIt<ID_ToolRandom>,
         {{}, true, kDeletedFirst}},
        {{ID_ToolPrefer, ID_ItmPref},
         "preferences",
         nullptr,
         GiveIt<ID_ToolPrefer>,
         {},
         ChangeAndPressOk},
        {{}, "preferences: rotation", nullptr, GiveIt<ID_ToolPrefer>, {}, LeaveAllOut},
        {{},
         "preferences: logo folder",
         nullptr,
         GiveIt<ID_ToolPrefer>,
         {},
         PressIn<ID_btnBrwFolder>},
        {{},
         "preferences: program",
         PutOlderArchive,
         GiveIt<ID_ToolPrefer>,
         {},
         PressIn<ID_BtnBrowse>},
        {.commands = {ID_Online, ID_WhatIsThis, ID_ItmNetUpdate},
         .name = "nothing",
         .run = GiveIt<ID_Online>,
         .hasOperations = false},
        {.commands = {ID_ToolContents, ID_ItmContents},
         .name = "contents",
         .run = GiveIt<ID_ToolContents>,
         .startsOther = true},
        {.commands = {ID_ToolTutorial},
         .name = "tutorial",
         .run = GiveIt<ID_ToolTutorial>,
         .startsOther = true},
        {.commands = {ID_ToolBug, ID_ItmBugReport},
         .name = "bug report",
         .run = GiveIt<ID_ToolBug>,
         .startsOther = true},
        {.commands = {ID_ToolAbout, ID_ItmAbout},
         .name = "about",
         .run = GiveIt<ID_ToolAbout>,
         .hasOperations = false},
        {{ID_MnuExit, ID_ItmExit}, "exit"},
        {{ID_ToolExport, ID_ItmExport}, "export a set", PutOlderArchive, GiveIt<ID_ToolExport>},
        {{ID_ToolImport, ID_ItmImport}, "import sets", PutArchive, GiveIt<ID_ToolImport>},
        {{ID_ToolUndoInstall, ID_ItmUndoInstall},
         "undo the install",
         GiveIt<ID_ToolSetDefault>,
         GiveIt<ID_ToolUndoInstall>},
        {{ID_ToolDuplicate, ID_ItmDuplicate}, "duplicate a set", nullptr, Duplicate},
        {{ID_ToolCopy, ID_ItmCopy}, "copy", nullptr, GiveIt<ID_ToolCopy>},
        {.commands = {ID_ToolSelectAll, ID_ItmSelectAll},
         .name = "select all",
         .run = GiveIt<ID_ToolSelectAll>,
         .hasOperations = false},
        {{ID_ToolThumbnailView, ID_ItmThumbnailView, ID_ToolLargerThumbnails,
          ID_ToolSmallerThumbnails},
         "thumbnails",
         nullptr,
         SeeThumbnails},
        {{ID_ToolDetailsView, ID_ItmDetailsView}, "details", nullptr, SeeDetails},
        {{ID_ItmOpenAct}, "actual size", ClickStartupScreen, GiveIt<ID_ItmOpenAct>},
        {.commands = {ID_ItmOpenAct + 1},
         .name = "Paint",
         .prepare = ClickStartupScreen,
         .run = GiveIt<ID_ItmOpenAct + 1>,
         .startsOther = true},
        {{ID_ItmOpenAct + 2}, "custom program", ClickStartupScreen, GiveIt<ID_ItmOpenAct + 2>},
        {.commands = {ID_ItmAnimate},
         .name = "autoshow",
         .run = GiveIt<ID_ItmAnimate>,
         .hasOperations = false},
        {{ID_ItmShowAtStart}, "show as at start", nullptr, GiveIt<ID_ItmShowAtStart>},
        {{ID_ItmMend}, "mend a screen", DamageStartupScreen, GiveIt<ID_ItmMend>},
        {{ID_ItmMoveColors},
         "moving colours",
         ClickStartupScreen,
         GiveIt<ID_ItmMoveColors>,
         {},
         PressOk},
        {{ID_ItmDriveList}, "startup logo in", nullptr, GiveIt<ID_ItmDriveList + 1>},
        {{}, "drop folders in", PutOutside, DropIn, {{"New", "Red"}, false, kShellCopies}},
        {.commands = {ID_FindBox}, .name = "find", .run = Find, .hasOperations = false},
    };
    return rows;
}

}  // namespace vistrel::test
