#include "controls/drive_list.h"

#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>

#include <algorithm>

#include "platform/drives.h"
#include "platform/instance.h"

namespace vistrel::controls {
namespace {

constexpr int kIconSize = 16;

int IconOfKind(platform::DriveKind kind) {
    switch (kind) {
        case platform::DriveKind::Removable:
            return 0;
        case platform::DriveKind::CdRom:
            return 2;
        case platform::DriveKind::Remote:
            return 3;
        case platform::DriveKind::RamDisk:
            return 4;
        default:
            return 1;
    }
}

/// What stands in the list for a drive. Asking a floppy drive for its label would start its motor.
std::string Caption(const std::string& root, platform::DriveKind kind) {
    const std::string letter = root.substr(0, 2);
    const std::string label =
        kind == platform::DriveKind::Removable ? std::string() : platform::VolumeLabel(root);
    return label.empty() ? letter : letter + " [" + label + "]";
}

}  // namespace

void DriveList::OnAttach() {
    // The height of an entry was asked for before anybody could answer.
    const auto fontHeight = Send(CB_GETITEMHEIGHT, 0);
    const auto height = std::max<std::intptr_t>(fontHeight, kIconSize + 1);
    Send(CB_SETITEMHEIGHT, 0, height);
    Send(CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), std::max<std::intptr_t>(fontHeight, kIconSize));
}

void DriveList::LoadIcons(int bitmapResource, long transparent) {
    icons_ =
        ImageList_LoadImageA(platform::ProgramInstance(), MAKEINTRESOURCEA(bitmapResource),
                             kIconSize, 0, static_cast<COLORREF>(transparent), IMAGE_BITMAP, 0);
}

void DriveList::Fill() {
    Send(CB_RESETCONTENT);
    for (const std::string& root : platform::DriveRoots()) {
        const platform::DriveKind kind = platform::KindOfDrive(root);
        const auto index = SendPointer(CB_ADDSTRING, 0, Caption(root, kind).c_str());
        Send(CB_SETITEMDATA, static_cast<WPARAM>(index), IconOfKind(kind));
    }
    SetDrive(lastDrive_);
}

std::string DriveList::Drive() const { return Text(); }

bool DriveList::SetDrive(const std::string& drive) {
    if (drive.size() < 2) return false;
    // The beginning of an entry is compared, whatever its case and its label.
    const auto index =
        SendPointer(CB_FINDSTRING, static_cast<WPARAM>(-1), drive.substr(0, 2).c_str());
    if (index < 0) return false;
    Send(CB_SETCURSEL, static_cast<WPARAM>(index));
    lastDrive_ = Drive();
    return true;
}

void DriveList::OnCommand(int code) {
    // Walking through the open list is no choice yet: no drive is to be read for it.
    const bool chosen = code == CBN_CLOSEUP || (code == CBN_SELCHANGE && !Send(CB_GETDROPPEDSTATE));
    if (!chosen || Drive() == lastDrive_) return;
    lastDrive_ = Drive();
    if (Change) Change();
}

void DriveList::OnDrawItem(const void* item) {
    const auto& draw = *static_cast<const DRAWITEMSTRUCT*>(item);
    const bool selected = (draw.itemState & ODS_SELECTED) != 0;
    FillRect(draw.hDC, &draw.rcItem, GetSysColorBrush(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    if (draw.itemID != static_cast<UINT>(-1)) {
        RECT place = draw.rcItem;
        const int top = place.top + (place.bottom - place.top - kIconSize) / 2;
        if (icons_)
            ImageList_Draw(icons_, static_cast<int>(draw.itemData), draw.hDC, place.left + 2, top,
                           ILD_TRANSPARENT);
        place.left += kIconSize + 6;

        char caption[MAX_PATH + 8] = {};
        if (Send(CB_GETLBTEXTLEN, draw.itemID) < static_cast<LRESULT>(sizeof caption))
            SendPointer(CB_GETLBTEXT, draw.itemID, caption);
        SetBkMode(draw.hDC, TRANSPARENT);
        SetTextColor(draw.hDC, GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
        DrawTextA(draw.hDC, caption, -1, &place,
                  DT_LEFT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }
    if (draw.itemState & ODS_FOCUS) DrawFocusRect(draw.hDC, &draw.rcItem);
}

}  // namespace vistrel::controls
