// The seam by which tests make operations fail.
#include "platform/fault.h"

#include <gtest/gtest.h>

#include <vector>

namespace vistrel::test {

using namespace platform;

namespace {

std::vector<bool> NextFive() {
    std::vector<bool> strikes;
    for (int i = 0; i < 5; ++i) strikes.push_back(fault::Strikes());
    return strikes;
}

TEST(FaultTest, StrikesTheChosenOperationOnly) {
    fault::FailOperation(3);
    EXPECT_EQ(NextFive(), (std::vector<bool>{false, false, true, false, false}));
    EXPECT_EQ(fault::Counted(), 5);
    fault::Reset();
}

TEST(FaultTest, StrikesEverythingFromAnOperationOn) {
    fault::FailFromOperation(3);
    EXPECT_EQ(NextFive(), (std::vector<bool>{false, false, true, true, true}));
    fault::Reset();
}

TEST(FaultTest, ResetCountsFromZeroAndStrikesNothing) {
    fault::FailFromOperation(1);
    NextFive();
    fault::Reset();
    EXPECT_EQ(fault::Counted(), 0);
    EXPECT_EQ(NextFive(), (std::vector<bool>(5, false)));
    fault::Reset();
}

}  // namespace
}  // namespace vistrel::test
