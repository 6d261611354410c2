// The colours that all pictures share on a display that shows no more than 256 of them at once.
#pragma once

#include <cstdint>

namespace vistrel::platform {

// The system keeps 20 of the 256 colours and leaves 236. Of these 240, the 8 that have only the
// channels' ends are among the system's, so that all find room. The eye tells green best and blue
// worst; errors against the undithered picture, blurred, are a quarter smaller in brightness than
// with 6 levels of each and hardly larger in colour.
inline constexpr int kDisplayColors = 240;
/// The levels of red, green and blue. The last counts fastest in a colour's number.
inline constexpr int kDisplayLevels[3] = {6, 8, 5};
static_assert(kDisplayLevels[0] * kDisplayLevels[1] * kDisplayLevels[2] == kDisplayColors);

/// The value of a channel's level: 0 for the first, 255 for the last.
constexpr std::uint8_t DisplayLevel(int channel, int level) {
    return static_cast<std::uint8_t>(level * 255 / (kDisplayLevels[channel] - 1));
}

}  // namespace vistrel::platform
