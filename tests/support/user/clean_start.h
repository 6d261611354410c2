// What a test finds: nothing that an earlier one has left behind.
#pragma once

#include <windows.h>

#include <string>

namespace vistrel::user {

/// Lets go of every key and mouse button, ends menus, closes boxes and programs that are still
/// open, and brings a window of this program to the front. Every test begins with this; call it on
/// the thread that runs the tests, which must have no box or menu of its own open.
void StartClean();

/// What is in the way of a test: keys that are held, what is open and who is in front. A text for
/// whoever reads of a failure; empty after StartClean.
std::string LeftBehind();

/// Closes what stands over a window and disables it, so that it can be used and closed again: the
/// windows and boxes of this program that an input which never came has left open.
void CloseWhatIsOver(HWND window);

/// Whether the keyboard is nobody's: no window is in front, or only the desktop. It happens when
/// the screen and Wine tell each other of two changes at once.
bool NobodyIsInFront();

}  // namespace vistrel::user
