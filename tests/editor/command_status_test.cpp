// Which commands of the Action menu follow from what a session holds.
#include "editor/command_status.h"

#include <gtest/gtest.h>

namespace vistrel {

using namespace editor;

void PrintTo(const CommandStatus& status, std::ostream* out) {
    *out << "create " << status.create << " update " << status.update << " delete "
         << status.deleteSet;
}

namespace {

struct Row {
    const char* what;
    SessionFacts facts;
    CommandStatus before;
    CommandStatus after;
};

TEST(CommandStatus, FollowsFromTheSession) {
    const Row rows[] = {
        // facts: set changed, name changed, set loaded, named; status: create, update, delete
        {"a new session without a name", {false, false, false, false}, {}, {false, false, false}},
        {"a new session, named", {false, true, false, true}, {}, {true, false, false}},
        {"a new session, filled and named", {true, true, false, true}, {}, {true, false, false}},
        {"a new session, filled only", {true, false, false, false}, {}, {false, false, false}},
        {"a loaded set as it is",
         {false, false, true, true},
         {false, false, true},
         {true, true, true}},
        {"a loaded set with another name",
         {false, true, true, true},
         {true, true, true},
         {true, true, false}},
        {"a loaded set with other slots",
         {true, false, true, true},
         {true, true, true},
         {false, true, false}},
        {"a loaded set with both",
         {true, true, true, true},
         {false, true, true},
         {true, true, false}},
        {"update is left as it was without a loaded set",
         {false, true, false, true},
         {false, true, true},
         {true, true, false}},
        {"nothing changed leaves delete as it was",
         {false, false, false, true},
         {false, false, true},
         {true, false, true}},
        {"nothing enables delete",
         {false, false, true, true},
         {false, false, false},
         {true, true, false}},
    };
    for (const Row& row : rows)
        EXPECT_EQ(StatusOfCommands(row.facts, row.before), row.after) << row.what;
}

}  // namespace
}  // namespace vistrel
