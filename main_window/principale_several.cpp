// Several sets at once, and copies of sets.
#include <algorithm>
#include <numeric>

#include "controls/drag_out.h"
#include "core/duplicate_set.h"
#include "core/logo_set.h"
#include "core/rotation.h"
#include "main_window/names_in_lines.h"
#include "main_window/principale.h"
#include "platform/file_offer.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/pointer.h"

namespace vistrel::main_window {

Principale::SelectedSets Principale::WhatIsSelected() const {
    if (savedView_) return *savedView_;
    if (selectedBefore_) return *selectedBefore_;
    const auto names = SelectedNames();
    const int shown = MyList.SelectedItem();
    return {shown < 0 ? std::string() : MyList.ItemText(shown), {names.begin(), names.end()}};
}

/// In the list's order.
std::vector<std::string> Principale::SelectedNames() const {
    std::vector<std::string> names;
    for (const int item : MyList.SelectedItems()) names.push_back(MyList.ItemText(item));
    return names;
}

/// Those that the list shows; the pictures do not follow.
void Principale::MarkAgain(const SelectedSets& sets) {
    const int shown = MyList.FindItem(sets.shown);
    if (shown >= 0) {
        MyList.Select(shown);
        MyList.EnsureVisible(shown);
    }
    if (sets.all.size() < 2) return;
    std::vector<int> items;
    for (int i = 0; i < MyList.Count(); ++i)
        if (sets.all.contains(MyList.ItemText(i))) items.push_back(i);
    MyList.SelectJust(items);
}

void Principale::SelectAgain(const SelectedSets& sets) {
    const bool isSo = sets.all.size() == 1 && SelectedNames() == std::vector{sets.shown};
    if (isSo) return;
    MarkAgain(sets);
    ShowListaLogo();
}

// Of several sets the one is shown that the keys act on. Many become selected one after the other:
// the last is shown when all are.
void Principale::ShowOneOfSeveral() {
    severalTimer_.SetEnabled(false);
    if (savedView_ || !ASetIsSelected()) return;
    const core::LogoSet set{settings_.logoPath, MyList.ItemText(MyList.SelectedItem())};
    if (Imag[0].Tag() != set.Screens()[0]) ShowListaLogo();
}

void Principale::ItmSelectAll_Click() {
    EndInstalledView();
    std::vector<int> all(static_cast<std::size_t>(MyList.Count()));
    std::iota(all.begin(), all.end(), 0);
    MyList.SelectJust(all);
}

bool Principale::ConfirmDeletingSeveral(std::size_t count) {
    if (settings_.confirmLogosetDelete != 1) return true;
    return platform::Confirm(handle(),
                             "Are you sure you want to delete " + std::to_string(count) +
                                 " logo sets? This operation will delete all files contained in "
                                 "their folders!",
                             platform::DefaultAnswer::Yes, "Confirm deletions");
}

// Unlike one set alone, a set whose folder is still there stays in the list, and selected.
void Principale::DeleteSeveral() {
    const std::vector<std::string> names = SelectedNames();
    if (!ConfirmDeletingSeveral(names.size())) return;
    const int first = MyList.SelectedItems().front();
    const bool toBin = settings_.deleteInTheRecycleBin == 1;
    std::vector<std::string> left;
    bool isCancelled = false;
    {
        Doing doing(*this, "Deleting logo sets...", "Leaves the sets that are still there");
        left = core::DeleteSets(handle(), settings_.logoPath, names,
                                toBin ? core::Bin::Recycle : core::Bin::Destroy,
                                [&](double share) { return doing.Continue(share); });
        isCancelled = doing.Cancelled();
    }
    for (const std::string& name : names) {
        if (std::find(left.begin(), left.end(), name) != left.end()) continue;
        RemoveSet(name);
        core::RemoveLeftOut(settings_, name);
        if (InstalledSet() == name) SetInstalledSet(std::nullopt);
    }
    ShowFoundSets();
    if (left.empty()) return SelectAfterDelete(first);
    // Who cancels, or says no to the shell's own question, knows that they are left.
    if (!isCancelled && (!toBin || left.size() < names.size())) TellWhatWasNotDeleted(left);
}

void Principale::TellWhatWasNotDeleted(const std::vector<std::string>& names) {
    platform::Tell(handle(), "These logo sets cannot be deleted, or not all that is in them:\r\n" +
                                 NamesInLines(names));
}

void Principale::ItmDuplicate_Click() {
    if (!OneSetIsSelected()) return;
    const core::LogoSet set{settings_.logoPath, SelectedNames().front()};
    std::optional<std::string> copy;
    {
        Doing doing(*this, "Copying " + set.name + "...");
        copy = core::DuplicateSet(set, [&](double share) { return doing.Continue(share); });
        if (doing.Cancelled()) return;
    }
    if (!copy) {
        platform::Tell(handle(), set.name +
                                     " cannot be copied. The disk may be full, its name too long "
                                     "for a copy of it, or a file in use.");
        return;
    }
    AddSet(*copy);
    VisualizzaNumLogo();
    SelItem(*copy);
    MyList.StartLabelEdit();
}

void Principale::MyList_BeginDrag() {
    controls::DragOut(MyList.handle(), settings_.logoPath, SelectedNames());
}

void Principale::ItmCopy_Click() {
    const std::vector<std::string> names = SelectedNames();
    if (names.empty()) return;
    const platform::BusyPointer busy;
    if (!platform::CopyToClipboard(handle(), settings_.logoPath, names))
        platform::Tell(handle(),
                       "The selected logo sets cannot be copied. They may have been deleted, or "
                       "another program uses the clipboard.");
}

}  // namespace vistrel::main_window
