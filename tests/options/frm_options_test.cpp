// The preferences dialog, used by mouse and keyboard.
#include "options/frm_options.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "controls/message_loop.h"
#include "core/library.h"
#include "core/startup_action.h"
#include "resources/ids.h"
#include "tests/core/machine.h"
#include "tests/support/user.h"

namespace vistrel::test {
namespace {

/// Stands for the main window: keeps what the dialog tells it.
class RecordingMain : public MainWindow {
 public:
    explicit RecordingMain(SystemLocations locations) : locations_(std::move(locations)) {}

    const SystemLocations& Locations() const override { return locations_; }
    Settings& Preferences() override { return settings; }
    std::vector<std::string> SetNames() const override { return {}; }
    int SelectedSet() const override { return -1; }
    void LeggiDatiDisco() override { ++scans; }
    void VisualizzaNumLogo() override {}
    std::string CurrentSet() const override { return kUnknownSet; }
    void SetCurrentSet(const std::string&) override {}
    void SetCurrentPicture(const std::string&) override {}
    void AzioneSuImmagine(int, WindowHandle) override {}
    MenuHandle OpenWithMenu() override { return nullptr; }
    int DefaultOpenWithItem() const override { return 0; }
    bool OpenWithCommand(int, WindowHandle) override { return false; }
    void ShowCustomProgramName() override { customCaption = settings.customProgName; }
    bool AnimationShown() const override { return animation; }
    void SetAnimationShown(bool shown) override { animation = shown; }
    std::int16_t BootLogoOption() const override { return bootOption; }
    void SetBootLogoOption(std::int16_t option) override { bootOption = option; }
    void RaiseBootLogoOptionChanged() override { bootOptionChanged = true; }

    Settings settings;
    int scans = 0;
    std::string customCaption = "never set";
    bool animation = false;
    std::int16_t bootOption = 1;
    bool bootOptionChanged = false;

 private:
    SystemLocations locations_;
};

class Preferences : public Machine {
 protected:
    Preferences() : main(locations) {
        main.settings.logoPath = logos;
        main.settings.bootRoot = "C:\\";
        Put(program + "Rotaline.lnk", "link to Rotaline");
        Put(program + "Shufflet.lnk", "link to Shufflet");
    }

    /// Opens the dialog, lets `user` act on a thread of its own, and returns when it is closed; a
    /// dialog that is still open is cancelled.
    void WithDialog(const std::function<void(FrmOptions&)>& user) {
        FrmOptions options(main);
        ASSERT_TRUE(options.Create(nullptr));
        options.Show();
        user::Meanwhile acting([&] {
            user::Activate(options.handle());
            user(options);
            if (options.IsOpen()) PostMessageA(options.handle(), WM_COMMAND, IDCANCEL, 0);
        });
        RunLoopWhileOpen(options);
        acting.Finish();
    }
    static void ClickTab(FrmOptions& options, int number) {
        RECT r{};
        SendMessageA(options.TabStrip1.handle(), 0x1300 + 10 /* TCM_GETITEMRECT */,
                     static_cast<WPARAM>(number - 1), reinterpret_cast<LPARAM>(&r));
        POINT at{(r.left + r.right) / 2, (r.top + r.bottom) / 2};
        ClientToScreen(options.TabStrip1.handle(), &at);
        user::ClickAt(at);
        WaitUntil([&] { return options.MyFrame[number - 1].Visible(); });
    }
    static void PressOk(FrmOptions& options) {
        user::Click(options.BtnOK.handle());
        WaitUntil([&] { return !options.IsOpen(); });
    }

