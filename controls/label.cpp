#include "controls/label.h"

#include <windows.h>

#include "platform/instance.h"

namespace vistrel::controls {

Label::~Label() {
    if (font_) DeleteObject(font_);
    if (background_) DeleteObject(background_);
}

void Label::SetForeColor(long color) {
    color_ = color;
    Repaint();
}

void Label::SetFont(const FontChange& change) {
    LOGFONTA font{};
    GetObjectA(reinterpret_cast<HFONT>(Send(WM_GETFONT)), sizeof font, &font);
    if (change.bold) font.lfWeight = FW_BOLD;
    if (change.underline) font.lfUnderline = TRUE;
    if (change.points > 0) {
        const HDC screen = GetDC(nullptr);
        font.lfHeight = -MulDiv(change.points, GetDeviceCaps(screen, LOGPIXELSY), 72);
        ReleaseDC(nullptr, screen);
    }
    if (*change.face) lstrcpynA(font.lfFaceName, change.face, LF_FACESIZE);
    const HFONT made = CreateFontIndirectA(&font);
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(made), TRUE);
    if (font_) DeleteObject(font_);
    font_ = made;
}

void Label::FitToText() {
    const std::string text = Text();
    const HDC dc = GetDC(handle());
    const HGDIOBJ former = SelectObject(dc, reinterpret_cast<HFONT>(Send(WM_GETFONT)));
    SIZE size{};
    GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
    SelectObject(dc, former);
    ReleaseDC(handle(), dc);
    Rect place = Bounds();
    // Room for the last letter's slant and for rounding.
    place.width = static_cast<int>(size.cx) + 4;
    MoveTo(place);
}

void Label::SetBackColor(long color) {
    if (background_) DeleteObject(background_);
    background_ = CreateSolidBrush(static_cast<COLORREF>(color));
    Repaint();
}

platform::BrushHandle Label::BackBrush() const {
    return seeThrough_ ? static_cast<HBRUSH>(GetStockObject(HOLLOW_BRUSH)) : background_;
}

void Label::SetHandPointer(const char* cursorResource) { cursor_ = cursorResource; }

void Label::OnCommand(int code) {
    if (code == STN_CLICKED && Click) Click();
}

bool Label::SetPointer() {
    if (!cursor_) return false;
    SetCursor(LoadCursorA(platform::ProgramInstance(), cursor_));
    return true;
}

}  // namespace vistrel::controls
