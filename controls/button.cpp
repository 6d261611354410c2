#include "controls/button.h"

#include <windows.h>

#include <algorithm>

namespace vistrel::controls {

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

void OptionButton::SetTabStop() {
    SetWindowLongA(handle(), GWL_STYLE, GetWindowLongA(handle(), GWL_STYLE) | WS_TABSTOP);
}

void OptionButton::OnCommand(int code) {
    if (!takingFocus_) Button::OnCommand(code);
}

bool OptionButton::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                             std::intptr_t& result) {
    const bool onlyTabStop = !Value() && (GetWindowLongA(handle(), GWL_STYLE) & WS_TABSTOP) != 0;
    if (message != WM_SETFOCUS || !onlyTabStop)
        return Button::OnMessage(message, wParam, lParam, result);
    // The system chooses an option as soon as it has the focus. Whoever comes past has not chosen.
    takingFocus_ = true;
    result = PassOn(message, wParam, lParam);
    takingFocus_ = false;
    SetMark(false);
    SetTabStop();
    return true;
}

bool Frame::HoldsFocus() const {
    return std::any_of(held_.begin(), held_.end(),
                       [focus = GetFocus()](const Control* c) { return c->handle() == focus; });
}

void Frame::ShowWithAll(bool visible) {
    for (Control* control : held_) control->SetVisible(visible);
    SetVisible(visible);
}

}  // namespace vistrel::controls
