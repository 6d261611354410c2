// Each command of the main window and of the Logo browser with its operations failing, alone, with
// all behind them, with no more objects for drawing, and with no window that opens. Nothing
// crashes, nothing is kept for ever, and each set and each installed screen is whole as before or
// whole as after, but for what the command's row says.
#include <algorithm>
#include <cstdio>

#include "core/interrupted_work.h"
#include "core/library.h"
#include "platform/fault.h"
#include "tests/hardship/file_commands.h"
#include "tests/hardship/window_commands.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace editor;
using namespace main_window;
namespace fault = platform::fault;

namespace {

/// Of a command with more operations so many are made to fail, in so many ways. With the variable
/// VISTREL_EVERY_OPERATION in the environment all are.
constexpr int kMostAlone = 4;
constexpr int kMostWithAllBehind = 2;
constexpr int kMostOfDrawing = 2;

class Windows : public WindowCommands {
 protected:
    Windows() {
        Put(pictures + "new.sys", ScreenFile(10, 20, 30));
        Put(pictures + "a.bmp", BmpOf(TestPicture(64, 48)));
        std::string damaged = ScreenFile(40, 50, 60);
        damaged[51] = 1;
        Put(pictures + "damaged.sys", damaged);
        for (const auto& [path, contents] : Look(place_).installed) Put(path, "old");
        before_ = Look(place_);
        pictures_ = ReadLibrary(root)["pictures"];
    }

    /// Puts library, pictures and installed screens back, and "Red" is selected.
    void PutBack(Stage& stage) {
        fault::Reset();
        const Library now = ReadLibrary(logos);
        for (const auto& [name, files] : now)
            if (!before_.sets.contains(name)) RemoveTree(logos + name);
        for (const auto& [name, files] : before_.sets) {
            const std::string folder = name.empty() ? logos : logos + name + "\\";
            MakeFolders(folder);
            PutFiles(folder, files, now.contains(name) ? now.at(name) : Files());
        }
        PutFiles(pictures, pictures_, ReadLibrary(root)["pictures"]);
        for (const auto& [path, contents] : before_.installed) Put(path, contents);
        RemoveTree(program + "Previous screens");
        core::Settings& settings = stage.main.Preferences();
        settings.confirmLogosetDelete = 0;
        settings.deleteInTheRecycleBin = 0;
        settings.bootRoot = boot;
        settings.logoPath = logos;
        RunOnThreadOf(stage.main.handle(), [&] {
            stage.main.SetInstalledSet("Blue");
            stage.main.LeggiDatiDisco();
            stage.main.SelItem("Red");
        });
        if (stage.editor) {
            stage.editor->CurrentFolder = pictures;
            Run(*stage.editor, ID_ClearAllButton);
            Run(*stage.editor, ID_BrowserRefresh);
            SelectionOfNames(*stage.editor);
        }
    }

    static void PutFiles(const std::string& folder, const Files& files, const Files& now) {
        for (const auto& [name, contents] : now)
            if (!files.contains(name)) RemoveTree(folder + name);
        for (const auto& [name, contents] : files)
            if (!now.contains(name) || now.at(name) != contents) Put(folder + name, contents);
    }

    void SelectionOfNames(SelPictureForm& editor) {
        for (const char* name : {"Fresh", "Crimson"})
            if (const int at = editor.NameLogoSet.FindItem(name); at >= 0)
                editor.NameLogoSet.RemoveItem(at);
        if (editor.NameLogoSet.FindItem("Red") < 0) editor.NameLogoSet.AddItem("Red");
    }

    /// Runs a row on a library that is put back, with operations failing as `fail` says. How many
    /// there were of those that are counted then.
    int RunRow(const Row& row, Stage& stage, const std::function<void()>& fail) {
        PutBack(stage);
        if (row.prepare) row.prepare(stage);
        SettleAll(stage);
        start_ = Look(place_);
        const Answering answering(root + "given.zip", row.inWindow);
        fail();
        row.run(stage);
        SettleAll(stage);
        const int counted = fault::Counted();
        fault::Reset();
        return counted;
    }

    static void SettleAll(Stage& stage) {
        SendMessageA(stage.main.handle(), WM_NULL, 0, 0);
        if (stage.editor) SendMessageA(stage.editor->handle(), WM_NULL, 0, 0);
    }

