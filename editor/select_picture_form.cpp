// The Logo browser's window: its controls and menus, and how a session begins and ends.
#include "editor/select_picture_form.h"

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
    Add(Drive1, ID_Drive1);
    Add(CurPath, ID_CurPath);
    Add(Label1, ID_Label1);
    Add(LogoList, ID_LogoList);
    Add(CurView, ID_CurView);
    Add(ImageInfo, ID_ImageInfo);
    Add(AdjustButton, ID_AdjustButton, "Frames, lightens and letters the selected picture");
    Add(Dir1, ID_Dir1);
    Add(Frame1, ID_Frame1);
    Add(OptCompSet, ID_OptCompSet);
    Add(OptDefShut, ID_OptDefShut);
    Add(OptOnlyStart, ID_OptOnlyStart);
    Add(Label3, ID_Label3);
    Add(NameLogoSet, ID_NameLogoSet);
    for (int i = 0; i < 3; ++i) {
        Add(ImgPreview[i], ID_ImgPreview + i);
        Add(LblSlot[i], ID_LblSlot + i);
        Add(AddButton[i], ID_AddButton + i);
        Add(DeleteButton[i], ID_DeleteButton + i);
        Add(LblNotAval[i], ID_LblNotAval + i);
        Add(SlotFrame[i], ID_SlotFrame + i);
    }
    Add(ActButton, ID_ActButton);
    Add(CloseButton, ID_CloseButton);
    Add(List1, ID_List1);
    Add(LblWritten, ID_LblWritten);
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

void SelPictureForm::AttachMenus() {
    menus_ = controls::LoadMenuResource(IDM_SelPictureForm);
    for (int i = 0; i < 2; ++i) OkButton[i].Attach(menus_, ID_OkButton + i);
    EliminaSetBtn.Attach(menus_, ID_EliminaSetBtn);
    ClearAllButton.Attach(menus_, ID_ClearAllButton);
    ItmRename.Attach(menus_, ID_BrowserRename);
    ItmDelete.Attach(menus_, ID_BrowserDelete);
    itmRefresh.Attach(menus_, ID_BrowserRefresh);
    for (int i = 0; i < 3; ++i) ItmSetLogo[i].Attach(menus_, ID_ItmSetLogo + i);
    ItmAdjust.Attach(menus_, ID_ItmAdjust);
    ItmManySets.Attach(menus_, ID_ItmManySets);
}

void SelPictureForm::Form_Load() {
    platform::ShowDefaultPointer();
    dragIcon_ = controls::LoadDragIcon("drag");
    ImgPreview[0].SetTip("LOGO.SYS: startup screen");
    ImgPreview[1].SetTip("LOGOW.SYS: wait screen");
    ImgPreview[2].SetTip("LOGOS.SYS: shutdown screen");
    SetHelpNumbers();

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
    LogoList.Focus();
}

void SelPictureForm::SetHelpNumbers() {
    Drive1.SetHelpNumber(help_number::Drive1);
    CurPath.SetHelpNumber(help_number::CurPath);
    LogoList.SetHelpNumber(help_number::LogoList);
    CurView.SetHelpNumber(help_number::CurView);
    ImageInfo.SetHelpNumber(help_number::ImageInfo);
    AdjustButton.SetHelpNumber(help_number::AdjustButton);
    OptCompSet.SetHelpNumber(help_number::OptCompSet);
    OptDefShut.SetHelpNumber(help_number::OptDefShut);
    OptOnlyStart.SetHelpNumber(help_number::OptOnlyStart);
    NameLogoSet.SetHelpNumber(help_number::NameLogoSet);
    for (int i = 0; i < 3; ++i) {
        ImgPreview[i].SetHelpNumber(help_number::ImgPreview[i]);
        AddButton[i].SetHelpNumber(help_number::AddButton);
        DeleteButton[i].SetHelpNumber(help_number::DeleteButton);
    }
    ActButton.SetHelpNumber(help_number::ActButton);
    CloseButton.SetHelpNumber(help_number::CloseButton);
    LblWritten.SetHelpNumber(help_number::LblWritten);
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
    if (Drive1.SetDrive(folder)) Drive1_Change();
    BrowseTo(folder);
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
    return true;
}

void SelPictureForm::CheckBtnStatus() {
    LblWritten.SetText("");
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
