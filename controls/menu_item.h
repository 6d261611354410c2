// One item of a menu that a window enables and disables.
#pragma once

#include "controls/menu.h"

namespace vistrel::controls {

class MenuItem {
 public:
    /// `menu` or one of its drop-downs holds the item with number `id`.
    void Attach(platform::MenuHandle menu, int id) {
        menu_ = menu;
        id_ = id;
    }
    bool Enabled() const { return IsMenuEnabled(menu_, id_); }
    void SetEnabled(bool enabled) { SetMenuEnabled(menu_, id_, enabled); }

 private:
    platform::MenuHandle menu_ = nullptr;
    int id_ = 0;
};

}  // namespace vistrel::controls
