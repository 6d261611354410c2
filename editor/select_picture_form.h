// The logo-set editor, "Logo browser": a browser of folders and pictures, three slots for the
// screens of a set, and the commands that make a set of them.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "adjust/adjustments.h"
#include "boot_show/boot_screens.h"
#include "controls/button.h"
#include "controls/combo_box.h"
#include "controls/drive_list.h"
#include "controls/file_drop_target.h"
#include "controls/label.h"
#include "controls/list_box.h"
#include "controls/list_view.h"
#include "controls/menu_item.h"
#include "controls/owned_handle.h"
#include "controls/picture_box.h"
#include "controls/window.h"
#include "core/save_set.h"
#include "editor/host.h"
#include "pictures/rgb_picture.h"

namespace vistrel::editor {

/// Colours of ImageInfo, which are the verdict on the examined picture.
inline constexpr long kReadyColor = 32768;    ///< a logo screen, used as it is
inline constexpr long kConvertColor = 65535;  ///< converted when it is put into a slot
inline constexpr long kNoPictureColor = 255;

class SelPictureForm : public controls::Window {
 public:
    explicit SelPictureForm(EditorHost& host);
    ~SelPictureForm() override;

    // The browser
    controls::DriveList Drive1;
    controls::Label CurPath;
    controls::Label Label1;
    controls::ListView LogoList;
    controls::PictureBox CurView;
    controls::Label ImageInfo;
    controls::Button AdjustButton;
    controls::ListBox Dir1;  ///< hidden; see Dir1_Change

    // The set; arrays are in the order of LogoScreen
    controls::Frame Frame1;
    controls::OptionButton OptCompSet;
    controls::OptionButton OptDefShut;
    controls::OptionButton OptOnlyStart;
    controls::Label Label3;
    controls::ComboBox NameLogoSet;
    controls::PictureBox
        ImgPreview[3];  ///< the slots; a tag is the path of the file that fills the slot
    controls::Label LblSlot[3];
    controls::Button AddButton[3];
    controls::Button DeleteButton[3];
    controls::Label LblNotAval[3];  ///< shown over a slot that the type of set does not use
    controls::Label SlotFrame[3];   ///< with it
    controls::Button ActButton;
    controls::Button CloseButton;
    controls::ListBox List1;     ///< hidden: the temporary files of this session
    controls::Label LblWritten;  ///< what the last command that saved has written, or, in red,
                                 ///< what is wrong with the screens that are shown

    // Menus mnuAction and MnuManage
    controls::MenuItem OkButton[2];  ///< create, update
    controls::MenuItem EliminaSetBtn;
    controls::MenuItem ClearAllButton;
    controls::MenuItem ItmRename;
    controls::MenuItem ItmDelete;
    controls::MenuItem itmRefresh;
    controls::MenuItem ItmSetLogo[3];
    controls::MenuItem ItmAdjust;
    controls::MenuItem ItmManySets;
    controls::MenuItem ItmShowAtStart;
    controls::MenuItem ItmMend;
    controls::MenuItem ItmMoveColors;

    // What one session holds
    bool SetChanged = false;       ///< slots or type changed since the set was loaded or saved
    bool NameChanged = false;      ///< a name was typed since then
    bool LibraryChanged = false;   ///< sets on disk changed: the main list is read anew at the end
    bool OptionSetByCode = false;  ///< the next option click is the program's, not the user's
    bool SlotsEnabled = false;     ///< the AddButtons are enabled
    bool ActivateOnce = false;     ///< the next activation fills nothing
    bool IsSysFile = false;        ///< the examined picture's name ends in ".SYS"
    std::string LoadedSet;         ///< the set being edited; empty for a new one
    std::string SelectedPicture;   ///< path of the picture examined last
    std::string CurrentFolder;     ///< the folder being browsed, with a backslash
    int LoadedIndex = -1;          ///< place of the loaded set in NameLogoSet

