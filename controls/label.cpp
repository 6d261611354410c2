#include "controls/label.h"

#include <utility>

#include "platform/drawing_objects.h"
#include "platform/instance.h"
#include "platform/win32.h"

namespace vistrel::controls {

void Label::SetForeColor(long color) {
    if (color == color_) return;
    color_ = color;
    Repaint();
}

void Label::SetFont(const FontChange& change) {
    LOGFONTA font{};
    GetObjectA(reinterpret_cast<HFONT>(Send(WM_GETFONT)), sizeof font, &font);
    if (change.bold) font.lfWeight = FW_BOLD;
    if (change.underline) font.lfUnderline = TRUE;
    if (change.points > 0) {
        const int dotsPerInch = GetDeviceCaps(platform::ScreenContext(), LOGPIXELSY);
        font.lfHeight = -MulDiv(change.points, dotsPerInch, 72);
    }
    if (*change.face) lstrcpynA(font.lfFaceName, change.face, LF_FACESIZE);
    OwnedFont made = platform::NewFont(font);
    Send(WM_SETFONT, reinterpret_cast<WPARAM>(made.get()), TRUE);
    // The one that the control had until now goes with `made`.
    std::swap(font_, made);
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

Size Label::RoomNeededBy(const std::string& text, int width) const {
    const HDC dc = GetDC(handle());
    const HGDIOBJ former = SelectObject(dc, reinterpret_cast<HFONT>(Send(WM_GETFONT)));
    RECT needed{0, 0, width, 0};
    DrawTextA(dc, text.c_str(), -1, &needed, DT_CALCRECT | DT_WORDBREAK | DT_NOPREFIX);
    SelectObject(dc, former);
    ReleaseDC(handle(), dc);
    return {needed.right, needed.bottom};
}

bool Label::HasRoomFor(const std::string& text) const {
    const Rect room = Bounds();
    const Size needed = RoomNeededBy(text, room.width);
    return needed.width <= room.width && needed.height <= room.height;
}

int Label::HeightAt(int width) const { return RoomNeededBy(Text(), width).height; }

void Label::SetBackColor(long color) {
    background_ = platform::NewBrush(static_cast<COLORREF>(color));
    Repaint();
}

platform::BrushHandle Label::BackBrush() const {
    return seeThrough_ ? static_cast<HBRUSH>(GetStockObject(HOLLOW_BRUSH)) : background_.get();
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
