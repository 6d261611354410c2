// Each row of the tool table and each item of the classic menus is dispatched, and seen to act.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "tests/support/main_window/main_window_fixture.h"
#include "tests/support/user/help_requests.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

constexpr const char* kMailKey = "SOFTWARE\\Classes\\mailto\\shell\\open\\command";
constexpr const char* kFolderKey = "SOFTWARE\\Classes\\Folder\\shell\\open\\command";
constexpr const char* kDirectoryKey = "SOFTWARE\\Classes\\Directory\\shell\\open\\command";

class Dispatch : public MainWindow98 {
 protected:
    Dispatch() { DeleteFileA("C:\\arguments.txt"); }

    /// Runs a command by each of these numbers and looks whether it acted.
    void ForEach(const std::vector<int>& ids,
                 const std::function<void(Principale& main, int id)>& act) {
        for (const int id : ids) {
            SCOPED_TRACE("command " + std::to_string(id));
            WithMainWindow([&](Principale& main) { act(main, id); });
        }
    }
    /// Runs a command that opens one of our windows, and closes it.
    void ExpectOpens(const std::vector<int>& ids, const char* windowClass) {
        ForEach(ids, [&](Principale& main, int id) {
            StartCommand(main, id);
            const HWND opened = user::WaitForTop(windowClass);
            EXPECT_NE(opened, nullptr);
            EXPECT_FALSE(IsWindowEnabled(main.handle()));
            PostMessageA(opened, WM_CLOSE, 0, 0);
            const auto box = user::WaitForBox(0, 300);  // a loaded set may be asked about
            if (box.window) user::AnswerBox(IDYES);
            EXPECT_TRUE(user::WaitUntilGone(opened));
        });
    }
    static std::string Recorded() {
        WaitUntil([] { return Contents("C:\\arguments.txt").value_or("") != ""; });
        const std::string arguments = Contents("C:\\arguments.txt").value_or("");
        DeleteFileA("C:\\arguments.txt");
        return arguments;
    }
};

TEST_F(Dispatch, RenameBeginsToEditTheLabelOfTheSelectedSet) {
    ForEach({ID_ToolRename, ID_ItmRename}, [&](Principale& main, int id) {
        Command(main, id);
        EXPECT_TRUE(main.MyList.EditingLabel());
        EXPECT_EQ(main.MyList.EditedItem(), 0);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([&] { return !main.MyList.EditingLabel(); }));
    });
}

TEST_F(Dispatch, DeleteAsks) {
    ForEach({ID_ToolDelete, ID_ItmDelete}, [&](Principale& main, int id) {
        StartCommand(main, id);
        EXPECT_EQ(user::AnswerBox(IDNO).title, "Confirm deletions");
    });
}

TEST_F(Dispatch, SetAsDefaultInstallsTheSelectedSet) {
    ForEach({ID_ToolSetDefault, ID_ItmSetDefault}, [&](Principale& main, int id) {
        DeleteFileA((boot + "LOGO.SYS").c_str());
        main.SelItem("Red");
        Command(main, id);
        EXPECT_EQ(main.DefaultLogo.Text(), "Red");
        EXPECT_EQ(Contents(boot + "LOGO.SYS"), ScreenFile(255, 0, 0));
    });
}

TEST_F(Dispatch, LogoBrowserOpens) {
    ExpectOpens({ID_ToolBrowser, ID_ItmLogoManager}, "SelPictureForm");
}

TEST_F(Dispatch, PreferencesOpen) { ExpectOpens({ID_ToolPrefer, ID_ItmPref}, "FrmOptions"); }

TEST_F(Dispatch, AboutOpens) { ExpectOpens({ID_ToolAbout, ID_ItmAbout}, "FrmAboutReg"); }

TEST_F(Dispatch, RefreshReadsTheLogoFolder) {
    ForEach({ID_ToolRefresh, ID_ItmRefresh}, [&](Principale& main, int id) {
        const std::string name = "New " + std::to_string(id);
        PutSet(name, 1, 2, 3);
        EXPECT_EQ(main.MyList.FindItem(name), -1);
        Command(main, id);
        EXPECT_GE(main.MyList.FindItem(name), 0);
    });
}

