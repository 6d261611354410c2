// How the main window shows its sets: as a list or a report, or in their place the screens that are
// installed now.
#include <algorithm>

#include "controls/menu.h"
#include "core/library.h"
#include "main_window/principale.h"
#include "platform/pointer.h"
#include "resources/ids.h"

namespace vistrel::main_window {
namespace {

constexpr long kGreen = 0x008000;

}  // namespace

void Principale::ViewAsList() { ItmViewType_Click(0); }

void Principale::ViewAsReport() { ItmViewType_Click(1); }

void Principale::ViewAsThumbnails() { ShowListAs(controls::ListViewMode::Pictures); }

void Principale::ViewAsDetails() { ShowListAs(controls::ListViewMode::Details); }

void Principale::ItmViewType_Click(int index) {
    settings_.view = static_cast<std::int16_t>(index);
    ShowListAs(index == 0 ? controls::ListViewMode::List : controls::ListViewMode::Report);
}

void Principale::ShowListAs(controls::ListViewMode mode) {
    const int top = MyList.TopItem();
    MyList.SuspendPainting();
    MyList.SetMode(mode);
    MyList.ResumePainting();
    MyList.ScrollTo(top);
    if (ASetIsSelected()) MyList.EnsureVisible(MyList.SelectedItem());
    settings_.thumbnails = mode == controls::ListViewMode::Pictures ? 1 : 0;
    settings_.details = mode == controls::ListViewMode::Details ? 1 : 0;
    CheckViews();
}

void Principale::CheckViews() {
    const struct {
        const char* tool;
        int item;
        controls::ListViewMode mode;
    } views[] = {
        {"ToolListView", ID_ItmViewType, controls::ListViewMode::List},
        {"ToolReportView", ID_ItmViewType + 1, controls::ListViewMode::Report},
        {"ToolThumbnailView", ID_ItmThumbnailView, controls::ListViewMode::Pictures},
        {"ToolDetailsView", ID_ItmDetailsView, controls::ListViewMode::Details},
    };
    for (const auto& view : views) {
        ActiveBar1.SetChecked(view.tool, MyList.Mode() == view.mode);
        controls::SetMenuMark(classicMenus_, view.item, MyList.Mode() == view.mode);
    }
    const int size = settings_.thumbnailSize;
    const bool thumbnails = settings_.thumbnails == 1;
    ActiveBar1.SetEnabled("ToolLargerThumbnails", thumbnails && size < SetThumbnails::kLargest);
    ActiveBar1.SetEnabled("ToolSmallerThumbnails", thumbnails && size > SetThumbnails::kSmallest);
}

void Principale::ZoomThumbnails(int steps) {
    const int size = std::clamp(settings_.thumbnailSize + steps, SetThumbnails::kSmallest,
                                SetThumbnails::kLargest);
    if (size == settings_.thumbnailSize) return;
    settings_.thumbnailSize = static_cast<std::int16_t>(size);
    const int top = MyList.TopItem();
    thumbnails_.Forget();
    MyList.SetPictureSize(SetThumbnails::SizeOf(size));
    MyList.ScrollTo(top);
    if (ASetIsSelected()) MyList.EnsureVisible(MyList.SelectedItem());
    CheckViews();
}

void Principale::ScreensHaveChanged() {
    ForgetThumbnails();
    columns_.Forget();
    if (MyList.Mode() == controls::ListViewMode::Details) MyList.Repaint();
}

void Principale::ForgetThumbnails() {
    thumbnails_.Forget();
    if (MyList.Mode() == controls::ListViewMode::Pictures) MyList.Repaint();
}

void Principale::Form_DisplayChange() { ForgetThumbnails(); }

std::vector<std::string> Principale::MarksOf(int index) const {
    std::vector<std::string> marks;
    const std::string name = MyList.ItemText(index);
    if (core::IsSingleLogoSet(name)) marks.push_back(core::IconKeyOfSet(name));
    if (InstalledSet() == name) marks.push_back(kInstalledMark);
    return marks;
}

Principale::ListPlace Principale::PlaceInList() const {
    return {WhatIsSelected(), MyList.TopItem()};
}

// Reading the list anew has selected the installed set; the user's own choice comes back where it
// is still there.
void Principale::ReturnTo(const ListPlace& place) {
    if (MyList.FindItem(place.selected.shown) < 0) return;
    if (savedView_)
        savedView_ = place.selected;
    else
        SelectAgain(place.selected);
    MyList.ScrollTo(place.top);
}

void Principale::ToggleShowCurrent() {
    ActiveBar1.SetChecked("ToolShowCurrent", !ActiveBar1.Checked("ToolShowCurrent"));
    ItmViewDefOrActual_Click();
}

// Quirk: the menu item runs this too and switches nothing, it only draws the view anew
// (InstalledView.IsNotSwitchedByTheMenuItem).
void Principale::ItmViewDefOrActual_Click() {
    const platform::BusyPointer busy;
    if (ActiveBar1.Checked("ToolShowCurrent"))
        ShowInstalledScreens();
    else
        ShowSetScreens();
}

void Principale::EnableSetScreenCommands(bool enabled) {
    for (const MainTool& row : Tools()) {
        if (row.needs != Needs::SetScreens) continue;
        ActiveBar1.SetEnabled(row.tool.name, enabled);
        if (row.item != kNoItem) controls::SetMenuEnabled(classicMenus_, row.item, enabled);
    }
}

void Principale::ShowInstalledScreens() {
    DefaultLogo.SetTip("Showing current logo setting");
    EnableSetScreenCommands(false);
    LogoType.SetVisible(false);
    LblDefaultLogo.SetVisible(false);
    // Run again while they are shown already, there is nothing new to save.
    savedView_ = WhatIsSelected();
    MyList.Select(-1);
    ShowScreens(core::InstalledScreenPaths(settings_.bootRoot, locations_.windowsDirectory));
    DefaultLogo.SetText("");
    DefaultLogo.SetForeColor(kGreen);
    DefaultLogo.SetText("Current logo setting");
    LookForInstalledSet();
}

void Principale::ShowSetScreens() {
    const SelectedSets former = savedView_.value_or(SelectedSets{});
    LeaveInstalledView();
    if (MyList.FindItem(former.shown) >= 0)
        SelectAgain(former);
    else
        ShowListaLogo();
}

/// Puts everything back but the selection and its screens.
void Principale::LeaveInstalledView() {
    DefaultLogo.SetTip("Default logo set");
    EnableSetScreenCommands(true);
    DefaultLogo.SetForeColor(controls::kBlue);
    savedView_.reset();
    ShowInstalledSet();
    LblDefaultLogo.SetVisible(true);
    LogoType.SetVisible(true);
    CheckSetCommands();
}

/// The user has selected a set, whose screens come next.
void Principale::EndInstalledView() {
    if (!savedView_) return;
    ActiveBar1.SetChecked("ToolShowCurrent", false);
    LeaveInstalledView();
}

}  // namespace vistrel::main_window
