#include "controls/display_palette.h"

#include <windows.h>

namespace vistrel {
namespace {

constexpr int kLevels = 6;
constexpr int kColors = kLevels * kLevels * kLevels;

// The 8 x 8 ordered-dither matrix of Bayer, 0 to 63.
constexpr std::uint8_t kThresholds[8][8] = {
    {0, 32, 8, 40, 2, 34, 10, 42},  {48, 16, 56, 24, 50, 18, 58, 26},
    {12, 44, 4, 36, 14, 46, 6, 38}, {60, 28, 52, 20, 62, 30, 54, 22},
    {3, 35, 11, 43, 1, 33, 9, 41},  {51, 19, 59, 27, 49, 17, 57, 25},
    {15, 47, 7, 39, 13, 45, 5, 37}, {63, 31, 55, 23, 61, 29, 53, 21}};

/// The level of a value between two levels, rounded up where it passes the threshold.
int LevelOf(int value, int threshold) {
    return (value * (kLevels - 1) * 64 / 255 + threshold) / 64;
}

}  // namespace

bool HasPalette(DeviceContext device) {
    return (GetDeviceCaps(device, RASTERCAPS) & RC_PALETTE) != 0;
}

PaletteHandle DisplayPalette() {
    // Lives as long as the program: every window that paints a picture realises it.
    static const HPALETTE palette = [] {
        struct {
            WORD version = 0x300;
            WORD count = kColors;
            PALETTEENTRY entries[kColors];
        } colors;
        for (int i = 0; i < kColors; ++i)
            colors.entries[i] = {static_cast<BYTE>(i / 36 * 51), static_cast<BYTE>(i / 6 % 6 * 51),
                                 static_cast<BYTE>(i % 6 * 51), 0};
        return CreatePalette(reinterpret_cast<const LOGPALETTE*>(&colors));
    }();
    return palette;
}

std::vector<std::uint8_t> DitherToDisplayPalette(const std::uint8_t* rgb, int width, int height) {
    const int stride = (width + 3) & ~3;
    std::vector<std::uint8_t> indices(static_cast<std::size_t>(stride) * height);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x, rgb += 3) {
            const int threshold = kThresholds[y & 7][x & 7];
            indices[static_cast<std::size_t>(y) * stride + x] = static_cast<std::uint8_t>(
                36 * LevelOf(rgb[0], threshold) + 6 * LevelOf(rgb[1], threshold) +
                LevelOf(rgb[2], threshold));
        }
    return indices;
}

}  // namespace vistrel
