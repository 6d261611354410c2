// A list that drops down, with or without a field to type into.
#pragma once

#include <functional>
#include <string>

#include "controls/control.h"

namespace vistrel::controls {

class ComboBox : public Control {
 public:
    int Count() const;
    /// Adds an entry; where it lands (0-based), which depends on whether the template sorts.
    int AddItem(const std::string& text);
    std::string Item(int index) const;
    void RemoveItem(int index);
    void Clear();
    /// The entry whose text is this, ignoring case; negative when there is none.
    int FindItem(const std::string& text) const;
    /// Position of the chosen entry; -1 for none.
    int ListIndex() const;
    /// Chooses an entry, or none with -1. Click does not run.
    void SetListIndex(int index);
    /// Fills the field. Change does not run.
    void SetText(const std::string& text);

    /// Selects the whole text of the field, so that typing replaces it.
    void SelectText();

    /// The user chose an entry; ListIndex and Text are those of the choice already.
    std::function<void()> Click;
    /// The user typed in the field.
    std::function<void()> Change;

    void OnCommand(int code) override;

 private:
    bool fillingField_ = false;
};

}  // namespace vistrel::controls
