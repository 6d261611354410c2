// A plain list of texts.
#pragma once

#include <functional>
#include <string>

#include "controls/control.h"

namespace vistrel::controls {

class ListBox : public Control {
 public:
    void AddItem(const std::string& text);
    int Count() const;
    std::string Item(int index) const;
    void Clear();

    /// Another entry was chosen.
    std::function<void()> Change;

    void OnCommand(int code) override;
};

}  // namespace vistrel::controls
