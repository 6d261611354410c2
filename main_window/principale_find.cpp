// The box "Find:" over the list, and the order of the list.
#include <algorithm>
#include <utility>

#include "controls/message_loop.h"
#include "core/found_sets.h"
#include "core/library.h"
#include "main_window/principale.h"
#include "platform/pointer.h"

namespace vistrel::main_window {
namespace {

/// More than a window shows, and few enough that a key does not wait for them.
constexpr std::size_t kSetsAtOnce = 200;

}  // namespace

int Principale::SelectedSet() const {
    const int selected = MyList.SelectedItem();
    if (selected < 0) return -1;
    const auto found = std::find(sets_.begin(), sets_.end(), MyList.ItemText(selected));
    return found == sets_.end() ? -1 : static_cast<int>(found - sets_.begin());
}

void Principale::GoToFindBox() {
    FindBox.Focus();
    SelectAllText(FindBox);
}

void Principale::FindBox_Change() { findTimer_.SetEnabled(true); }

/// Enter goes on to what was found.
void Principale::LeaveFindBox() {
    ShowFoundSets();
    if (!ASetIsSelected() && MyList.Count() > 0) {
        EndInstalledView();
        SelItem(MyList.ItemText(0));
    }
    MyList.Focus();
}

void Principale::ShowAllSets() {
    if (FindBox.Text().empty()) return;
    FindBox.SetText("");
    ShowFoundSets();
    MyList.Focus();
}

void Principale::MyList_HeadingClick(int column) {
    order_ = core::NextOrder(order_, static_cast<core::SetColumn>(column));
    ShowFoundSets();
}

bool Principale::FillList(const std::function<bool()>& isWantedNoMore) {
    std::vector<std::string> names = core::FoundSets(sets_, FindBox.Text());
    if (core::NeedsDetails(order_) && !ReadDetails(names)) order_ = {};
    core::SortSets(names, order_, [this](const auto& name) -> auto& { return columns_.Of(name); });
    MyList.SuspendPainting();
    MyList.Clear();
    std::size_t filled = 0;
    for (; filled < names.size(); ++filled) {
        if (filled > 0 && filled % kSetsAtOnce == 0 && isWantedNoMore()) break;
        MyList.AddItem(names[filled], core::IconKeyOfSet(names[filled]));
    }
    MyList.ResumePainting();
    return filled == names.size();
}

/// False when the user has cancelled it: thousands of sets take a while.
bool Principale::ReadDetails(const std::vector<std::string>& names) {
    Doing doing(*this, "Reading the details of the sets...");
    for (std::size_t i = 0; i < names.size(); ++i) {
        columns_.Of(names[i]);
        if (!doing.Continue(static_cast<double>(i) / static_cast<double>(names.size())))
            return false;
    }
    return true;
}

void Principale::ShowFoundSets() {
    ShowFoundSetsUnless([] { return false; });
}

// What is typed next asks for another list, and does not wait for this one.
void Principale::FindTimer_Timer() {
    // Behind a window that tells how far the list is it would be filled twice.
    if (IsEnabled()) ShowFoundSetsUnless(controls::KeyIsWaiting);
}

// The selected sets stay so where they are still shown, and the screens of one with it.
void Principale::ShowFoundSetsUnless(const std::function<bool()>& isWantedNoMore) {
    findTimer_.SetEnabled(false);
    EndEdits();
    const platform::BusyPointer busy;
    const SelectedSets selected = WhatIsSelected();
    const auto whenSelectionChanges = std::exchange(MyList.SelectionChanged, nullptr);
    const bool isFilled = FillList(isWantedNoMore);
    if (isFilled && !savedView_) MarkAgain(selected);
    MyList.SelectionChanged = whenSelectionChanges;
    if (!isFilled) {
        if (!savedView_) selectedBefore_ = selected;
        CheckSetCommands();
        findTimer_.SetEnabled(true);
        return;
    }
    MyList_SelectionChanged();
    VisualizzaNumLogo();
}

void Principale::AddSet(const std::string& name) {
    sets_.push_back(name);
    MyList.AddItem(name, core::IconKeyOfSet(name));
    LibraryHasChanged();
}

void Principale::ReplaceSet(const std::string& from, const std::string& to) {
    std::replace(sets_.begin(), sets_.end(), from, to);
    LibraryHasChanged();
}

void Principale::RemoveSet(const std::string& name) {
    std::erase(sets_, name);
    LibraryHasChanged();
}

void Principale::LibraryHasChanged() {
    columns_.Forget();  // a name may be another set's now
    ShowCounts();
    LookAgain();
}

}  // namespace vistrel::main_window
