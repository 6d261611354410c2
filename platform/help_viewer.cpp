#include "platform/help_viewer.h"

#include <windows.h>

#include "platform/fault.h"

namespace vistrel::platform {

bool ShowHelp(WindowHandle owner, const std::string& helpFile, HelpCommand command,
              unsigned long data) {
    if (fault::ShouldFail()) return false;
    return WinHelpA(owner, helpFile.c_str(), static_cast<UINT>(command), data) != 0;
}

}  // namespace vistrel::platform