    RecordingMain main;
};

TEST_F(Preferences, ShowsOnlyThePageOfTheSelectedTab) {
    WithDialog([&](FrmOptions& options) {
        for (int tab = 1; tab <= 4; ++tab) {
            ClickTab(options, tab);
            for (int i = 0; i < 4; ++i)
                EXPECT_EQ(options.MyFrame[i].Visible(), i == tab - 1) << tab;
            EXPECT_EQ(options.TxtLogoPath.Visible(), tab == 1);
            EXPECT_EQ(options.ChkDelConfirm.Visible(), tab == 2);
            EXPECT_EQ(options.CustProg.Visible(), tab == 3);
            EXPECT_EQ(options.StartUpAction[2].Visible(), tab == 4);
            user::TakeShot("preferences_" + std::to_string(tab));
        }
    });
}

TEST_F(Preferences, ShowsTheSettingsInMemory) {
    main.settings.actionOnDoubleClick = 1;
    main.settings.bootRoot = "D:\\";
    main.settings.defaultAction = 1;
    main.settings.customProgName = "Painter";
    main.settings.customProgPath = "C:\\Tools\\PAINTER.EXE";
    main.settings.deleteInTheRecycleBin = 0;
    main.settings.synchronizeLogos = 1;
    main.settings.showSplashScreen = 0;
    main.bootOption = 0;
    main.animation = true;
    WithDialog([&](FrmOptions& options) {
        EXPECT_EQ(options.DblAction.Text(), "Opens the logo browser!");
        EXPECT_EQ(options.DriveHost.Text(), "D");
        EXPECT_EQ(options.ActiveStart.Value(), 0);
        EXPECT_TRUE(options.OptOpen[1].Value());
        EXPECT_FALSE(options.OptOpen[2].Value());
        EXPECT_EQ(options.CustomName.Text(), "Painter");
        EXPECT_EQ(options.CustProg.Text(), "C:\\Tools\\PAINTER.EXE");
        EXPECT_EQ(options.ChkShowAnim.Value(), 0);
        EXPECT_EQ(options.ChkDeleteRecycle.Value(), 0);
        EXPECT_EQ(options.ChkDelConfirm.Value(), 1);
        EXPECT_EQ(options.ChkConfirmChange.Value(), 1);
        EXPECT_EQ(options.ChkShowSplash.Value(), 0);
        EXPECT_EQ(options.ChkSyncronize.Value(), 1);
        EXPECT_EQ(options.TxtLogoPath.Text(), logos);
        EXPECT_TRUE(options.StartUpAction[2].Value());
    });
}

TEST_F(Preferences, TakesEveryChangeAtOk) {
    WithDialog([&](FrmOptions& options) {
        user::Click(options.ChkShowSplash.handle());
        user::Click(options.ChkSyncronize.handle());
        user::Click(options.ActiveStart.handle());
        ClickTab(options, 2);
        user::Click(options.ChkConfirmChange.handle());
        user::Click(options.ChkDelConfirm.handle());
        user::Click(options.ChkDeleteRecycle.handle());
        ClickTab(options, 3);
        user::Click(options.OptOpen[1].handle());
        user::Click(options.ChkShowAnim.handle());
        PressOk(options);
    });
    EXPECT_EQ(main.settings.showSplashScreen, 0);
    EXPECT_EQ(main.settings.synchronizeLogos, 1);
    EXPECT_TRUE(main.bootOptionChanged);
    EXPECT_EQ(main.bootOption, 0);
    EXPECT_EQ(main.settings.confirmLogoTypeChange, 0);
    EXPECT_EQ(main.settings.confirmLogosetDelete, 0);
    EXPECT_EQ(main.settings.deleteInTheRecycleBin, 0);
    EXPECT_EQ(main.settings.defaultAction, 1);
    EXPECT_TRUE(main.animation);
    EXPECT_EQ(main.settings.bootRoot, "C:\\");
    EXPECT_EQ(main.scans, 0);
}

TEST_F(Preferences, ForgetsEveryChangeAtEsc) {
    Put(startup + "Rotaline.lnk", "mine");
    WithDialog([&](FrmOptions& options) {
        user::Click(options.ChkSyncronize.handle());
        ClickTab(options, 4);
        user::Click(options.StartUpAction[1].handle());
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([&] { return !options.IsOpen(); }));
    });
    EXPECT_EQ(main.settings.synchronizeLogos, 0);
    EXPECT_EQ(Contents(startup + "Rotaline.lnk"), "mine");
    EXPECT_FALSE(Exists(startup + "Shufflet.lnk"));
}

TEST_F(Preferences, AcceptsAtEnter) {
    WithDialog([&](FrmOptions& options) {
        user::Click(options.ChkSyncronize.handle());
        user::Press(VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return !options.IsOpen(); }));
    });
    EXPECT_EQ(main.settings.synchronizeLogos, 1);
}

TEST_F(Preferences, ChoosesTheCustomProgramAsSoonAsOneTypes) {
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 3);
        EXPECT_TRUE(options.OptOpen[0].Value());
        user::Click(options.CustomName.handle());
        user::Type("Brush \"and\" more");
        EXPECT_TRUE(WaitUntil([&] { return options.OptOpen[2].Value(); }));
        EXPECT_FALSE(options.OptOpen[0].Value());
        user::Press(VK_TAB);
        user::Type("C:\\My Tools\\brush.exe");
        EXPECT_TRUE(
            WaitUntil([&] { return options.CustProg.Text() == "C:\\My Tools\\brush.exe"; }));
        PressOk(options);
    });
    EXPECT_EQ(main.settings.customProgName, "Brush \"and\" more");
    EXPECT_EQ(main.settings.customProgPath, "C:\\My Tools\\brush.exe");
    EXPECT_EQ(main.settings.defaultAction, 2);
    EXPECT_EQ(main.customCaption, "Brush \"and\" more");
}

