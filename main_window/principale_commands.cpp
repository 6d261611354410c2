// The main window's commands: which handler a tool, a menu item or a key runs, and what it does.
#include <string_view>

#include "about/contacts.h"
#include "about/frm_about_reg.h"
#include "controls/menu.h"
#include "controls/screen_metrics.h"
#include "core/fixed_drives.h"
#include "core/generali.h"
#include "core/install.h"
#include "core/library.h"
#include "core/random_choice.h"
#include "editor/elimina_logo_set.h"
#include "editor/select_picture_form.h"
#include "help/context_numbers.h"
#include "main_window/principale.h"
#include "options/frm_options.h"
#include "platform/clock.h"
#include "platform/help_viewer.h"
#include "platform/pointer.h"
#include "platform/shell.h"
#include "resources/ids.h"

namespace vistrel::main_window {
namespace {

bool IsAboutSelection(Needs needs) {
    return needs == Needs::SelectedSet || needs == Needs::SelectedSets;
}

/// Where "StartUp logo in" stands in its menu.
constexpr int kPlaceOfDrives = 9;

}  // namespace

bool Principale::ASetIsSelected() const { return MyList.SelectedCount() > 0; }

bool Principale::OneSetIsSelected() const { return MyList.SelectedCount() == 1; }

bool Principale::IsThere(Needs what) const {
    return what == Needs::SelectedSet ? OneSetIsSelected() : ASetIsSelected();
}

void Principale::CheckSetCommands() {
    for (const MainTool& row : Tools())
        if (IsAboutSelection(row.needs)) ActiveBar1.SetEnabled(row.tool.name, IsThere(row.needs));
}

void Principale::ActiveBar1_Click(const controls::Tool& tool) {
    for (const MainTool& row : Tools())
        if (std::string_view(row.tool.name) == tool.name) (this->*row.run)();
}

void Principale::MenuCommand(int id) {
    if (ActiveBar1.OnCommand(id)) return;
    if (OpenWithCommand(id, handle())) return;
    if (id == ID_BtnCancel) ShowAllSets();
    if (id == ID_BtnOK && FindBox.HasFocus())
        LeaveFindBox();
    else if (id == ID_BtnOK && MyList.HasFocus() && OneSetIsSelected())
        InstallOrBrowse();
    if (id == ID_ItmViewDefOrActual) ItmViewDefOrActual_Click();
    if (id == ID_ItmMoveColors) ItmMoveColors_Click();
    for (const MainTool& row : Tools())
        if (row.item == id) (this->*row.run)();
    if (id > ID_ItmDriveList && id <= ID_ItmDriveList + 26)
        ItmDriveList_Click(id - ID_ItmDriveList);
}

// A label that is being edited, and the box "Find:", have an undo of their own for the same keys.
bool Principale::Form_KeyDown(int key) {
    if (MyList.EditingLabel()) return false;
    // The list answers its own keys.
    if (key == controls::kKeyF5 && !MyList.HasFocus()) {
        itmRefresh_Click();
        return true;
    }
    if (!controls::IsControlDown()) return false;
    if (key == controls::kKeyF)
        GoToFindBox();
    else if (key == controls::kKeyZ && !FindBox.HasFocus())
        ItmUndoInstall_Click();
    else if (key == controls::kKeyA && MyList.HasFocus())
        ItmSelectAll_Click();
    else if (key == controls::kKeyC && MyList.HasFocus())
        ItmCopy_Click();
    else
        return false;
    return true;
}

void Principale::MenuOpens(platform::MenuHandle menu) {
    CheckUndo();
    if (menu == ClassicMenu(kMenuListLogo)) MnuListLogo_Click();
    if (menu == controls::SubMenu(ClassicMenu(kMenuTools), kPlaceOfDrives)) ShowDrives(menu);
}

bool Principale::Form_ContextMenu(controls::Point screen) {
    PopUpMenu(ClassicMenu(kMenuTools), screen);
    return true;
}

void Principale::ShowDrives(platform::MenuHandle menu) {
    controls::EmptyMenu(menu);
    // Items are numbered from 1.
    int item = ID_ItmDriveList;
    for (const std::string& letter : core::FixedDriveLetters()) {
        controls::AddMenuItem(menu, ++item, letter);
        controls::SetMenuMark(menu, item,
                              letter == core::UpperCase(settings_.bootRoot.substr(0, 1)));
    }
}

void Principale::ItmDriveList_Click(int index) {
    const auto letters = core::FixedDriveLetters();
    if (index <= static_cast<int>(letters.size())) settings_.bootRoot = letters[index - 1] + ":\\";
}

void Principale::MnuListLogo_Click() {
    for (const MainTool& row : Tools())
        if (IsAboutSelection(row.needs))
            controls::SetMenuEnabled(ClassicMenu(kMenuListLogo), row.item, IsThere(row.needs));
}

platform::MenuHandle Principale::ClassicMenu(int place) const {
    return controls::SubMenu(classicMenus_, place);
}

bool Principale::MenuMark(int id) const { return controls::HasMenuMark(classicMenus_, id); }

void Principale::MyList_ItemClick() {
    EndInstalledView();
    ShowListaLogo();
}

void Principale::MyList_MouseDown(controls::Point at) { lastMouseDown_ = at; }

void Principale::MyList_MouseUp(int button) {
    CheckSetCommands();
    if (button == controls::kRightButton && !savedView_)
        ActiveBar1.PopUp("LogoBand", controls::PointerPosition());
}

// While the installed screens are shown nothing is selected, but the tools keep their state.
void Principale::MyList_SelectionChanged() {
    selectedBefore_.reset();
    ShowCounts();
    if (savedView_) return;
    CheckSetCommands();
    if (!ASetIsSelected()) ShowListaLogo();
    severalTimer_.SetEnabled(true);
}

void Principale::MyList_DblClick() {
    if (MyList.HitTest(lastMouseDown_) >= 0 && OneSetIsSelected()) InstallOrBrowse();
}

// What a double click on a set does, and Enter.
void Principale::InstallOrBrowse() {
    if (settings_.actionOnDoubleClick == 0)
        ItmSetDefault_Click();
    else
        ItmLogoManager_Click();
}

void Principale::MyList_KeyUp(int key) {
    // A key that ends or serves the editing of a label is not a command.
    if (MyList.EditingLabel()) return;
    if (key == controls::kKeyDelete && ActiveBar1.Enabled("ToolDelete")) ItmDelete_Click();
    if (key == controls::kKeyF2 && ActiveBar1.Enabled("ToolRename")) ItmRename_Click();
    if (key == controls::kKeyF5) itmRefresh_Click();
}

void Principale::Form_KeyUp(int key) {
    if (key != controls::kKeyF1 && key != controls::kKeyF11) return;
    EndEdits();
    if (key == controls::kKeyF1) ItmContents_Click();
    if (key == controls::kKeyF11) ShowScreensAtStart();
}

void Principale::ItmRename_Click() { MyList.StartLabelEdit(); }

void Principale::ItmDelete_Click() {
    if (MyList.SelectedCount() > 1) return DeleteSeveral();
    const int index = MyList.SelectedItem();
    if (index < 0) return;
    const std::string name = MyList.ItemText(index);
    // No set is loaded in the editor here, so it has no name of its own to compare.
    const core::LogoSet set{settings_.logoPath, name};
    if (!editor::EliminaLogoSet(handle(), *this, set.Path(), name, "")) return;
    if (InstalledSet() == name) SetInstalledSet(std::nullopt);
    MyList.RemoveItem(index);
    RemoveSet(name);
    SelectAfterDelete(index);
    VisualizzaNumLogo();
}

void Principale::ItmSetDefault_Click() {
    if (!ASetIsSelected()) return;
    const bool synchronize = settings_.synchronizeLogos != 0;
    const std::string name = MyList.ItemText(MyList.SelectedItem());
    const Doing doing(*this, "Setting " + name + " as default...");
    KeepScreensBefore(name);
    core::InstallLogoSet(Targets(), name, synchronize);
    companionWanted_ = synchronize;
    SetInstalledSet(name);
    CheckUndo();
}

void Principale::ItmLogoManager_Click() { Timer1.SetEnabled(true); }

void Principale::Timer1_Timer() {
    // Another window came between the command and the tick: the browser waits until it is closed.
    if (!IsEnabled()) return;
    Timer1.SetEnabled(false);
    EndEdits();
    placeBehindBrowser_ = PlaceInList();
    {
        const platform::BusyPointer busy;  // until the browser's own Form_Load
        editor::SelPictureForm editor(*this);
        editor.ShowModal(handle());
    }
    platform::ShowDefaultPointer();
    ReturnTo(placeBehindBrowser_);
}

void Principale::ItmExplore_Click() {
    OpenExplorer(ActiveBar1.Enabled("ToolDelete") && ASetIsSelected()
                     ? settings_.logoPath + MyList.ItemText(MyList.SelectedItem())
                     : settings_.logoPath);
}

void Principale::OpenExplorer(const std::string& folder) {
    platform::ShellOpen(handle(), folder, locations_.programFolder, platform::ShowState::Normal);
}

void Principale::itmRefresh_Click() {
    const ListPlace place = PlaceInList();
    LeggiDatiDisco();
    ReturnTo(place);
}

void Principale::ItmRandomSpin_Click() { LogoRandomChange(); }

void Principale::LogoRandomChange() {
    const int count = MyList.Count();
    if (count <= 1 || savedView_) return;
    core::RandomGenerator generator(platform::SecondsSinceMidnight());
    // Quirk: the selected set is left out, not the installed one
    // (RandomChange.LeavesOutTheSelectedSetAndNotTheInstalledOne).
    const int chosen = core::DrawOther(generator, count, MyList.SelectedItem() + 1);
    SelItem(MyList.ItemText(chosen - 1));
    ItmSetDefault_Click();
}

void Principale::ItmPref_Click() {
    options::FrmOptions options(*this);
    ShowPreferences(options, handle());
}

void Principale::ShowPreferences(options::FrmOptions& options, platform::WindowHandle owner) {
    const ListPlace place = PlaceInList();
    options.ShowModal(owner);
    ReturnTo(place);
}

void Principale::ItmContents_Click() {
    platform::ShowHelp(handle(), HelpFile(), platform::HelpCommand::Index, 0);
}

void Principale::ShowTutorial() {
    platform::ShowHelp(handle(), HelpFile(), platform::HelpCommand::Context, help_number::Tutorial);
}

void Principale::ItmBugReport_Click() {
    platform::ShellOpen(handle(),
                        std::string("mailto:") + about::kSupportAddress + "?subject=Bug report",
                        locations_.programFolder, platform::ShowState::Normal);
}

void Principale::ItmAbout_Click() {
    about::FrmAboutReg about;
    about.ShowModal(handle());
}

void Principale::ItmExit_Click() { Unload(); }

}  // namespace vistrel::main_window
