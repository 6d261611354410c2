#include "pictures/preview/ready_picture.h"

#include "pictures/preview/draw_rgb.h"
#include "pictures/screen/display_dither.h"
#include "platform/display_colors.h"
#include "platform/win32.h"

namespace vistrel::preview {
namespace {

/// Behind another window the colours that are there stand for its own.
bool IsOfActiveWindow(platform::DeviceContext target) {
    return IsChild(GetActiveWindow(), WindowFromDC(target)) != 0;
}

}  // namespace

ReadyPicture::ReadyPicture(const pictures::RgbPicture& picture, bool hasPalette)
    : width_(picture.width),
      height_(picture.height),
      bits_(hasPalette ? 8 : 24),
      rows_(bits_ == 8 ? screen::DitherToDisplayColors(picture.pixels.data(), width_, height_)
                       : BlueGreenRedRows(picture.pixels.data(), width_, height_)) {}

bool ReadyPicture::Paint(platform::DeviceContext target, int x, int y) const {
    if (rows_.empty()) return false;
    struct {
        BITMAPINFOHEADER header;
        WORD entries[256] = {};
    } info;
    info.header = platform::HeaderFromTop(width_, height_, bits_);
    if (bits_ == 8) {
        info.header.biClrUsed = platform::kDisplayColors;
        for (WORD i = 0; i < platform::kDisplayColors; ++i) info.entries[i] = i;
    }
    const HPALETTE former =
        bits_ == 8 ? SelectPalette(target, controls::DisplayPalette(), !IsOfActiveWindow(target))
                   : nullptr;
    if (former) RealizePalette(target);
    SetDIBitsToDevice(target, x, y, static_cast<DWORD>(width_), static_cast<DWORD>(height_), 0, 0,
                      0, static_cast<UINT>(height_), rows_.data(),
                      reinterpret_cast<const BITMAPINFO*>(&info),
                      bits_ == 8 ? DIB_PAL_COLORS : DIB_RGB_COLORS);
    if (former) SelectPalette(target, former, TRUE);
    return true;
}

}  // namespace vistrel::preview
