// The open-file dialog's filter.
#include "about/cm_dialog.h"

#include <gtest/gtest.h>

namespace vistrel {
namespace {

TEST(DialogFilter, EndsEachPartWithANul) {
    const std::string parts("Applications (*.exe)\0*.exe\0", 27);
    EXPECT_EQ(DialogFilter("Applications (*.exe)|*.exe"), parts);
}

TEST(DialogFilter, GetsNoSecondBarWhereItEndsInOne) {
    EXPECT_EQ(DialogFilter("All|*.*|"), DialogFilter("All|*.*"));
}

}  // namespace
}  // namespace vistrel
