// The help on each control of the preferences.
#include "tests/options/options_fixture.h"
#include "tests/support/user/help_requests.h"
#include "tests/support/user/seen.h"

namespace vistrel::test {

using namespace controls;
using namespace options;

namespace {

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
