#include "options/frm_options.h"

#include <algorithm>

#include "controls/menu.h"
#include "core/browse_for_folder.h"
#include "core/cm_dialog.h"
#include "core/fixed_drives.h"
#include "core/generali.h"
#include "core/startup_action.h"
#include "help/context_numbers.h"
#include "resources/ids.h"

namespace vistrel::options {

using core::Settings;

FrmOptions::FrmOptions(OptionsHost& host, Page first)
    : Window("FrmOptions", IDD_FrmOptions),
      host_(host),
      first_(first),
      MnuDrive_(controls::NewPopUpMenu()) {
    const controls::Part parts[] = {
        {TabStrip1, ID_TabStrip1},
        {BtnOK, ID_BtnOK},
        {BtnCancel, ID_BtnCancel},
    };
    AddParts(parts);
    AddGeneral();
    AddConfirmations();
    AddImages();
    AddStartUp();
    AddRotation();
    TabStrip1.Click = [this] { TabStrip1_Click(); };
    BtnOK.Click = [this] { BtnOK_Click(); };
    BtnCancel.Click = [this] { BtnCancel_Click(); };
}

FrmOptions::~FrmOptions() = default;

void FrmOptions::AddPage(Page page, std::span<const Row> rows) {
    const int index = page - 1;
    Add(MyFrame[index], ID_MyFrame + index);
    std::vector<controls::Control*> held;
    for (const Row& row : rows) {
        AddParts({&row.part, 1});
        held.push_back(&row.part.control);
        if (row.flag.setting) flags_.push_back(row.flag);
    }
    MyFrame[index].Hold(held);
}

void FrmOptions::AddGeneral() {
    namespace number = help_number;
    const Row rows[] = {
        {LblLogoPath, ID_LblLogoPath},
        {TxtLogoPath, ID_TxtLogoPath, number::TxtLogoPath},
        {btnBrwFolder, ID_btnBrwFolder, number::btnBrwFolder},
        {LblDblAction, ID_LblDblAction},
        {DblAction, ID_DblAction, number::DblAction},
        {ChkShowSplash, ID_ChkShowSplash, number::ChkShowSplash, &Settings::showSplashScreen},
        {ChkSyncronize, ID_ChkSyncronize, number::ChkSyncronize, &Settings::synchronizeLogos},
        {ActiveStart, ID_ActiveStart, number::ActiveStart},
        {LblDriveHost, ID_LblDriveHost},
        {DriveHost, ID_DriveHost, number::DriveHost},
    };
    AddPage(kGeneral, rows);

    TxtLogoPath.GotFocus = [this] { controls::SelectAllText(TxtLogoPath); };
    btnBrwFolder.Click = [this] { btnBrwFolder_Click(); };
    ActiveStart.Click = [this] { ActiveStart_Click(); };
    DriveHost.Click = [this] { DriveHost_Click(); };
}

void FrmOptions::AddConfirmations() {
    namespace number = help_number;
    const Row rows[] = {
        {ChkConfirmChange, ID_ChkConfirmChange, number::ChkConfirmChange,
         &Settings::confirmLogoTypeChange},
        {ChkDelConfirm, ID_ChkDelConfirm, number::ChkDelConfirm, &Settings::confirmLogosetDelete},
        {ChkDeleteRecycle, ID_ChkDeleteRecycle, number::ChkDeleteRecycle,
         &Settings::deleteInTheRecycleBin},
    };
    AddPage(kConfirmations, rows);
}

void FrmOptions::AddImages() {
    namespace number = help_number;
    const Row rows[] = {
        {FrameOpen, ID_FrameOpen},
        {OptOpen[0], ID_OptOpen, number::OptOpen[0]},
        {OptOpen[1], ID_OptOpen + 1, number::OptOpen[1]},
        {OptOpen[2], ID_OptOpen + 2, number::OptOpen[2]},
        {LblCustomName, ID_LblCustomName},
        {CustomName, ID_CustomName, number::CustomName},
        {LblCustProg, ID_LblCustProg},
        {CustProg, ID_CustProg, number::CustProg},
        {BtnBrowse, ID_BtnBrowse, number::BtnBrowse},
        {ChkShowAnim, ID_ChkShowAnim},
    };
    AddPage(kImages, rows);

    for (controls::TextBox* box : {&CustomName, &CustProg}) {
        box->Change = [this] { CustomProgram_Change(); };
        box->GotFocus = [box] { controls::SelectAllText(*box); };
    }
    BtnBrowse.Click = [this] { BtnBrowse_Click(); };
}

void FrmOptions::AddStartUp() {
    namespace number = help_number;
    const Row rows[] = {
        {LblStartUp, ID_LblStartUp},
        {StartUpAction[0], ID_StartUpAction, number::StartUpAction[0]},
        {StartUpAction[1], ID_StartUpAction + 1, number::StartUpAction[1]},
        {StartUpAction[2], ID_StartUpAction + 2},
    };
    AddPage(kStartUp, rows);

    const char* companions[] = {"Rotaline", "Shufflet", "Nothing"};
    for (int i = 0; i < 3; ++i) {
        StartUpAction[i].Tag = companions[i];
        StartUpAction[i].Click = [this, i] { StartUpAction_Click(i); };
    }
}

void FrmOptions::Form_Load() {
    for (const char* caption :
         {"General", "Confirmations", "Images", "StartUp settings", "Rotation"})
        TabStrip1.AddTab(caption);
    TabStrip1.Select(first_);
    DblAction.AddItem("Sets the logo set as default");
    DblAction.AddItem("Opens the logo browser!");
}

void FrmOptions::Form_Activate() {
    const Settings& settings = host_.Preferences();
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
    for (const Flag& flag : flags_) flag.checkBox->SetValue(settings.*flag.setting);
    ShowStartUpAction();
    TxtLogoPath.SetText(settings.logoPath);
    rotationIsShown_ = false;
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
    // There may be thousands of sets.
    if (shown + 1 == kRotation && !rotationIsShown_) ShowRotation();
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

void FrmOptions::DriveHost_Click() { PopUpMenuAt(DriveHost, MnuDrive_); }

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
    Settings& settings = host_.Preferences();
    if (StartupActionChanged_) ApplyStartUpChoice();
    settings.customProgName = NameOfProgram();
    settings.customProgPath = CustProg.Text();
    host_.ShowCustomProgramName();
    for (int i = 2; i >= 0; --i)
        if (OptOpen[i].Value()) settings.defaultAction = static_cast<std::int16_t>(i);
    host_.SetAnimationShown(ChkShowAnim.Value() == 1);
    for (const Flag& flag : flags_)
        settings.*flag.setting = static_cast<std::int16_t>(flag.checkBox->Value());
    if (rotationIsShown_) TakeRotation();
    settings.actionOnDoubleClick = static_cast<std::int16_t>(DblAction.ListIndex());
    settings.bootRoot = DriveHost.Text() + ":\\";
    host_.SetBootLogoOption(static_cast<std::int16_t>(ActiveStart.Value()));
    TakeLogoFolder();
    Unload();
}

void FrmOptions::BtnCancel_Click() { Unload(); }

}  // namespace vistrel::options
