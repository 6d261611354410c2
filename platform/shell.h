// What the shell does for us: opening, starting, copying and deleting with its own dialogs, and
// browsing for a folder.
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

/// Copies files and folders with all they hold (FO_COPY) with SHFileOperationA's flags.
bool ShellCopy(WindowHandle owner, const std::string& from, const std::string& to,
               unsigned short flags);
/// Hands paths to the shell's delete operation (FO_DELETE) with SHFileOperationA's flags. `list` is
/// the double-NUL-terminated list.
bool ShellDelete(WindowHandle owner, const std::string& list, unsigned short flags);

/// The folder that the user picks in the shell's folder browser, cut at the first NUL; empty when
/// the user cancels. `start` is selected at first where it exists.
std::string PickFolder(WindowHandle owner, const std::string& prompt, const std::string& start);

/// Writes a shell link at `linkPath` to `target`. False when it could not be written.
bool WriteShellLink(const std::string& linkPath, const std::string& target,
                    const std::string& arguments, const std::string& workingFolder,
                    const std::string& description);
/// The file that a shell link opens, whether or not it exists; empty when `linkPath` is no link.
std::string ShellLinkTarget(const std::string& linkPath);

}  // namespace vistrel::platform
