// What keeps the operating system from showing a screen file, or makes its colours flash.
#pragma once

#include <vector>

#include "pictures/rgb_picture.h"

namespace vistrel::screen {

/// One thing that is wrong with a screen file. All but the first can be mended.
enum class ScreenFault {
    NotABitmap,        ///< no bitmap, or one that is damaged beyond reading
    RunLengthEncoded,  ///< the system shows uncompressed pixels only
    NotEightBits,      ///< it shows 8 bits a pixel only
    WrongSize,         ///< not 320 x 400 pixels
    Os2Header,         ///< a header without room for the first moving colour
    LongHeader,        ///< one of a newer kind than the system reads
    TopDown,           ///< rows from the top: it draws from the bottom
    ShortPalette,      ///< fewer than 256 colours
    ShortPixels,       ///< the file ends within the pixels
    CountOfColors,     ///< the number of the first moving colour is above 255: it was meant as a
                       ///< count, and the system takes its lowest byte
    NothingMoves       ///< colours move that no pixel has
};

/// Everything that is wrong, in the order of the enumeration; empty for a screen that the system
/// shows as it is meant.
std::vector<ScreenFault> FaultsOfScreen(pictures::FileBytes file);

/// What is wrong, as half a sentence behind "The screen": "is run-length encoded".
const char* InWords(ScreenFault fault);

}  // namespace vistrel::screen
