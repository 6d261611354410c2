// The pointer of the whole application, and the clock.
#include "platform/pointer.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <cmath>

#include "platform/clock.h"

namespace vistrel::test {

using namespace platform;

namespace {

HCURSOR System(const char* name) { return LoadCursorA(nullptr, name); }

TEST(PointerTest, TheHourglassShowsUntilTheLastOneEnds) {
    EXPECT_FALSE(BusyPointer::Shown());
    {
        const BusyPointer outer;
        EXPECT_EQ(GetCursor(), System(IDC_WAIT));
        {
            const BusyPointer inner;
            EXPECT_TRUE(BusyPointer::Shown());
        }
        EXPECT_TRUE(BusyPointer::Shown());
        EXPECT_EQ(GetCursor(), System(IDC_WAIT));
    }
    EXPECT_FALSE(BusyPointer::Shown());
    EXPECT_EQ(GetCursor(), System(IDC_ARROW));
}

TEST(PointerTest, TheDefaultPointerComesBackWhateverLives) {
    {
        const BusyPointer first;
        const BusyPointer second;
        ShowDefaultPointer();
        EXPECT_FALSE(BusyPointer::Shown());
        EXPECT_EQ(GetCursor(), System(IDC_ARROW));
    }
    EXPECT_FALSE(BusyPointer::Shown());
    const BusyPointer next;
    EXPECT_TRUE(BusyPointer::Shown());
}

TEST(ClockTest, TheTimeOfDayIsInSecondsAndInDays) {
    const double seconds = SecondsSinceMidnight();
    EXPECT_GE(seconds, 0.0);
    EXPECT_LT(seconds, 86400.0);
    const double days = TimeOfDay();
    EXPECT_GE(days, 0.0);
    EXPECT_LT(days, 1.0);
    // Midnight may lie between the two readings.
    const double apart = std::abs(days * 86400.0 - seconds);
    EXPECT_LT(std::min(apart, 86400.0 - apart), 3600.0);
}

}  // namespace
}  // namespace vistrel::test
