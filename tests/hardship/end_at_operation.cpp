// Runs a command on files and ends, as if it were killed, before one of its operations.
// usage: end_at_operation ROW OPERATION
#include <cstdlib>

#include "platform/fault.h"
#include "tests/hardship/file_commands.h"

int main(int count, char** arguments) {
    using namespace vistrel;
    if (count != 3) return 1;
    const auto row = static_cast<std::size_t>(std::atoi(arguments[1]));
    platform::fault::DieAtOperation(std::atoi(arguments[2]));
    test::FileCommands().at(row).run(test::Place());
    return 0;
}
