// What every kind of control has in common: one object stands for one real window, which the
// dialog template made and whose number finds it.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "controls/geometry.h"
#include "platform/handles.h"

namespace vistrel::controls {

class Window;

/// The buttons of the mouse, numbered as the handlers take them.
inline constexpr int kLeftButton = 1;
inline constexpr int kRightButton = 2;

class Control {
 public:
    Control() = default;
    virtual ~Control();
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// Takes over the child window with number `id`. The parent keeps getting its notifications.
    /// False when the parent has no such child.
    bool Attach(Window& parent, int id);

    platform::WindowHandle handle() const { return handle_; }
    int id() const { return id_; }

    std::string Text() const;
    void SetText(const std::string& text);
    bool Enabled() const;
    void SetEnabled(bool enabled);
    /// The control's own visibility, shown window or not.
    bool Visible() const;
    void SetVisible(bool visible);
    void Focus();
    bool HasFocus() const;
    void Repaint();

    /// Place within the parent's client area.
    Rect Bounds() const;
    void MoveTo(const Rect& place);
    /// Place on the screen.
    Rect ScreenBounds() const;

    /// The short text that appears when the pointer rests on the control.
    void SetTip(const std::string& tip);
    const std::string& tip() const { return tip_; }

    /// The number of the help topic that says what this control is for; 0 for none.
    void SetHelpNumber(int number) { helpNumber_ = number; }
    int helpNumber() const { return helpNumber_; }

    /// A mouse button that was pressed over the control was released over it; x and y in its client
    /// area.
    std::function<void(int button, Point at)> MouseUp;
    std::function<void(int button, Point at)> MouseDown;
    /// The keys that were down when the left button last went down over the control, however late
    /// that is heard of.
    bool PressedWithShift() const { return pressedWithShift_; }
    bool PressedWithControl() const { return pressedWithControl_; }
    /// `button` is the one that went down over the control and is still down, 0 for none.
    std::function<void(int button, Point at)> MouseMove;
    std::function<void(int key)> KeyUp;
    std::function<void(char character)> KeyPress;
    std::function<void()> GotFocus;
    /// A menu was asked for at a point of the screen, by the right button or from the keyboard.
    /// Where a control has none, its "What's this?" menu is shown if it has a help number.
    std::function<void(Point screen, bool byKeyboard)> ContextMenu;

    // What the parent window passes back to its child.

    /// A WM_COMMAND with this notification code.
    virtual void OnCommand(int) {}
    /// The user moved the slider that the control is.
    virtual void OnScroll() {}
    /// A WM_NOTIFY with this NMHDR; the result goes back to the control.
    virtual std::intptr_t OnNotify(void*) { return 0; }
    /// Where on the screen a menu opens that was asked for from the keyboard.
    virtual Point MenuPoint() const;
    /// The colour of the control's text; negative for the system's.
    virtual long TextColor() const { return -1; }
    /// What the control's background is painted with; null for the window's own.
    virtual platform::BrushHandle BackBrush() const { return nullptr; }
    /// A WM_DRAWITEM with this DRAWITEMSTRUCT.
    virtual void OnDrawItem(const void*) {}
    /// Sets a pointer picture of the control's own; false to leave it to the window.
    virtual bool SetPointer() { return false; }
    /// Ends what the user edits within the control, taken as typed.
    virtual void EndEdit() {}

 protected:
    /// Called once the handle is known.
    virtual void OnAttach() {}
    /// Sees every message before the control does; true when `result` is the answer already.
    virtual bool OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                           std::intptr_t& result);
    /// True for a control that has the mouse while a button is down, so that it hears of the
    /// release wherever that is.
    virtual bool HoldsMouse() const { return false; }
    /// Has the control itself deal with a message at once.
    std::intptr_t PassOn(unsigned message, std::uintptr_t wParam, std::intptr_t lParam) const;
    /// Sends a message to the real control.
    std::intptr_t Send(unsigned message, std::uintptr_t wParam = 0, std::intptr_t lParam = 0) const;
    /// Sends a message whose last argument is a pointer.
    std::intptr_t SendPointer(unsigned message, std::uintptr_t wParam, const void* pointer) const;
    Window* parent() const { return parent_; }

 private:
    friend struct ControlProcedure;

    bool TakesPress(unsigned message);
    void Pressed(int button, Point at);
    void Released(int button, Point at);

    Window* parent_ = nullptr;
    platform::WindowHandle handle_ = nullptr;
    int id_ = 0;
    int helpNumber_ = 0;
    int pressed_ = 0;  ///< the button that went down last over the control and is not up yet
    bool pressedWithShift_ = false;
    bool pressedWithControl_ = false;
    bool secondPress_ = false;  ///< of a double click
    std::string tip_;
    void* formerProcedure_ = nullptr;
};

/// Enables or disables several controls, each in turn.
template <typename... Controls>
void EnableControls(bool enabled, Controls&... controls) {
    (controls.SetEnabled(enabled), ...);
}

}  // namespace vistrel::controls
