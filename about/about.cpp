#include "about/about.h"

#include "platform/files.h"
#include "platform/shell.h"

namespace vistrel {

void OpenLink(const std::string& target, WindowHandle owner) {
    ShellOpen(owner, target, ProgramFolder(), ShowState::Maximized);
}

}  // namespace vistrel