TEST_F(Dispatch, TheViewsExcludeEachOtherInEveryMenu) {
    const struct {
        int id;
        LONG style;
    } rows[] = {{ID_ToolReportView, LVS_REPORT},
                {ID_ToolListView, LVS_LIST},
                {ID_ItmViewType + 1, LVS_REPORT},
                {ID_ItmViewType, LVS_LIST}};
    WithMainWindow([&](Principale& main) {
        const auto checked = [&](unsigned id) {
            return seen::RowOf(GetMenu(main.handle()), id).checked;
        };
        for (const auto& row : rows) {
            const bool report = row.style == LVS_REPORT;
            Command(main, row.id);
            EXPECT_EQ(GetWindowLongA(main.MyList.handle(), GWL_STYLE) & LVS_TYPEMASK, row.style);
            EXPECT_EQ(checked(ID_ToolReportView), report) << row.id;
            EXPECT_EQ(checked(ID_ToolListView), !report) << row.id;
            RECT r{};
            GetClientRect(main.handle(), &r);
            POINT corner{r.right - 2, r.bottom - 2};
            ClientToScreen(main.handle(), &corner);
            user::RightClickAt(corner);
            const HMENU menu = user::WaitForPopUp();
            EXPECT_EQ(seen::RowOf(menu, ID_ItmViewType + 1).checked, report) << row.id;
            EXPECT_EQ(seen::RowOf(menu, ID_ItmViewType).checked, !report) << row.id;
            user::Press(VK_ESCAPE);
            EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
        }
    });
}

TEST_F(Dispatch, ShowCurrentTurnsTheViewAndTheRealMarks) {
    WithMainWindow([&](Principale& main) {
        for (const bool shown : {true, false}) {
            Command(main, ID_ToolShowCurrent);
            EXPECT_EQ(main.DefaultLogo.Text(), shown ? "Current logo setting" : "Blue");
            EXPECT_EQ(seen::ButtonOf(main.ActiveBar1.bar(), ID_ToolShowCurrent).checked, shown);
            EXPECT_EQ(seen::RowOf(GetMenu(main.handle()), ID_ToolShowCurrent).checked, shown);
        }
    });
}

TEST_F(Dispatch, RandomChangeInstallsAnotherSet) {
    ForEach({ID_ToolRandom, ID_ItmRandomSpin}, [&](Principale& main, int id) {
        const std::string before = main.DefaultLogo.Text();
        Command(main, id);
        EXPECT_NE(main.DefaultLogo.Text(), before);
    });
}

TEST_F(Dispatch, ExploreOpensTheFolderOfTheSetOrTheLogoFolder) {
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

TEST_F(Dispatch, BugReportBeginsAMailWithASubject) {
    StoreIn(kMailKey, "", TextValueWithNul("C:\\test\\record_arguments.exe \"%1\""));
    ForEach({ID_ToolBug, ID_ItmBugReport}, [&](Principale& main, int id) {
        Command(main, id);
        const std::string arguments = Recorded();
        EXPECT_NE(arguments.find("mailto:"), std::string::npos) << arguments;
        EXPECT_NE(arguments.find("?subject=Bug report"), std::string::npos) << arguments;
    });
    ForgetValue(kMailKey, "");
}

TEST_F(Dispatch, ContentsAndTutorialOpenTheHelp) {
    user::HelpRequests help;
    Window::SetHelpFile("C:\\test\\vistrl.hlp");
    const struct {
        int id;
        unsigned command;
        unsigned long data;
    } rows[] = {{ID_ToolContents, 3, 0}, {ID_ItmContents, 3, 0}, {ID_ToolTutorial, 1, 30}};
    WithMainWindow([&](Principale& main) {
        for (const auto& row : rows) {
            StartCommand(main, row.id);
            const user::HelpRequest expected{row.command, row.data, "C:\\test\\vistrl.hlp"};
            EXPECT_EQ(help.Next(), expected) << row.id;
        }
        main.MyList.Focus();
        user::Press(VK_F1);
        EXPECT_EQ(help.Next().command, 3u);
    });
}

TEST_F(Dispatch, ExitCloses) {
    ForEach({ID_MnuExit, ID_ItmExit}, [&](Principale& main, int id) {
        StartCommand(main, id);
        EXPECT_TRUE(WaitUntil([&] { return !main.IsOpen(); }));
    });
}

TEST_F(Dispatch, TheDrivesOfTheStartupLogoAreMarkedAndChosen) {
    WithMainWindow([&](Principale& main) {
        main.Preferences().bootRoot = "X:\\";
        Command(main, ID_ItmDriveList + 1);
        EXPECT_EQ(main.Preferences().bootRoot, "C:\\");
        Command(main, ID_ItmDriveList);
        EXPECT_EQ(main.Preferences().bootRoot, "C:\\");
        main.Preferences().bootRoot = boot;
    });
}

TEST_F(Dispatch, TheRestDoesNothing) {
    WithMainWindow([&](Principale& main) {
        const auto before = NamesIn(logos);
        for (const int id : {ID_Online, ID_WhatIsThis, ID_ItmNetUpdate}) {
            Command(main, id);
            EXPECT_TRUE(IsWindowEnabled(main.handle())) << id;
            EXPECT_EQ(user::FindTop("#32770"), nullptr) << id;
        }
        EXPECT_EQ(NamesIn(logos), before);
        EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
    });
}

}  // namespace
}  // namespace vistrel::test
