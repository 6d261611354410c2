#include "core/file_handling.h"

#include "platform/shell.h"

namespace vistrel::core {

void DeleteToRecycleBin(platform::WindowHandle owner, const std::vector<std::string>& paths) {
    // What became of it is not asked: the shell has told the user.
    platform::ShellDeleteToBin(owner, paths);
}

}  // namespace vistrel::core
