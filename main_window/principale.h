// The main window ("principale": main): the list of logo sets, the three screens of the selected
// one and the commands on them.
#pragma once

#include <array>
#include <functional>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <vector>

#include "controls/active_bar.h"
#include "controls/button.h"
#include "controls/label.h"
#include "controls/list_view.h"
#include "controls/owned_handle.h"
#include "controls/picture_box.h"
#include "controls/text_box.h"
#include "controls/timer.h"
#include "controls/window.h"
#include "core/found_sets.h"
#include "core/installed_origin.h"
#include "core/previous_screens.h"
#include "editor/host.h"
#include "main_window/frm_progress.h"
#include "main_window/set_columns.h"
#include "main_window/set_thumbnails.h"
#include "main_window/tool_table.h"
#include "options/host.h"
#include "platform/pointer.h"

namespace vistrel::options {
class FrmOptions;
}

namespace vistrel::main_window {

class Principale : public controls::Window, public editor::EditorHost, public options::OptionsHost {
 public:
    /// `locations` lack the Startup folder, which is found when the window loads.
    explicit Principale(core::SystemLocations locations);
    ~Principale() override;

    // Of both hosts
    const core::SystemLocations& Locations() const override { return locations_; }
    core::Settings& Preferences() override { return settings_; }
    void LeggiDatiDisco() override;

    // EditorHost
    std::vector<std::string> SetNames() const override { return sets_; }
    int SelectedSet() const override;
    void VisualizzaNumLogo() override;
    std::optional<std::string> InstalledSet() const override;
    void SetInstalledSet(const std::optional<std::string>& name) override;
    void SetWasRenamed(const std::string& from, const std::string& to) override;
    void OpenPicture(const std::string& path, platform::WindowHandle owner) override;
    platform::MenuHandle OpenWithMenu(const std::string& path) override;
    int DefaultOpenWithItem() const override;
    bool OpenWithCommand(int id, platform::WindowHandle owner) override;

    // OptionsHost
    void ShowCustomProgramName() override;
    void SetAnimationShown(bool shown) override;
    std::int16_t BootLogoOption() const override { return bootLogoOption_; }
    void SetBootLogoOption(std::int16_t option) override { bootLogoOption_ = option; }
    void RaiseBootLogoOptionChanged() override { bootLogoOptionChanged_ = true; }

    /// The mark of "Autoshow animation".
    bool AnimationShown() const;
    /// Acts on the current picture ("azione sull'immagine": action on the picture): 0 shows it in
    /// actual size, 1 opens Paint, 2 the custom program.
    void AzioneSuImmagine(int index, platform::WindowHandle owner);
    /// Shows the screens and the kind of the selected set ("mostra la lista del logo"); with none
    /// selected the boxes and the kind are empty.
    void ShowListaLogo();
    /// Selects the set of this name, if there is one, and shows it.
    void SelItem(const std::string& name);
    void LogoRandomChange();

    controls::ActiveBar ActiveBar1;
    controls::ListView MyList;
    controls::PictureBox Imag[3];
    controls::Label LblScreen[3];
    controls::Label DefaultLogo;
    controls::Label LblDefaultLogo;
    controls::Label LblFaults;  ///< what is wrong with the screens that are shown
    controls::Label LogoType;
    controls::Label NumLogo;
    controls::Label LblDoing;     ///< the status line: what the program is doing
    controls::Label LblSelected;  ///< and beside it how many sets are selected
    controls::Label DoingFrame;
    controls::Label SelectedFrame;
    controls::Button BtnStopLooking;
    controls::Label LblFind;
    controls::TextBox FindBox;
    controls::Timer Timer1;

 protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;
    void Form_Resize(controls::Size client) override;
    bool Form_KeyDown(int key) override;
    void Form_KeyUp(int key) override;
    void Form_DisplayChange() override;
    void MenuCommand(int id) override;
    bool Form_ContextMenu(controls::Point screen) override;
    void MenuOpens(platform::MenuHandle menu) override;
    std::intptr_t OnNotify(void* header) override;
    controls::Size SmallestSize() const override;

