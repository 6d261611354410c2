#include "controls/list_box.h"

#include <windows.h>

namespace vistrel::controls {

void ListBox::AddItem(const std::string& text) { SendPointer(LB_ADDSTRING, 0, text.c_str()); }

int ListBox::Count() const { return static_cast<int>(Send(LB_GETCOUNT)); }

std::string ListBox::Item(int index) const {
    const auto length = Send(LB_GETTEXTLEN, static_cast<WPARAM>(index));
    if (length == LB_ERR) return {};
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    SendPointer(LB_GETTEXT, static_cast<WPARAM>(index), text.data());
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void ListBox::Clear() { Send(LB_RESETCONTENT); }

void ListBox::OnCommand(int code) {
    if (code == LBN_SELCHANGE && Change) Change();
}

}  // namespace vistrel::controls
