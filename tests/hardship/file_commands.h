// The commands that change files, without their windows: one table for the test that makes them
// fail and for the program that is killed while it runs one.
#pragma once

#include <vector>

#include "tests/hardship/holds.h"
#include "tests/hardship/place.h"

namespace vistrel::test {

/// What comes after a command that was ended.
enum class NextStart {
    OfVistrel,
    OfWindows  ///< which starts the companion again: it is done then
};

struct FileCommand {
    const char* name;
    void (*prepare)(const Place&);  ///< what there has to be besides the usual library
    void (*run)(const Place&);
    Exceptions exceptions;
    NextStart nextStart = NextStart::OfVistrel;
    void (*alsoHolds)(const Place&) = nullptr;  ///< checked after the next start
};

const std::vector<FileCommand>& FileCommands();

}  // namespace vistrel::test
