// The companion that runs at every start.
#include "core/startup_action.h"

#include <windows.h>

#include "tests/core/machine.h"

namespace vistrel::test {
namespace {

using Names = std::vector<std::string>;

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

TEST_F(StartUpActionTest, LinksAreMadeWhereTheyAreMissingOnly) {
    RemoveTree(program + "Shufflet.lnk");
    MakeMissingLinks(program);
    EXPECT_EQ(Contents(program + "Rotaline.lnk"), "link to Rotaline");
    EXPECT_EQ(Contents(program + "Shufflet.lnk").value_or("").substr(0, 4),
              std::string("L\0\0\0", 4));
    RemoveTree(program);
    MakeMissingLinks(program);
    EXPECT_FALSE(Exists(program));
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
