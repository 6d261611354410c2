#include "pictures/preview/draw_resource.h"

#include <windows.h>

#include <vector>

#include "pictures/preview/draw_rgb.h"
#include "platform/instance.h"

namespace vistrel::preview {
namespace {

struct Pixels {
    int width = 0;
    int height = 0;
    std::vector<std::uint8_t> rgb;
};

/// The pixels of a bitmap as 24-bit red, green, blue, rows from the top.
Pixels PixelsOf(HBITMAP bitmap) {
    BITMAP facts{};
    GetObjectA(bitmap, sizeof facts, &facts);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = facts.bmWidth;
    info.bmiHeader.biHeight = -facts.bmHeight;
    info.bmiHeader.biPlanes = 1;
    // Four bytes per pixel, so that no row is padded.
    info.bmiHeader.biBitCount = 32;
    Pixels pixels{static_cast<int>(facts.bmWidth), static_cast<int>(facts.bmHeight), {}};
    std::vector<RGBQUAD> rows(static_cast<std::size_t>(facts.bmWidth) * facts.bmHeight);
    const HDC screen = GetDC(nullptr);
    GetDIBits(screen, bitmap, 0, static_cast<UINT>(facts.bmHeight), rows.data(), &info,
              DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    pixels.rgb.reserve(rows.size() * 3);
    for (const RGBQUAD& pixel : rows)
        pixels.rgb.insert(pixels.rgb.end(), {pixel.rgbRed, pixel.rgbGreen, pixel.rgbBlue});
    return pixels;
}

}  // namespace

void ShowPictureResource(const char* name, controls::PictureBox& box) {
    const auto bitmap = static_cast<HBITMAP>(
        LoadImageA(platform::ProgramInstance(), name, IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION));
    if (!bitmap) return;
    const Pixels pixels = PixelsOf(bitmap);
    DeleteObject(bitmap);
    box.SetScaleSize({pixels.width, pixels.height});
    // Drawn as every picture is, so that a display of few colours does it no harm.
    ImgDLLDrawRGB(box.Canvas(), pixels.rgb.data(), pixels.width, pixels.height, 0, 0, pixels.width,
                  pixels.height, 0);
    box.Keep();
}

}  // namespace vistrel::preview
