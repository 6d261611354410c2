#include "controls/control.h"

#include <windows.h>

#include "controls/win32.h"
#include "controls/window.h"

namespace vistrel::controls {

/// The window procedure that stands before the control's own.
struct ControlProcedure {
    static LRESULT CALLBACK Run(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        auto* control = reinterpret_cast<Control*>(GetWindowLongPtrA(window, GWLP_USERDATA));
        const auto former = reinterpret_cast<WNDPROC>(control->formerProcedure_);
        if (message == WM_NCDESTROY) {
            SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(former));
            control->handle_ = nullptr;
            return CallWindowProcA(former, window, message, wParam, lParam);
        }
        // No exception may cross the system's code.
        try {
            if (!control->TakesPress(message)) return 0;
            std::intptr_t result = 0;
            if (control->OnMessage(message, wParam, lParam, result)) return result;
        } catch (...) {
        }
        return CallWindowProcA(former, window, message, wParam, lParam);
    }
};

Control::~Control() {
    // Where the window outlives this object, its messages are its own again.
    if (handle_)
        SetWindowLongPtrA(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(formerProcedure_));
}

bool Control::Attach(Window& parent, int id) {
    parent_ = &parent;
    id_ = id;
    handle_ = GetDlgItem(parent.handle(), id);
    if (!handle_) return false;
    SetWindowLongPtrA(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
    formerProcedure_ = reinterpret_cast<void*>(SetWindowLongPtrA(
        handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&ControlProcedure::Run)));
    OnAttach();
    if (!tip_.empty()) parent.ShowTip(handle_, tip_);
    return true;
}

std::string Control::Text() const { return TextOf(handle_); }

void Control::SetText(const std::string& text) { SetWindowTextA(handle_, text.c_str()); }

bool Control::Enabled() const { return IsWindowEnabled(handle_) != 0; }

void Control::SetEnabled(bool enabled) { EnableWindow(handle_, enabled); }

bool Control::Visible() const { return (GetWindowLongA(handle_, GWL_STYLE) & WS_VISIBLE) != 0; }

void Control::SetVisible(bool visible) { ShowWindow(handle_, visible ? SW_SHOWNA : SW_HIDE); }

void Control::Focus() { ::SetFocus(handle_); }

bool Control::HasFocus() const { return GetFocus() == handle_; }

void Control::Repaint() { InvalidateRect(handle_, nullptr, TRUE); }

Rect Control::Bounds() const {
    RECT r{};
    GetWindowRect(handle_, &r);
    MapWindowPoints(nullptr, GetParent(handle_), reinterpret_cast<POINT*>(&r), 2);
    return RectOf(r);
}

Rect Control::ScreenBounds() const { return PlaceOnScreen(handle_); }

void Control::MoveTo(const Rect& place) {
    MoveWindow(handle_, place.left, place.top, place.width, place.height, TRUE);
}

Point Control::MenuPoint() const {
    const Rect place = ScreenBounds();
    return {place.left + 8, place.top + 8};
}

void Control::SetTip(const std::string& tip) {
    if (tip == tip_) return;
    tip_ = tip;
    if (handle_) parent_->ShowTip(handle_, tip_);
}

std::intptr_t Control::PassOn(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) const {
    return CallWindowProcA(reinterpret_cast<WNDPROC>(formerProcedure_), handle_, message, wParam,
                           lParam);
}

std::intptr_t Control::Send(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) const {
    return SendMessageA(handle_, message, wParam, lParam);
}

std::intptr_t Control::SendPointer(unsigned message, std::uintptr_t wParam,
                                   const void* pointer) const {
    return SendMessageA(handle_, message, wParam, reinterpret_cast<LPARAM>(pointer));
}

// A press ends what is edited elsewhere before the control hears of it: what that renames or
// selects must not come after what is clicked. Where it brought up a message the button was let go
// there, and a control that went down now would wait for that in vain.
bool Control::TakesPress(unsigned message) {
    const bool left = message == WM_LBUTTONDOWN || message == WM_LBUTTONDBLCLK;
    const bool right = message == WM_RBUTTONDOWN || message == WM_RBUTTONDBLCLK;
    if (!left && !right) return true;
    const auto isDown = [&] { return GetKeyState(left ? VK_LBUTTON : VK_RBUTTON) < 0; };
    const bool wasDown = isDown();
    parent_->EndEdits();
    return !wasDown || isDown();
}

void Control::Pressed(int button, Point at) {
    pressed_ = button;
    if (HoldsMouse()) SetCapture(handle_);
    if (MouseDown) MouseDown(button, at);
}

// A button that went down elsewhere, on the title bar or over another control, was not meant for
// this one; nor was one that was drawn away before it was let go. Who double-clicks what one click
// opens wants it once.
void Control::Released(int button, Point at) {
    RECT area{};
    GetClientRect(handle_, &area);
    const bool clicked = pressed_ == button && !secondPress_ && PtInRect(&area, {at.x, at.y});
    pressed_ = 0;
    // Before the handler, which may open a window or a menu that wants the mouse.
    if (HoldsMouse() && GetCapture() == handle_) ReleaseCapture();
    if (clicked && MouseUp) MouseUp(button, at);
}

bool Control::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                        std::intptr_t& result) {
    const Point at{static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
            secondPress_ = message == WM_LBUTTONDBLCLK;
            pressedWithShift_ = (wParam & MK_SHIFT) != 0;
            pressedWithControl_ = (wParam & MK_CONTROL) != 0;
            Pressed(kLeftButton, at);
            break;
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
            secondPress_ = false;
            Pressed(kRightButton, at);
            break;
        case WM_LBUTTONUP:
            Released(kLeftButton, at);
            break;
        case WM_RBUTTONUP: {
            // The handler's own menu stands for the system's. Afterwards the control may be no
            // more.
            const bool ownMenu = MouseUp != nullptr;
            Released(kRightButton, at);
            result = 0;
            if (ownMenu) return true;
            break;
        }
        case WM_CAPTURECHANGED:
            if (HoldsMouse()) pressed_ = 0;
            break;
        case WM_MOUSEMOVE:
            if (MouseMove) MouseMove((wParam & (MK_LBUTTON | MK_RBUTTON)) ? pressed_ : 0, at);
            break;
        case WM_KEYUP:
            if (KeyUp) KeyUp(static_cast<int>(wParam));
            break;
        case WM_CHAR:
            if (KeyPress) KeyPress(static_cast<char>(wParam));
            break;
        case WM_SETFOCUS:
            if (GotFocus) GotFocus();
            break;
        default:
            break;
    }
    return false;
}

}  // namespace vistrel::controls
