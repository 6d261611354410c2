// The folder browser: apart from the other helpers, so that programs without windows need no shell.
#pragma once

#include <string>

#include "platform/handles.h"

namespace vistrel::core {

/// The folder that the user picks; empty when the user cancels.
std::string BrowseForFolder(platform::WindowHandle owner, const std::string& prompt,
                            const std::string& start = {});

}  // namespace vistrel::core
