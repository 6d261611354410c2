// A button that acts while it is held down, by the mouse or the space bar.
#pragma once

#include <functional>

#include "controls/control.h"

namespace vistrel::controls {

class HoldButton : public Control {
 public:
    /// The button went down or came up.
    std::function<void(bool down)> Held;

 protected:
    bool OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                   std::intptr_t& result) override;

 private:
    bool down_ = false;
};

}  // namespace vistrel::controls