TEST_F(Preferences, UncheckTheAnimationWhenTheBoxIsLeftAlone) {
    main.animation = true;
    WithDialog([&](FrmOptions& options) { PressOk(options); });
    EXPECT_FALSE(main.animation);
}

TEST_F(Preferences, GiveANewLogoFolderItsBackslashAndScanAgain) {
    WithDialog([&](FrmOptions& options) {
        user::Click(options.TxtLogoPath.handle());
        options.TxtLogoPath.SetText("D:\\Logos");
        PressOk(options);
    });
    EXPECT_EQ(main.settings.logoPath, "D:\\Logos\\");
    EXPECT_EQ(main.scans, 1);
}

TEST_F(Preferences, SelectTheWholeLogoFolderWhenTheBoxIsEntered) {
    WithDialog([&](FrmOptions& options) {
        user::Press('F', {VK_MENU});
        EXPECT_TRUE(WaitUntil([&] {
            DWORD from = 1;
            DWORD to = 0;
            SendMessageA(options.TxtLogoPath.handle(), EM_GETSEL, reinterpret_cast<WPARAM>(&from),
                         reinterpret_cast<LPARAM>(&to));
            return from == 0 && to == logos.size();
        }));
    });
}

TEST_F(Preferences, OfferFixedDrivesOnlyAndEachOnce) {
    WithDialog([&](FrmOptions& options) {
        for (int opening = 0; opening < 2; ++opening) {
            user::Click(options.DriveHost.handle());
            const HMENU menu = user::WaitForPopUp();
            ASSERT_NE(menu, nullptr);
            std::string letters;
            for (int i = 0; i < GetMenuItemCount(menu); ++i) {
                char text[16] = "";
                GetMenuStringA(menu, static_cast<UINT>(i), text, sizeof text, MF_BYPOSITION);
                letters += text;
            }
            std::string fixed;
            for (char letter = 'A'; letter <= 'Z'; ++letter)
                if (GetDriveTypeA((std::string(1, letter) + ":\\").c_str()) == DRIVE_FIXED)
                    fixed += letter;
            EXPECT_EQ(letters, fixed);
            // A is a floppy disk drive here, E a CD-ROM drive and N a network drive.
            EXPECT_EQ(letters.substr(0, 2), "CD");
            EXPECT_EQ(letters.find_first_of("AEN"), std::string::npos);
            user::Press(VK_ESCAPE);
        }
        user::Click(options.DriveHost.handle());
        EXPECT_TRUE(user::ChooseFromPopUp(ID_ItmDriveList + 2));
        EXPECT_TRUE(WaitUntil([&] { return options.DriveHost.Text() == "D"; }));
        PressOk(options);
    });
    EXPECT_EQ(main.settings.bootRoot, "D:\\");
}

TEST_F(Preferences, PutTheChosenStartUpActionInPlaceOfTheOther) {
    Put(startup + "Rotaline.lnk", "old");
    WithDialog([&](FrmOptions& options) {
        EXPECT_TRUE(options.StartUpAction[0].Value());
        ClickTab(options, 4);
        user::Click(options.StartUpAction[1].handle());
        PressOk(options);
    });
    EXPECT_FALSE(Exists(startup + "Rotaline.lnk"));
    EXPECT_EQ(Contents(startup + "Shufflet.lnk"), "link to Shufflet");
}

TEST_F(Preferences, RemoveBothShortcutsForNothing) {
    Put(startup + "Rotaline.lnk", "old");
    Put(startup + "Shufflet.lnk", "old");
    WithDialog([&](FrmOptions& options) {
        for (const OptionButton& option : options.StartUpAction) EXPECT_FALSE(option.Value());
        ClickTab(options, 4);
        user::Click(options.StartUpAction[2].handle());
        PressOk(options);
    });
    EXPECT_TRUE(NamesIn(startup).empty());
}

TEST_F(Preferences, LeaveTheStartupFolderAloneWhereNoActionIsClicked) {
    Put(startup + "Rotaline.lnk", "mine");
    Put(startup + "Shufflet.lnk", "mine too");
    WithDialog([&](FrmOptions& options) { PressOk(options); });
    EXPECT_EQ(Contents(startup + "Rotaline.lnk"), "mine");
    EXPECT_EQ(Contents(startup + "Shufflet.lnk"), "mine too");
}

TEST_F(Preferences, StandAMissingStartupFolder) {
    RemoveTree(startup);
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 4);
        user::Click(options.StartUpAction[0].handle());
        PressOk(options);
    });
    EXPECT_FALSE(Exists(startup + "Rotaline.lnk"));
}

