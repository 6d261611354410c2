#include "controls/display_palette.h"

#include <windows.h>

#include <algorithm>

namespace vistrel {
namespace {

// The system keeps 20 of the 256 colours and leaves 236. Of these 240, the 8 that have only the
// channels' ends are among the system's, so that all find room. The eye tells green best and blue
// worst; errors against the undithered picture, blurred, are a quarter smaller in brightness than
// with 6 levels of each and hardly larger in colour.
constexpr int kChannels = 3;
constexpr int kLevels[kChannels] = {6, 8, 5};
static_assert(kLevels[0] * kLevels[1] * kLevels[2] == kDisplayColors);

/// The values of a channel's levels, and the level that is nearest to each value.
struct Channel {
    std::uint8_t values[8] = {};
    std::uint8_t nearest[256] = {};

    constexpr explicit Channel(int levels) {
        for (int i = 0; i < levels; ++i)
            values[i] = static_cast<std::uint8_t>(i * 255 / (levels - 1));
        for (int value = 0; value < 256; ++value)
            nearest[value] = static_cast<std::uint8_t>((value * (levels - 1) + 127) / 255);
    }
};
constexpr Channel kScales[kChannels] = {Channel(kLevels[0]), Channel(kLevels[1]),
                                        Channel(kLevels[2])};

struct Colors {
    WORD version = 0x300;
    WORD count = kDisplayColors;
    PALETTEENTRY entries[kDisplayColors];

    Colors() {
        PALETTEENTRY* next = entries;
        for (int red = 0; red < kLevels[0]; ++red)
            for (int green = 0; green < kLevels[1]; ++green)
                for (int blue = 0; blue < kLevels[2]; ++blue)
                    *next++ = {kScales[0].values[red], kScales[1].values[green],
                               kScales[2].values[blue], 0};
    }
};

}  // namespace

bool HasPalette(DeviceContext device) {
    return (GetDeviceCaps(device, RASTERCAPS) & RC_PALETTE) != 0;
}

bool DisplayHasPalette() {
    const HDC screen = GetDC(nullptr);
    const bool has = HasPalette(screen);
    ReleaseDC(nullptr, screen);
    return has;
}

PaletteHandle DisplayPalette() {
    // Lives as long as the program: every window that paints a picture realises it.
    static const HPALETTE palette = [] {
        const Colors colors;
        return CreatePalette(reinterpret_cast<const LOGPALETTE*>(&colors));
    }();
    return palette;
}

// Error diffusion of Floyd and Steinberg (1976), each channel by itself: what a pixel is too bright
// is taken from its neighbours, 7/16 from the next, 3, 5 and 1/16 from those below.
std::vector<std::uint8_t> DitherToDisplayPalette(const std::uint8_t* rgb, int width, int height) {
    const int stride = (width + 3) & ~3;
    std::vector<std::uint8_t> indices(static_cast<std::size_t>(stride) * height);
    // In sixteenths; one pixel more at either end, which nobody reads.
    std::vector<int> errors(static_cast<std::size_t>(width + 2) * kChannels);
    for (int y = 0; y < height; ++y) {
        std::uint8_t* out = &indices[static_cast<std::size_t>(y) * stride];
        int next[kChannels] = {};    // from the pixel to the left
        int corner[kChannels] = {};  // for the pixel below, from the one to its left
        int* error = errors.data() + kChannels;
        for (int x = 0; x < width; ++x, ++out) {
            int index = 0;
            for (int c = 0; c < kChannels; ++c, ++rgb, ++error) {
                const int wanted = *rgb + ((*error + next[c] + 8) >> 4);
                const int level = kScales[c].nearest[std::clamp(wanted, 0, 255)];
                const int off = wanted - kScales[c].values[level];
                index = index * kLevels[c] + level;
                next[c] = 7 * off;
                error[-kChannels] += 3 * off;
                *error = corner[c] + 5 * off;
                corner[c] = off;
            }
            *out = static_cast<std::uint8_t>(index);
        }
    }
    return indices;
}

BitmapHandle DisplayPaletteBitmap(int width, int height) {
    struct {
        BITMAPINFOHEADER header{};
        RGBQUAD colors[256] = {};
    } info;
    info.header.biSize = sizeof info.header;
    info.header.biWidth = width;
    info.header.biHeight = -height;
    info.header.biPlanes = 1;
    info.header.biBitCount = 8;
    info.header.biClrUsed = kDisplayColors;
    const Colors palette;
    for (int i = 0; i < kDisplayColors; ++i) {
        const PALETTEENTRY& color = palette.entries[i];
        info.colors[i] = {color.peBlue, color.peGreen, color.peRed, 0};
    }
    void* pixels = nullptr;
    return CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS,
                            &pixels, nullptr, 0);
}

void PaintThroughPalette(DeviceContext target, BitmapHandle bitmap, int width, int height,
                         bool active) {
    DIBSECTION section{};
    GetObjectA(bitmap, sizeof section, &section);
    const BITMAP& facts = section.dsBm;
    // The pixels number the palette's entries as they stand: nothing is left to match, neither at
    // the cost of time nor of colours.
    struct {
        BITMAPINFOHEADER header{};
        WORD entries[256] = {};
    } info;
    info.header.biSize = sizeof info.header;
    info.header.biWidth = facts.bmWidth;
    info.header.biHeight = -facts.bmHeight;
    info.header.biPlanes = 1;
    info.header.biBitCount = 8;
    info.header.biClrUsed = kDisplayColors;
    for (WORD i = 0; i < kDisplayColors; ++i) info.entries[i] = i;

    const HPALETTE former = SelectPalette(target, DisplayPalette(), !active);
    RealizePalette(target);
    SetStretchBltMode(target, COLORONCOLOR);
    GdiFlush();
    StretchDIBits(target, 0, 0, width, height, 0, 0, facts.bmWidth, facts.bmHeight, facts.bmBits,
                  reinterpret_cast<const BITMAPINFO*>(&info), DIB_PAL_COLORS, SRCCOPY);
    SelectPalette(target, former, FALSE);
}

}  // namespace vistrel
