// The shell's folder browser.
#pragma once

#include <string>

#include "platform/handles.h"

namespace vistrel::platform {

/// The folder that the user picks in the shell's folder browser, cut at the first NUL; empty when
/// the user cancels. `start` is selected at first where it exists.
std::string PickFolder(WindowHandle owner, const std::string& prompt, const std::string& start);

}  // namespace vistrel::platform
