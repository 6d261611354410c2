// The message loop, for windows shown beside each other and for modal ones.
#pragma once

#include "platform/handles.h"

namespace vistrel::controls {

class Window;

/// Adds and removes a window whose keys the loop dispatches.
void AddToLoop(Window& window);
void RemoveFromLoop(Window& window);

/// The window of ours with this handle; null when there is none open.
Window* OpenWindowOf(platform::WindowHandle handle);

/// Tells all open windows, the one in front first, that the system's session ends: it tells each
/// window itself, but in an order of its own, and may end the program after the first. Told again,
/// they keep the same again.
void EndSession();

/// Whether the user has pressed, typed or moved something that has not been handled yet.
bool InputIsWaiting();
/// The same of keys alone.
bool KeyIsWaiting();

/// Handles what the user has done so far, and what is to be painted, while something long goes on.
void HandleWaiting();

/// Runs until this window has been closed, or the program is to end.
void RunLoopWhileOpen(const Window& window);

}  // namespace vistrel::controls