 private:
    /// Which sets are selected, by their names: the list may be read anew, or show others.
    struct SelectedSets {
        std::string shown;          ///< the one whose screens are shown; empty when none is
        std::set<std::string> all;  ///< that one and the others
    };

    /// Where the user is in the list: what a command that reads it anew goes back to.
    struct ListPlace {
        SelectedSets selected;
        int top = 0;
    };

    /// As long as it lives the status line says what is being done, and the pointer is the
    /// hourglass. What takes longer calls Continue, which shows a window to cancel it.
    class Doing {
     public:
        Doing(Principale& window, const std::string& what, const char* afterCancel = kLeavesAll);
        ~Doing();
        bool Continue(double share) { return progress_.Continue(share); }
        bool Cancelled() const { return progress_.Cancelled(); }
        Doing(const Doing&) = delete;
        Doing& operator=(const Doing&) = delete;

     private:
        Principale& window_;
        platform::BusyPointer busy_;
        FrmProgress progress_;
    };

    static const MainTool kTools[];
    static std::span<const MainTool> Tools();
    static std::vector<controls::Tool> BarTools();

    // Where a click or a key arrives, in the order in which a user meets them.
    void ActiveBar1_Click(const controls::Tool& tool);
    void MyList_ItemClick();
    void MyList_SelectionChanged();
    void MyList_MouseDown(controls::Point at);
    void MyList_MouseUp(int button);
    void MyList_DblClick();
    void InstallOrBrowse();
    void MyList_KeyUp(int key);
    bool MyList_BeforeLabelEdit();
    bool MyList_AfterLabelEdit(const std::string& newName);
    void MyList_OLEDragDrop(const std::vector<std::string>& paths);
    void MyList_BeginDrag();
    void MyList_HeadingClick(int column);
    void FindBox_Change();
    void Imag_MouseUp(int index, int button, controls::Point at);
    void MnuListLogo_Click();
    void ShowDrives(platform::MenuHandle menu);
    void ItmDriveList_Click(int index);
    void Timer1_Timer();

    void ItmRename_Click();
    void ItmDelete_Click();
    void ItmSetDefault_Click();
    void ItmLogoManager_Click();
    void ItmExplore_Click();
    void itmRefresh_Click();
    void ViewAsList();
    void ViewAsReport();
    void ViewAsThumbnails();
    void ViewAsDetails();
    void LargerThumbnails() { ZoomThumbnails(1); }
    void SmallerThumbnails() { ZoomThumbnails(-1); }
    void ItmViewType_Click(int index);
    void ToggleShowCurrent();
    void ItmViewDefOrActual_Click();
    void ItmRandomSpin_Click();
    void ItmPref_Click();
    void ItmContents_Click();
    void ShowTutorial();
    void ItmBugReport_Click();
    void ItmAbout_Click();
    void ItmExit_Click();
    void ItmExport_Click();
    void ItmImport_Click();
    void ItmUndoInstall_Click();
    void ItmDuplicate_Click();
    void ItmCopy_Click();
    void ItmSelectAll_Click();
    void ItmMoveColors_Click();
    void NoWork() {}

