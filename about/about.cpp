#include "about/about.h"

#include "platform/shell.h"
#include "platform/system_folders.h"

namespace vistrel::about {

void OpenLink(const std::string& target, platform::WindowHandle owner) {
    platform::ShellOpen(owner, target, platform::ProgramFolder(), platform::ShowState::Maximized);
}

}  // namespace vistrel::about
