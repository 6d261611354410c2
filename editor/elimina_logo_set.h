// Deletes a logo set's folder ("elimina": deletes).
#pragma once

#include <string>

#include "core/main_window.h"
#include "platform/handles.h"

namespace vistrel::editor {

/// Asks, where the preferences say so, and empties and removes the folder `FolderToKill` of the set
/// `LogoName`, into the recycle bin or for good. Failures are passed over. `editorSetName` is the
/// name that the editor shows: if that set is the installed one, none is known afterwards. True
/// when the user agreed, whatever is left of the folder.
bool EliminaLogoSet(platform::WindowHandle owner, core::MainWindow& main,
                    const std::string& FolderToKill, const std::string& LogoName,
                    const std::string& editorSetName);

}  // namespace vistrel::editor
