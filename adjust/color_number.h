// Colours as the system's dialogs and the labels number them: 24 bits in blue-green-red order.
#pragma once

#include "pictures/compose/composition.h"

namespace vistrel::adjust {

inline long NumberOf(const compose::Color& color) {
    return color.red | color.green << 8 | color.blue << 16;
}

inline compose::Color ColorOf(long number) {
    return {static_cast<std::uint8_t>(number), static_cast<std::uint8_t>(number >> 8),
            static_cast<std::uint8_t>(number >> 16)};
}

}  // namespace vistrel::adjust
