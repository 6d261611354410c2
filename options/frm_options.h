// The preferences dialog: it shows the settings in memory and changes them when OK is pressed.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "controls/button.h"
#include "controls/check_list.h"
#include "controls/combo_box.h"
#include "controls/label.h"
#include "controls/owned_handle.h"
#include "controls/tab_strip.h"
#include "controls/text_box.h"
#include "controls/window.h"
#include "options/host.h"

namespace vistrel::options {

class FrmOptions : public controls::Window {
 public:
    /// The pages, as the tabs are numbered.
    enum Page { kGeneral = 1, kConfirmations = 2, kImages = 3, kStartUp = 4, kRotation = 5 };

    /// `first` is the page that is shown at first.
    explicit FrmOptions(OptionsHost& host, Page first = kGeneral);
    ~FrmOptions() override;

    controls::TabStrip TabStrip1;
    controls::Frame MyFrame[5];

    controls::Label LblLogoPath;
    controls::TextBox TxtLogoPath;
    controls::Button btnBrwFolder;
    controls::Label LblDblAction;
    controls::ComboBox DblAction;
    controls::CheckBox ChkShowSplash;
    controls::CheckBox ChkSyncronize;
    controls::CheckBox ActiveStart;
    controls::Label LblDriveHost;
    controls::Label DriveHost;

    controls::CheckBox ChkConfirmChange;
    controls::CheckBox ChkDelConfirm;
    controls::CheckBox ChkDeleteRecycle;

    controls::Frame FrameOpen;
    controls::OptionButton OptOpen[3];
    controls::Label LblCustomName;
    controls::TextBox CustomName;
    controls::Label LblCustProg;
    controls::TextBox CustProg;
    controls::Button BtnBrowse;
    controls::CheckBox ChkShowAnim;

    controls::Label LblStartUp;
    controls::OptionButton StartUpAction[3];

    controls::Label LblRotation;
    controls::CheckList RotationList;  ///< the sets; those that take part are checked
    controls::Button BtnAllSets;
    controls::Button BtnNoSets;

    controls::Button BtnOK;
    controls::Button BtnCancel;

 protected:
    void Form_Load() override;
    void Form_Activate() override;
    void MenuCommand(int id) override;
    bool Form_KeyDown(int key) override;

 private:
    /// A setting that is 0 or 1, and the check box that shows it and is asked at OK.
    struct Flag {
        controls::CheckBox* checkBox = nullptr;
        std::int16_t core::Settings::* setting = nullptr;
    };
    /// A row of a page's table.
    struct Row {
        Row(controls::Control& control, int id, unsigned long help = 0) : part{control, id, help} {}
        /// A check box that is a setting.
        Row(controls::CheckBox& checkBox, int id, unsigned long help,
            std::int16_t core::Settings::* setting)
            : part{checkBox, id, help}, flag{&checkBox, setting} {}

        controls::Part part;
        Flag flag;
    };

    void AddPage(Page page, std::span<const Row> rows);
    void AddGeneral();
    void AddConfirmations();
    void AddImages();
    void AddStartUp();
    void AddRotation();

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
    void ShowRotation();
    void CheckAllSets(bool checked);
    void TakeRotation();
    std::string NameOfProgram() const;
    void ApplyStartUpChoice();
    void TakeLogoFolder();

    OptionsHost& host_;
    Page first_;
    std::vector<Flag> flags_;
    controls::OwnedMenu MnuDrive_;
    std::vector<std::string> driveLetters_;
    bool StartupActionChanged_ = false;
    /// True while the dialog itself fills its boxes, which is no typing.
    bool showingValues_ = false;
    bool rotationIsShown_ = false;  ///< the list of the page "Rotation" has been filled
};

}  // namespace vistrel::options
