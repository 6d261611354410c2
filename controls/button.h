// Buttons that are pressed, ticked or chosen among others.
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "controls/control.h"

namespace vistrel::controls {

class Button : public Control {
 public:
    std::function<void()> Click;

    void OnCommand(int code) override;
};

/// A check box; the template makes it an automatic one.
class CheckBox : public Button {
 public:
    /// 0 clear, 1 checked.
    int Value() const;
    /// Sets the mark; Click does not run.
    void SetValue(int value);
};

/// One of several options of a group; the template makes it an automatic radio button and gives the
/// first of the group the style WS_GROUP.
class OptionButton : public Button {
 public:
    bool Value() const;
    /// Chooses this one and clears `others`. Click does not run.
    template <typename... Options>
    void Choose(Options&... others) {
        (others.SetMark(false), ...);
        SetMark(true);
    }
    void SetMark(bool chosen);
    /// Has the tab key stop at this option of a group of which none is chosen; to come there does
    /// not choose it.
    void SetTabStop();

    /// What the window notes with the option; not shown.
    std::string Tag;

    void OnCommand(int code) override;

 protected:
    bool OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                   std::intptr_t& result) override;

 private:
    bool takingFocus_ = false;
};

/// A box around controls, which are shown and hidden with it.
class Frame : public Control {
 public:
    void Hold(std::vector<Control*> controls) { held_ = std::move(controls); }
    void ShowWithAll(bool visible);
    /// Whether the user works in one of the controls.
    bool HoldsFocus() const;

    /// What the window notes with the frame; not shown.
    std::string Tag;

 private:
    std::vector<Control*> held_;
};

}  // namespace vistrel::controls
