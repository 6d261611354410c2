// Menus from the resources.
#pragma once

#include <string>

#include "platform/handles.h"

namespace vistrel {

MenuHandle LoadMenuResource(int id);
void FreeMenu(MenuHandle menu);
/// The drop-down at a place of a menu bar, from 0.
MenuHandle SubMenu(MenuHandle menu, int place);

MenuHandle NewPopUpMenu();
void AddMenuItem(MenuHandle menu, int id, const std::string& caption);
void AddMenuSeparator(MenuHandle menu);
void RemoveLastMenuItem(MenuHandle menu);
void EmptyMenu(MenuHandle menu);

// Each finds the item by its number, in drop-downs too.
void SetMenuMark(MenuHandle menu, int id, bool checked);
bool HasMenuMark(MenuHandle menu, int id);
void SetMenuEnabled(MenuHandle menu, int id, bool enabled);
bool IsMenuEnabled(MenuHandle menu, int id);
void SetMenuCaption(MenuHandle menu, int id, const std::string& caption);
std::string MenuCaption(MenuHandle menu, int id);

}  // namespace vistrel
