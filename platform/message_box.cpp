// The system's message boxes.
#include "platform/message_box.h"

#include <windows.h>

namespace vistrel::platform {

Answer Ask(WindowHandle owner, const std::string& text, unsigned flags, const std::string& title) {
    return static_cast<Answer>(MessageBoxA(owner, text.c_str(), title.c_str(), flags));
}

}  // namespace vistrel::platform
