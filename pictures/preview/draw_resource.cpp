#include "pictures/preview/draw_resource.h"

#include <vector>

#include "pictures/preview/draw_rgb.h"
#include "platform/instance.h"
#include "platform/win32.h"

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
    // Four bytes per pixel, so that no row is padded.
    info.bmiHeader = platform::HeaderFromTop(facts.bmWidth, facts.bmHeight, 32);
    Pixels pixels{static_cast<int>(facts.bmWidth), static_cast<int>(facts.bmHeight), {}};
    std::vector<RGBQUAD> rows(static_cast<std::size_t>(facts.bmWidth) * facts.bmHeight);
    GetDIBits(platform::ScreenContext(), bitmap, 0, static_cast<UINT>(facts.bmHeight), rows.data(),
              &info, DIB_RGB_COLORS);
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
