// Each command of the main window and of the Logo browser with the program killed at one of its
// operations. When the program starts again each set is whole as before or whole as after, and so
// is each installed screen, but for what the command's row says.
#include <cstdio>

#include "core/library.h"
#include "platform/fault.h"
#include "tests/hardship/window_commands.h"
#include "tests/support/user/started_program.h"

namespace vistrel::test {

namespace fault = platform::fault;

namespace {

/// At so many operations of a command the program is killed, evenly spread over them; at all with
/// the variable VISTREL_EVERY_OPERATION in the environment.
constexpr int kMostKilled = 3;

class KilledWindows : public WindowCommands {
 protected:
    /// Gives a row's command in a program of its own. What that ended with.
    static int Run(Table table, std::size_t row, const std::string& operation) {
        const char* const name = table == Table::MainWindow ? "main " : "browser ";
        const StartedProgram program("C:\\test\\end_at_window_operation.exe " + std::string(name) +
                                     std::to_string(row) + " " + operation);
        return static_cast<int>(program.WaitForEnd().value_or(0));
    }

    /// The program starts, puts in order what it finds, and lists the sets.
    void StartAgain() {
        WithMainWindow([&](main_window::Principale& main) {
            EXPECT_EQ(main.SetNames(), core::LogoSetNames(logos));
        });
    }

    void KillAtOperations(Table table, std::size_t place) {
        const Row& row = Rows(table)[place];
        const int operations = Run(table, place, "");
        const Holding after = Look(place_);
        EXPECT_GT(operations, 0);
        std::printf("%-32s %10d\n", row.name, operations);
        Holding before;
        for (const int n : SomeOf(operations, kMostKilled)) {
            SCOPED_TRACE("killed at operation " + std::to_string(n));
            const int status = Run(table, place, std::to_string(n));
            // Thumbnails are made when there is time: there may be fewer operations than before.
            EXPECT_TRUE(status == int{fault::kKilledStatus} || (n > 1 && status < n)) << status;
            if (n == 1) before = Look(place_);
            StartAgain();
            for (const std::string& wrong : Wrongs(before, after, Look(place_), row.exceptions))
                ADD_FAILURE() << wrong;
        }
    }

    void KillAtEachRow(Table table) {
        std::printf("%-32s %10s\n", "command", "operations");
        for (std::size_t i = 0; i < Rows(table).size(); ++i) {
            const Row& row = Rows(table)[i];
            SCOPED_TRACE(row.name);
            if (row.run && row.hasOperations && !row.startsOther) KillAtOperations(table, i);
        }
    }
};

TEST_F(KilledWindows, LeaveWholeSetsBehindThemAtTheMainWindow) { KillAtEachRow(Table::MainWindow); }

TEST_F(KilledWindows, LeaveWholeSetsBehindThemAtTheLogoBrowser) {
    KillAtEachRow(Table::LogoBrowser);
}

}  // namespace
}  // namespace vistrel::test
