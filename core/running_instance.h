// Whether the program is running now.
#pragma once

namespace vistrel {

/// The window class of the main window.
inline constexpr const char* kMainWindowClass = "Principale";

/// True while Vistrel runs, from before its main window is shown.
bool VistrelIsRunning();

}  // namespace vistrel
