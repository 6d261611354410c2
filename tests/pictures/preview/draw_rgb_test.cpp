// Draws 24-bit pixels on a display of true colours.
#include "pictures/preview/draw_rgb.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "controls/display_palette.h"

namespace vistrel::test {

using namespace controls;
using namespace preview;

namespace {

TEST(ImgDLLDrawRGB, LeavesColorsAsTheyAreOnADisplayOfTrueColors) {
    ASSERT_FALSE(DisplayHasPalette());
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(screen);
    const HBITMAP bitmap = CreateCompatibleBitmap(screen, 17, 256);
    const HGDIOBJ former = SelectObject(memory, bitmap);
    std::vector<std::uint8_t> rgb;
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 17; ++x)
            for (const int value : {y, 255 - y, x * 15})
                rgb.push_back(static_cast<std::uint8_t>(value));
    ImgDLLDrawRGB(memory, rgb.data(), 17, 256, 0, 0, 17, 256, 0);
    for (int y = 0; y < 256; ++y)
        for (int x = 0; x < 17; ++x)
            ASSERT_EQ(GetPixel(memory, x, y), RGB(y, 255 - y, x * 15)) << x << " " << y;
    SelectObject(memory, former);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

}  // namespace
}  // namespace vistrel::test
