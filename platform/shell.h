// What the shell does for us: opening, starting, and copying and deleting with its own dialogs.
#pragma once

#include <string>
#include <vector>

#include "platform/handles.h"

namespace vistrel::platform {

enum class ShowState { Normal = 1, Maximized = 3 };

/// Opens a folder, document or address with its default action. False when nothing opened it.
bool ShellOpen(WindowHandle owner, const std::string& target, const std::string& workingFolder,
               ShowState show);

/// Starts a program by its command line, in a normal window. False when it could not be started.
bool StartProgram(const std::string& commandLine);

/// Copies a file or a folder with all it holds into a folder, over what is there. Where the shell
/// would ask, yes is the answer; what goes wrong it shows. False when not all was copied.
bool ShellCopyOver(WindowHandle owner, const std::string& from, const std::string& toFolder);
/// Moves files and folders, in whose paths wildcards may stand, into the recycle bin, all in one
/// operation. The shell asks first; false when something was left in its place.
bool ShellDeleteToBin(WindowHandle owner, const std::vector<std::string>& paths);

}  // namespace vistrel::platform
