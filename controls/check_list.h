// A list of texts with a check mark before each, which the user sets and clears by a click or the
// space bar. Items are numbered from 0.
#pragma once

#include <string>

#include "controls/control.h"

namespace vistrel::controls {

/// The template makes it a list view of the style LVS_REPORT without a heading.
class CheckList : public Control {
 public:
    void AddItem(const std::string& text, bool checked);
    void Clear();
    int Count() const;
    std::string ItemText(int index) const;
    bool Checked(int index) const;
    void SetChecked(int index, bool checked);

    /// Makes an item the one that the keys act on.
    void GiveKeys(int index);

    /// Between these nothing is painted; the end paints all once.
    void SuspendPainting();
    void ResumePainting();

 protected:
    void OnAttach() override;
};

}  // namespace vistrel::controls