    void Check(const Row& row, Stage& stage, const Holding& after) {
        EXPECT_TRUE(stage.main.IsOpen());
        const HWND window = stage.editor ? stage.editor->handle() : stage.main.handle();
        EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(window) != 0; }));
        core::EndInterruptedWork(locations, stage.main.Preferences());
        for (const std::string& wrong : Wrongs(start_, after, Look(place_), row.exceptions))
            ADD_FAILURE() << wrong;
        stage.main.Preferences().logoPath = logos;
        RunOnThreadOf(stage.main.handle(), [&] { stage.main.LeggiDatiDisco(); });
        EXPECT_EQ(stage.main.SetNames(), core::LogoSetNames(logos));
    }

    /// Whether it holds more objects each time that it is run so.
    bool Leaks(const Row& row, Stage& stage, const std::function<void()>& fail) {
        for (int i = 0; i < 3; ++i) {
            PutBack(stage);
            const SystemObjects held = CountObjects();
            RunRow(row, stage, fail);
            PutBack(stage);
            if (!CountObjects().IsMoreThan(held)) return false;
        }
        return true;
    }

    void Try(const Row& row, Stage& stage, const Holding& after,
             const std::function<void()>& fail) {
        PutBack(stage);
        const SystemObjects held = CountObjects();
        RunRow(row, stage, fail);
        Check(row, stage, after);
        PutBack(stage);
        if (CountObjects().IsMoreThan(held)) {
            EXPECT_FALSE(Leaks(row, stage, fail));
        }
    }

    void Endure(const Row& row, Stage& stage) {
        SCOPED_TRACE(row.name);
        // Who starts another program is never to start it.
        const auto nothing = [&] {
            if (row.startsOther)
                fault::FailFromOperation(1);
            else
                fault::Reset();
        };
        const int operations = RunRow(row, stage, nothing);
        const Holding after = Look(place_);
        const int drawing =
            row.startsOther ? 0 : RunRow(row, stage, [] { fault::Reset(fault::Kind::Drawing); });
        if (row.hasOperations) {
            EXPECT_GT(operations, 0);
        }
        for (const int n : SomeOf(operations, kMostAlone)) {
            SCOPED_TRACE("operation " + std::to_string(n) + " of " + std::to_string(operations));
            Try(row, stage, after, [&] {
                if (row.startsOther)
                    fault::FailFromOperation(1);
                else
                    fault::FailOperation(n);
            });
        }
        if (!row.startsOther)
            for (const int n : SomeOf(operations, kMostWithAllBehind)) {
                SCOPED_TRACE("all from operation " + std::to_string(n));
                Try(row, stage, after, [&] { fault::FailFromOperation(n); });
            }
        for (const int n : SomeOf(drawing, kMostOfDrawing)) {
            SCOPED_TRACE("object for drawing " + std::to_string(n));
            Try(row, stage, after, [&] { fault::FailOperation(n, fault::Kind::Drawing); });
        }
        if (!row.startsOther) {
            SCOPED_TRACE("no window can be opened");
            Try(row, stage, after, [] { fault::FailFromOperation(1, fault::Kind::Windows); });
        }
        std::printf("%-32s %10d %8d\n", row.name, operations, drawing);
    }

    const Place place_;
    Holding before_;  ///< what each row begins with
    Holding start_;   ///< and what it has prepared
    Files pictures_;
};

TEST_F(Windows, OfTheMainWindowEndureThatOperationsFail) {
    WithMainWindow([&](Principale& main) {
        Stage stage{main};
        std::printf("%-32s %10s %8s\n", "main window", "operations", "drawing");
        for (const Row& row : OfMainWindow())
            if (row.run) Endure(row, stage);
        PutBack(stage);
    });
}

TEST_F(Windows, OfTheLogoBrowserEndureThatOperationsFail) {
    WithEditor([&](Principale& main, SelPictureForm& editor) {
        Stage stage{main, &editor};
        std::printf("%-32s %10s %8s\n", "Logo browser", "operations", "drawing");
        for (const Row& row : OfLogoBrowser())
            if (row.run) Endure(row, stage);
        PutBack(stage);
    });
}

// Which commands there are.

void AddCommands(HMENU menu, std::vector<int>& commands) {
    for (const seen::MenuRow& row : seen::RowsOf(menu)) {
        if (row.opens)
            AddCommands(row.opens, commands);
        else if (!row.separator)
            commands.push_back(static_cast<int>(row.id));
    }
}

std::vector<int> CommandsOfMenus(int resource) {
    const HMENU menus = LoadMenuA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(resource));
    std::vector<int> commands;
    AddCommands(menus, commands);
    DestroyMenu(menus);
    return commands;
}

template <typename Rows>
bool HaveRowFor(const Rows& rows, int command) {
    return std::any_of(rows.begin(), rows.end(), [&](const auto& row) {
        return std::find(row.commands.begin(), row.commands.end(), command) != row.commands.end();
    });
}

TEST_F(Windows, HaveARowForEachOfTheirCommands) {
    std::vector<int> commands = CommandsOfMenus(IDM_Principale);
    WithMainWindow([&](Principale& main) {
        for (const controls::Tool& tool : main.ActiveBar1.Tools())
            if (tool.id != 0) commands.push_back(tool.id);
    });
    EXPECT_GT(commands.size(), 50u);
    for (const int command : commands) EXPECT_TRUE(HaveRowFor(OfMainWindow(), command)) << command;
    for (const int command : CommandsOfMenus(IDM_SelPictureForm))
        EXPECT_TRUE(HaveRowFor(OfLogoBrowser(), command)) << command;
    for (const auto* rows : {&OfMainWindow(), &OfLogoBrowser()})
        for (const Row& row : *rows) {
            const auto& files = FileCommands();
            const bool elsewhere = std::any_of(
                files.begin(), files.end(),
                [&](const auto& command) { return std::string(command.name) == row.name; });
            EXPECT_TRUE(row.run || elsewhere) << row.name;
        }
}

}  // namespace
}  // namespace vistrel::test
