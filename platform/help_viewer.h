// The system's help viewer.
#pragma once

#include <string>

#include "platform/handles.h"

namespace vistrel::platform {

/// Commands of the help viewer.
enum class HelpCommand : unsigned { Context = 1, Quit = 2, Index = 3, ContextPopup = 8 };

/// Asks the help viewer to show something of `helpFile`. False when it refuses.
bool ShowHelp(WindowHandle owner, const std::string& helpFile, HelpCommand command,
              unsigned long data);

}  // namespace vistrel::platform