    /// Lists a folder's sub-folders and pictures. False when it cannot be read.
    bool FillList(const std::string& folder);
    /// Lists the current folder anew ("aggiorna dir": refreshes the directory); what is selected
    /// stays so.
    void AggiornaDir();
    /// Examines a file by name and content and shows it.
    void CheckImage(const std::string& path);
    /// Decides which commands of the Action menu are available.
    void CheckBtnStatus();
    void EnableImage();
    void DisableImage();

 protected:
    void Form_Load() override;
    void Form_Activate() override;
    bool Form_Unload() override;
    bool MayEndSession() override;
    void SessionEnds() override;
    void Form_Resize(controls::Size client) override;
    void Form_KeyUp(int key) override;
    controls::Size SmallestSize() const override;
    void MenuCommand(int id) override;
    void MenuOpens(platform::MenuHandle menu) override;

 private:
    enum class SetType { Complete, DefaultScreens, OnlyStartup };

    void AddControls();
    void ConnectBrowser();
    void ConnectSlots();
    void AttachMenus();
    void AddItem(controls::MenuItem& item, int id, std::function<void()> click);

    // Layout
    /// Widths of the three columns' pictures and of the list.
    struct Columns {
        int list = 0;
        int preview = 0;
        int slot = 0;
        bool captionsBeneath = false;  ///< of the slots' pictures, instead of beside
    };
    Columns ColumnsFor(int width, int height) const;
    void GrowToScreen();
    void PlaceList(const controls::Rect& column);
    void PlacePreview(const controls::Rect& column);
    void PlaceTypeAndName(const controls::Rect& column);
    void PlaceSlots(const controls::Rect& column, const Columns& columns);
    void PlaceSlot(int index, const controls::Rect& slot);
    void PlaceBeside(int index, const controls::Rect& slot);
    void PlaceBeneath(int index, const controls::Rect& slot);
    int RoomAbovePreview() const;
    int RoomBelowPreview() const;
    int TypeFrameHeight() const;
    void RedrawPictures();

    // The browser
    void Drive1_Change();
    void Dir1_Change();
    void LogoList_ItemClick(int index);
    void LogoList_DblClick();
    void LogoList_KeyPress(char character);
    void LogoList_KeyUp(int key);
    void LogoList_MouseUp(int button);
    void LogoList_BeginDrag();
    bool LogoList_BeforeLabelEdit();
    bool LogoList_AfterLabelEdit(const std::string& newName);
    void CurView_MouseDown(controls::Point at);
    void CurView_MouseMove(int button, controls::Point at);
    void Picture_MouseUp(const controls::PictureBox& box, int button, controls::Point at);
    void ItmRename_Click();
    void ItmDelete_Click();
    void itmRefresh_Click();
    void ShowManageMenu(controls::Point screen);
    void GoTo(const std::string& folder);
    void BrowseTo(const std::string& folder);
    void ShowPath(const std::string& path);
    void GoUp();
    void GoWhereAFolderIs();
    void SelectInList(const std::string& name);
    void ShowVerdict(long color, const std::string& text);
    void ForgetPicture();
    void ShowPictureAnew();
    std::string SelectedName() const;
    void DragPicture(const controls::Control& source);
    bool RunOpenWith(int id);

    // What is dropped from other programs
    void AcceptDrops();
    void LogoList_OLEDragDrop(const std::vector<std::string>& paths);
    void ImgPreview_OLEDragDrop(int index, const std::vector<std::string>& paths);
    void SelectDropped(const std::vector<std::string>& paths);

    // What follows when something is renamed or deleted
    bool InLogoFolder() const;
    bool TouchesLibrary(const std::string& path) const;
    void FollowRename(const std::string& from, const std::string& to);
    void FollowRenamedSet(const std::string& from, const std::string& to);
    void FollowInstalledSet(const std::string& oldName, const std::string& name);
    void FollowLogoFolder();
    void ReplaceName(const std::string& from, const std::string& to);
    void RemoveName(const std::string& name);
    void FindLoadedIndex();
    void ForgetLoadedSet(const std::string& name);

