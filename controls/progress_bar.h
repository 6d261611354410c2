// A bar that fills as something goes on.
#pragma once

#include "controls/control.h"

namespace vistrel::controls {

class ProgressBar : public Control {
 public:
    /// How many steps fill it, up to 65,535.
    void SetSteps(int steps);
    void SetValue(int steps);
};

}  // namespace vistrel::controls
