// Windows' own types and ours. For sources only: it brings windows.h with it.
#pragma once

#include <windows.h>

#include <string>

#include "controls/geometry.h"

namespace vistrel::controls {

inline Rect RectOf(const RECT& r) {
    return {static_cast<int>(r.left), static_cast<int>(r.top), static_cast<int>(r.right - r.left),
            static_cast<int>(r.bottom - r.top)};
}

/// Where a window lies on the screen.
inline Rect PlaceOnScreen(HWND window) {
    RECT r{};
    GetWindowRect(window, &r);
    return RectOf(r);
}

inline std::string TextOf(HWND window) {
    std::string text(static_cast<std::size_t>(GetWindowTextLengthA(window)) + 1, '\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextA(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

}  // namespace vistrel::controls