    // The slots and the set's type
    void OptCompSet_Click();
    void OptDefShut_Click();
    void OptOnlyStart_Click();
    void TypeChosen(SetType type);
    void ChooseByCode(SetType type);
    void ShowType(SetType type);
    void ShowSlot(int index, bool used);
    void KeepSetsOwnSlots();
    void ShowSetsOwnSlots();
    void ShowInSlot(int index, const std::string& path);
    void OptionWasSet();
    void AddButton_Click(int index);
    std::string ConvertSelected();
    void FillSlot(int index, const std::string& path);
    void DeleteButton_Click(int index);
    void ClearAllButton_Click();
    void EmptySlot(int index);

    // Adjusting pictures
    void AdjustButton_Click();
    void AdjustSlot(int index);
    std::string Adjusted(const std::string& path);
    void ShowAsSelected(const std::string& screen);
    void ShowPictureMenu(const controls::PictureBox& box, controls::Point at);
    bool IsAdjustable() const;
    std::vector<std::string> SelectedPictures() const;
    void ItmManySets_Click();

    // Screens as the system shows them
    void ItmShowAtStart_Click();
    void ItmMend_Click();
    void ShowAtStart(const std::vector<boot_show::ScreenFile>& files);
    void ShowBoxAtStart(const controls::PictureBox& box);
    void ShowFocusedAtStart();
    bool HasMendableSelected() const;
    void Mend(const std::string& path);
    bool RunScreenCommand(int id);
    bool ShowsFaults() const;
    void JudgeSelected();
    void JudgeSlot(int index);
    void ShowFaults();
    void ShowWritten(const std::string& text);
    // Moving colours
    void ItmMoveColors_Click();
    void MoveSlot();
    void MoveColorsOfBox();
    std::string Moved(const std::string& path);
    std::optional<pictures::RgbPicture> OriginalOf(const std::string& screen) const;

    // Names, loading and saving
    void ListNames();
    void NameLogoSet_Change();
    void NameLogoSet_Click();
    void ActButton_Click();
    void CloseButton_Click();
    void OkButton_Click(int index);
    void EliminaSetBtn_Click();
    std::string NameToSave();
    core::SetKind KindToSave() const;
    core::SaveResult UpdateLoadedSet(const core::LogoSet& set);
    bool RenameLoadedSet(const std::string& oldName, const std::string& name);
    core::SaveResult CreateNewSet(const core::LogoSet& set);
    void SaveDefaultScreens();
    void LoadSlots(const core::LogoSet& set);
    core::Slots FilesInSlots() const;
    void TagSlots(const core::Slots& slots);
    /// Files that are deleted when the session ends.
    core::NewSessionFile NewFileOfSession();
    void FinishSaving(const core::SaveResult& result, const std::string& what,
                      const std::string& folder);
    const std::string& LogoFolder() const { return host_.Preferences().logoPath; }

    EditorHost& host_;
    controls::OwnedMenu menus_;
    std::map<int, std::function<void()>>
        commands_;  ///< what the menus' items run, by their numbers
    platform::IconHandle dragIcon_ = nullptr;
    SetType type_ = SetType::Complete;
    controls::Size smallest_;  ///< of the whole window: what fits a screen of 640 x 480
    const controls::PictureBox* menuBox_ = nullptr;  ///< whose menu was opened last
    std::string selectedFault_;        ///< what is wrong with the selected picture, in words
    std::string slotFault_[3];         ///< the same of the screens in the slots
    controls::Point pressedAt_;        ///< where the left button went down over CurView
    std::string oldName_;              ///< of the item whose label is edited
    std::string setsOwnTag_[3];        ///< of slots 1 and 2 while they show the shared screens
    adjust::Adjustments adjustments_;  ///< of this session's temporary files
    std::string shownLogoFolder_;      ///< whose sets the session is about
    std::unique_ptr<controls::FileDropTarget> slotDrops_[3];
};

}  // namespace vistrel::editor
