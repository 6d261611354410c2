// The folder browser, apart from the other helpers: programs without windows then need no shell.
#include "core/generali.h"
#include "platform/shell.h"

namespace vistrel::core {

std::string BrowseForFolder(platform::WindowHandle owner, const std::string& prompt,
                            const std::string& start) {
    return platform::PickFolder(owner, prompt, start);
}

}  // namespace vistrel::core
