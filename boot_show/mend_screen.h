// The command "Mend": makes a screen file one that the system shows as it is meant.
#pragma once

#include <string>

#include "platform/handles.h"

namespace vistrel::boot_show {

/// Asks whether the screen file is to be mended, and mends it; a failure is told. True when the
/// file is another one now.
bool AskAndMend(platform::WindowHandle owner, const std::string& path);

}  // namespace vistrel::boot_show
