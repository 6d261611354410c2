// The companion that runs at every start.
#include "core/startup_action.h"

#include <windows.h>

#include "platform/shell_link.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;
using namespace platform;

namespace {

class StartUpActionTest : public Machine {
 protected:
    StartUpActionTest() {
        Put(program + "Rotaline.lnk", "link to Rotaline");
        Put(program + "Shufflet.lnk", "link to Shufflet");
    }
    void Apply(StartUpActionKind action) { ApplyStartUpAction(action, program, startup); }
};

TEST_F(StartUpActionTest, TheLinksInTheStartupFolderAreTheRecord) {
    EXPECT_EQ(ReadStartUpAction(startup), StartUpActionKind::Nothing);
    Put(startup + "Rotaline.lnk", "");
    EXPECT_EQ(ReadStartUpAction(startup), StartUpActionKind::Rotaline);
    Put(startup + "Shufflet.lnk", "");
    EXPECT_EQ(ReadStartUpAction(startup), std::nullopt);
    RemoveTree(startup + "Rotaline.lnk");
    EXPECT_EQ(ReadStartUpAction(startup), StartUpActionKind::Shufflet);
}

/// The companions lie in the program folder, their links do not.
class MissingLinksTest : public Machine {
 protected:
    MissingLinksTest() {
        Put(program + "Rotaline.exe", "");
        Put(program + "Shufflet.exe", "");
    }
    void Mend() { MakeMissingLinks(program, startup); }
    /// Makes a link as another folder's copy of the program had it.
    void PutOldLink(const std::string& path) {
        WriteShellLink(path, boot + "Rotaline.exe", "", boot, "");
    }
    void ExpectLinks(const std::string& folder) {
        EXPECT_EQ(ShellLinkTarget(folder + "Rotaline.lnk"), program + "Rotaline.exe");
        EXPECT_EQ(ShellLinkTarget(folder + "Shufflet.lnk"), program + "Shufflet.exe");
    }
};

TEST_F(MissingLinksTest, LinksThatAreMissingAreMade) {
    Mend();
    ExpectLinks(program);
    EXPECT_EQ(NamesIn(startup), Names{});
}

TEST_F(MissingLinksTest, ALinkThatLeadsHereIsLeftAsItIs) {
    WriteShellLink(program + "Rotaline.lnk", program + "Rotaline.exe", "", program, "By the user");
    WriteShellLink(startup + "Rotaline.lnk", program + "ROTALINE.EXE", "", program, "");
    const auto own = Contents(program + "Rotaline.lnk");
    const auto started = Contents(startup + "Rotaline.lnk");
    Mend();
    EXPECT_EQ(Contents(program + "Rotaline.lnk"), own);
    EXPECT_EQ(Contents(startup + "Rotaline.lnk"), started);
}

TEST_F(MissingLinksTest, ALinkToAFolderThatTheProgramHasLeftIsMadeAnew) {
    PutOldLink(program + "Rotaline.lnk");
    Put(program + "Shufflet.lnk", "no link at all");
    Mend();
    ExpectLinks(program);
}

TEST_F(MissingLinksTest, ALinkInTheStartupFolderThatLeadsElsewhereIsReplaced) {
    PutOldLink(startup + "Rotaline.lnk");
    Mend();
    EXPECT_EQ(NamesIn(startup), Names{"Rotaline.lnk"});
    EXPECT_EQ(ShellLinkTarget(startup + "Rotaline.lnk"), program + "Rotaline.exe");
}

TEST_F(MissingLinksTest, NothingIsWrittenForACompanionThatIsNotThere) {
    RemoveTree(program + "Shufflet.exe");
    PutOldLink(startup + "Shufflet.lnk");
    const auto started = Contents(startup + "Shufflet.lnk");
    Mend();
    EXPECT_EQ(NamesIn(program), (Names{"Rotaline.exe", "Rotaline.lnk"}));
    EXPECT_EQ(Contents(startup + "Shufflet.lnk"), started);
}

TEST_F(MissingLinksTest, AStepThatFailsIsPassedOver) {
    WithEachOperationFailing(
        [&] {
            for (const std::string& folder : {program, startup}) {
                PutOldLink(folder + "Rotaline.lnk");
                PutOldLink(folder + "Shufflet.lnk");
            }
        },
        [&] { Mend(); },
        [&](int) {
            // One companion at most is left with its old links; the next start mends them.
            int mended = 0;
            for (const std::string name : {"Rotaline", "Shufflet"}) {
                mended += ShellLinkTarget(program + name + ".lnk") == program + name + ".exe" &&
                          ShellLinkTarget(startup + name + ".lnk") == program + name + ".exe";
            }
            EXPECT_GE(mended, 1);
            Mend();
            ExpectLinks(program);
            ExpectLinks(startup);
        });
}

TEST_F(StartUpActionTest, AStartupFolderThatIsGoneMeansNothing) {
    EXPECT_EQ(ReadStartUpAction(root + "gone\\"), StartUpActionKind::Nothing);
    ApplyStartUpAction(StartUpActionKind::Rotaline, program, root + "gone\\");
    EXPECT_FALSE(Exists(root + "gone"));
}

TEST_F(StartUpActionTest, AChoiceReplacesTheOther) {
    Apply(StartUpActionKind::Rotaline);
    EXPECT_EQ(NamesIn(startup), Names{"Rotaline.lnk"});
    Apply(StartUpActionKind::Shufflet);
    EXPECT_EQ(NamesIn(startup), Names{"Shufflet.lnk"});
    EXPECT_EQ(Contents(startup + "Shufflet.lnk"), "link to Shufflet");
}

TEST_F(StartUpActionTest, NothingRemovesBoth) {
    Put(startup + "Rotaline.lnk", "");
    Put(startup + "Shufflet.lnk", "");
    Put(startup + "Other.lnk", "");
    Apply(StartUpActionKind::Nothing);
    EXPECT_EQ(NamesIn(startup), Names{"Other.lnk"});
}

TEST_F(StartUpActionTest, TheChoiceInForceIsCopiedAfresh) {
    Put(startup + "Rotaline.lnk", "an old link");
    Apply(StartUpActionKind::Rotaline);
    EXPECT_EQ(Contents(startup + "Rotaline.lnk"), "link to Rotaline");
}

TEST_F(StartUpActionTest, ALinkThatIsMissingLeavesNoActionInForce) {
    RemoveTree(program + "Shufflet.lnk");
    Apply(StartUpActionKind::Rotaline);
    Apply(StartUpActionKind::Shufflet);
    EXPECT_EQ(ReadStartUpAction(startup), StartUpActionKind::Nothing);
}

TEST_F(StartUpActionTest, AStepThatFailsIsPassedOver) {
    // Finding and deleting each link, then the copy. A search that fails finds nothing to delete.
    const std::vector<Names> after = {{"Rotaline.lnk", "Shufflet.lnk"},
                                      {"Rotaline.lnk", "Shufflet.lnk"},
                                      {"Rotaline.lnk"},
                                      {"Rotaline.lnk"},
                                      {}};
    std::size_t failing = 0;
    WithEachOperationFailing(
        [&] {
            Put(startup + "Rotaline.lnk", "old");
            Put(startup + "Shufflet.lnk", "old");
        },
        [&] { Apply(StartUpActionKind::Rotaline); },
        [&](int failed) {
            failing = failed;
            EXPECT_EQ(NamesIn(startup), after[failed - 1]);
        });
    EXPECT_EQ(failing, after.size());
}

TEST_F(StartUpActionTest, AReadOnlyLinkInTheStartupFolderStays) {
    Put(startup + "Shufflet.lnk", "old");
    GiveAttributes(startup + "Shufflet.lnk", FILE_ATTRIBUTE_READONLY);
    Apply(StartUpActionKind::Rotaline);
    EXPECT_EQ(NamesIn(startup), (Names{"Rotaline.lnk", "Shufflet.lnk"}));
}

}  // namespace
}  // namespace vistrel::test
