// The Logo browser's window: its controls and menus, and how a session begins and ends.
#include "editor/select_picture_form.h"

#include <utility>

#include "controls/drag.h"
#include "core/generali.h"
#include "core/library.h"
#include "editor/command_status.h"
#include "help/context_numbers.h"
#include "platform/files.h"
#include "platform/message_box.h"
#include "platform/pointer.h"
#include "resources/ids.h"

namespace vistrel::editor {
namespace {

constexpr long kIconTransparent = 0xFF00FF;

}  // namespace

SelPictureForm::SelPictureForm(EditorHost& host)
    : Window("SelPictureForm", IDD_SelPictureForm), host_(host) {
    AddControls();
    ConnectBrowser();
    ConnectSlots();
    AttachMenus();
}

SelPictureForm::~SelPictureForm() = default;

void SelPictureForm::AddControls() {
    namespace number = help_number;
    const controls::Part parts[] = {
        {Drive1, ID_Drive1, number::Drive1},
        {CurPath, ID_CurPath, number::CurPath},
        {Label1, ID_Label1},
        {LogoList, ID_LogoList, number::LogoList},
        {CurView, ID_CurView, number::CurView},
        {ImageInfo, ID_ImageInfo, number::ImageInfo},
        {AdjustButton, ID_AdjustButton, number::AdjustButton,
         "Frames, lightens and letters the selected picture"},
        {Dir1, ID_Dir1},
        {Frame1, ID_Frame1},
        {OptCompSet, ID_OptCompSet, number::OptCompSet},
        {OptDefShut, ID_OptDefShut, number::OptDefShut},
        {OptOnlyStart, ID_OptOnlyStart, number::OptOnlyStart},
        {Label3, ID_Label3},
        {NameLogoSet, ID_NameLogoSet, number::NameLogoSet},
        {ActButton, ID_ActButton, number::ActButton},
        {CloseButton, ID_CloseButton, number::CloseButton},
        {List1, ID_List1},
        {LblWritten, ID_LblWritten, number::LblWritten},
    };
    AddParts(parts);
    const char* screens[] = {"LOGO.SYS: startup screen", "LOGOW.SYS: wait screen",
                             "LOGOS.SYS: shutdown screen"};
    for (int i = 0; i < 3; ++i) {
        const controls::Part slot[] = {
            {ImgPreview[i], ID_ImgPreview + i, number::ImgPreview[i], screens[i]},
            {LblSlot[i], ID_LblSlot + i},
            {AddButton[i], ID_AddButton + i, number::AddButton},
            {DeleteButton[i], ID_DeleteButton + i, number::DeleteButton},
            {LblNotAval[i], ID_LblNotAval + i},
            {SlotFrame[i], ID_SlotFrame + i},
        };
        AddParts(slot);
    }
}

void SelPictureForm::ConnectBrowser() {
    Drive1.Change = [this] { Drive1_Change(); };
    Dir1.Change = [this] { Dir1_Change(); };
    LogoList.ItemClick = [this](int index) { LogoList_ItemClick(index); };
    LogoList.DblClick = [this] { LogoList_DblClick(); };
    LogoList.KeyPress = [this](char character) { LogoList_KeyPress(character); };
    LogoList.KeyUp = [this](int key) { LogoList_KeyUp(key); };
    LogoList.MouseUp = [this](int button, controls::Point) { LogoList_MouseUp(button); };
    LogoList.ContextMenu = [this](controls::Point screen, bool byKeyboard) {
        if (byKeyboard) ShowManageMenu(screen);
    };
    LogoList.BeginDrag = [this] { LogoList_BeginDrag(); };
    LogoList.BeforeLabelEdit = [this] { return LogoList_BeforeLabelEdit(); };
    LogoList.AfterLabelEdit = [this](const std::string& name) {
        return LogoList_AfterLabelEdit(name);
    };
    CurView.MouseDown = [this](int, controls::Point at) { CurView_MouseDown(at); };
    CurView.MouseMove = [this](int button, controls::Point at) { CurView_MouseMove(button, at); };
    CurView.MouseUp = [this](int button, controls::Point at) {
        Picture_MouseUp(CurView, button, at);
    };
    AdjustButton.Click = [this] { AdjustButton_Click(); };
}

void SelPictureForm::ConnectSlots() {
    OptCompSet.Click = [this] { TypeChosen(SetType::Complete); };
    OptDefShut.Click = [this] { TypeChosen(SetType::DefaultScreens); };
    OptOnlyStart.Click = [this] { TypeChosen(SetType::OnlyStartup); };
    NameLogoSet.Change = [this] { NameLogoSet_Change(); };
    NameLogoSet.Click = [this] { NameLogoSet_Click(); };
    for (int i = 0; i < 3; ++i) {
        ImgPreview[i].MouseUp = [this, i](int button, controls::Point at) {
            Picture_MouseUp(ImgPreview[i], button, at);
        };
        AddButton[i].Click = [this, i] { AddButton_Click(i); };
        DeleteButton[i].Click = [this, i] { DeleteButton_Click(i); };
    }
    ActButton.Click = [this] { ActButton_Click(); };
    CloseButton.Click = [this] { CloseButton_Click(); };
}

void SelPictureForm::AddItem(controls::MenuItem& item, int id, std::function<void()> click) {
    item.Attach(menus_, id);
    commands_[id] = std::move(click);
}

void SelPictureForm::AttachMenus() {
    menus_ = controls::LoadMenuResource(IDM_SelPictureForm);
    for (int i = 0; i < 2; ++i)
        AddItem(OkButton[i], ID_OkButton + i, [this, i] { OkButton_Click(i); });
    AddItem(EliminaSetBtn, ID_EliminaSetBtn, [this] { EliminaSetBtn_Click(); });
    AddItem(ClearAllButton, ID_ClearAllButton, [this] { ClearAllButton_Click(); });
    AddItem(ItmRename, ID_BrowserRename, [this] { ItmRename_Click(); });
    AddItem(ItmDelete, ID_BrowserDelete, [this] { ItmDelete_Click(); });
    AddItem(itmRefresh, ID_BrowserRefresh, [this] { itmRefresh_Click(); });
    for (int i = 0; i < 3; ++i)
        AddItem(ItmSetLogo[i], ID_ItmSetLogo + i, [this, i] { AddButton_Click(i); });
    AddItem(ItmAdjust, ID_ItmAdjust, [this] { AdjustButton_Click(); });
    AddItem(ItmManySets, ID_ItmManySets, [this] { ItmManySets_Click(); });
    AddItem(ItmShowAtStart, ID_BrowserShowAtStart, [this] { ItmShowAtStart_Click(); });
    AddItem(ItmMend, ID_BrowserMend, [this] { ItmMend_Click(); });
    AddItem(ItmMoveColors, ID_ItmMoveSelected, [this] { ItmMoveColors_Click(); });
    // These join the main window's menu while it pops up over a slot.
    for (int i = 0; i < 3; ++i) commands_[ID_ItmAdjustSlot + i] = [this, i] { AdjustSlot(i); };
    commands_[ID_ItmMoveColors] = [this] { MoveColorsOfBox(); };
}

void SelPictureForm::Form_Load() {
    platform::ShowDefaultPointer();
    dragIcon_ = controls::LoadDragIcon("drag");

    for (int i = 0; i < 3; ++i)
        LblSlot[i].SetText(std::string(core::kScreenFileNames[i]) + "\r\n" +
                           core::kScreenTitles[i]);
    LogoList.AddColumn("", 0);
    LogoList.LoadIcons(IDB_Browser, kIconTransparent, {"closed", "sys", "im"});
    Drive1.LoadIcons(IDB_Drives, kIconTransparent);
    Drive1.Fill();
    ImageInfo.SetFont({.bold = true});
    ForgetPicture();
    OptCompSet.SetMark(true);
    GrowToScreen();
    AcceptDrops();
    LogoList.Focus();
}

void SelPictureForm::Form_Activate() {
    if (ActivateOnce) {
        ActivateOnce = false;
        return;
    }
    shownLogoFolder_ = LogoFolder();
    ListNames();
    NameLogoSet.SetListIndex(host_.SelectedSet());
    NameLogoSet.SelectText();
    if (core::IsSingleLogoSet(NameLogoSet.Text())) ChooseByCode(SetType::OnlyStartup);

    const std::string& lastBrowsed = host_.Preferences().searchLogoPath;
    const std::string folder = core::AddBackslash(
        platform::IsFolder(lastBrowsed) ? lastBrowsed : host_.Locations().programFolder);
    GoTo(folder);
}

void SelPictureForm::ListNames() {
    NameLogoSet.Clear();
    for (const std::string& name : host_.SetNames()) NameLogoSet.AddItem(name);
}

bool SelPictureForm::MayEndSession() {
    // Quirk: a set that was only loaded can be saved, and so counts as changed
    // (Session.AsksBeforeDiscardingWhatCouldBeSaved).
    if (!OkButton[0].Enabled() && !OkButton[1].Enabled()) return true;
    return platform::Confirm(handle(),
                             "You haven't saved the last changes. Would you like to discard them?",
                             platform::DefaultAnswer::No);
}

// What the user was asked about is discarded; the list of sets is read at the next start.
void SelPictureForm::SessionEnds() {
    GoWhereAFolderIs();
    host_.Preferences().searchLogoPath = CurrentFolder;
    // One that is gone already is passed over.
    for (int i = 0; i < List1.Count(); ++i) platform::Remove(List1.Item(i));
}

bool SelPictureForm::Form_Unload() {
    GoWhereAFolderIs();
    host_.Preferences().searchLogoPath = CurrentFolder;
    if (!MayEndSession()) return false;
    SessionEnds();
    if (LibraryChanged) {
        host_.LeggiDatiDisco();
        host_.VisualizzaNumLogo();
    }
    for (auto& drop : slotDrops_) drop.reset();
    return true;
}

void SelPictureForm::CheckBtnStatus() {
    ShowWritten("");
    const CommandStatus status =
        StatusOfCommands({SetChanged, NameChanged, !LoadedSet.empty(), !NameLogoSet.Text().empty()},
                         {OkButton[0].Enabled(), OkButton[1].Enabled(), EliminaSetBtn.Enabled()});
    OkButton[0].SetEnabled(status.create);
    OkButton[1].SetEnabled(status.update);
    EliminaSetBtn.SetEnabled(status.deleteSet);
}

void SelPictureForm::EnableImage() {
    SlotsEnabled = true;
    controls::EnableControls(true, AddButton[0], AddButton[1], AddButton[2], AdjustButton);
}

void SelPictureForm::DisableImage() {
    SlotsEnabled = false;
    controls::EnableControls(false, AddButton[0], AddButton[1], AddButton[2], AdjustButton);
}

}  // namespace vistrel::editor
