// Each command that changes files with each of its operations failing, alone and with all behind
// it, and with the program killed there. When the program starts again each set is whole as before
// or whole as after, and so is each installed screen, but for what the command's row says.
#include <cstdio>

#include "core/interrupted_work.h"
#include "core/library.h"
#include "platform/fault.h"
#include "tests/hardship/file_commands.h"
#include "tests/support/machine/machine.h"
#include "tests/support/user/held_objects.h"
#include "tests/support/user/started_program.h"

namespace vistrel::test {

using namespace core;
namespace fault = platform::fault;

namespace {

/// Of a command with more operations so many fail, evenly spread over them, and at so many the
/// program is killed, which takes its time to start. All do where the environment says so.
constexpr int kMostFailing = 12;
constexpr int kMostKilled = 4;
constexpr int kMostWatched = 4;

class Commands : public Machine {
 protected:
    /// A library with the sets "Blue", "Green.SLS" and "Red", of which none is installed.
    void Prepare(const FileCommand& command) {
        fault::Reset();
        RemoveTree(root);
        for (const std::string& folder : {boot, windows, logos, program, startup, place_.pictures})
            MakeFolders(folder);
        ForgetSettings();
        Store("LogoPath", TextValue(logos));
        Store("DefaultLogoSet", TextValue("Blue"));
        for (const char* set : {"Blue", "Red"}) PutScreens(logos + set + "\\", set);
        MakeFolders(logos + "Green.SLS\\");
        Put(logos + "Green.SLS\\LOGO.SYS", "Green");
        for (const char* name : {"LOGOW.SYS", "LOGOS.SYS"}) {
            Put(logos + name, "shared");
            Put(windows + name, "old " + std::string(name));
        }
        Put(boot + "LOGO.SYS", "old LOGO.SYS");
        for (const char* name : {"one", "two", "three"}) Put(place_.pictures + name, name);
        command.prepare(place_);
    }

    void StartAgain(const FileCommand& command) {
        fault::Reset();
        Settings settings = ReadSettings(locations);
        settings.bootRoot = boot;
        EXPECT_EQ(settings.logoPath, logos);
        if (command.nextStart == NextStart::OfWindows)
            command.run(place_);
        else
            EndInterruptedWork(locations, settings);
    }

    void Check(const FileCommand& command, const Holding& before, const Holding& after) {
        StartAgain(command);
        const Holding now = Look(place_);
        for (const std::string& wrong : Wrongs(before, after, now, command.exceptions))
            ADD_FAILURE() << wrong;
        if (command.nextStart == NextStart::OfWindows) {
            EXPECT_EQ(now.installed, after.installed);
        }
        for (const std::string& set : LogoSetNames(logos))
            EXPECT_TRUE(before.sets.contains(set) || after.sets.contains(set)) << set;
        if (command.alsoHolds) command.alsoHolds(place_);
    }

    /// With its operation of this number failing, or with all from it on.
    void Fail(const FileCommand& command, int operation, bool andAllBehind) {
        Prepare(command);
        if (andAllBehind)
            fault::FailFromOperation(operation);
        else
            fault::FailOperation(operation);
        command.run(place_);
        fault::Reset();
    }

    void Kill(const FileCommand& command, std::size_t row, int operation) {
        Prepare(command);
        const StartedProgram program("C:\\test\\end_at_operation.exe " + std::to_string(row) + " " +
                                     std::to_string(operation));
        EXPECT_EQ(program.WaitForEnd(), DWORD{fault::kKilledStatus});
    }

    const Place place_;
};

TEST_F(Commands, LeaveWholeSetsWhereverTheyFailOrAreKilled) {
    std::printf("%-36s %10s %7s\n", "command", "operations", "killed");
    for (std::size_t row = 0; row < FileCommands().size(); ++row) {
        const FileCommand& command = FileCommands()[row];
        SCOPED_TRACE(command.name);
        Prepare(command);
        const Holding before = Look(place_);
        fault::Reset();
        command.run(place_);
        const int operations = fault::Counted();
        const Holding after = Look(place_);
        ASSERT_GT(operations, 0);

        for (const int n : SomeOf(operations, kMostFailing)) {
            for (const bool andAllBehind : {false, true}) {
                SCOPED_TRACE("operation " + std::to_string(n) + " of " +
                             std::to_string(operations) + (andAllBehind ? " and all behind" : ""));
                if (command.exceptions.makesOthers && !andAllBehind) continue;
                Fail(command, n, andAllBehind);
                Check(command, before, after);
            }
        }
        const auto killed = SomeOf(operations, kMostKilled);
        for (const int n : killed) {
            SCOPED_TRACE("killed at operation " + std::to_string(n));
            Kill(command, row, n);
            Check(command, before, after);
        }
        std::printf("%-36s %10d %7d\n", command.name, operations, static_cast<int>(killed.size()));
    }
}

TEST_F(Commands, LoseNoHandleWhereverTheyFail) {
    for (const FileCommand& command : FileCommands()) {
        SCOPED_TRACE(command.name);
        Prepare(command);
        fault::Reset();
        command.run(place_);
        const int operations = fault::Counted();
        Fail(command, 1, false);
        const HeldObjects before = CountHeldObjects();
        for (const int n : SomeOf(operations, kMostWatched)) Fail(command, n, false);
        EXPECT_FALSE(CountHeldObjects().AreMoreThan(before));
    }
}

}  // namespace
}  // namespace vistrel::test
