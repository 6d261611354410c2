#include "controls/text_box.h"

#include <windows.h>

namespace vistrel::controls {

void TextBox::OnCommand(int code) {
    if (code == EN_CHANGE && Change) Change();
}

void SelectAllText(TextBox& box) {
    SendMessageA(box.handle(), EM_SETSEL, 0, GetWindowTextLengthA(box.handle()));
}

}  // namespace vistrel::controls
