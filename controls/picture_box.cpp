#include "controls/picture_box.h"

#include <windows.h>

#include "controls/display_palette.h"
#include "controls/window.h"
#include "platform/drawing_objects.h"
#include "platform/files.h"
#include "platform/instance.h"

namespace vistrel::controls {
namespace {

/// Grey as the system draws it: pressed into the ground, with light at its lower right.
void DrawGreyText(HDC target, const char* text, const RECT& place) {
    SetBkMode(target, TRANSPARENT);
    RECT light = place;
    OffsetRect(&light, 1, 1);
    SetTextColor(target, GetSysColor(COLOR_3DHIGHLIGHT));
    DrawTextA(target, text, -1, &light, DT_CENTER | DT_WORDBREAK);
    RECT grey = place;
    SetTextColor(target, GetSysColor(COLOR_GRAYTEXT));
    DrawTextA(target, text, -1, &grey, DT_CENTER | DT_WORDBREAK);
}

}  // namespace

void RegisterPictureBoxClass() {
    WNDCLASSEXA c{};
    c.cbSize = sizeof c;
    c.style = CS_DBLCLKS;
    c.lpfnWndProc = DefWindowProcA;
    c.hInstance = platform::ProgramInstance();
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
    LetTabStop();
    ReleaseCanvas();
    FindWhyEmpty();
    Repaint();
}

void PictureBox::SetTag(const std::string& tag) {
    SetText(tag);
    if (hasPicture_) return;
    FindWhyEmpty();
    Repaint();
}

void PictureBox::FindWhyEmpty() {
    const std::string path = Tag();
    if (path.empty())
        whyEmpty_ = kNoPicture;
    else
        whyEmpty_ = platform::FileAttributes(path) ? "cannot be read as a picture" : "no file";
}

platform::DeviceContext PictureBox::Canvas() {
    const Size size{ScaleWidth(), ScaleHeight()};
    if (canvas_ && canvasSize_.width == size.width && canvasSize_.height == size.height)
        return canvas_;
    ReleaseCanvas();
    const HDC screen = GetDC(handle());
    canvas_ = platform::NewMemoryContext(screen);
    bitmap_ = HasPalette(screen) ? DisplayPaletteBitmap(size.width, size.height)
                                 : platform::NewBitmap(screen, size.width, size.height);
    ReleaseDC(handle(), screen);
    if (!bitmap_ || !canvas_) {
        DeleteObject(bitmap_);
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
    LetTabStop();
    // Every pixel is painted over: erasing first would only flicker.
    InvalidateRect(handle(), nullptr, FALSE);
}

void PictureBox::HidePointer() {
    pointerHidden_ = true;
    SetCursor(nullptr);
}

bool PictureBox::SetPointer() {
    if (pointerHidden_) {
        SetCursor(nullptr);
        return true;
    }
    if (!movable_ || !hasPicture_) return false;
    SetCursor(LoadCursorA(nullptr, reinterpret_cast<LPCSTR>(IDC_SIZEALL)));
    return true;
}

bool PictureBox::InActiveWindow() const { return GetActiveWindow() == parent()->handle(); }

void PictureBox::PaintEmpty(platform::DeviceContext target) const {
    const RECT all{0, 0, ScaleWidth(), ScaleHeight()};
    FillRect(target, &all, GetSysColorBrush(COLOR_BTNFACE));
    const auto font = reinterpret_cast<HFONT>(SendMessageA(parent()->handle(), WM_GETFONT, 0, 0));
    const HGDIOBJ former = SelectObject(target, font);
    RECT text = all;
    const int height = DrawTextA(target, whyEmpty_, -1, &text, DT_CALCRECT | DT_WORDBREAK);
    DrawGreyText(target, whyEmpty_, {0, (all.bottom - height) / 2, all.right, all.bottom});
    SelectObject(target, former);
}

void PictureBox::Paint(platform::DeviceContext target) {
    if (PaintInstead) {
        PaintInstead(target);
        return;
    }
    if (!hasPicture_) {
        PaintEmpty(target);
        return;
    }
    const RECT all{0, 0, ScaleWidth(), ScaleHeight()};
    if (HasPalette(target)) {
        PaintThroughPalette(target, bitmap_, ScaleWidth(), ScaleHeight(),
                            InActiveWindow() && !leavesColors_);
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
            DrawFocusMark(paint.hdc);
            EndPaint(handle(), &paint);
            result = 0;
            return true;
        }
        case WM_SIZE:
            InvalidateRect(handle(), nullptr, FALSE);
            return false;
        case WM_CONTEXTMENU:
            // The mouse's menu opens at its release; this is the key's.
            if (!MouseUp) return false;
            MouseUp(kRightButton, {ScaleWidth() / 2, ScaleHeight() / 2});
            result = 0;
            return true;
        default:
            return OnKeyboard(message, wParam) ||
                   Control::OnMessage(message, wParam, lParam, result);
    }
}

}  // namespace vistrel::controls
