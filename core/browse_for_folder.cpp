// The folder browser, apart from the other helpers: programs without windows then need no shell.
#include "core/generali.h"
#include "platform/shell.h"

namespace vistrel {

std::string BrowseForFolder(WindowHandle owner, const std::string& prompt,
                            const std::string& start) {
    return PickFolder(owner, prompt, start);
}

}  // namespace vistrel
