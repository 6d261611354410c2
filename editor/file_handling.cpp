#include "editor/file_handling.h"

#include "platform/shell.h"

namespace vistrel::editor {
namespace {

/// SHFileOperation's flag that allows the operation to be undone.
constexpr unsigned short kAllowUndo = 64;

}  // namespace

void DeleteToRecycleBin(platform::WindowHandle owner, const std::vector<std::string>& paths) {
    std::string list;
    for (const std::string& path : paths) list += path + '\0';
    list += '\0';
    // What became of it is not asked: the shell has told the user.
    platform::ShellDelete(owner, list, kAllowUndo);
}

}  // namespace vistrel::editor
