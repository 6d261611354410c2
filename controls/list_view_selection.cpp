// Which items of a list are selected, and at which of them the keys go on.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <set>

#include "controls/list_view.h"

namespace vistrel::controls {

int ListView::SelectedItem() const {
    const auto next = [this](LPARAM kind) {
        return static_cast<int>(Send(LVM_GETNEXTITEM, static_cast<WPARAM>(-1), kind));
    };
    const int focused = next(LVNI_SELECTED | LVNI_FOCUSED);
    return focused >= 0 ? focused : next(LVNI_SELECTED);
}

std::vector<int> ListView::SelectedItems() const {
    std::vector<int> items;
    int item = -1;
    while ((item = static_cast<int>(
                Send(LVM_GETNEXTITEM, static_cast<WPARAM>(item), LVNI_SELECTED))) >= 0)
        items.push_back(item);
    return items;
}

int ListView::SelectedCount() const { return static_cast<int>(Send(LVM_GETSELECTEDCOUNT)); }

bool ListView::IsSelected(int index) const {
    return Send(LVM_GETITEMSTATE, static_cast<WPARAM>(index), LVIS_SELECTED) != 0;
}

bool ListView::HasKeys(int index) const {
    return Send(LVM_GETITEMSTATE, static_cast<WPARAM>(index), LVIS_FOCUSED) != 0;
}

void ListView::Select(int index) {
    LVITEMA item{};
    item.stateMask = LVIS_SELECTED | LVIS_FOCUSED;
    selectingByCode_ = true;
    // Only what is selected is touched: going through all of a long list would take its time.
    for (const int former : SelectedItems())
        if (former != index) SendPointer(LVM_SETITEMSTATE, static_cast<WPARAM>(former), &item);
    item.state = item.stateMask;
    if (index >= 0) SendPointer(LVM_SETITEMSTATE, static_cast<WPARAM>(index), &item);
    selectingByCode_ = false;
}

void ListView::SelectToo(int index) {
    if (index < 0) return;  // which would be all of them
    LVITEMA item{};
    item.state = item.stateMask = LVIS_SELECTED;
    selectingByCode_ = true;
    SendPointer(LVM_SETITEMSTATE, static_cast<WPARAM>(index), &item);
    selectingByCode_ = false;
}

void ListView::SelectJust(const std::vector<int>& items) {
    selectingMany_ = true;
    const std::set<int> wanted(items.begin(), items.end());
    LVITEMA item{};
    item.stateMask = LVIS_SELECTED;
    for (const int former : SelectedItems())
        if (!wanted.contains(former))
            SendPointer(LVM_SETITEMSTATE, static_cast<WPARAM>(former), &item);
    for (const int index : wanted) SelectToo(index);
    selectingMany_ = false;
    if (SelectionChanged) SelectionChanged();
}

void ListView::GiveKeys(int index) {
    if (index < 0) return;
    LVITEMA item{};
    item.state = item.stateMask = LVIS_FOCUSED;
    SendPointer(LVM_SETITEMSTATE, static_cast<WPARAM>(index), &item);
}

}  // namespace vistrel::controls
