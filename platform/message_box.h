// The system's message boxes.
#pragma once

#include <string>

#include "platform/handles.h"

namespace vistrel::platform {

/// The title of every message box that has none of its own.
inline constexpr const char* kProgramTitle = "Vistrel";

enum class Icon { Exclamation, Critical, Information };
enum class DefaultAnswer { Yes, No };

/// Tells the user something and waits for OK. `owner` may be null.
void Tell(WindowHandle owner, const std::string& text, Icon icon = Icon::Exclamation,
          const std::string& title = kProgramTitle);

/// Asks the user a question. True for Yes; `preset` is the button that Enter presses.
bool Confirm(WindowHandle owner, const std::string& question, DefaultAnswer preset,
             const std::string& title = kProgramTitle);

}  // namespace vistrel::platform
