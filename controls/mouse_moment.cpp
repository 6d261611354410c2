#include "controls/mouse_moment.h"

#include <windows.h>

#include <cstdlib>

namespace vistrel::controls {

MouseMoment MomentOfMessage() {
    const DWORD at = GetMessagePos();
    return {GetMessageTime(), {static_cast<short>(LOWORD(at)), static_cast<short>(HIWORD(at))}};
}

bool IsOneDoubleClick(const MouseMoment& first, const MouseMoment& second) {
    // The clock starts again at 0 some day, which a difference without sign does not mind.
    const UINT between = static_cast<UINT>(second.time) - static_cast<UINT>(first.time);
    return between <= GetDoubleClickTime() &&
           std::abs(second.at.x - first.at.x) <= GetSystemMetrics(SM_CXDOUBLECLK) / 2 &&
           std::abs(second.at.y - first.at.y) <= GetSystemMetrics(SM_CYDOUBLECLK) / 2;
}

}  // namespace vistrel::controls
