#include "pictures/screen/fault_words.h"

#include <algorithm>

namespace vistrel::screen {
namespace {

bool KeepsFromShowing(ScreenFault fault) {
    return fault != ScreenFault::CountOfColors && fault != ScreenFault::NothingMoves;
}

}  // namespace

std::string InWords(const std::vector<ScreenFault>& faults) {
    std::string words;
    for (std::size_t i = 0; i < faults.size(); ++i) {
        if (i > 0) words += i + 1 < faults.size() ? ", " : " and ";
        words += InWords(faults[i]);
    }
    return words;
}

std::string SentenceOn(const std::string& what, const std::vector<ScreenFault>& faults) {
    if (faults.empty()) return {};
    const std::string why = "it " + InWords(faults) + ".";
    if (std::any_of(faults.begin(), faults.end(), KeepsFromShowing))
        return "Windows would not show " + what + ": " + why;
    if (faults.front() == ScreenFault::CountOfColors)
        return "Windows would show " + what + " with flashing colours: " + why;
    return "Windows would show " + what + ", but " + why;
}

}  // namespace vistrel::screen
