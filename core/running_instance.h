// Whether the program is running now.
#pragma once

#include "platform/named_mutex.h"

namespace vistrel::core {

/// The window class of the main window.
inline constexpr const char* kMainWindowClass = "Principale";

/// True while Vistrel runs, from before its main window is shown.
bool VistrelIsRunning();

/// Held by the one copy of the program that a user works with: two would undo each other's
/// settings.
class OnlyCopy {
 public:
    OnlyCopy();

    /// True when this is the only copy, or becomes it because the other one is ending. Otherwise
    /// the other one's window has been brought to the front.
    bool Take();

 private:
    platform::NamedMutex mutex_;
};

}  // namespace vistrel::core
