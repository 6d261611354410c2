// Deletion into the recycle bin (the module `FileHandling`).
#pragma once

#include <string>
#include <vector>

#include "platform/handles.h"

namespace vistrel::editor {

/// Hands full paths, which may hold wildcards, to the shell in one operation that moves them into
/// the recycle bin. The shell asks and reports by itself; a refusal leaves the files where they
/// are.
void DeleteToRecycleBin(platform::WindowHandle owner, const std::vector<std::string>& paths);

}  // namespace vistrel::editor
