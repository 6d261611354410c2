#include "core/browse_for_folder.h"

#include "platform/folder_dialog.h"

namespace vistrel::core {

std::string BrowseForFolder(platform::WindowHandle owner, const std::string& prompt,
                            const std::string& start) {
    return platform::PickFolder(owner, prompt, start);
}

}  // namespace vistrel::core
