#include "controls/picture_box.h"

#include <windows.h>

#include "controls/display_palette.h"
#include "controls/window.h"
#include "platform/instance.h"

namespace vistrel {

void RegisterPictureBoxClass() {
    WNDCLASSEXA c{};
    c.cbSize = sizeof c;
    c.style = CS_DBLCLKS;
    c.lpfnWndProc = DefWindowProcA;
    c.hInstance = ProgramInstance();
    c.hCursor = LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_ARROW));
    c.lpszClassName = "PictureBox";
    RegisterClassExA(&c);  // a second time it fails, and the first still stands
}

PictureBox::~PictureBox() { ReleaseCanvas(); }

int PictureBox::ScaleWidth() const {
    RECT r{};
    GetClientRect(handle(), &r);
    return r.right;
}

int PictureBox::ScaleHeight() const {
    RECT r{};
    GetClientRect(handle(), &r);
    return r.bottom;
}

void PictureBox::SetScaleSize(Size size) {
    const Rect place = Bounds();
    MoveTo({place.left, place.top, place.width - ScaleWidth() + size.width,
            place.height - ScaleHeight() + size.height});
}

void PictureBox::ReleaseCanvas() {
    if (!canvas_) return;
    SelectObject(canvas_, formerBitmap_);
    DeleteObject(bitmap_);
    DeleteDC(canvas_);
    canvas_ = nullptr;
}

void PictureBox::Clear() {
    hasPicture_ = false;
    ReleaseCanvas();
    Repaint();
}

DeviceContext PictureBox::Canvas() {
    const Size size{ScaleWidth(), ScaleHeight()};
    if (canvas_ && canvasSize_.width == size.width && canvasSize_.height == size.height)
        return canvas_;
    ReleaseCanvas();
    const HDC screen = GetDC(handle());
    canvas_ = CreateCompatibleDC(screen);
    bitmap_ = HasPalette(screen) ? DisplayPaletteBitmap(size.width, size.height)
                                 : CreateCompatibleBitmap(screen, size.width, size.height);
    ReleaseDC(handle(), screen);
    if (!bitmap_) {
        DeleteDC(canvas_);
        return canvas_ = nullptr;
    }
    formerBitmap_ = SelectObject(canvas_, bitmap_);
    canvasSize_ = size;
    const RECT all{0, 0, size.width, size.height};
    FillRect(canvas_, &all, GetSysColorBrush(COLOR_BTNFACE));
    return canvas_;
}

void PictureBox::Keep() {
    hasPicture_ = canvas_ != nullptr;
    // Every pixel is painted over: erasing first would only flicker.
    InvalidateRect(handle(), nullptr, FALSE);
}

bool PictureBox::InActiveWindow() const { return GetActiveWindow() == parent()->handle(); }

void PictureBox::Paint(DeviceContext target) {
    if (PaintInstead) {
        PaintInstead(target);
        return;
    }
    const RECT all{0, 0, ScaleWidth(), ScaleHeight()};
    if (!hasPicture_) {
        FillRect(target, &all, GetSysColorBrush(COLOR_APPWORKSPACE));
        return;
    }
    if (HasPalette(target)) {
        PaintThroughPalette(target, bitmap_, ScaleWidth(), ScaleHeight(), InActiveWindow());
        return;
    }
    if (canvasSize_.width == all.right && canvasSize_.height == all.bottom)
        BitBlt(target, 0, 0, all.right, all.bottom, canvas_, 0, 0, SRCCOPY);
    else
        // The box was resized and its owner has not drawn the picture anew yet.
        StretchBlt(target, 0, 0, all.right, all.bottom, canvas_, 0, 0, canvasSize_.width,
                   canvasSize_.height, SRCCOPY);
}

bool PictureBox::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                           std::intptr_t& result) {
    switch (message) {
        case WM_ERASEBKGND:
            result = 1;
            return true;
        case WM_PAINT: {
            PAINTSTRUCT paint{};
            Paint(BeginPaint(handle(), &paint));
            EndPaint(handle(), &paint);
            result = 0;
            return true;
        }
        case WM_SIZE:
            InvalidateRect(handle(), nullptr, FALSE);
            return false;
        default:
            return Control::OnMessage(message, wParam, lParam, result);
    }
}

}  // namespace vistrel
