// A row of tabs.
#pragma once

#include <functional>
#include <string>

#include "controls/control.h"

namespace vistrel::controls {

class TabStrip : public Control {
 public:
    void AddTab(const std::string& caption);
    int Count() const;
    /// Number of the selected tab, from 1.
    int SelectedIndex() const;
    /// Selects a tab by its number, from 1. Click does not run.
    void Select(int index);
    /// Ctrl+Tab and Ctrl+Page Down go to the next tab, Ctrl+Shift+Tab and Ctrl+Page Up to the one
    /// before, as a click on it would. False for any other key.
    bool TurnPage(int key);

    /// Another tab was selected by the user.
    std::function<void()> Click;

    std::intptr_t OnNotify(void* header) override;
};

}  // namespace vistrel::controls
