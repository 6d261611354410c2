#include "controls/progress_bar.h"

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

namespace vistrel::controls {

void ProgressBar::SetSteps(int steps) { Send(PBM_SETRANGE, 0, MAKELPARAM(0, steps)); }

void ProgressBar::SetValue(int steps) { Send(PBM_SETPOS, static_cast<WPARAM>(steps)); }

}  // namespace vistrel::controls
