// The system's dialogs that choose a colour and a font.
#pragma once

#include <optional>

#include "platform/handles.h"
#include "platform/text_font.h"

namespace vistrel::platform {

/// Lets the user choose a colour, a 24-bit number in blue-green-red order; empty when the user
/// cancels. What the user mixes is offered again while the program runs.
std::optional<long> PickColor(WindowHandle owner, long start);

/// Lets the user choose a font that can be scaled; empty when the user cancels.
std::optional<TextFont> PickFont(WindowHandle owner, const TextFont& start);

}  // namespace vistrel::platform
