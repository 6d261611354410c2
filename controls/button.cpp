#include "controls/button.h"

#include <windows.h>

namespace vistrel {

void Button::OnCommand(int code) {
    if (code == BN_CLICKED && Click) Click();
}

int CheckBox::Value() const { return Send(BM_GETCHECK) == BST_CHECKED ? 1 : 0; }

void CheckBox::SetValue(int value) { Send(BM_SETCHECK, value != 0 ? BST_CHECKED : BST_UNCHECKED); }

bool OptionButton::Value() const { return Send(BM_GETCHECK) == BST_CHECKED; }

void OptionButton::SetMark(bool chosen) {
    Send(BM_SETCHECK, chosen ? BST_CHECKED : BST_UNCHECKED);
    // The tab key stops at the chosen option of a group.
    const LONG style = GetWindowLongA(handle(), GWL_STYLE);
    SetWindowLongA(handle(), GWL_STYLE, chosen ? style | WS_TABSTOP : style & ~WS_TABSTOP);
}

void Frame::ShowWithAll(bool visible) {
    for (Control* control : held_) control->SetVisible(visible);
    SetVisible(visible);
}

}  // namespace vistrel
