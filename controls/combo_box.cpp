#include "controls/combo_box.h"

#include <windows.h>

namespace vistrel::controls {

int ComboBox::Count() const { return static_cast<int>(Send(CB_GETCOUNT)); }

int ComboBox::AddItem(const std::string& text) {
    return static_cast<int>(SendPointer(CB_ADDSTRING, 0, text.c_str()));
}

std::string ComboBox::Item(int index) const {
    const auto length = Send(CB_GETLBTEXTLEN, static_cast<WPARAM>(index));
    if (length == CB_ERR) return {};
    std::string text(static_cast<std::size_t>(length) + 1, '\0');
    SendPointer(CB_GETLBTEXT, static_cast<WPARAM>(index), text.data());
    text.resize(static_cast<std::size_t>(length));
    return text;
}

void ComboBox::RemoveItem(int index) { Send(CB_DELETESTRING, static_cast<WPARAM>(index)); }

void ComboBox::Clear() { Send(CB_RESETCONTENT); }

int ComboBox::FindItem(const std::string& text) const {
    return static_cast<int>(SendPointer(CB_FINDSTRINGEXACT, static_cast<WPARAM>(-1), text.c_str()));
}

int ComboBox::ListIndex() const { return static_cast<int>(Send(CB_GETCURSEL)); }

void ComboBox::SetListIndex(int index) {
    fillingField_ = true;
    Send(CB_SETCURSEL, static_cast<WPARAM>(index));
    fillingField_ = false;
}

void ComboBox::SetText(const std::string& text) {
    // The field tells of every change of its text, whoever made it.
    fillingField_ = true;
    Control::SetText(text);
    fillingField_ = false;
}

void ComboBox::SelectText() { Send(CB_SETEDITSEL, 0, MAKELPARAM(0, -1)); }

void ComboBox::OnCommand(int code) {
    if (code == CBN_SELCHANGE) {
        // The field still shows the former text here; the handler is to see the chosen one.
        if (ListIndex() >= 0) SetText(Item(ListIndex()));
        if (Click) Click();
    } else if (code == CBN_EDITCHANGE && !fillingField_ && Change) {
        Change();
    }
}

}  // namespace vistrel::controls
