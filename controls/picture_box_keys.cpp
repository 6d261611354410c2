// A picture box with the keyboard: Space is the left button, the context-menu key the right one,
// and a dotted frame shows that the keys go here.
#include <windows.h>

#include "controls/picture_box.h"

namespace vistrel::controls {
namespace {

/// Pixels between the box's edge and the mark.
constexpr int kMarkInset = 2;

}  // namespace

void PictureBox::OnAttach() {
    tabStop_ = (GetWindowLongA(handle(), GWL_STYLE) & WS_TABSTOP) != 0;
    LetTabStop();
}

// A box that shows nothing has nothing to be done with it: Tab passes it over.
void PictureBox::LetTabStop() {
    if (!tabStop_) return;
    const LONG style = GetWindowLongA(handle(), GWL_STYLE);
    SetWindowLongA(handle(), GWL_STYLE,
                   hasPicture_ ? style | WS_TABSTOP : style & ~LONG{WS_TABSTOP});
}

Point PictureBox::OnScreen(Point at) const {
    POINT point{at.x, at.y};
    ClientToScreen(handle(), &point);
    return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

void PictureBox::DrawFocusMark(platform::DeviceContext target) const {
    if (!HasFocus()) return;
    RECT mark{0, 0, ScaleWidth(), ScaleHeight()};
    InflateRect(&mark, -kMarkInset, -kMarkInset);
    SetTextColor(target, RGB(0, 0, 0));
    SetBkColor(target, RGB(255, 255, 255));
    DrawFocusRect(target, &mark);
}

bool PictureBox::OnKeyboard(unsigned message, std::uintptr_t key) {
    const Point middle{ScaleWidth() / 2, ScaleHeight() / 2};
    switch (message) {
        case WM_SETFOCUS:
        case WM_KILLFOCUS:
            spaceDown_ = false;
            Repaint();
            return false;
        case WM_KEYDOWN:
            spaceDown_ = key == VK_SPACE;
            return false;
        case WM_KEYUP: {
            // A key that went down in a window in front, which it has closed, is not meant for
            // here.
            const bool pressed = spaceDown_ && key == VK_SPACE;
            spaceDown_ = false;
            if (pressed && MouseUp) MouseUp(kLeftButton, middle);
            return pressed;
        }
        default:
            return false;
    }
}

}  // namespace vistrel::controls
