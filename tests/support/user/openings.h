// What the shell opens, as the program that it starts for it sees that. The test has the program
// record_opening beside it.
#pragma once

#include <string>

namespace vistrel::user {

struct Opening {
    std::string address;  ///< with blanks as such; empty when nothing was opened
    std::string folder;   ///< the program's current one
    int show = 0;         ///< how its window is to be shown (SW_...)
};

/// Makes record_opening the program for addresses that begin like this ("mailto", "http"), and
/// forgets what was opened before.
void RecordOpenings(const std::string& protocol);
/// Waits until something has been opened, returns it and forgets it; an empty one when nothing was.
Opening NextOpening();

}  // namespace vistrel::user
