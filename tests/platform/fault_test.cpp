// The seam by which tests make operations fail.
#include "platform/fault.h"

#include <gtest/gtest.h>

#include <vector>

namespace vistrel::test {

using namespace platform;

namespace {

std::vector<bool> NextFive() {
    std::vector<bool> failing;
    for (int i = 0; i < 5; ++i) failing.push_back(fault::ShouldFail());
    return failing;
}

TEST(FaultTest, FailsTheChosenOperationOnly) {
    fault::FailOperation(3);
    EXPECT_EQ(NextFive(), (std::vector<bool>{false, false, true, false, false}));
    EXPECT_EQ(fault::Counted(), 5);
    fault::Reset();
}

TEST(FaultTest, FailsEverythingFromAnOperationOn) {
    fault::FailFromOperation(3);
    EXPECT_EQ(NextFive(), (std::vector<bool>{false, false, true, true, true}));
    fault::Reset();
}

TEST(FaultTest, ResetCountsFromZeroAndFailsNothing) {
    fault::FailFromOperation(1);
    NextFive();
    fault::Reset();
    EXPECT_EQ(fault::Counted(), 0);
    EXPECT_EQ(NextFive(), (std::vector<bool>(5, false)));
    fault::Reset();
}

TEST(FaultTest, CountsOneKindAtATimeAndLeavesTheOtherAlone) {
    fault::FailFromOperation(1, fault::Kind::Drawing);
    EXPECT_EQ(NextFive(), (std::vector<bool>(5, false)));
    EXPECT_EQ(fault::Counted(), 0);
    EXPECT_TRUE(fault::ShouldFail(fault::Kind::Drawing));
    fault::FailFromOperation(1);
    EXPECT_FALSE(fault::ShouldFail(fault::Kind::Drawing));
    EXPECT_EQ(fault::Counted(), 0);
    fault::Reset();
}

TEST(FaultTest, KillsNobodyBeforeTheChosenOperation) {
    fault::DieAtOperation(6);
    EXPECT_EQ(NextFive(), (std::vector<bool>(5, false)));
    fault::Reset();
    EXPECT_EQ(NextFive(), (std::vector<bool>(5, false)));
    EXPECT_EQ(NextFive(), (std::vector<bool>(5, false)));
    fault::Reset();
}

}  // namespace
}  // namespace vistrel::test
