// How a list looks: its views, their columns, and where it is scrolled to.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "controls/list_view.h"
#include "controls/win32.h"

namespace vistrel::controls {
namespace {

/// Beside a column's text, on both sides together; the icon's is in front of a name.
constexpr int kBesideText = 14;
constexpr int kIconBeforeName = 18;

}  // namespace

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

void ListView::SetDetailColumns(const std::string& longestName, std::vector<DetailColumn> columns) {
    longestName_ = longestName;
    details_ = std::move(columns);
}

int ListView::RoomFor(const std::string& text) const {
    return static_cast<int>(SendPointer(LVM_GETSTRINGWIDTHA, 0, const_cast<char*>(text.c_str()))) +
           kBesideText;
}

void ListView::AddDetailColumns() {
    if (detailWidths_.empty()) {
        detailWidths_.push_back(RoomFor(longestName_) + kIconBeforeName);
        for (const DetailColumn& detail : details_)
            detailWidths_.push_back(std::max(RoomFor(detail.heading), RoomFor(detail.longest)));
    }
    SetColumnWidth(detailWidths_.front());
    for (std::size_t i = 0; i < details_.size(); ++i) {
        LVCOLUMNA column{};
        column.mask = LVCF_TEXT | LVCF_WIDTH | LVCF_FMT | LVCF_SUBITEM;
        column.fmt = details_[i].isNumber ? LVCFMT_RIGHT : LVCFMT_LEFT;
        column.cx = detailWidths_[i + 1];
        column.pszText = const_cast<char*>(details_[i].heading.c_str());
        column.iSubItem = static_cast<int>(i) + 1;
        SendPointer(LVM_INSERTCOLUMNA, i + 1, &column);
    }
    detailsShown_ = true;
    for (int i = 0; i < Count(); ++i) AskForDetails(i);
}

void ListView::RemoveDetailColumns() {
    detailsShown_ = false;
    for (std::size_t i = 0; i < detailWidths_.size(); ++i)
        detailWidths_[i] = static_cast<int>(Send(LVM_GETCOLUMNWIDTH, i));
    for (std::size_t i = details_.size(); i > 0; --i) Send(LVM_DELETECOLUMN, i);
}

// The texts are asked for when they are painted: those of thousands of items would take long.
void ListView::AskForDetails(int index) {
    for (std::size_t i = 0; i < details_.size(); ++i) {
        LVITEMA item{};
        item.iSubItem = static_cast<int>(i) + 1;
        item.pszText = LPSTR_TEXTCALLBACKA;
        SendPointer(LVM_SETITEMTEXTA, static_cast<WPARAM>(index), &item);
    }
}

void ListView::TellDetail(void* info) {
    LVITEMA& item = static_cast<NMLVDISPINFOA*>(info)->item;
    if (!(item.mask & LVIF_TEXT) || item.iSubItem < 1 || !Detail) return;
    lstrcpynA(item.pszText, Detail(item.iItem, item.iSubItem - 1).c_str(), item.cchTextMax);
}

ListViewMode ListView::Mode() const {
    switch (GetWindowLongA(handle(), GWL_STYLE) & LVS_TYPEMASK) {
        case LVS_ICON:
            return ListViewMode::Pictures;
        case LVS_REPORT:
            return detailsShown_ ? ListViewMode::Details : ListViewMode::Report;
        default:
            return ListViewMode::List;
    }
}

void ListView::SetMode(ListViewMode mode) {
    const LONG style = GetWindowLongA(handle(), GWL_STYLE) & ~LVS_TYPEMASK;
    const LONG view = mode == ListViewMode::Pictures ? LVS_ICON
                      : mode == ListViewMode::List   ? LVS_LIST
                                                     : LVS_REPORT;
    if (detailsShown_ && mode != ListViewMode::Details) RemoveDetailColumns();
    SetWindowLongA(handle(), GWL_STYLE, style | view);
    if (!detailsShown_ && mode == ListViewMode::Details) AddDetailColumns();
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
