#include "controls/list_view.h"

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <algorithm>

#include "controls/file_drop_target.h"
#include "controls/win32.h"
#include "controls/window.h"
#include "platform/instance.h"

namespace vistrel::controls {
namespace {

// Longer than any file name, so that a whole label always fits.
constexpr int kLongestLabel = 1024;

}  // namespace

ListView::ListView() = default;

ListView::~ListView() = default;

void ListView::AcceptDrops() {
    const auto dropped = [this](const std::vector<std::string>& paths) {
        parent()->EndEdits();
        OLEDragDrop(paths);
    };
    dropTarget_ = std::make_unique<FileDropTarget>(handle(), dropped);
}

void ListView::LoadIcons(int bitmapResource, long transparent,
                         const std::vector<std::string>& keys) {
    iconKeys_ = keys;
    // The list destroys them with itself.
    const HIMAGELIST icons =
        ImageList_LoadImageA(platform::ProgramInstance(), MAKEINTRESOURCEA(bitmapResource), 16, 0,
                             static_cast<COLORREF>(transparent), IMAGE_BITMAP, 0);
    SendPointer(LVM_SETIMAGELIST, LVSIL_SMALL, icons);
}

int ListView::Count() const { return static_cast<int>(Send(LVM_GETITEMCOUNT)); }

int ListView::AddItem(const std::string& text, const std::string& iconKey) {
    LVITEMA item{};
    item.mask = LVIF_TEXT | LVIF_IMAGE;
    item.iItem = INT_MAX;
    item.pszText = const_cast<char*>(text.c_str());
    item.iImage = IconNumber(iconKey);
    const int index = static_cast<int>(SendPointer(LVM_INSERTITEMA, 0, &item));
    if (detailsShown_) AskForDetails(index);
    return index;
}

void ListView::RemoveItem(int index) {
    Send(LVM_DELETEITEM, static_cast<WPARAM>(index));
    if (SelectionChanged) SelectionChanged();
}

void ListView::Clear() {
    Send(LVM_DELETEALLITEMS);
    if (SelectionChanged) SelectionChanged();
}

std::string ListView::ItemText(int index) const {
    std::string text(kLongestLabel, '\0');
    LVITEMA item{};
    item.pszText = text.data();
    item.cchTextMax = kLongestLabel;
    text.resize(static_cast<std::size_t>(
        std::max<LRESULT>(SendPointer(LVM_GETITEMTEXTA, static_cast<WPARAM>(index), &item), 0)));
    return text;
}

void ListView::SetItemText(int index, const std::string& text) {
    LVITEMA item{};
    item.pszText = const_cast<char*>(text.c_str());
    SendPointer(LVM_SETITEMTEXTA, static_cast<WPARAM>(index), &item);
}

int ListView::IconNumber(const std::string& key) const {
    return static_cast<int>(std::find(iconKeys_.begin(), iconKeys_.end(), key) - iconKeys_.begin());
}

std::string ListView::ItemIcon(int index) const {
    LVITEMA item{};
    item.mask = LVIF_IMAGE;
    item.iItem = index;
    SendPointer(LVM_GETITEMA, 0, &item);
    const auto number = static_cast<std::size_t>(item.iImage);
    return number < iconKeys_.size() ? iconKeys_[number] : std::string();
}

void ListView::SetItemIcon(int index, const std::string& iconKey) {
    LVITEMA item{};
    item.mask = LVIF_IMAGE;
    item.iItem = index;
    item.iImage = IconNumber(iconKey);
    SendPointer(LVM_SETITEMA, 0, &item);
}

int ListView::NextItem(const std::string& text, int after) const {
    // A list whose window is gone would answer 0, for ever.
    if (!handle()) return -1;
    LVFINDINFOA find{};
    find.flags = LVFI_STRING;
    find.psz = text.c_str();
    return static_cast<int>(SendPointer(LVM_FINDITEMA, static_cast<WPARAM>(after), &find));
}

int ListView::FindItem(const std::string& text) const {
    // The control's search ignores case; names that differ by case only are told apart here.
    int index = -1;
    while ((index = NextItem(text, index)) >= 0)
        if (ItemText(index) == text) return index;
    return -1;
}

int ListView::FindItemOfAnyCase(const std::string& text) const {
    const int exact = FindItem(text);
    return exact >= 0 ? exact : NextItem(text, -1);
}

void ListView::EnsureVisible(int index) {
    Send(LVM_ENSUREVISIBLE, static_cast<WPARAM>(index), FALSE);
}

int ListView::HitTest(Point at) const {
    LVHITTESTINFO hit{};
    hit.pt = {at.x, at.y};
    return static_cast<int>(SendPointer(LVM_HITTEST, 0, &hit));
}

void ListView::SuspendPainting() { Send(WM_SETREDRAW, FALSE); }

void ListView::ResumePainting() {
    Send(WM_SETREDRAW, TRUE);
    Repaint();
}

void ListView::StartLabelEdit() {
    Focus();
    Send(LVM_EDITLABELA, static_cast<WPARAM>(SelectedItem()));
}

bool ListView::EditingLabel() const { return Send(LVM_GETEDITCONTROL) != 0; }

void ListView::EndEdit() {
    // Taking the focus from it ends the edit as a click elsewhere does. What asks the user about
    // the new text may lead here again.
    if (EditingLabel() && !endingEdit_) Focus();
}

bool ListView::OnEndLabelEdit(const char* text) {
    // Some versions of the control report an edit that changed nothing, others call it cancelled.
    const bool changed = text && *text && ItemText(editedItem_) != text;
    bool taken = false;
    if (changed && AfterLabelEdit) {
        endingEdit_ = true;
        taken = AfterLabelEdit(text);
        endingEdit_ = false;
    }
    if (!taken && LabelChange) LabelChange(ItemText(editedItem_));
    editedItem_ = -1;
    return taken;
}

void ListView::TellTyped(void* label) {
    if (editedItem_ >= 0 && LabelChange) LabelChange(TextOf(static_cast<HWND>(label)));
}

/// A click on the item that is selected already changes nothing that the control would report.
void ListView::TellClick() {
    const int item = HitTest(pressedAt_);
    if (clickTold_ || item < 0 || !IsSelected(item) || !ItemClick) return;
    clickTold_ = true;
    ItemClick(item);
}

Point ListView::MenuPoint() const {
    const int selected = SelectedItem();
    RECT label{};
    label.left = LVIR_LABEL;
    RECT area{};
    GetClientRect(handle(), &area);
    if (selected < 0 || !SendPointer(LVM_GETITEMRECT, static_cast<WPARAM>(selected), &label) ||
        !PtInRect(&area, {label.left, label.top}))
        return Control::MenuPoint();
    POINT below{label.left, label.bottom};
    ClientToScreen(handle(), &below);
    return {static_cast<int>(below.x), static_cast<int>(below.y)};
}

std::intptr_t ListView::OnNotify(void* header) {
    switch (static_cast<const NMHDR*>(header)->code) {
        case LVN_ITEMCHANGED: {
            const auto& change = *static_cast<const NMLISTVIEW*>(header);
            if (!(change.uChanged & LVIF_STATE)) return 0;
            if (!((change.uNewState ^ change.uOldState) & LVIS_SELECTED)) return 0;
            if (selectingMany_) return 0;
            if (SelectionChanged) SelectionChanged();
            if (!(change.uNewState & LVIS_SELECTED) || selectingByCode_ || !ItemClick) return 0;
            // Of many that are selected at once, the user means the one that the keys act on.
            if (!HasKeys(change.iItem) && SelectedCount() > 1) return 0;
            clickTold_ = true;
            ItemClick(change.iItem);
            return 0;
        }
        case NM_CLICK:
        case NM_RCLICK: {
            TellClick();
            // The control waits for the release itself and then tells so.
            POINT at{};
            GetCursorPos(&at);
            ScreenToClient(handle(), &at);
            const int button =
                static_cast<const NMHDR*>(header)->code == NM_CLICK ? kLeftButton : kRightButton;
            if (MouseUp) MouseUp(button, {static_cast<int>(at.x), static_cast<int>(at.y)});
            return 1;
        }
        case LVN_COLUMNCLICK:
            if (HeadingClick) HeadingClick(static_cast<const NMLISTVIEW*>(header)->iSubItem);
            return 0;
        case LVN_DELETEALLITEMS:
            return TRUE;  // not one message more for each of them
        case NM_CUSTOMDRAW:
            return OnCustomDraw(header);
        case NM_DBLCLK:
            if (DblClick) DblClick();
            return 0;
        case LVN_BEGINDRAG:
            if (BeginDrag) BeginDrag();
            return 0;
        case LVN_GETDISPINFOA:
            TellDetail(header);
            return 0;
        case LVN_BEGINLABELEDITA:
            editedItem_ = static_cast<const NMLVDISPINFOA*>(header)->item.iItem;
            return BeforeLabelEdit && !BeforeLabelEdit() ? TRUE : FALSE;
        case LVN_ENDLABELEDITA:
            return OnEndLabelEdit(static_cast<const NMLVDISPINFOA*>(header)->item.pszText);
        default:
            return 0;
    }
}

bool ListView::OnMessage(unsigned message, std::uintptr_t wParam, std::intptr_t lParam,
                         std::intptr_t& result) {
    // Releases arrive as NM_CLICK and NM_RCLICK. The right button's is a message of its own where
    // the control saw the beginning of a drag: the hand was not steady.
    if (message == WM_LBUTTONUP) return false;
    if (IsZoom(message, wParam)) return true;
    if (message == WM_DESTROY) dropTarget_.reset();
    if (message == WM_LBUTTONDOWN || message == WM_RBUTTONDOWN) {
        pressedAt_ = {static_cast<short>(LOWORD(lParam)), static_cast<short>(HIWORD(lParam))};
        clickTold_ = false;
    }
    // From the label's own window, which the control makes while it is edited.
    if (message == WM_COMMAND && HIWORD(wParam) == EN_CHANGE)
        TellTyped(reinterpret_cast<void*>(lParam));
    if (message == WM_SIZE && columnFills_ && Mode() == ListViewMode::Report)
        SetColumnWidth(LOWORD(lParam));
    return Control::OnMessage(message, wParam, lParam, result);
}

}  // namespace vistrel::controls
