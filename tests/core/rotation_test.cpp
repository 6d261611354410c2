// Which sets take part in the changes at each start of Windows, and in which order of chance.
#include "core/rotation.h"

#include <algorithm>
#include <map>
#include <set>

#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;

namespace {

TEST(LeftOutSetsTest, AreKeptAsATextWhateverTheirNames) {
    const Names names = {"Blue", OddName(), "a & b; c.sls"};
    const LeftOutSets sets{LeftOutSets(names).Text()};
    for (const std::string& name : names) EXPECT_TRUE(sets.Holds(name)) << name;
    EXPECT_FALSE(sets.Holds("Red"));
    EXPECT_FALSE(sets.Holds(""));
    EXPECT_EQ(LeftOutSets(Names{}).Text(), "");
    EXPECT_FALSE(LeftOutSets(std::string()).Holds(""));
    EXPECT_EQ(LeftOutSets(std::string("//Blue//Red/")).Text(), "Blue/Red");
}

TEST(LeftOutSetsTest, FollowRenamedAndDeletedOnesWhateverTheCase) {
    LeftOutSets sets{Names{"Blue", "Red", "Green"}};
    sets.Rename("BLUE", "Navy");
    sets.Remove("red");
    EXPECT_EQ(sets.Text(), "Navy/Green");
    EXPECT_TRUE(sets.Holds("NAVY"));
}

/// Starts of Shufflet one after the other, each with what the one before has stored.
class ShuffleRounds : public testing::Test {
 protected:
    std::string Start() {
        ShuffleRound round(stored_);
        installed_ = round.Next(sets_, installed_, generator_);
        stored_ = round.Text();
        return installed_;
    }

    Names sets_ = {"a", "b", "c", "d", "e", "f", "g"};
    RandomGenerator generator_{12345.678};
    std::string stored_;
    std::string installed_;
};

TEST_F(ShuffleRounds, ShowEachSetOnceBeforeAnyAgain) {
    for (int round = 0; round < 50; ++round) {
        std::set<std::string> shown;
        for (std::size_t i = 0; i < sets_.size(); ++i) shown.insert(Start());
        ASSERT_EQ(shown.size(), sets_.size()) << round;
    }
}

TEST_F(ShuffleRounds, NeverShowTheInstalledSetAgain) {
    for (int start = 0; start < 500; ++start) {
        const std::string before = installed_;
        ASSERT_NE(Start(), before) << start;
    }
    sets_ = {"a"};
    EXPECT_EQ(Start(), "a");
    EXPECT_EQ(Start(), "a");
}

TEST_F(ShuffleRounds, HaveOrdersOfChance) {
    std::map<std::string, int> firsts;
    std::set<Names> orders;
    for (int round = 0; round < 200; ++round) {
        Names order;
        for (std::size_t i = 0; i < sets_.size(); ++i) order.push_back(Start());
        ++firsts[order.front()];
        orders.insert(order);
    }
    EXPECT_GT(orders.size(), 150u);
    for (const std::string& set : sets_) EXPECT_GT(firsts[set], 5) << set;
}

TEST_F(ShuffleRounds, GoOnWhenSetsComeAndGo) {
    for (int round = 0; round < 50; ++round) {
        std::map<std::string, int> shown;
        for (int i = 0; i < 3; ++i) ++shown[Start()];
        // One that was shown goes, and so does one that was not; another comes.
        const std::string gone = installed_;
        std::erase(sets_, gone);
        const auto other = std::find_if(sets_.begin(), sets_.end(),
                                        [&](const std::string& set) { return !shown[set]; });
        const std::string goneToo = *other;
        sets_.erase(other);
        sets_.push_back("new");
        while (std::any_of(sets_.begin(), sets_.end(),
                           [&](const std::string& set) { return set != "new" && !shown[set]; })) {
            ASSERT_EQ(++shown[Start()], 1) << installed_;
        }
        sets_ = {"a", "b", "c", "d", "e", "f", "g"};
        stored_.clear();
    }
}

TEST_F(ShuffleRounds, PassOverASetThatTheUserHasInstalledMeanwhile) {
    for (const std::string& byHand : sets_) {
        stored_ = "123/";
        installed_ = byHand;
        EXPECT_NE(Start(), byHand);
    }
}

TEST_F(ShuffleRounds, BeginAnewWithWhateverIsStored) {
    for (const char* garbage :
         {"", "/", "x/a", "-1/a", "0/a", "99999999999999999999/a", "12", "/a"}) {
        stored_ = garbage;
        installed_.clear();
        std::set<std::string> shown;
        for (std::size_t i = 0; i < sets_.size(); ++i) shown.insert(Start());
        EXPECT_EQ(shown.size(), sets_.size()) << garbage;
    }
}

class StoredShuffleRounds : public Machine {};

TEST_F(StoredShuffleRounds, AreKeptUnderTheSettingsKey) {
    Store("LogoPath", TextValue(logos));
    ShuffleRound round("123/Blue");
    EXPECT_TRUE(StoreShuffleRound(round));
    EXPECT_EQ(Stored("ShuffleRound"), SavedText("123/Blue"));
    EXPECT_EQ(StoredShuffleRound().Text(), "123/Blue");
}

}  // namespace
}  // namespace vistrel::test
