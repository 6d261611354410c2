// A field for one line of text.
#pragma once

#include <functional>

#include "controls/control.h"

namespace vistrel::controls {

class TextBox : public Control {
 public:
    /// The text was changed, by the user or by SetText.
    std::function<void()> Change;

    void OnCommand(int code) override;
};

/// Selects all of a text box's text.
void SelectAllText(TextBox& box);

}  // namespace vistrel::controls