TEST_F(Preferences, TakeAPickedProgramAndItsNameWithoutTheEnding) {
    MakeFolders(root + "Tools\\");
    Put(root + "Tools\\PAINTER.EXE", "a program");
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 3);
        user::Click(options.BtnBrowse.handle());
        const HWND dialog = user::WaitForTop("#32770");
        ASSERT_NE(dialog, nullptr);
        EXPECT_EQ(user::TextOf(dialog), "Where is your favourite graphic program?");
        user::Activate(dialog);
        user::Type(root + "Tools\\PAINTER.EXE");
        user::Press(VK_RETURN);
        EXPECT_TRUE(user::WaitUntilGone(dialog));
        EXPECT_TRUE(
            WaitUntil([&] { return options.CustProg.Text() == root + "Tools\\PAINTER.EXE"; }));
        EXPECT_TRUE(WaitUntil([&] { return options.CustomName.Text() == "PAINTER"; }));
        EXPECT_TRUE(options.OptOpen[2].Value());
    });
}

TEST_F(Preferences, KeepTheBoxesWhenTheSystemsDialogsAreCancelled) {
    main.settings.customProgPath = "C:\\p.exe";
    WithDialog([&](FrmOptions& options) {
        user::Click(options.btnBrwFolder.handle());
        HWND dialog = user::WaitForTop("#32770");
        ASSERT_NE(dialog, nullptr);
        user::Activate(dialog);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(dialog));
        EXPECT_EQ(options.TxtLogoPath.Text(), logos);

        ClickTab(options, 3);
        user::Click(options.BtnBrowse.handle());
        dialog = user::WaitForTop("#32770");
        ASSERT_NE(dialog, nullptr);
        user::Activate(dialog);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(user::WaitUntilGone(dialog));
        EXPECT_EQ(options.CustProg.Text(), "C:\\p.exe");
    });
}

TEST_F(Preferences, AskWhatAControlIsByTheRightButton) {
    WithDialog([&](FrmOptions& options) {
        ASSERT_TRUE(user::RightClick(options.ChkSyncronize.handle()));
        const HMENU menu = user::WaitForPopUp();
        ASSERT_NE(menu, nullptr);
        char text[32] = "";
        GetMenuStringA(menu, 0, text, sizeof text, MF_BYPOSITION);
        EXPECT_STREQ(text, "&What's this?");
        user::Press(VK_ESCAPE);
        EXPECT_NE(GetWindowLongA(options.handle(), GWL_EXSTYLE) & WS_EX_CONTEXTHELP, 0);
    });
}

TEST_F(Preferences, TakeALogoFolderThatIsMissingOrEmptyAsItStands) {
    for (const char* folder : {"C:\\nothing here", ""}) {
        WithDialog([&](FrmOptions& options) {
            options.TxtLogoPath.SetText(folder);
            PressOk(options);
        });
        EXPECT_EQ(main.settings.logoPath, std::string(folder) + "\\");
    }
    EXPECT_EQ(main.scans, 2);
}

TEST_F(Preferences, GiveEachControlItsHelpNumber) {
    WithDialog([&](FrmOptions& options) {
        EXPECT_EQ(options.ActiveStart.helpNumber(), 32);
        EXPECT_EQ(options.ChkShowSplash.helpNumber(), 33);
        EXPECT_EQ(options.ChkSyncronize.helpNumber(), 34);
        EXPECT_EQ(options.DriveHost.helpNumber(), 35);
        EXPECT_EQ(options.btnBrwFolder.helpNumber(), 36);
        EXPECT_EQ(options.TxtLogoPath.helpNumber(), 36);
        EXPECT_EQ(options.DblAction.helpNumber(), 37);
        EXPECT_EQ(options.ChkDeleteRecycle.helpNumber(), 38);
        EXPECT_EQ(options.ChkDelConfirm.helpNumber(), 39);
        EXPECT_EQ(options.ChkConfirmChange.helpNumber(), 40);
        EXPECT_EQ(options.OptOpen[0].helpNumber(), 41);
        EXPECT_EQ(options.OptOpen[1].helpNumber(), 42);
        EXPECT_EQ(options.OptOpen[2].helpNumber(), 43);
        EXPECT_EQ(options.CustomName.helpNumber(), 43);
        EXPECT_EQ(options.CustProg.helpNumber(), 44);
        EXPECT_EQ(options.BtnBrowse.helpNumber(), 44);
        EXPECT_EQ(options.StartUpAction[0].helpNumber(), 54);
        EXPECT_EQ(options.StartUpAction[1].helpNumber(), 55);
    });
}

}  // namespace
}  // namespace vistrel::test
