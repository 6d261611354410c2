// Every command of the main window with each of its operations on disk made to fail in turn: what
// the command is not about stays as it was, and the window tells what is there.
#include <windows.h>
// ole2.h needs windows.h first.
#include <ole2.h>

#include <map>

#include "platform/fault.h"
#include "tests/main_window/file_drag_source.h"
#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

using namespace main_window;
using namespace platform;

namespace {

class Failing : public MainWindow98 {
 protected:
    using Files = std::map<std::string, std::string>;

    /// Puts library and machine back, and the list with "Red" selected.
    void PutBack(Principale& main) {
        for (const std::string& name : NamesIn(logos)) RemoveTree(logos + name);
        PutSet("Blue", 0, 0, 255);
        PutSingleSet("Green.SLS", 0, 255, 0);
        PutSet("Red", 255, 0, 0);
        for (const char* shared : {"LOGOW.SYS", "LOGOS.SYS"})
            Put(logos + shared, ScreenFile(255, 255, 255));
        for (const std::string& installed : InstalledFiles()) Put(installed, "old");
        main.Preferences().confirmLogosetDelete = 0;
        main.Preferences().deleteInTheRecycleBin = 0;
        main.SetInstalledSet("Blue");
        main.LeggiDatiDisco();
        main.SelItem("Red");
    }
    std::vector<std::string> InstalledFiles() const {
        return {boot + "LOGO.SYS", windows + "LOGOW.SYS", windows + "LOGOS.SYS"};
    }
    /// What the screens that are installed hold.
    Files Installed() const {
        Files files;
        for (const std::string& path : InstalledFiles())
            if (const auto contents = Contents(path)) files[path] = *contents;
        return files;
    }
    /// What the library holds; `but` is a set that is left out.
    Files Library(const std::string& but = "") const {
        Files files;
        for (const std::string& name : NamesIn(logos)) {
            if (name == but) continue;
            if (const auto shared = Contents(logos + name)) files[name] = *shared;
            for (const std::string& screen : NamesIn(logos + name + "\\"))
                files[name + "\\" + screen] = Contents(logos + name + "\\" + screen).value_or("");
        }
        return files;
    }
    /// Runs a command with each of its operations failing in turn; nothing of the library but the
    /// set `but` changes.
    void WithEachFailing(const std::string& but, const std::function<void(Principale&)>& command,
                         const std::function<void(Principale&)>& check) {
        WithMainWindow([&](Principale& main) {
            PutBack(main);
            const Files before = Library(but);
            WithEachOperationFailing([&] { PutBack(main); }, [&] { command(main); },
                                     [&](int) {
                                         EXPECT_TRUE(Library(but) == before);
                                         check(main);
                                     });
        });
    }
    /// Each installed screen is "Red"'s, or is not there because it could not be copied.
    void ExpectInstalled(Principale& main, const std::string& set) {
        const std::string screen = Contents(logos + set + "\\LOGO.SYS").value_or("");
        int there = 0;
        for (const auto& [path, contents] : Installed()) {
            EXPECT_TRUE(contents == screen) << path;
            ++there;
        }
        EXPECT_GE(there, 2);
        EXPECT_EQ(main.DefaultLogo.Text(), set);
    }
    /// At the next refresh the list has what the disk has.
    void ExpectRefreshed(Principale& main, const std::vector<std::string>& sets) {
        Command(main, ID_ToolRefresh);
        EXPECT_EQ(main.SetNames(), sets);
    }
    const std::vector<std::string> all_ = {"Blue", "Green.SLS", "Red"};
};

TEST_F(Failing, OperationsOfSetAsDefaultLeaveOnlyThatScreenOut) {
    WithEachFailing(
        "", [&](Principale& main) { Command(main, ID_ToolSetDefault); },
        [&](Principale& main) { ExpectInstalled(main, "Red"); });
}

TEST_F(Failing, OperationsOfTheRandomChangeLeaveOnlyThatScreenOut) {
    WithEachFailing(
        "",
        [&](Principale& main) {
            // With two sets there is one to choose.
            main.MyList.RemoveItem(1);
            Command(main, ID_ToolRandom);
        },
        [&](Principale& main) { ExpectInstalled(main, "Blue"); });
}

TEST_F(Failing, OperationsOfARefreshLoseNothingThatTheNextOneDoesNotBring) {
    WithEachFailing(
        "", [&](Principale& main) { Command(main, ID_ToolRefresh); },
        [&](Principale& main) {
            for (const auto& [path, contents] : Installed()) EXPECT_EQ(contents, "old") << path;
            EXPECT_EQ(Installed().size(), 3u);
            ExpectRefreshed(main, all_);
            EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
        });
}

TEST_F(Failing, OperationsOfTheInstalledViewShowWhatCanBeShown) {
    WithEachFailing(
        "",
        [&](Principale& main) {
            Command(main, ID_ToolShowCurrent);
            EXPECT_EQ(main.DefaultLogo.Text(), "Current logo setting");
            Command(main, ID_ToolShowCurrent);
        },
        [&](Principale& main) {
            EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
            EXPECT_EQ(Selected(main), "Red");
            EXPECT_EQ(Installed().size(), 3u);
        });
}

TEST_F(Failing, OperationsOfADeletionLoseNoOtherSet) {
    WithEachFailing(
        "Red", [&](Principale& main) { Command(main, ID_ToolDelete); },
        [&](Principale& main) {
            EXPECT_EQ(main.SetNames(), (std::vector<std::string>{"Blue", "Green.SLS"}));
            EXPECT_EQ(Selected(main), "Green.SLS");
            EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
            EXPECT_EQ(Installed().size(), 3u);
            auto left = all_;
            if (!Exists(logos + "Red")) left.pop_back();
            ExpectRefreshed(main, left);
        });
}

TEST_F(Failing, OperationsOfARenamingKeepTheSetUnderOneOfItsNames) {
    WithMainWindow([&](Principale& main) {
        WithEachOperationFailing(
            [&] {
                PutBack(main);
                main.SelItem("Blue");
                BeginRenaming(main, "Red", "Scarlet");
            },
            [&] {
                user::Press(VK_RETURN);
                WaitUntil([&] { return !main.MyList.EditingLabel() || user::FindTop("#32770"); });
                if (user::WaitForBox(0, 100).window) user::AnswerBox(IDOK);
                Settle(main);
            },
            [&](int) {
                const bool renamed = Exists(logos + "Scarlet");
                const std::string name = renamed ? "Scarlet" : "Red";
                EXPECT_NE(renamed, Exists(logos + "Red"));
                EXPECT_EQ(NamesIn(logos + name + "\\").size(), 3u);
                EXPECT_GE(main.MyList.FindItem(name), 0);
                EXPECT_EQ(main.MyList.Count(), 3);
            });
    });
}

TEST_F(Failing, OperationsOfADropLoseNothingThatWasThere) {
    MakeFolders(root + "outside\\New\\");
    Put(root + "outside\\New\\LOGO.SYS", "new");
    OleInitialize(nullptr);
    {
        FileDragSource source({4, 4}, {root + "outside\\New"});
        WithEachFailing(
            "New",
            [&](Principale& main) {
                source.Forget();
                user::Drag(user::CentreOf(source.window()), user::CentreOf(main.MyList.handle()));
                EXPECT_TRUE(WaitUntil([&] { return source.effect() != ~DWORD{0}; }, 60000));
                Settle(main);
            },
            [&](Principale& main) {
                EXPECT_EQ(Contents(root + "outside\\New\\LOGO.SYS"), "new");
                EXPECT_EQ(main.DefaultLogo.Text(), "Blue");
                Command(main, ID_ToolRefresh);
                EXPECT_EQ(main.MyList.FindItem("New") >= 0, Exists(logos + "New"));
            });
    }
    OleUninitialize();
}

TEST_F(Failing, WindowsAreToldAndLeaveTheMainWindowAsItWas) {
    WithMainWindow([&](Principale& main) {
        ClickSet(main, "Red");
        for (const int command : {ID_ToolPrefer, ID_ToolAbout, ID_ToolBrowser}) {
            fault::FailOperation(1, fault::Kind::Windows);
            StartCommand(main, command);
            const user::Box box = user::AnswerBox(IDOK);
            EXPECT_EQ(box.text, "The window cannot be opened. There may not be enough memory.");
            EXPECT_EQ(box.title, "Vistrel");
            fault::Reset();
            EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(main.handle()) != 0; }));
            Settle(main);
            EXPECT_EQ(Selected(main), "Red");
            EXPECT_TRUE(SetToolsEnabled(main));
        }
        // Once there is memory again it opens.
        StartCommand(main, ID_ToolAbout);
        const HWND about = user::WaitForTop("FrmAboutReg");
        EXPECT_NE(about, nullptr);
        PostMessageA(about, WM_CLOSE, 0, 0);
        EXPECT_TRUE(user::WaitUntilGone(about));
    });
}

TEST_F(Failing, OperationsAreNotThereForTheCommandsThatOnlyChangeTheLook) {
    WithMainWindow([&](Principale& main) {
        PutBack(main);
        fault::Reset();
        for (const int id : {ID_ToolReportView, ID_ToolListView, ID_ItmViewType + 1, ID_ItmViewType,
                             ID_ItmAnimate, ID_ToolRename})
            Command(main, id);
        EXPECT_EQ(fault::Counted(), 0);
        user::Press(VK_ESCAPE);
    });
}

}  // namespace
}  // namespace vistrel::test
