// A text that the user reads, and may click where it is a link.
#pragma once

#include <functional>

#include "controls/control.h"

namespace vistrel {

class Label : public Control {
 public:
    /// Colours are 24-bit numbers in blue-green-red order.
    void SetForeColor(long color);
    long ForeColor() const { return color_; }
    /// A font of the label's own: the dialog's, made bold, or resized to `points`, or of another
    /// face. Empty and 0 keep what the dialog has.
    void SetFont(bool bold, int points = 0, const char* face = "");
    /// Shows the hand over the text, from the program's cursor resource of this name.
    void SetHandPointer(const char* cursorResource);

    /// The template must give the label the style SS_NOTIFY.
    std::function<void()> Click;

    ~Label() override;
    void OnCommand(int code) override;
    long TextColor() const override { return color_; }
    bool SetPointer() override;

 private:
    long color_ = -1;
    FontHandle font_ = nullptr;
    const char* cursor_ = nullptr;
};

}  // namespace vistrel
