// Windows of other programs.
#pragma once

#include <string>

namespace vistrel::platform {

/// True while some program has a top-level window of this class, shown or hidden.
bool WindowOfClassExists(const std::string& windowClass);

/// Brings a program's window of this class to the front, from the taskbar if it lies there, and the
/// window that waits for an answer over it. False when there is none or it is hidden.
bool BringToFront(const std::string& windowClass);

}  // namespace vistrel::platform
