#include "controls/check_list.h"

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <climits>

namespace vistrel::controls {
namespace {

constexpr int kLongestText = 1024;
/// The list's own pictures of a box, clear and checked.
constexpr UINT kClear = 1;
constexpr UINT kChecked = 2;

}  // namespace

void CheckList::OnAttach() {
    Send(LVM_SETEXTENDEDLISTVIEWSTYLE, LVS_EX_CHECKBOXES, LVS_EX_CHECKBOXES);
    LVCOLUMNA column{};
    column.mask = LVCF_WIDTH;
    // As wide as the list beside its scroll bar.
    RECT r{};
    GetClientRect(handle(), &r);
    column.cx = r.right - GetSystemMetrics(SM_CXVSCROLL);
    SendPointer(LVM_INSERTCOLUMNA, 0, &column);
}

void CheckList::AddItem(const std::string& text, bool checked) {
    LVITEMA item{};
    item.mask = LVIF_TEXT;
    item.iItem = INT_MAX;
    item.pszText = const_cast<char*>(text.c_str());
    SetChecked(static_cast<int>(SendPointer(LVM_INSERTITEMA, 0, &item)), checked);
}

void CheckList::Clear() { Send(LVM_DELETEALLITEMS); }

int CheckList::Count() const { return static_cast<int>(Send(LVM_GETITEMCOUNT)); }

std::string CheckList::ItemText(int index) const {
    char text[kLongestText] = "";
    LVITEMA item{};
    item.pszText = text;
    item.cchTextMax = kLongestText;
    SendPointer(LVM_GETITEMTEXTA, static_cast<WPARAM>(index), &item);
    return text;
}

bool CheckList::Checked(int index) const {
    const auto state =
        static_cast<UINT>(Send(LVM_GETITEMSTATE, static_cast<WPARAM>(index), LVIS_STATEIMAGEMASK));
    return state == INDEXTOSTATEIMAGEMASK(kChecked);
}

void CheckList::SetChecked(int index, bool checked) {
    LVITEMA item{};
    item.stateMask = LVIS_STATEIMAGEMASK;
    item.state = INDEXTOSTATEIMAGEMASK(checked ? kChecked : kClear);
    SendPointer(LVM_SETITEMSTATE, static_cast<WPARAM>(index), &item);
}

void CheckList::GiveKeys(int index) {
    LVITEMA item{};
    item.stateMask = LVIS_FOCUSED;
    item.state = LVIS_FOCUSED;
    SendPointer(LVM_SETITEMSTATE, static_cast<WPARAM>(index), &item);
}

void CheckList::SuspendPainting() { Send(WM_SETREDRAW, FALSE); }

void CheckList::ResumePainting() {
    Send(WM_SETREDRAW, TRUE);
    Repaint();
}

}  // namespace vistrel::controls
