#include "options/frm_options.h"

#include <algorithm>

#include "controls/menu.h"
#include "controls/screen_metrics.h"
#include "core/browse_for_folder.h"
#include "core/cm_dialog.h"
#include "core/fixed_drives.h"
#include "core/generali.h"
#include "core/startup_action.h"
#include "help/context_numbers.h"
#include "resources/ids.h"

namespace vistrel::options {

FrmOptions::FrmOptions(OptionsHost& host, Page first)
    : Window("FrmOptions", IDD_FrmOptions),
      host_(host),
      first_(first),
      MnuDrive_(controls::NewPopUpMenu()) {
    Add(TabStrip1, ID_TabStrip1);
    TabStrip1.Click = [this] { TabStrip1_Click(); };
    for (int i = 0; i < 4; ++i) Add(MyFrame[i], ID_MyFrame + i);
    AddGeneral();
    AddConfirmations();
    AddImages();
    AddStartUp();
    Add(BtnOK, ID_BtnOK);
    Add(BtnCancel, ID_BtnCancel);
    BtnOK.Click = [this] { BtnOK_Click(); };
    BtnCancel.Click = [this] { BtnCancel_Click(); };
}

FrmOptions::~FrmOptions() = default;

void FrmOptions::AddGeneral() {
    Add(LblLogoPath, ID_LblLogoPath);
    Add(TxtLogoPath, ID_TxtLogoPath);
    Add(btnBrwFolder, ID_btnBrwFolder);
    Add(LblDblAction, ID_LblDblAction);
    Add(DblAction, ID_DblAction);
    Add(ChkShowSplash, ID_ChkShowSplash);
    Add(ChkSyncronize, ID_ChkSyncronize);
    Add(ActiveStart, ID_ActiveStart);
    Add(LblDriveHost, ID_LblDriveHost);
    Add(DriveHost, ID_DriveHost);
    MyFrame[0].Hold({&LblLogoPath, &TxtLogoPath, &btnBrwFolder, &LblDblAction, &DblAction,
                     &ChkShowSplash, &ChkSyncronize, &ActiveStart, &LblDriveHost, &DriveHost});

    TxtLogoPath.GotFocus = [this] { controls::SelectAllText(TxtLogoPath); };
    btnBrwFolder.Click = [this] { btnBrwFolder_Click(); };
    ActiveStart.Click = [this] { ActiveStart_Click(); };
    DriveHost.Click = [this] { DriveHost_Click(); };
}

void FrmOptions::AddConfirmations() {
    Add(ChkConfirmChange, ID_ChkConfirmChange);
    Add(ChkDelConfirm, ID_ChkDelConfirm);
    Add(ChkDeleteRecycle, ID_ChkDeleteRecycle);
    MyFrame[1].Hold({&ChkConfirmChange, &ChkDelConfirm, &ChkDeleteRecycle});
}

void FrmOptions::AddImages() {
    Add(FrameOpen, ID_FrameOpen);
    for (int i = 0; i < 3; ++i) Add(OptOpen[i], ID_OptOpen + i);
    Add(LblCustomName, ID_LblCustomName);
    Add(CustomName, ID_CustomName);
    Add(LblCustProg, ID_LblCustProg);
    Add(CustProg, ID_CustProg);
    Add(BtnBrowse, ID_BtnBrowse);
    Add(ChkShowAnim, ID_ChkShowAnim);
    MyFrame[2].Hold({&FrameOpen, &OptOpen[0], &OptOpen[1], &OptOpen[2], &LblCustomName, &CustomName,
                     &LblCustProg, &CustProg, &BtnBrowse, &ChkShowAnim});

    for (controls::TextBox* box : {&CustomName, &CustProg}) {
        box->Change = [this] { CustomProgram_Change(); };
        box->GotFocus = [box] { controls::SelectAllText(*box); };
    }
    BtnBrowse.Click = [this] { BtnBrowse_Click(); };
}

void FrmOptions::AddStartUp() {
    Add(LblStartUp, ID_LblStartUp);
    const char* companions[] = {"Rotaline", "Shufflet", "Nothing"};
    for (int i = 0; i < 3; ++i) {
        Add(StartUpAction[i], ID_StartUpAction + i);
        StartUpAction[i].Tag = companions[i];
        StartUpAction[i].Click = [this, i] { StartUpAction_Click(i); };
    }
    MyFrame[3].Hold({&LblStartUp, &StartUpAction[0], &StartUpAction[1], &StartUpAction[2]});
}

void FrmOptions::SetHelpNumbers() {
    ActiveStart.SetHelpNumber(help_number::ActiveStart);
    ChkShowSplash.SetHelpNumber(help_number::ChkShowSplash);
    ChkSyncronize.SetHelpNumber(help_number::ChkSyncronize);
    DriveHost.SetHelpNumber(help_number::DriveHost);
    btnBrwFolder.SetHelpNumber(help_number::btnBrwFolder);
    TxtLogoPath.SetHelpNumber(help_number::TxtLogoPath);
    DblAction.SetHelpNumber(help_number::DblAction);
    ChkDeleteRecycle.SetHelpNumber(help_number::ChkDeleteRecycle);
    ChkDelConfirm.SetHelpNumber(help_number::ChkDelConfirm);
    ChkConfirmChange.SetHelpNumber(help_number::ChkConfirmChange);
    for (int i = 0; i < 3; ++i) OptOpen[i].SetHelpNumber(help_number::OptOpen[i]);
    CustomName.SetHelpNumber(help_number::CustomName);
    CustProg.SetHelpNumber(help_number::CustProg);
    BtnBrowse.SetHelpNumber(help_number::BtnBrowse);
    for (int i = 0; i < 2; ++i) StartUpAction[i].SetHelpNumber(help_number::StartUpAction[i]);
}

void FrmOptions::Form_Load() {
    SetHelpNumbers();
    for (const char* caption : {"General", "Confirmations", "Images", "StartUp settings"})
        TabStrip1.AddTab(caption);
    TabStrip1.Select(first_);
    DblAction.AddItem("Sets the logo set as default");
    DblAction.AddItem("Opens the logo browser!");
}

void FrmOptions::Form_Activate() {
    const core::Settings& settings = host_.Preferences();
    showingValues_ = true;
    DblAction.SetListIndex(settings.actionOnDoubleClick);
    DriveHost.SetText(settings.bootRoot.substr(0, 1));
    ActiveStart.SetValue(host_.BootLogoOption());
    for (int i = 0; i < 3; ++i) OptOpen[i].SetMark(i == settings.defaultAction);
    CustomName.SetText(settings.customProgName);
    CustProg.SetText(settings.customProgPath);
    // Quirk: the box opens clear, whatever the main window's menu item shows
    // (Preferences.UncheckTheAnimationWhenTheBoxIsLeftAlone).
    ChkShowAnim.SetValue(0);
    GetDiskInfo();
    ChkDeleteRecycle.SetValue(settings.deleteInTheRecycleBin);
    ChkDelConfirm.SetValue(settings.confirmLogosetDelete);
    ChkConfirmChange.SetValue(settings.confirmLogoTypeChange);
    ChkShowSplash.SetValue(settings.showSplashScreen);
    ShowStartUpAction();
    TxtLogoPath.SetText(settings.logoPath);
    ChkSyncronize.SetValue(settings.synchronizeLogos);
    DefineVisible();
    showingValues_ = false;
    // Who is sent to the pictures is to say which program opens them.
    if (first_ == kImages)
        CustProg.Focus();
    else
        FocusNextTo(TabStrip1);
}

void FrmOptions::ShowStartUpAction() {
    const auto inForce = core::ReadStartUpAction(host_.Locations().startupFolder);
    for (int i = 0; i < 3; ++i)
        StartUpAction[i].SetMark(inForce && static_cast<int>(*inForce) == i);
    if (!inForce) StartUpAction[0].SetTabStop();
}

void FrmOptions::TabStrip1_Click() { DefineVisible(); }

void FrmOptions::DefineVisible() {
    const int shown = TabStrip1.SelectedIndex() - 1;
    bool focusGoes = false;
    for (int i = 0; i < TabStrip1.Count(); ++i) {
        if (i == shown) continue;
        focusGoes |= MyFrame[i].HoldsFocus();
        MyFrame[i].ShowWithAll(false);
    }
    MyFrame[shown].ShowWithAll(true);
    if (focusGoes) FocusNextTo(TabStrip1);
}

bool FrmOptions::Form_KeyDown(int key) { return TabStrip1.TurnPage(key); }

void FrmOptions::btnBrwFolder_Click() {
    const std::string folder =
        core::BrowseForFolder(handle(), "Choose the folder you want to add", TxtLogoPath.Text());
    if (!folder.empty()) TxtLogoPath.SetText(folder);
}

void FrmOptions::ActiveStart_Click() { host_.RaiseBootLogoOptionChanged(); }

void FrmOptions::DriveHost_Click() { PopUpMenu(MnuDrive_, controls::PointerPosition()); }

void FrmOptions::GetDiskInfo() {
    controls::EmptyMenu(MnuDrive_);
    driveLetters_ = core::FixedDriveLetters();
    // Items are numbered from 1.
    int item = ID_ItmDriveList;
    for (const std::string& letter : driveLetters_)
        controls::AddMenuItem(MnuDrive_, ++item, letter);
}

void FrmOptions::ItmDriveList_Click(int index) { DriveHost.SetText(driveLetters_[index - 1]); }

void FrmOptions::MenuCommand(int id) {
    const int index = id - ID_ItmDriveList;
    if (index >= 1 && index <= static_cast<int>(driveLetters_.size())) ItmDriveList_Click(index);
}

void FrmOptions::CustomProgram_Change() {
    if (!showingValues_) OptOpen[2].Choose(OptOpen[0], OptOpen[1]);
}

void FrmOptions::BtnBrowse_Click() {
    const std::string program = core::CutAtNul(core::ShowOpenDialog(
        handle(), "Applications (*.exe)|*.exe", "Where is your favourite graphic program?", ""));
    if (program.empty()) return;
    CustProg.SetText(program);
    const std::size_t ending = 4;  // ".exe"
    CustomName.SetText(core::FileTitle.substr(
        0, core::FileTitle.size() - std::min(ending, core::FileTitle.size())));
}

void FrmOptions::StartUpAction_Click(int index) {
    StartupActionChanged_ = true;
    MyFrame[kStartUp - 1].Tag = StartUpAction[index].Tag;
}

void FrmOptions::ApplyStartUpChoice() {
    const core::SystemLocations& locations = host_.Locations();
    auto action = core::StartUpActionKind::Nothing;
    if (StartUpAction[0].Value())
        action = core::StartUpActionKind::Rotaline;
    else if (StartUpAction[1].Value())
        action = core::StartUpActionKind::Shufflet;
    core::ApplyStartUpAction(action, locations.programFolder, locations.startupFolder);
}

void FrmOptions::TakeLogoFolder() {
    if (TxtLogoPath.Text() == host_.Preferences().logoPath) return;
    host_.Preferences().logoPath = core::AddBackslash(TxtLogoPath.Text());
    host_.LeggiDatiDisco();
}

// A program without a name would be forgotten at the next start.
std::string FrmOptions::NameOfProgram() const {
    if (!CustomName.Text().empty()) return CustomName.Text();
    std::string path = CustProg.Text();
    const std::string file = core::GetFileName(path);
    return file.substr(0, file.rfind('.'));
}

// Every step is done whether or not the ones before it succeeded.
// Quirk: no value is checked (Preferences.TakeALogoFolderThatIsMissingOrEmptyAsItStands).
void FrmOptions::BtnOK_Click() {
    core::Settings& settings = host_.Preferences();
    if (StartupActionChanged_) ApplyStartUpChoice();
    settings.customProgName = NameOfProgram();
    settings.customProgPath = CustProg.Text();
    host_.ShowCustomProgramName();
    for (int i = 2; i >= 0; --i)
        if (OptOpen[i].Value()) settings.defaultAction = static_cast<std::int16_t>(i);
    host_.SetAnimationShown(ChkShowAnim.Value() == 1);
    settings.deleteInTheRecycleBin = static_cast<std::int16_t>(ChkDeleteRecycle.Value());
    settings.confirmLogosetDelete = static_cast<std::int16_t>(ChkDelConfirm.Value());
    settings.confirmLogoTypeChange = static_cast<std::int16_t>(ChkConfirmChange.Value());
    settings.actionOnDoubleClick = static_cast<std::int16_t>(DblAction.ListIndex());
    settings.showSplashScreen = static_cast<std::int16_t>(ChkShowSplash.Value());
    settings.synchronizeLogos = static_cast<std::int16_t>(ChkSyncronize.Value());
    settings.bootRoot = DriveHost.Text() + ":\\";
    host_.SetBootLogoOption(static_cast<std::int16_t>(ActiveStart.Value()));
    TakeLogoFolder();
    Unload();
}

void FrmOptions::BtnCancel_Click() { Unload(); }

}  // namespace vistrel::options
