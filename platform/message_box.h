// The system's message boxes.
#pragma once

#include <string>

#include "platform/handles.h"

namespace vistrel::platform {

/// The title of every message box that has none of its own.
inline constexpr const char* kProgramTitle = "Vistrel";

/// The flags that this program uses: buttons, icon and default button added up.
inline constexpr unsigned kCriticalOk = 16;
inline constexpr unsigned kQuestionYesNo = 36;
inline constexpr unsigned kExclamationOk = 48;
inline constexpr unsigned kInformationOk = 64;
inline constexpr unsigned kQuestionYesNoDefaultNo = 292;

enum class Answer { Ok = 1, Cancel = 2, Yes = 6, No = 7 };

/// Shows a message box over `owner` (which may be null) and waits for its answer.
Answer Ask(WindowHandle owner, const std::string& text, unsigned flags,
           const std::string& title = kProgramTitle);

}  // namespace vistrel::platform
