// The preferences dialog, used by mouse and keyboard.
#include "options/frm_options.h"

#include <gtest/gtest.h>
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>
#include <objbase.h>

#include <functional>

#include "controls/message_loop.h"
#include "core/library.h"
#include "core/startup_action.h"
#include "resources/ids.h"
#include "tests/support/machine/machine.h"
#include "tests/support/user/help_requests.h"
#include "tests/support/user/seen.h"
#include "tests/support/user/user.h"

namespace vistrel::test {

using namespace controls;
using namespace core;
using namespace options;

namespace {

/// Stands for the main window: keeps what the dialog tells it.
class RecordingMain : public OptionsHost {
 public:
    explicit RecordingMain(SystemLocations locations) : locations_(std::move(locations)) {}

    const SystemLocations& Locations() const override { return locations_; }
    Settings& Preferences() override { return settings; }
    void LeggiDatiDisco() override { ++scans; }
    void ShowCustomProgramName() override { customCaption = settings.customProgName; }
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

BOOL CALLBACK KeepTree(HWND window, LPARAM result) {
    if (user::ClassOf(window) != "SysTreeView32") return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

HWND FindTree(HWND dialog) {
    HWND tree = nullptr;
    EnumChildWindows(dialog, KeepTree, reinterpret_cast<LPARAM>(&tree));
    return tree;
}

/// The text of a tree's selected item.
std::string SelectedIn(HWND tree) {
    char text[MAX_PATH] = "";
    TVITEMA item{};
    item.mask = TVIF_TEXT | TVIF_HANDLE;
    item.hItem = reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_GETNEXTITEM, TVGN_CARET, 0));
    item.pszText = text;
    item.cchTextMax = sizeof text;
    SendMessageA(tree, TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&item));
    return text;
}

/// Gives a dialog's control the focus, as the tab key would.
void SetFocusOn(HWND dialog, HWND control) {
    SendMessageA(dialog, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

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
    void WithDialog(const std::function<void(FrmOptions&)>& user,
                    FrmOptions::Page first = FrmOptions::kGeneral) {
        FrmOptions options(main, first);
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
    /// The window of the dialog's thread that has the focus.
    static HWND FocusOf(FrmOptions& options) {
        GUITHREADINFO info{};
        info.cbSize = sizeof info;
        GetGUIThreadInfo(GetWindowThreadProcessId(options.handle(), nullptr), &info);
        return info.hwndFocus;
    }
    static bool HasFocus(FrmOptions& options, const Control& control) {
        return WaitUntil([&] { return FocusOf(options) == control.handle(); });
    }
    static bool PageIsShown(FrmOptions& options, int number) {
        return WaitUntil([&] {
            for (int i = 0; i < 4; ++i)
                if ((IsWindowVisible(options.MyFrame[i].handle()) != 0) != (i == number - 1))
                    return false;
            return true;
        });
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

TEST_F(Preferences, AreWordedLikeThis) {
    const std::pair<int, const char*> captions[] = {
        {ID_LblLogoPath, "Logo &folder:"},
        {ID_btnBrwFolder, ".&.."},
        {ID_LblDblAction, "Double click on logo set:"},
        {ID_ChkShowSplash, "Show splash screen at startup"},
        {ID_ChkSyncronize, "Synchronize logos (delay wait and shutdown logo copy)"},
        {ID_ActiveStart, "Show startup logo"},
        {ID_LblDriveHost, "Put the startup logo in:"},
        {ID_ChkConfirmChange, "Confirm logo type (single/multi) change"},
        {ID_ChkDelConfirm, "Confirm logo sets deletion"},
        {ID_ChkDeleteRecycle, "Delete logosets in the Recycle Bin"},
        {ID_ChkShowAnim, "Autos&how logo animation"},
        {ID_FrameOpen, "When I click on image"},
        {ID_OptOpen, "&Show it in its actual size"},
        {ID_OptOpen + 1, "Open &Paint"},
        {ID_OptOpen + 2, "Op&en program:"},
        {ID_BtnBrowse, "..."},
        {ID_LblStartUp, "Every time Windows is started run:"},
        {ID_StartUpAction, "Logo &sequential change (Rotaline)"},
        {ID_StartUpAction + 1, "Logo &random change (Shufflet)"},
        {ID_StartUpAction + 2, "&Nothing"},
        {ID_BtnOK, "&OK"},
        {ID_BtnCancel, "&Cancel"},
    };
    WithDialog([&](FrmOptions& options) {
        EXPECT_EQ(user::TextOf(options.handle()), "Preferences");
        for (const auto& [id, caption] : captions)
            EXPECT_EQ(user::TextOf(GetDlgItem(options.handle(), id)), caption);
        std::vector<std::string> tabs;
        const HWND strip = options.TabStrip1.handle();
        for (LRESULT i = 0; i < SendMessageA(strip, TCM_GETITEMCOUNT, 0, 0); ++i) {
            char text[64] = "";
            TCITEMA item{};
            item.mask = TCIF_TEXT;
            item.pszText = text;
            item.cchTextMax = sizeof text;
            SendMessageA(strip, TCM_GETITEMA, static_cast<WPARAM>(i),
                         reinterpret_cast<LPARAM>(&item));
            tabs.push_back(text);
        }
        EXPECT_EQ(tabs, (std::vector<std::string>{"General", "Confirmations", "Images",
                                                  "StartUp settings"}));
        char actions[2][64];
        const HWND combo = options.DblAction.handle();
        EXPECT_EQ(SendMessageA(combo, CB_GETCOUNT, 0, 0), 2);
        for (WPARAM i = 0; i < 2; ++i)
            SendMessageA(combo, CB_GETLBTEXT, i, reinterpret_cast<LPARAM>(actions[i]));
        EXPECT_STREQ(actions[0], "Sets the logo set as default");
        EXPECT_STREQ(actions[1], "Opens the logo browser!");
    });
}

TEST_F(Preferences, OpenWithTheLogoFolderSelectedSoThatTypingReplacesIt) {
    WithDialog([&](FrmOptions& options) {
        EXPECT_TRUE(HasFocus(options, options.TxtLogoPath));
        user::Type("D:\\New");
        EXPECT_TRUE(WaitUntil([&] {
            return user::TextOf(options.TxtLogoPath.handle()) == "D:\\New";
        })) << user::TextOf(options.TxtLogoPath.handle());
    });
}

TEST_F(Preferences, OpenWhereThePictureProgramIsSetWhenAskedTo) {
    WithDialog(
        [&](FrmOptions& options) {
            EXPECT_TRUE(PageIsShown(options, 3));
            EXPECT_EQ(SendMessageA(options.TabStrip1.handle(), TCM_GETCURSEL, 0, 0), 2);
            EXPECT_TRUE(HasFocus(options, options.CustProg));
        },
        FrmOptions::kImages);
}

TEST_F(Preferences, TurnTheirPagesByTheKeyboard) {
    WithDialog([&](FrmOptions& options) {
        for (const int page : {2, 3, 4, 1}) {
            user::Press(VK_TAB, {VK_CONTROL});
            EXPECT_TRUE(PageIsShown(options, page)) << page;
            EXPECT_EQ(SendMessageA(options.TabStrip1.handle(), TCM_GETCURSEL, 0, 0), page - 1);
            // Keys go where the user sees it.
            EXPECT_TRUE(IsWindowVisible(FocusOf(options))) << page;
        }
        EXPECT_TRUE(HasFocus(options, options.TxtLogoPath));
        user::Press(VK_TAB, {VK_CONTROL, VK_SHIFT});
        EXPECT_TRUE(PageIsShown(options, 4));
        user::Press(VK_PRIOR, {VK_CONTROL});
        EXPECT_TRUE(PageIsShown(options, 3));
        user::Press(VK_NEXT, {VK_CONTROL});
        EXPECT_TRUE(PageIsShown(options, 4));
        user::Press(VK_TAB);
        EXPECT_TRUE(PageIsShown(options, 4));
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

TEST_F(Preferences, NameAProgramAfterItsFileWhereItHasNoName) {
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 3);
        user::Click(options.CustProg.handle());
        user::Type("C:\\My Tools\\brush.exe");
        EXPECT_TRUE(WaitUntil(
            [&] { return user::TextOf(options.CustProg.handle()) == "C:\\My Tools\\brush.exe"; }));
        PressOk(options);
    });
    EXPECT_EQ(main.settings.customProgName, "brush");
    EXPECT_EQ(main.settings.customProgPath, "C:\\My Tools\\brush.exe");
    EXPECT_EQ(main.customCaption, "brush");
}

TEST_F(Preferences, AcceptThatThereIsNoProgram) {
    main.settings.customProgName = "Painter";
    main.settings.customProgPath = "C:\\p.exe";
    WithDialog([&](FrmOptions& options) {
        options.CustomName.SetText("");
        options.CustProg.SetText("");
        PressOk(options);
    });
    EXPECT_EQ(main.settings.customProgName, "");
    EXPECT_EQ(main.settings.customProgPath, "");
    EXPECT_EQ(main.customCaption, "");
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

TEST_F(Preferences, TakeAFolderThatDiffersByCaseOnlyForAnother) {
    std::string upper = logos;
    CharUpperA(upper.data());
    ASSERT_NE(upper, logos);
    WithDialog([&](FrmOptions& options) {
        options.TxtLogoPath.SetText(upper);
        PressOk(options);
    });
    EXPECT_EQ(main.settings.logoPath, upper);
    EXPECT_EQ(main.scans, 1);
}

TEST_F(Preferences, TakeTheFolderThatIsPicked) {
    MakeFolders(root + "logos2\\");
    KeepAccessTime(root);
    KeepAccessTime(logos);
    CoInitialize(nullptr);
    WithDialog([&](FrmOptions& options) {
        user::Click(options.btnBrwFolder.handle());
        const HWND dialog = user::WaitForTop("#32770");
        ASSERT_NE(dialog, nullptr);
        user::Activate(dialog);
        // The folder that is set is selected; its neighbour is the next in the tree.
        const HWND tree = FindTree(dialog);
        ASSERT_NE(tree, nullptr);
        EXPECT_TRUE(WaitUntil([&] { return SelectedIn(tree) == "logos"; })) << SelectedIn(tree);
        SetFocusOn(dialog, tree);
        user::Press(VK_DOWN);
        EXPECT_TRUE(WaitUntil([&] { return SelectedIn(tree) == "logos2"; })) << SelectedIn(tree);
        user::Click(GetDlgItem(dialog, IDOK));
        EXPECT_TRUE(user::WaitUntilGone(dialog));
        EXPECT_TRUE(WaitUntil([&] {
            return user::TextOf(options.TxtLogoPath.handle()) == root + "logos2";
        })) << user::TextOf(options.TxtLogoPath.handle());
        PressOk(options);
    });
    CoUninitialize();
    EXPECT_EQ(main.settings.logoPath, root + "logos2\\");
    EXPECT_EQ(main.scans, 1);
}

TEST_F(Preferences, SelectTheWholeLogoFolderWhenTheBoxIsEntered) {
    WithDialog([&](FrmOptions& options) {
        // From another control, with nothing of the text marked.
        SendMessageA(options.TxtLogoPath.handle(), EM_SETSEL, 2, 2);
        user::Click(options.ChkShowSplash.handle());
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
            // Shown again, the values are filled in again.
            if (opening == 1) options.Show();
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

TEST_F(Preferences, SurviveAMissingStartupFolder) {
    RemoveTree(startup);
    WithDialog([&](FrmOptions& options) {
        user::Click(options.ChkSyncronize.handle());
        ClickTab(options, 4);
        user::Click(options.StartUpAction[0].handle());
        PressOk(options);
        EXPECT_FALSE(options.IsOpen());
    });
    EXPECT_FALSE(Exists(startup));
    // What stands behind that step is done all the same, and without a word.
    EXPECT_EQ(main.settings.synchronizeLogos, 1);
    EXPECT_EQ(user::FindTop("#32770"), nullptr);
}

/// Has each option button made from now on do what it does on Windows and not in Wine: it is chosen
/// as soon as it has the focus, however that came.
class OptionsChosenByFocus {
 public:
    OptionsChosenByFocus() { former_ = ChangeClass(&Run); }
    ~OptionsChosenByFocus() { ChangeClass(former_); }

 private:
    static WNDPROC ChangeClass(WNDPROC to) {
        const HWND button =
            CreateWindowA("BUTTON", "", 0, 0, 0, 9, 9, nullptr, nullptr, nullptr, nullptr);
        const ULONG_PTR former =
            SetClassLongPtrA(button, GCLP_WNDPROC, reinterpret_cast<LONG_PTR>(to));
        DestroyWindow(button);
        return reinterpret_cast<WNDPROC>(former);
    }
    static LRESULT CALLBACK Run(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
        const LRESULT result = CallWindowProcA(former_, window, message, wParam, lParam);
        const bool isOption =
            (GetWindowLongA(window, GWL_STYLE) & BS_TYPEMASK) == BS_AUTORADIOBUTTON;
        if (message != WM_SETFOCUS || !isOption ||
            SendMessageA(window, BM_GETCHECK, 0, 0) == BST_CHECKED)
            return result;
        SendMessageA(window, BM_SETCHECK, BST_CHECKED, 0);
        SendMessageA(GetParent(window), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(window), BN_CLICKED),
                     reinterpret_cast<LPARAM>(window));
        return result;
    }
    static inline WNDPROC former_ = nullptr;
};

TEST_F(Preferences, LetTheTabKeyComeToTheStartUpActionsWithoutChoosingOne) {
    const OptionsChosenByFocus asOnWindows;
    Put(startup + "Rotaline.lnk", "mine");
    Put(startup + "Shufflet.lnk", "mine too");
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 4);
        SetFocusOn(options.handle(), options.BtnCancel.handle());
        EXPECT_TRUE(HasFocus(options, options.BtnCancel));
        user::Press(VK_TAB);
        EXPECT_TRUE(HasFocus(options, options.TabStrip1));
        user::Press(VK_TAB);
        EXPECT_TRUE(HasFocus(options, options.StartUpAction[0]));
        for (const OptionButton& option : options.StartUpAction)
            EXPECT_EQ(SendMessageA(option.handle(), BM_GETCHECK, 0, 0), BST_UNCHECKED);
        user::Press(VK_TAB);
        EXPECT_TRUE(HasFocus(options, options.BtnOK));
        PressOk(options);
    });
    EXPECT_EQ(Contents(startup + "Rotaline.lnk"), "mine");
    EXPECT_EQ(Contents(startup + "Shufflet.lnk"), "mine too");
}

TEST_F(Preferences, ChooseAStartUpActionByTheArrowKeys) {
    Put(startup + "Rotaline.lnk", "mine");
    Put(startup + "Shufflet.lnk", "mine too");
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 4);
        SetFocusOn(options.handle(), options.StartUpAction[0].handle());
        EXPECT_TRUE(HasFocus(options, options.StartUpAction[0]));
        user::Press(VK_DOWN);
        EXPECT_TRUE(WaitUntil([&] {
            return SendMessageA(options.StartUpAction[1].handle(), BM_GETCHECK, 0, 0) ==
                   BST_CHECKED;
        }));
        EXPECT_EQ(options.MyFrame[3].Tag, "Shufflet");
        PressOk(options);
    });
    EXPECT_FALSE(Exists(startup + "Rotaline.lnk"));
    EXPECT_EQ(Contents(startup + "Shufflet.lnk"), "link to Shufflet");
}

TEST_F(Preferences, NoteTheClickedActionsTagWithItsPage) {
    WithDialog([&](FrmOptions& options) {
        ClickTab(options, 4);
        EXPECT_EQ(options.MyFrame[3].Tag, "");
        for (const int clicked : {0, 2, 1}) {
            user::Click(options.StartUpAction[clicked].handle());
            EXPECT_NE(options.StartUpAction[clicked].Tag, "");
            EXPECT_TRUE(WaitUntil(
                [&] { return options.MyFrame[3].Tag == options.StartUpAction[clicked].Tag; }));
        }
        // It is nothing to read.
        EXPECT_EQ(user::TextOf(options.MyFrame[3].handle()), "");
    });
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

TEST_F(Preferences, TellWhatAControlIsByTheRightButton) {
    user::HelpRequests requests;
    Window::SetHelpFile("C:\\test\\vistrl.hlp");
    WithDialog([&](FrmOptions& options) {
        ASSERT_TRUE(user::RightClick(options.ChkSyncronize.handle()));
        const HMENU menu = user::WaitForPopUp();
        ASSERT_NE(menu, nullptr);
        EXPECT_EQ(seen::TextsOf(menu), std::vector<std::string>{"&What's this?"});
        EXPECT_TRUE(requests.None());
        user::Press(VK_DOWN);
        user::Press(VK_RETURN);
        EXPECT_EQ(requests.Next(),
                  (user::HelpRequest{HELP_CONTEXTPOPUP, 34, "C:\\test\\vistrl.hlp"}));
        EXPECT_NE(GetWindowLongA(options.handle(), GWL_EXSTYLE) & WS_EX_CONTEXTHELP, 0);
    });
}

TEST_F(Preferences, TellWhatTheControlWithTheFocusIsAtF1) {
    user::HelpRequests requests;
    Window::SetHelpFile("C:\\test\\vistrl.hlp");
    WithDialog([&](FrmOptions& options) {
        EXPECT_TRUE(HasFocus(options, options.TxtLogoPath));
        user::Press(VK_F1);
        EXPECT_EQ(requests.Next(),
                  (user::HelpRequest{HELP_CONTEXTPOPUP, 36, "C:\\test\\vistrl.hlp"}));
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
