#include "controls/screen_metrics.h"

#include <windows.h>

namespace vistrel::controls {

int PixelsPerInch() {
    const HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dots;
}

Rect WorkArea() {
    RECT r{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &r, 0);
    return {static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right - r.left),
            static_cast<int>(r.bottom - r.top)};
}

Point PointerPosition() {
    POINT at{};
    GetCursorPos(&at);
    return {static_cast<int>(at.x), static_cast<int>(at.y)};
}

}  // namespace vistrel::controls
