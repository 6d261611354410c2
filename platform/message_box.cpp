#include "platform/message_box.h"

#include <windows.h>

namespace vistrel::platform {

void Tell(WindowHandle owner, const std::string& text, Icon icon, const std::string& title) {
    UINT flags = MB_OK | MB_ICONEXCLAMATION;
    if (icon == Icon::Critical) flags = MB_OK | MB_ICONHAND;
    if (icon == Icon::Information) flags = MB_OK | MB_ICONASTERISK;
    MessageBoxA(owner, text.c_str(), title.c_str(), flags);
}

bool Confirm(WindowHandle owner, const std::string& question, DefaultAnswer preset,
             const std::string& title) {
    UINT flags = MB_YESNO | MB_ICONQUESTION;
    if (preset == DefaultAnswer::No) flags |= MB_DEFBUTTON2;
    return MessageBoxA(owner, question.c_str(), title.c_str(), flags) == IDYES;
}

}  // namespace vistrel::platform
