#include "pictures/preview/draw_rgb.h"

#include <new>

#include "controls/display_palette.h"
#include "pictures/screen/display_dither.h"
#include "platform/win32.h"

namespace vistrel::preview {
namespace {

/// Header of a bitmap whose rows come from the top, with room for 256 colours.
struct BitmapHeader {
    BITMAPINFOHEADER header;
    RGBQUAD colors[256] = {};

    BitmapHeader(int width, int height, int bits)
        : header(platform::HeaderFromTop(width, height, bits)) {}
    const BITMAPINFO* info() const { return reinterpret_cast<const BITMAPINFO*>(this); }
};

}  // namespace

std::vector<std::uint8_t> BlueGreenRedRows(const std::uint8_t* rgb, int width, int height) {
    const std::size_t stride = (static_cast<std::size_t>(width) * 3 + 3) & ~std::size_t{3};
    std::vector<std::uint8_t> rows(stride * height);
    for (int y = 0; y < height; ++y) {
        std::uint8_t* out = &rows[y * stride];
        for (int x = 0; x < width; ++x, rgb += 3, out += 3) {
            out[0] = rgb[2];
            out[1] = rgb[1];
            out[2] = rgb[0];
        }
    }
    return rows;
}

void ImgDLLDrawRGB(platform::DeviceContext target, const std::uint8_t* rgb, int pixelWidth,
                   int pixelHeight, int x, int y, int width, int height, int) try {
    SetStretchBltMode(target, COLORONCOLOR);
    if (controls::HasPalette(target)) {
        // The display holds 256 colours: without dithering a sky would turn to bands.
        BitmapHeader header(pixelWidth, pixelHeight, 8);
        PALETTEENTRY entries[256];
        const UINT count = GetPaletteEntries(controls::DisplayPalette(), 0, 256, entries);
        for (UINT i = 0; i < count; ++i)
            header.colors[i] = {entries[i].peBlue, entries[i].peGreen, entries[i].peRed, 0};
        const auto rows = screen::DitherToDisplayColors(rgb, pixelWidth, pixelHeight);
        StretchDIBits(target, x, y, width, height, 0, 0, pixelWidth, pixelHeight, rows.data(),
                      header.info(), DIB_RGB_COLORS, SRCCOPY);
        return;
    }
    const BitmapHeader header(pixelWidth, pixelHeight, 24);
    const auto rows = BlueGreenRedRows(rgb, pixelWidth, pixelHeight);
    StretchDIBits(target, x, y, width, height, 0, 0, pixelWidth, pixelHeight, rows.data(),
                  header.info(), DIB_RGB_COLORS, SRCCOPY);
} catch (const std::bad_alloc&) {
    // Without memory nothing is drawn.
}

}  // namespace vistrel::preview
