// Pictures of the screen, taken by tests.
#include <cstdio>

#include "tests/support/user.h"

namespace vistrel::user {

void TakeShot(const std::string& name) {
    char folder[MAX_PATH] = "";
    if (GetEnvironmentVariableA("VISTREL_SHOTS_TO", folder, sizeof folder) == 0) return;

    BITMAPINFOHEADER header = {};
    header.biSize = sizeof header;
    header.biWidth = GetSystemMetrics(SM_CXSCREEN);
    header.biHeight = GetSystemMetrics(SM_CYSCREEN);
    header.biPlanes = 1;
    header.biBitCount = 24;
    header.biSizeImage = (header.biWidth * 3 + 3) / 4 * 4 * header.biHeight;
    HDC screen = GetDC(nullptr);
    HDC memory = CreateCompatibleDC(screen);
    void* bits = nullptr;
    HBITMAP bitmap = CreateDIBSection(screen, reinterpret_cast<BITMAPINFO*>(&header),
                                      DIB_RGB_COLORS, &bits, nullptr, 0);
    HGDIOBJ before = SelectObject(memory, bitmap);
    BitBlt(memory, 0, 0, header.biWidth, header.biHeight, screen, 0, 0, SRCCOPY);
    GdiFlush();

    BITMAPFILEHEADER file_header = {};
    file_header.bfType = 0x4D42;
    file_header.bfOffBits = sizeof file_header + sizeof header;
    file_header.bfSize = file_header.bfOffBits + header.biSizeImage;
    if (std::FILE* file = std::fopen((std::string(folder) + "\\" + name + ".bmp").c_str(), "wb")) {
        std::fwrite(&file_header, sizeof file_header, 1, file);
        std::fwrite(&header, sizeof header, 1, file);
        std::fwrite(bits, 1, header.biSizeImage, file);
        std::fclose(file);
    }
    SelectObject(memory, before);
    DeleteObject(bitmap);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

}  // namespace vistrel::user
