#include "controls/label.h"

#include <windows.h>

#include "platform/instance.h"

namespace vistrel {

Label::~Label() {
    if (font_) DeleteObject(font_);
}

void Label::SetForeColor(long color) {
    color_ = color;
    Repaint();
}

void Label::SetFont(bool bold, int points, const char* face) {
    LOGFONTA font{};
    GetObjectA(reinterpret_cast<HFONT>(Send(WM_GETFONT)), sizeof font, &font);
    if (bold) font.lfWeight = FW_BOLD;
    if (points > 0) {
        const HDC screen = GetDC(nullptr);
        font.lfHeight = -MulDiv(points, GetDeviceCaps(screen, LOGPIXELSY), 72);
        ReleaseDC(nullptr, screen);
    }
    if (*face) lstrcpynA(font.lfFaceName, face, LF_FACESIZE);
    const HFONT made = CreateFontIndirectA(&font);
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(made), TRUE);
    if (font_) DeleteObject(font_);
    font_ = made;
}

void Label::SetHandPointer(const char* cursorResource) { cursor_ = cursorResource; }

void Label::OnCommand(int code) {
    if (code == STN_CLICKED && Click) Click();
}

bool Label::SetPointer() {
    if (!cursor_) return false;
    SetCursor(LoadCursorA(ProgramInstance(), cursor_));
    return true;
}

}  // namespace vistrel
