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
#include "tests/support/user/held_objects.h"
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

    /// Runs it until a run adds nothing to what is held, as one that keeps something always does:
    /// what the system keeps for later, like the DCs of windows, grows now and then, and what is
    /// painted later needs some of it at once. Of each file that is named Wine's dialog keeps the
    /// key of the list of those before.
    void ExpectNothingIsKept(const Row& row, Stage& stage, const std::function<void()>& fail) {
        constexpr int kRuns = 5;
        constexpr DWORD kUntilPainted = 500;
        for (int i = 0; i < kRuns; ++i) {
            const HeldObjects held = CountHeldObjects();
            const int filesGiven = filesGiven_;
            RunRow(row, stage, fail);
            PutBack(stage);
            const auto nothingMore = [&] {
                return !CountHeldObjects().AreMoreThan(held, filesGiven_ - filesGiven);
            };
            if (WaitUntil(nothingMore, kUntilPainted)) return;
        }
        ADD_FAILURE() << "Each time something is kept: now " << CountHeldObjects();
    }

    void Try(const Row& row, Stage& stage, const Holding& after,
             const std::function<void()>& fail) {
        PutBack(stage);
        const HeldObjects held = CountHeldObjects();
        RunRow(row, stage, fail);
        Check(row, stage, after);
        PutBack(stage);
        if (CountHeldObjects().AreMoreThan(held)) ExpectNothingIsKept(row, stage, fail);
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

    void EndureAll(Table table) {
        OnStage(table, [&](Stage& stage) {
            for (const Row& row : Rows(table))
                if (row.run) Endure(row, stage);
            PutBack(stage);
        });
    }
};

TEST_F(Windows, OfTheMainWindowEndureThatOperationsFail) {
    std::printf("%-32s %10s %8s\n", "main window", "operations", "drawing");
    EndureAll(Table::MainWindow);
}

TEST_F(Windows, OfTheLogoBrowserEndureThatOperationsFail) {
    std::printf("%-32s %10s %8s\n", "Logo browser", "operations", "drawing");
    EndureAll(Table::LogoBrowser);
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
