// Small things that sources do again and again with Windows' own types. For sources only: it brings
// windows.h with it.
#pragma once

#include <windows.h>

namespace vistrel::platform {

/// The screen's device context for as long as it lives.
class ScreenContext {
 public:
    ScreenContext() : context_(GetDC(nullptr)) {}
    ~ScreenContext() { ReleaseDC(nullptr, context_); }
    ScreenContext(const ScreenContext&) = delete;
    ScreenContext& operator=(const ScreenContext&) = delete;

    operator HDC() const { return context_; }

 private:
    HDC context_;
};

/// The header of a bitmap whose rows come from the top; `bits` a pixel.
inline BITMAPINFOHEADER HeaderFromTop(LONG width, LONG height, int bits) {
    BITMAPINFOHEADER header{};
    header.biSize = sizeof header;
    header.biWidth = width;
    header.biHeight = -height;
    header.biPlanes = 1;
    header.biBitCount = static_cast<WORD>(bits);
    return header;
}

}  // namespace vistrel::platform
