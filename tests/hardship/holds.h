// What must hold when a command was made to fail, or its program ended, at any of its operations.
#pragma once

#include <string>
#include <vector>

#include "tests/hardship/place.h"
#include "tests/monkey/library.h"

namespace vistrel::test {

/// What a row of the tables lets be otherwise than whole as before or whole as after.
struct Exceptions {
    /// Sets that may have some screens as before and some as after, or lack some; "" stands for the
    /// screens that lie in the logo folder itself.
    std::vector<std::string> inBetween;
    bool installedMayBeAbsent = false;
    const char* why = "";
    /// Where one operation alone fails the command makes other sets, which are not looked at.
    bool makesOthers = false;
};

/// The library and the installed screens ("-" where there is none).
struct Holding {
    Library sets;
    Files installed;
};

Holding Look(const Place& place);

/// What is neither as before nor as after, one line each; empty when all is well. A set that gets
/// another name has just one of both.
std::vector<std::string> Wrongs(const Holding& before, const Holding& after, const Holding& now,
                                const Exceptions& exceptions);

/// So many numbers of 1 to `count`: the first, the last and some between them, with the same
/// distances. All where there are no more, and with the variable VISTREL_EVERY_OPERATION in the
/// environment.
std::vector<int> SomeOf(int count, int most);

}  // namespace vistrel::test
