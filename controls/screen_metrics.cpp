#include "controls/screen_metrics.h"

#include "controls/win32.h"
#include "platform/win32.h"

namespace vistrel::controls {

int PixelsPerInch() { return GetDeviceCaps(platform::ScreenContext(), LOGPIXELSX); }

Rect WholeDisplay() { return {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)}; }

Rect WorkArea() {
    RECT r{};
    SystemParametersInfoA(SPI_GETWORKAREA, 0, &r, 0);
    return RectOf(r);
}

Point PointerPosition() {
    POINT at{};
    GetCursorPos(&at);
    return {static_cast<int>(at.x), static_cast<int>(at.y)};
}

bool IsShiftDown() { return GetKeyState(VK_SHIFT) < 0; }

bool IsControlDown() { return GetKeyState(VK_CONTROL) < 0; }

}  // namespace vistrel::controls
