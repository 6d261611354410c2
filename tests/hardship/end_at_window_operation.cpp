// Gives a command in a window and ends, as if it were killed, before one of its operations, or with
// the number of its operations once it is done. The machine stays as it is then.
// usage: end_at_window_operation main|browser ROW [OPERATION]
#include <cstdlib>
#include <string>

#include "platform/fault.h"
#include "tests/hardship/window_commands.h"
#include "tests/support/user/clean_start.h"

namespace vistrel::test {
namespace {

namespace fault = platform::fault;

using KilledWindow = WindowCommands;

TEST_F(KilledWindow, IsUsedForTheLastTime) {
    const Table table = __argv[1] == std::string("main") ? Table::MainWindow : Table::LogoBrowser;
    const Row& row = Rows(table).at(static_cast<std::size_t>(std::atoi(__argv[2])));
    OnStage(table, [&](Stage& stage) {
        const int operations = RunRow(row, stage, [] {
            if (__argc > 3)
                fault::DieAtOperation(std::atoi(__argv[3]));
            else
                fault::Reset();
        });
        TerminateProcess(GetCurrentProcess(), static_cast<unsigned>(operations));
    });
}

}  // namespace
}  // namespace vistrel::test

// Not the main function of other tests: what is to be said of the run says the test that starts it,
// and what is chosen of the tests in the environment is meant for that.
int main(int count, char** arguments) {
    testing::InitGoogleTest(&count, arguments);
    GTEST_FLAG_SET(filter, "*");
    testing::TestEventListeners& listeners = testing::UnitTest::GetInstance()->listeners();
    delete listeners.Release(listeners.default_result_printer());
    vistrel::user::StartClean();
    return RUN_ALL_TESTS();
}