    void CloseAll();
    void PutBackWindow();
    void CheckSetCommands();
    void EnableSetScreenCommands(bool enabled);
    bool ASetIsSelected() const;
    bool OneSetIsSelected() const;
    bool IsThere(Needs what) const;
    SelectedSets WhatIsSelected() const;
    std::vector<std::string> SelectedNames() const;
    void SelectAgain(const SelectedSets& sets);
    void MarkAgain(const SelectedSets& sets);
    void ShowOneOfSeveral();
    bool ConfirmDeletingSeveral(std::size_t count);
    void DeleteSeveral();
    void TellWhatWasNotDeleted(const std::vector<std::string>& names);
    void ShowListAs(controls::ListViewMode mode);
    void CheckViews();
    void ZoomThumbnails(int steps);
    void ScreensHaveChanged();
    void ForgetThumbnails();
    std::vector<std::string> MarksOf(int index) const;
    void ShowScreens(const std::array<std::string, 3>& paths);
    void ClearScreens();
    void ShowFaults();
    void FitFaults();
    void ShowScreensAtStart();
    void ItmMend_Click(platform::WindowHandle owner);
    void AShownScreenWasWritten();
    void ShowInstalledSet();
    void ShowInstalledScreens();
    void ShowSetScreens();
    void LeaveInstalledView();
    void EndInstalledView();
    /// False when `isWantedNoMore`, asked from time to time, ended it: the first sets are there.
    bool FillList(const std::function<bool()>& isWantedNoMore);
    bool ReadDetails(const std::vector<std::string>& names);
    void ShowFoundSets();
    void ShowFoundSetsUnless(const std::function<bool()>& isWantedNoMore);
    void FindTimer_Timer();
    void ShowAllSets();
    void GoToFindBox();
    void LeaveFindBox();
    void AddSet(const std::string& name);
    void ReplaceSet(const std::string& from, const std::string& to);
    void RemoveSet(const std::string& name);
    ListPlace PlaceInList() const;
    void ReturnTo(const ListPlace& place);
    void SelectAfterDelete(int index);
    bool ConfirmFormatChange(bool toSingle);
    bool ConfirmOverwriting(const std::string& name);
    std::optional<std::string> ImportArchive(const std::string& path);
    void TellOfArchive(const std::string& text);
    core::InstallTargets Targets() const;
    core::PreviousScreens Previous() const;
    void KeepScreensBefore(const std::string& newSet);
    void CheckUndo();
    int PlaceStatusLine(controls::Size client);
    void ShowCounts();
    void LookForInstalledSet();
    void LookAgain();
    void CompareTimer_Timer();
    void BtnStopLooking_Click();
    void ShowBtnStopLooking(bool shown);
    void LibraryHasChanged();
    void ShowStatus();
    void ShowActualSize(platform::WindowHandle owner);
    void OpenPaint(platform::WindowHandle owner);
    void OpenCustomProgram(platform::WindowHandle owner);
    void ShowPreferences(options::FrmOptions& options, platform::WindowHandle owner);
    void OpenExplorer(const std::string& folder);
    void RedrawScreens();
    platform::MenuHandle ClassicMenu(int place) const;
    bool MenuMark(int id) const;

    /// Places of the classic menus in their resource.
    enum ClassicMenuPlace { kMenuListLogo = 0, kMenuTools = 1, kMenuHelp = 2, kMenuOpenWith = 3 };

    controls::Timer dropTimer_;
    controls::Timer compareTimer_;  ///< ticks while sets are compared with the installed screens
    std::optional<core::InstalledOrigin> origin_;  ///< of these, as far as it is known
    double lookingSince_ = 0;
    controls::Timer idleTimer_;
    controls::Timer restTimer_;
    controls::Timer findTimer_;
    controls::Timer severalTimer_;  ///< ticks once when the selection has become another
    core::SystemLocations locations_;
    core::Settings settings_;
    SetThumbnails thumbnails_;
    SetColumns columns_;
    std::vector<std::string> sets_;  ///< all of them, as the logo folder lists them
    core::SetOrder order_;
    bool installedSetListed_ = false;  ///< the setting names a set of the list
    controls::OwnedMenu classicMenus_;
    std::int16_t bootLogoOption_ = 1;
    bool bootLogoOptionChanged_ = false;
    bool companionWanted_ = false;
    bool hasBeenShown_ = false;
    /// What is wrong with the screens that are shown: whole sentences, and more and more briefly.
    std::array<std::string, 4> faultTexts_;
    std::string currentPicture_;
    std::string oldName_;
    controls::Point lastMouseDown_;
    /// What is selected again once the list has all that was found.
    std::optional<SelectedSets> selectedBefore_;
    std::optional<SelectedSets> savedView_;  ///< what the installed view puts back when it is left
    ListPlace placeBehindBrowser_;  ///< where the user goes back to when the Logo browser closes
};

}  // namespace vistrel::main_window
