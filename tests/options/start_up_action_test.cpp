// What runs at every start of Windows: the options, and the links in the Startup folder.
#include "tests/options/options_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace options;

namespace {

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

}  // namespace
}  // namespace vistrel::test
