// The system's dialogs for choosing a file.
#pragma once

#include <string>

#include "platform/handles.h"

namespace vistrel::platform {

/// What the open-file dialog is asked for and what it answers.
struct OpenDialogRequest {
    WindowHandle owner = nullptr;
    std::string filter;  ///< pairs of name and pattern, each ended by a NUL
    std::string title;
    std::string initialFolder;
    /// Buffers of the dialog. Each is offered with one character more than it holds: the NUL that
    /// stands after a text's last character. Both are as the dialog left them.
    std::string file;
    std::string fileTitle;
};

/// Shows the dialog with the record that Windows 95 knows, without a check box for opening
/// read-only. True when the user chose a file, which then exists.
bool RunOpenDialog(OpenDialogRequest& request);

/// Shows the dialog for a file that is to be written. A name without an ending gets `ending`, which
/// has no dot; before a file that exists is replaced the dialog asks.
bool RunSaveDialog(OpenDialogRequest& request, const std::string& ending);

}  // namespace vistrel::platform
