// The dialogs for choosing a file (the module `CMDialog`).
#pragma once

#include <string>

#include "platform/handles.h"

namespace vistrel::core {

/// The name, without its folder, of the file that ShowOpenDialog gave last.
extern std::string FileTitle;

/// Lets the user choose a file that exists. `filter` is pairs of a name and a pattern, with "|"
/// between all of them. The full path; empty when the user cancels.
// Quirk: the NUL that the dialog wrote after the path is still there
// (OpenDialog.GivesTheWholePathWithItsNulAndKeepsTheName).
std::string ShowOpenDialog(platform::WindowHandle owner, const std::string& filter,
                           const std::string& title, const std::string& initialFolder);

/// Lets the user choose where a file is to be written; `name` is what the dialog proposes, and a
/// name without an ending gets `ending`. The full path; empty when the user cancels.
std::string ShowSaveDialog(platform::WindowHandle owner, const std::string& filter,
                           const std::string& title, const std::string& name,
                           const std::string& ending);

/// The filter as the dialog expects it: each part ended by a NUL.
std::string DialogFilter(std::string filter);

}  // namespace vistrel::core
