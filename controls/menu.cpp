#include "controls/menu.h"

#include <windows.h>

#include "platform/instance.h"

namespace vistrel::controls {

OwnedMenu LoadMenuResource(int id) {
    return LoadMenuA(platform::ProgramInstance(), MAKEINTRESOURCEA(id));
}

platform::MenuHandle SubMenu(platform::MenuHandle menu, int place) {
    return GetSubMenu(menu, place);
}

OwnedMenu NewPopUpMenu() { return CreatePopupMenu(); }

void AddMenuItem(platform::MenuHandle menu, int id, const std::string& caption) {
    AppendMenuA(menu, MF_STRING, static_cast<UINT_PTR>(id), caption.c_str());
}

void AddMenuSeparator(platform::MenuHandle menu) { AppendMenuA(menu, MF_SEPARATOR, 0, nullptr); }

void AddMenuItemBefore(platform::MenuHandle menu, int before, int id, const std::string& caption) {
    InsertMenuA(menu, static_cast<UINT>(before), MF_BYCOMMAND | MF_STRING,
                static_cast<UINT_PTR>(id), caption.c_str());
    InsertMenuA(menu, static_cast<UINT>(before), MF_BYCOMMAND | MF_SEPARATOR, 0, nullptr);
}

void RemoveItemBefore(platform::MenuHandle menu, int id) {
    for (int place = 0; place < GetMenuItemCount(menu); ++place) {
        if (GetMenuItemID(menu, place) != static_cast<UINT>(id)) continue;
        DeleteMenu(menu, static_cast<UINT>(place), MF_BYPOSITION);
        DeleteMenu(menu, static_cast<UINT>(place), MF_BYPOSITION);
        return;
    }
}

void EmptyMenu(platform::MenuHandle menu) {
    while (DeleteMenu(menu, 0, MF_BYPOSITION)) {
    }
}

void SetMenuMark(platform::MenuHandle menu, int id, bool checked) {
    CheckMenuItem(menu, static_cast<UINT>(id), checked ? MF_CHECKED : MF_UNCHECKED);
}

bool HasMenuMark(platform::MenuHandle menu, int id) {
    return (GetMenuState(menu, static_cast<UINT>(id), MF_BYCOMMAND) & MF_CHECKED) != 0;
}

void SetMenuEnabled(platform::MenuHandle menu, int id, bool enabled) {
    EnableMenuItem(menu, static_cast<UINT>(id), enabled ? MF_ENABLED : MF_GRAYED);
}

bool IsMenuEnabled(platform::MenuHandle menu, int id) {
    return (GetMenuState(menu, static_cast<UINT>(id), MF_BYCOMMAND) & (MF_GRAYED | MF_DISABLED)) ==
           0;
}

void SetMenuCaption(platform::MenuHandle menu, int id, const std::string& caption) {
    // ModifyMenu would take the mark away.
    MENUITEMINFOA info{};
    info.cbSize = 44;  // the size that Windows 95 knows on 32 bits; others are told apart below
#ifdef _WIN64
    info.cbSize = sizeof info;
#endif
    info.fMask = MIIM_TYPE;
    info.fType = MFT_STRING;
    info.dwTypeData = const_cast<char*>(caption.c_str());
    SetMenuItemInfoA(menu, static_cast<UINT>(id), FALSE, &info);
}

std::string MenuCaption(platform::MenuHandle menu, int id) {
    std::string text(256, '\0');
    text.resize(static_cast<std::size_t>(
        GetMenuStringA(menu, static_cast<UINT>(id), text.data(), 256, MF_BYCOMMAND)));
    return text;
}

}  // namespace vistrel::controls
