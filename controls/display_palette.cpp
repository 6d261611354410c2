#include "controls/display_palette.h"

#include "platform/display_colors.h"
#include "platform/drawing_objects.h"
#include "platform/win32.h"

namespace vistrel::controls {
namespace {

struct Colors {
    WORD version = 0x300;
    WORD count = platform::kDisplayColors;
    PALETTEENTRY entries[platform::kDisplayColors];

    Colors() {
        PALETTEENTRY* next = entries;
        for (int red = 0; red < platform::kDisplayLevels[0]; ++red)
            for (int green = 0; green < platform::kDisplayLevels[1]; ++green)
                for (int blue = 0; blue < platform::kDisplayLevels[2]; ++blue)
                    *next++ = {platform::DisplayLevel(0, red), platform::DisplayLevel(1, green),
                               platform::DisplayLevel(2, blue), 0};
    }
};

}  // namespace

bool HasPalette(platform::DeviceContext device) {
    return (GetDeviceCaps(device, RASTERCAPS) & RC_PALETTE) != 0;
}

bool DisplayHasPalette() { return HasPalette(platform::ScreenContext()); }

PaletteHandle DisplayPalette() {
    // Lives as long as the program: every window that paints a picture realises it.
    static const HPALETTE palette = [] {
        const Colors colors;
        return platform::NewPalette(&colors);
    }();
    return palette;
}

platform::BitmapHandle DisplayPaletteBitmap(int width, int height) {
    struct {
        BITMAPINFOHEADER header;
        RGBQUAD colors[256] = {};
    } info;
    info.header = platform::HeaderFromTop(width, height, 8);
    info.header.biClrUsed = platform::kDisplayColors;
    const Colors palette;
    for (int i = 0; i < platform::kDisplayColors; ++i) {
        const PALETTEENTRY& color = palette.entries[i];
        info.colors[i] = {color.peBlue, color.peGreen, color.peRed, 0};
    }
    void* pixels = nullptr;
    return platform::NewBitmapInMemory(nullptr, &info, &pixels);
}

void PaintThroughPalette(platform::DeviceContext target, platform::BitmapHandle bitmap, int width,
                         int height, bool active) {
    DIBSECTION section{};
    GetObjectA(bitmap, sizeof section, &section);
    const BITMAP& facts = section.dsBm;
    // The pixels number the palette's entries as they stand: nothing is left to match, neither at
    // the cost of time nor of colours.
    struct {
        BITMAPINFOHEADER header;
        WORD entries[256] = {};
    } info;
    info.header = platform::HeaderFromTop(facts.bmWidth, facts.bmHeight, 8);
    info.header.biClrUsed = platform::kDisplayColors;
    for (WORD i = 0; i < platform::kDisplayColors; ++i) info.entries[i] = i;

    const HPALETTE former = SelectPalette(target, DisplayPalette(), !active);
    RealizePalette(target);
    SetStretchBltMode(target, COLORONCOLOR);
    GdiFlush();
    StretchDIBits(target, 0, 0, width, height, 0, 0, facts.bmWidth, facts.bmHeight, facts.bmBits,
                  reinterpret_cast<const BITMAPINFO*>(&info), DIB_PAL_COLORS, SRCCOPY);
    SelectPalette(target, former, FALSE);
}

}  // namespace vistrel::controls
