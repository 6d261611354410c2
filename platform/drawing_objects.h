// Making the system's objects for drawing, of which there may be no more: then they are null. For
// sources only: it brings windows.h with it. Whoever makes one deletes it, as ever.
#pragma once

#include <windows.h>

#include "platform/fault.h"

namespace vistrel::platform {

inline bool NoMoreObjects() { return fault::ShouldFail(fault::Kind::Drawing); }

inline HDC NewMemoryContext(HDC like) {
    return NoMoreObjects() ? nullptr : CreateCompatibleDC(like);
}

inline HBITMAP NewBitmap(HDC like, int width, int height) {
    return NoMoreObjects() ? nullptr : CreateCompatibleBitmap(like, width, height);
}

/// A bitmap whose pixels lie in memory at `bits`; `info` is a BITMAPINFO with its colours.
inline HBITMAP NewBitmapInMemory(HDC like, const void* info, void** bits) {
    if (NoMoreObjects()) return nullptr;
    return CreateDIBSection(like, static_cast<const BITMAPINFO*>(info), DIB_RGB_COLORS, bits,
                            nullptr, 0);
}

inline HFONT NewFont(const LOGFONTA& font) {
    return NoMoreObjects() ? nullptr : CreateFontIndirectA(&font);
}

inline HBRUSH NewBrush(COLORREF color) {
    return NoMoreObjects() ? nullptr : CreateSolidBrush(color);
}

/// `colors` is a LOGPALETTE with all its entries.
inline HPALETTE NewPalette(const void* colors) {
    return NoMoreObjects() ? nullptr : CreatePalette(static_cast<const LOGPALETTE*>(colors));
}

}  // namespace vistrel::platform
