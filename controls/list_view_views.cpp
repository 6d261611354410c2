// How a list looks: its views, the column of the report, and where it is scrolled to.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include "controls/list_view.h"
#include "controls/win32.h"

namespace vistrel::controls {

void ListView::AddColumn(const std::string& heading, int width) {
    LVCOLUMNA column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cx = width;
    column.pszText = const_cast<char*>(heading.c_str());
    SendPointer(LVM_INSERTCOLUMNA, 0, &column);
}

void ListView::SetColumnWidth(int width) { Send(LVM_SETCOLUMNWIDTH, 0, MAKELPARAM(width, 0)); }

void ListView::FitColumn() {
    SetColumnWidth(PlaceOnScreen(handle()).width - 2 * GetSystemMetrics(SM_CXEDGE) -
                   GetSystemMetrics(SM_CXVSCROLL));
}

ListViewMode ListView::Mode() const {
    switch (GetWindowLongA(handle(), GWL_STYLE) & LVS_TYPEMASK) {
        case LVS_ICON:
            return ListViewMode::Pictures;
        case LVS_REPORT:
            return ListViewMode::Report;
        default:
            return ListViewMode::List;
    }
}

void ListView::SetMode(ListViewMode mode) {
    const LONG style = GetWindowLongA(handle(), GWL_STYLE) & ~LVS_TYPEMASK;
    const LONG view = mode == ListViewMode::Report     ? LVS_REPORT
                      : mode == ListViewMode::Pictures ? LVS_ICON
                                                       : LVS_LIST;
    SetWindowLongA(handle(), GWL_STYLE, style | view);
    if (mode == ListViewMode::Pictures) MakeRoomForPictures();
    if (columnFills_ && mode == ListViewMode::Report) {
        RECT r{};
        GetClientRect(handle(), &r);
        SetColumnWidth(static_cast<int>(r.right));
    }
    FitScrollBars();
    Repaint();
}

// Some versions of the list keep the scroll bars of the former view, or of pictures of another
// size, until their own size changes.
void ListView::FitScrollBars() {
    const SCROLLINFO none{sizeof none, SIF_ALL, 0, 0, 0, 0, 0};
    SetScrollInfo(handle(), SB_HORZ, &none, FALSE);
    SetScrollInfo(handle(), SB_VERT, &none, FALSE);
    const Rect place = Bounds();
    MoveTo({place.left, place.top, place.width, place.height - 1});
    MoveTo(place);
}

int ListView::TopItem() const {
    return Mode() == ListViewMode::Pictures ? TopPicture()
                                            : static_cast<int>(Send(LVM_GETTOPINDEX));
}

void ListView::ScrollTo(int top) {
    // Coming from below, the item ends up as the first one.
    EnsureVisible(Count() - 1);
    EnsureVisible(top);
}

}  // namespace vistrel::controls
