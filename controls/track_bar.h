// A slider between two numbers.
#pragma once

#include <functional>

#include "controls/control.h"

namespace vistrel::controls {

class TrackBar : public Control {
 public:
    /// The ends, the step of an arrow key and that of a page key, and where a double click sets the
    /// slider back to.
    void SetRange(int least, int most, int step, int page, int restAt);
    int Value() const;
    /// Moves the slider; Change does not run.
    void SetValue(int value);

    /// The user moved the slider, or still draws it.
    std::function<void()> Change;

    void OnScroll() override;

 protected:
    bool OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                   std::intptr_t& result) override;

 private:
    bool IsSecondPress(Point at);
    void SetBack();

    int restAt_ = 0;
    long pressedWhen_ = 0;  ///< time of the message of the last press
    Point pressedAt_{-100, -100};
};

}  // namespace vistrel::controls
