// Menus from the resources.
#pragma once

#include <string>

#include "controls/owned_handle.h"

namespace vistrel::controls {

OwnedMenu LoadMenuResource(int id);
/// The drop-down at a place of a menu bar, from 0.
platform::MenuHandle SubMenu(platform::MenuHandle menu, int place);

OwnedMenu NewPopUpMenu();
void AddMenuItem(platform::MenuHandle menu, int id, const std::string& caption);
void AddMenuSeparator(platform::MenuHandle menu);
/// Puts an item, with a separator behind it, in front of the one with number `before`.
void AddMenuItemBefore(platform::MenuHandle menu, int before, int id, const std::string& caption);
/// Takes such an item away again with its separator.
void RemoveItemBefore(platform::MenuHandle menu, int id);
void EmptyMenu(platform::MenuHandle menu);

// Each finds the item by its number, in drop-downs too.
void SetMenuMark(platform::MenuHandle menu, int id, bool checked);
bool HasMenuMark(platform::MenuHandle menu, int id);
void SetMenuEnabled(platform::MenuHandle menu, int id, bool enabled);
bool IsMenuEnabled(platform::MenuHandle menu, int id);
void SetMenuCaption(platform::MenuHandle menu, int id, const std::string& caption);
std::string MenuCaption(platform::MenuHandle menu, int id);

}  // namespace vistrel::controls
