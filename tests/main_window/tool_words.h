// A user who gives the main window's commands, and what the bar must say of each.
#pragma once

#include <functional>
#include <span>
#include <string>
#include <vector>

#include "tests/support/main_window/main_window_fixture.h"

namespace vistrel::test {

struct ToolWords {
    const char* name;  ///< empty for a line between commands
    int id;
    const char* menuText;  ///< caption and, behind a tab, the key
    const char* tip;
    const char* category;
};

/// Looks whether the bar has the tool, and whether its button, if it has one, shows its tip.
void ExpectTool(main_window::Principale& main, const ToolWords& words);
/// Looks whether the menu at this place of the menu bar has these tools in this order, and no
/// other.
void ExpectTools(main_window::Principale& main, std::size_t menu, std::span<const ToolWords> tools);

class Commanding : public MainWindow98 {
 protected:
    Commanding();

    /// Runs a command by each of these numbers and looks whether it acted.
    void ForEach(const std::vector<int>& ids,
                 const std::function<void(main_window::Principale& main, int id)>& act);
    /// Runs a command that opens one of our windows, and closes it.
    void ExpectOpens(const std::vector<int>& ids, const char* windowClass);
    /// The arguments of the program that was started in place of the system's own.
    static std::string Recorded();
};

}  // namespace vistrel::test
