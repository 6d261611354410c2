// The view of a list with a picture of its own for each item. The control makes room for the
// pictures and paints the names; the pictures are painted over that by who has them, so that only
// those need be there that are in sight.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <algorithm>

#include "controls/list_view.h"
#include "controls/owned_handle.h"
#include "controls/screen_metrics.h"
#include "controls/win32.h"

namespace vistrel::controls {
namespace {

/// What a selected picture is framed with, and what lies between pictures.
constexpr int kFrame = 3;
constexpr int kGap = 10;
constexpr int kIcon = 16;

constexpr int kOemPlus = 0xBB;  // these two have names for newer systems only
constexpr int kOemMinus = 0xBD;

int LineHeight(HWND window) {
    const HDC dc = GetDC(window);
    const HGDIOBJ former =
        SelectObject(dc, reinterpret_cast<HGDIOBJ>(SendMessageA(window, WM_GETFONT, 0, 0)));
    TEXTMETRICA text{};
    GetTextMetricsA(dc, &text);
    SelectObject(dc, former);
    ReleaseDC(window, dc);
    return static_cast<int>(text.tmHeight);
}

void Fill(HDC target, const Rect& area, int systemColor) {
    const RECT r{area.left, area.top, area.right(), area.bottom()};
    FillRect(target, &r, GetSysColorBrush(systemColor));
}

void Frame(HDC target, const Rect& inside, int width, int systemColor) {
    for (int i = 1; i <= width; ++i) {
        const RECT r{inside.left - i, inside.top - i, inside.right() + i, inside.bottom() + i};
        FrameRect(target, &r, GetSysColorBrush(systemColor));
    }
}

}  // namespace

platform::ImageListHandle ListView::Icons() const {
    return reinterpret_cast<HIMAGELIST>(Send(LVM_GETIMAGELIST, LVSIL_SMALL));
}

void ListView::SetPictureSize(Size size) {
    pictureSize_ = size;
    if (Mode() != ListViewMode::Pictures) return;
    MakeRoomForPictures();
    FitScrollBars();
}

// A list of images without any: an item asks for one that is not there, and has room for it.
void ListView::MakeRoomForPictures() {
    const Size room{pictureSize_.width + 2 * kFrame, pictureSize_.height + 2 * kFrame};
    const HIMAGELIST images = ImageList_Create(room.width, room.height, ILC_COLOR, 0, 1);
    const OwnedImageList former =
        reinterpret_cast<HIMAGELIST>(SendPointer(LVM_SETIMAGELIST, LVSIL_NORMAL, images));
    // Names have two lines.
    Send(LVM_SETICONSPACING, 0,
         MAKELPARAM(room.width + kGap, room.height + kGap + 2 * LineHeight(handle())));
    Send(LVM_ARRANGE, LVA_DEFAULT);
    Repaint();
}

int ListView::PicturesInView() const {
    RECT area{};
    GetClientRect(handle(), &area);
    return static_cast<int>(area.right * area.bottom) /
           std::max(pictureSize_.width * pictureSize_.height, 1);
}

bool ListView::IsInView(int index) const {
    RECT area{};
    GetClientRect(handle(), &area);
    RECT icon{};
    icon.left = LVIR_ICON;
    RECT both{};
    return SendPointer(LVM_GETITEMRECT, static_cast<WPARAM>(index), &icon) &&
           IntersectRect(&both, &area, &icon);
}

// The control tells the first item of its other views only. Here items lie in rows.
int ListView::TopPicture() const {
    int first = 0;
    int behind = Count();
    while (first < behind) {
        const int middle = (first + behind) / 2;
        RECT icon{};
        icon.left = LVIR_ICON;
        SendPointer(LVM_GETITEMRECT, static_cast<WPARAM>(middle), &icon);
        if (icon.top < 0)
            first = middle + 1;
        else
            behind = middle;
    }
    return first;
}

// Not by way of the control, which would look through all items for those to be painted, and erase
// this one first.
void ListView::RepaintItem(int index) {
    const HDC dc = GetDCEx(handle(), nullptr, DCX_CACHE | DCX_CLIPCHILDREN);
    PaintItem(dc, index);
    ReleaseDC(handle(), dc);
}

std::intptr_t ListView::OnCustomDraw(const void* draw) {
    const auto& facts = *static_cast<const NMCUSTOMDRAW*>(draw);
    if (Mode() != ListViewMode::Pictures || !PaintPicture) return CDRF_DODEFAULT;
    if (facts.dwDrawStage == CDDS_PREPAINT) return CDRF_NOTIFYITEMDRAW;
    if (facts.dwDrawStage == CDDS_ITEMPREPAINT) return CDRF_NOTIFYPOSTPAINT;
    if (facts.dwDrawStage == CDDS_ITEMPOSTPAINT)
        PaintItem(facts.hdc, static_cast<int>(facts.dwItemSpec));
    return CDRF_DODEFAULT;
}

void ListView::PaintItem(platform::DeviceContext target, int index) {
    RECT icon{};
    icon.left = LVIR_ICON;
    if (!SendPointer(LVM_GETITEMRECT, static_cast<WPARAM>(index), &icon)) return;
    // Versions of the control differ in what they leave around the room.
    const Rect place{
        static_cast<int>((icon.left + icon.right - pictureSize_.width) / 2),
        static_cast<int>((icon.top + icon.bottom - pictureSize_.height) / 2),
        pictureSize_.width,
        pictureSize_.height,
    };
    if (!PaintPicture(target, index, {place.left, place.top})) PaintBlank(target, index, place);
    if (IsSelected(index))
        Frame(target, place, kFrame, HasFocus() ? COLOR_HIGHLIGHT : COLOR_BTNSHADOW);
    else
        Frame(target, place, 1, COLOR_BTNSHADOW);
    PaintMarks(target, index, place);
}

void ListView::PaintBlank(platform::DeviceContext target, int index, const Rect& place) {
    Fill(target, place, COLOR_BTNFACE);
    ImageList_Draw(Icons(), IconNumber(ItemIcon(index)), target,
                   place.left + (place.width - kIcon) / 2, place.top + (place.height - kIcon) / 2,
                   ILD_TRANSPARENT);
}

// Each on a ground of its own: a picture has any colours.
void ListView::PaintMarks(platform::DeviceContext target, int index, const Rect& place) {
    if (!PictureMarks) return;
    int left = place.left + 2;
    for (const std::string& key : PictureMarks(index)) {
        const Rect ground{left, place.bottom() - kIcon - 4, kIcon + 2, kIcon + 2};
        Fill(target, ground, COLOR_WINDOW);
        Frame(target, ground, 1, COLOR_BTNSHADOW);
        ImageList_Draw(Icons(), IconNumber(key), target, ground.left + 1, ground.top + 1,
                       ILD_TRANSPARENT);
        left += kIcon + 5;
    }
}

bool ListView::IsZoom(unsigned message, std::uintptr_t wParam) {
    if (Mode() != ListViewMode::Pictures || !Zoom) return false;
    int steps = 0;
    if (message == WM_MOUSEWHEEL && (wParam & MK_CONTROL) != 0)
        steps = static_cast<short>(HIWORD(wParam)) > 0 ? 1 : -1;
    if (message == WM_KEYDOWN && IsControlDown()) {
        if (wParam == VK_ADD || wParam == kOemPlus) steps = 1;
        if (wParam == VK_SUBTRACT || wParam == kOemMinus) steps = -1;
    }
    if (steps != 0) Zoom(steps);
    return steps != 0;
}

}  // namespace vistrel::controls
