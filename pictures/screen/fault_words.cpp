#include "pictures/screen/fault_words.h"

#include <algorithm>

namespace vistrel::screen {
namespace {

bool KeepsFromShowing(ScreenFault fault) {
    return fault != ScreenFault::CountOfColors && fault != ScreenFault::NothingMoves;
}

const char* InShort(ScreenFault fault) {
    switch (fault) {
        case ScreenFault::NotABitmap:
            return "no bitmap";
        case ScreenFault::RunLengthEncoded:
            return "run-length encoded";
        case ScreenFault::NotEightBits:
            return "not 8 bits a pixel";
        case ScreenFault::WrongSize:
            return "wrong size";
        case ScreenFault::Os2Header:
            return "a header of OS/2";
        case ScreenFault::LongHeader:
            return "header too new";
        case ScreenFault::TopDown:
            return "rows from the top";
        case ScreenFault::ShortPalette:
            return "too few colours";
        case ScreenFault::ShortPixels:
            return "pixels missing";
        case ScreenFault::CountOfColors:
            return "flashing colours";
        case ScreenFault::NothingMoves:
            return "nothing moves";
    }
    return "";
}

}  // namespace

std::string InShort(const std::vector<ScreenFault>& faults) {
    if (faults.empty()) return {};
    return std::string(InShort(faults.front())) + (faults.size() > 1 ? "..." : "");
}

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
