// Colours as the system's dialogs and the labels number them: 24 bits in blue-green-red order.
#pragma once

#include "pictures/screen/ring.h"

namespace vistrel::animate {

inline long NumberOf(const screen::ScreenColor& color) {
    return color[0] | color[1] << 8 | color[2] << 16;
}

inline screen::ScreenColor ColorOf(long number) {
    return {static_cast<std::uint8_t>(number), static_cast<std::uint8_t>(number >> 8),
            static_cast<std::uint8_t>(number >> 16)};
}

}  // namespace vistrel::animate
