// What a user reads about a screen that the operating system would not show as it is meant.
#pragma once

#include <string>
#include <vector>

#include "pictures/screen/check.h"

namespace vistrel::screen {

/// What is wrong, as half a sentence: "is run-length encoded and has its rows from the top".
std::string InWords(const std::vector<ScreenFault>& faults);

/// What is wrong in a few words, for where there is little room: "run-length encoded...", with dots
/// where there is more. Empty without a fault.
std::string InShort(const std::vector<ScreenFault>& faults);

/// A sentence on what the system would do with a screen, and why; `what` is what the screen is
/// called within a sentence: "LOGO.SYS", "the startup screen". Empty without a fault.
std::string SentenceOn(const std::string& what, const std::vector<ScreenFault>& faults);

}  // namespace vistrel::screen
