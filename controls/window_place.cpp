#include "controls/window_place.h"

#include <algorithm>

#include "controls/win32.h"

namespace vistrel::controls {

WindowPlace PlaceOf(platform::WindowHandle window) {
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window, &placement);
    RECT r = placement.rcNormalPosition;
    // The system counts a placement from the corner of the part that the taskbar leaves.
    RECT work{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &work, 0);
    OffsetRect(&r, work.left, work.top);
    const bool maximized =
        IsZoomed(window) || (IsIconic(window) && (placement.flags & WPF_RESTORETOMAXIMIZED));
    return {RectOf(r), maximized};
}

void PlaceWithin(platform::WindowHandle window, Rect place, const Rect& area) {
    place.width = std::min(place.width, area.width);
    place.height = std::min(place.height, area.height);
    place.left = std::clamp(place.left, area.left, area.right() - place.width);
    place.top = std::clamp(place.top, area.top, area.bottom() - place.height);
    SetWindowPos(window, nullptr, place.left, place.top, place.width, place.height,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

void Maximize(platform::WindowHandle window) { ShowWindow(window, SW_MAXIMIZE); }

void BringToFront(platform::WindowHandle window) { SetForegroundWindow(window); }

}  // namespace vistrel::controls
