// The preferences dialog: it shows the settings in memory and changes them when OK is pressed.
#pragma once

#include "controls/button.h"
#include "controls/combo_box.h"
#include "controls/label.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"
#include "controls/window.h"
#include "options/host.h"

namespace vistrel {

class FrmOptions : public Window {
 public:
    /// The pages, as the tabs are numbered.
    enum Page { kGeneral = 1, kConfirmations = 2, kImages = 3, kStartUp = 4 };

    /// `first` is the page that is shown at first.
    explicit FrmOptions(OptionsHost& host, Page first = kGeneral);
    ~FrmOptions() override;

    TabStrip TabStrip1;
    Frame MyFrame[4];

    Label LblLogoPath;
    TextBox TxtLogoPath;
    Button btnBrwFolder;
    Label LblDblAction;
    ComboBox DblAction;
    CheckBox ChkShowSplash;
    CheckBox ChkSyncronize;
    CheckBox ActiveStart;
    Label LblDriveHost;
    Label DriveHost;

    CheckBox ChkConfirmChange;
    CheckBox ChkDelConfirm;
    CheckBox ChkDeleteRecycle;

    Frame FrameOpen;
    OptionButton OptOpen[3];
    Label LblCustomName;
    TextBox CustomName;
    Label LblCustProg;
    TextBox CustProg;
    Button BtnBrowse;
    CheckBox ChkShowAnim;

    Label LblStartUp;
    OptionButton StartUpAction[3];

    Button BtnOK;
    Button BtnCancel;

 protected:
    void Form_Load() override;
    void Form_Activate() override;
    void MenuCommand(int id) override;
    bool Form_KeyDown(int key) override;

 private:
    void AddGeneral();
    void AddConfirmations();
    void AddImages();
    void AddStartUp();
    void SetHelpNumbers();

    void TabStrip1_Click();
    void DefineVisible();
    void btnBrwFolder_Click();
    void ActiveStart_Click();
    void DriveHost_Click();
    void ItmDriveList_Click(int index);
    void GetDiskInfo();
    void CustomProgram_Change();
    void BtnBrowse_Click();
    void StartUpAction_Click(int index);
    void BtnOK_Click();
    void BtnCancel_Click();

    void ShowStartUpAction();
    std::string NameOfProgram() const;
    void ApplyStartUpChoice();
    void TakeLogoFolder();

    OptionsHost& host_;
    Page first_;
    MenuHandle MnuDrive_;
    std::vector<std::string> driveLetters_;
    bool StartupActionChanged_ = false;
    /// True while the dialog itself fills its boxes, which is no typing.
    bool showingValues_ = false;
};

}  // namespace vistrel
