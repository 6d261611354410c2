#include "controls/drawing.h"

#include <windows.h>

namespace vistrel::controls {
namespace {

constexpr int kTwipsPerInch = 1440;

}  // namespace

void DrawSeparator(platform::DeviceContext target, Point from, Point to) {
    const int across = GetDeviceCaps(target, LOGPIXELSX);
    const int down = GetDeviceCaps(target, LOGPIXELSY);
    const int left = MulDiv(from.x, across, kTwipsPerInch);
    const int right = MulDiv(to.x, across, kTwipsPerInch);
    const int top = MulDiv(from.y, down, kTwipsPerInch);
    const RECT dark{left, top, right, top + 1};
    const RECT light{left, top + 1, right, top + 2};
    FillRect(target, &dark, GetSysColorBrush(COLOR_BTNSHADOW));
    FillRect(target, &light, GetSysColorBrush(COLOR_BTNHIGHLIGHT));
}

}  // namespace vistrel::controls
