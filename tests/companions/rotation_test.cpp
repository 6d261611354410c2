// The sets that Rotaline and Shufflet take: those that take part, each in its turn.
#include <windows.h>

#include <algorithm>
#include <set>

#include "companions/outcome.h"
#include "tests/companions/boot.h"

namespace vistrel::test {

using namespace companions;

namespace {

class Rotation : public Boot {
 protected:
    Rotation() {
        for (char letter = 'a'; letter <= 'f'; ++letter) PutSet(std::string("Set ") + letter);
        order_ = SetsInOrder();
    }
    Outcome Start(const char* program) { return static_cast<Outcome>(RunUnseen(program)); }
    static void LeaveOut(const std::string& names) { Store("LeftOutOfRotation", TextValue(names)); }

    Names order_;
};

TEST_F(Rotation, OfRotalinePassesOverSetsThatTakeNoPart) {
    LeaveOut(order_[1] + "/" + order_[2] + "/" + order_[5]);
    for (const int expected : {0, 3, 4, 0, 3}) {
        EXPECT_EQ(Start("Rotaline.exe"), Outcome::Done);
        EXPECT_EQ(InstalledSet(), order_[expected]);
    }
}

TEST_F(Rotation, OfRotalineGoesOnBehindAnInstalledSetThatTakesNoPart) {
    LeaveOut(order_[2]);
    Store("DefaultLogoSet", TextValue(order_[2]));
    EXPECT_EQ(Start("Rotaline.exe"), Outcome::Done);
    EXPECT_EQ(InstalledSet(), order_[3]);
}

TEST_F(Rotation, OfShuffletShowsEachSetThatTakesPartOnceBeforeAnyAgain) {
    LeaveOut(order_[1]);
    RemoveTree(logos + order_[4] + "\\LOGO.SYS");
    Names taking = {order_[0], order_[2], order_[3], order_[5]};
    std::sort(taking.begin(), taking.end());
    for (int round = 0; round < 5; ++round) {
        Names shown;
        for (std::size_t i = 0; i < taking.size(); ++i) {
            const std::string before = InstalledSet();
            ASSERT_EQ(Start("Shufflet.exe"), Outcome::Done);
            EXPECT_NE(InstalledSet(), before);
            shown.push_back(InstalledSet());
        }
        std::sort(shown.begin(), shown.end());
        EXPECT_EQ(shown, taking) << round;
    }
}

TEST_F(Rotation, ShuffletGoesOnWithItsRoundWhenAnotherSetIsInstalledInBetween) {
    std::set<std::string> shown;
    for (std::size_t i = 0; i < order_.size(); ++i) {
        Store("DefaultLogoSet", TextValue("another"));
        ASSERT_EQ(Start("Shufflet.exe"), Outcome::Done);
        EXPECT_TRUE(shown.insert(InstalledSet()).second) << InstalledSet();
    }
}

TEST_F(Rotation, WithoutASetThatTakesPartChangesNothing) {
    std::string all;
    for (const std::string& set : order_) all += "/" + set;
    LeaveOut(all);
    Store("DefaultLogoSet", TextValue(order_[2]));
    for (const char* program : {"Rotaline.exe", "Shufflet.exe"}) {
        EXPECT_EQ(Start(program), Outcome::NoSets) << program;
        EXPECT_EQ(Installed(), old);
        EXPECT_EQ(InstalledSet(), order_[2]);
        EXPECT_FALSE(Stored("ShuffleRound"));
    }
}

TEST_F(Rotation, StaysAsItWasWhileVistrelRuns) {
    Store("ShuffleRound", TextValue("123/Set a"));
    WNDCLASSA windowClass = {};
    windowClass.lpfnWndProc = DefWindowProcA;
    windowClass.lpszClassName = "Principale";
    RegisterClassA(&windowClass);
    const HWND window = CreateWindowA("Principale", "Vistrel", WS_OVERLAPPED, 0, 0, 10, 10, nullptr,
                                      nullptr, nullptr, nullptr);
    EXPECT_EQ(Start("Shufflet.exe"), Outcome::VistrelRuns);
    EXPECT_EQ(Stored("ShuffleRound"), TextValue("123/Set a"));
    DestroyWindow(window);
    UnregisterClassA("Principale", nullptr);
}

}  // namespace
}  // namespace vistrel::test
