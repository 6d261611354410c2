// Pictures of the screen, taken by tests.
#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include "tests/support/user/user.h"

namespace vistrel::user {

namespace {

/// The pixels of a part of the screen, as a bitmap file holds them.
std::vector<char> ScreenPixels(const RECT& part, const BITMAPINFOHEADER& header) {
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(screen, reinterpret_cast<const BITMAPINFO*>(&header),
                                      DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, header.biWidth, header.biHeight, screen, part.left, part.top, SRCCOPY);
    GdiFlush();
    std::vector<char> pixels(header.biSizeImage);
    std::memcpy(pixels.data(), bits, pixels.size());
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
    return pixels;
}

}  // namespace

void TakeShot(const std::string& name, HWND window) {
    char folder[MAX_PATH] = "";
    if (GetEnvironmentVariableA("VISTREL_SHOTS_TO", folder, sizeof folder) == 0) return;

    RECT part = {0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
    if (window) GetWindowRect(window, &part);
    BITMAPINFOHEADER header = {};
    header.biSize = sizeof header;
    header.biWidth = part.right - part.left;
    header.biHeight = part.bottom - part.top;
    header.biPlanes = 1;
    header.biBitCount = 24;
    header.biSizeImage = (header.biWidth * 3 + 3) / 4 * 4 * header.biHeight;

    // Windows that have just opened are painted a moment later.
    std::vector<char> pixels;
    for (int attempt = 0; attempt < 20; ++attempt) {
        WaitUntil([] { return false; }, 100);
        std::vector<char> now = ScreenPixels(part, header);
        const bool still = now == pixels;
        pixels = std::move(now);
        if (still) break;
    }

    BITMAPFILEHEADER file_header = {};
    file_header.bfType = 0x4D42;
    file_header.bfOffBits = sizeof file_header + sizeof header;
    file_header.bfSize = file_header.bfOffBits + header.biSizeImage;
    if (std::FILE* file = std::fopen((std::string(folder) + "\\" + name + ".bmp").c_str(), "wb")) {
        std::fwrite(&file_header, sizeof file_header, 1, file);
        std::fwrite(&header, sizeof header, 1, file);
        std::fwrite(pixels.data(), 1, pixels.size(), file);
        std::fclose(file);
    }
}

}  // namespace vistrel::user
