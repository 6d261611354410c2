// The main window's tools: what each is called, what it runs and when it is enabled.
#pragma once

#include <span>
#include <vector>

#include "controls/active_bar.h"

namespace vistrel::main_window {

class Principale;

/// What there has to be for a tool to be enabled.
enum class Needs {
    Nothing,
    SelectedSet,   ///< one, and no others
    SelectedSets,  ///< one or more; what can be done to one only is done to the one that is shown
    SetScreens,    ///< the screens of a set are shown and not the installed ones
};

/// Instead of the number of a menu item.
inline constexpr int kNoItem = -1;

/// A tool, the handler that it runs, and the item of the classic menus that runs it as well.
struct MainTool {
    constexpr MainTool(const controls::Tool& barTool, void (Principale::*handler)(),
                       int menuItem = kNoItem, Needs need = Needs::Nothing)
        : tool(barTool), run(handler), item(menuItem), needs(need) {}

    controls::Tool tool;
    void (Principale::*run)();
    int item;
    Needs needs;
};

std::span<const controls::Band> MainBands();

}  // namespace vistrel::main_window
