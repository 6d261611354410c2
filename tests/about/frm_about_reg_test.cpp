// The about box and the splash screen.
#include "about/frm_about_reg.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <utility>

#include "about/about.h"
#include "about/frm_splash.h"
#include "controls/message_loop.h"
#include "controls/screen_metrics.h"
#include "help/context_numbers.h"
#include "resources/ids.h"
#include "tests/support/user/help_requests.h"
#include "tests/support/user/openings.h"
#include "tests/support/user/seen.h"
#include "tests/support/user/user.h"

namespace vistrel {

using namespace about;
using namespace controls;

namespace {

void WithAboutBox(const std::function<void(FrmAboutReg&)>& user) {
    FrmAboutReg about;
    ASSERT_TRUE(about.Create(nullptr));
    about.Show();
    user::Meanwhile acting([&] {
        user::Activate(about.handle());
        user(about);
        if (about.IsOpen()) PostMessageA(about.handle(), WM_CLOSE, 0, 0);
    });
    RunLoopWhileOpen(about);
    acting.Finish();
}

TEST(AboutBox, TellsTitleVersionAndAddresses) {
    WithAboutBox([](FrmAboutReg& about) {
        EXPECT_EQ(user::TextOf(about.handle()), "About Vistrel 98");
        EXPECT_EQ(about.LblTitProgram.Text(), "Vistrel");
        EXPECT_EQ(about.LblVersion.Text(), "Version: 4.00b2 - Beta 2");
        EXPECT_EQ(about.Label4.Text(), "Send suggestions and comments to:");
        EXPECT_EQ(about.Label5.Text(), "Look for logos and updates at my homepage:");
        // Mail, web, mail, web.
        const char* addresses[] = {"support@vistrel.example.org", "http://www.vistrel.example.org",
                                   "ideas@vistrel.example.org", "http://logos.vistrel.example.org"};
        for (int i = 0; i < 4; ++i) {
            EXPECT_EQ(about.LblInternet[i].Text(), addresses[i]);
            EXPECT_TRUE(seen::ShowsColor(about.LblInternet[i].handle(), RGB(0, 0, 255))) << i;
        }
        EXPECT_EQ(user::TextOf(about.BtnOK.handle()), "&OK");
        EXPECT_TRUE(about.Image1.HasPicture());
        LOGFONTA font{};
        GetObjectA(
            reinterpret_cast<HFONT>(SendMessageA(about.LblTitProgram.handle(), WM_GETFONT, 0, 0)),
            sizeof font, &font);
        EXPECT_STREQ(font.lfFaceName, "Arial");
        user::TakeShot("about_box");
    });
}

TEST(AboutBox, WarnsOnOneLine) {
    WithAboutBox([](FrmAboutReg& about) {
        const HWND label = about.LblComments.handle();
        const std::string text = about.LblComments.Text();
        EXPECT_EQ(text, "Copying this program under another name is against the law.");
        const HDC dc = GetDC(label);
        const HGDIOBJ former =
            SelectObject(dc, reinterpret_cast<HFONT>(SendMessageA(label, WM_GETFONT, 0, 0)));
        SIZE size{};
        GetTextExtentPoint32A(dc, text.c_str(), static_cast<int>(text.size()), &size);
        SelectObject(dc, former);
        ReleaseDC(label, dc);
        const Rect place = about.LblComments.Bounds();
        EXPECT_LE(size.cx, place.width);
        EXPECT_GE(place.height, size.cy);
    });
}

/// Where a line of another colour than the ground begins and ends in a row of pixels, from the
/// window's left edge; begins behind its end where there is none.
std::pair<int, int> LineIn(HWND window, int row) {
    RECT client{};
    GetClientRect(window, &client);
    POINT corner{0, row};
    ClientToScreen(window, &corner);
    const COLORREF ground = GetSysColor(COLOR_BTNFACE);
    std::pair<int, int> line{client.right, -1};
    for (int x = 0; x < client.right; ++x) {
        if (seen::PixelAt({corner.x + x, corner.y}) == ground) continue;
        line.first = std::min(line.first, x);
        line.second = x;
    }
    return line;
}

TEST(AboutBox, DrawsItsTwoRulesBelowEachOther) {
    WithAboutBox([](FrmAboutReg& about) {
        const Rect lower = about.Line1.Bounds();
        const int dots = PixelsPerInch();
        const auto upper = LineIn(about.handle(), 1260 * dots / 1440);
        EXPECT_EQ(upper, (std::pair{720 * dots / 1440, 4560 * dots / 1440 - 1}));
        EXPECT_EQ(LineIn(about.handle(), lower.top), upper);
    });
}

TEST(AboutBox, SinksItsRulesIntoTheGround) {
    WithAboutBox([](FrmAboutReg& about) {
        const int row = 1260 * PixelsPerInch() / 1440;
        const COLORREF wanted[] = {GetSysColor(COLOR_BTNFACE), GetSysColor(COLOR_BTNSHADOW),
                                   GetSysColor(COLOR_BTNHIGHLIGHT), GetSysColor(COLOR_BTNFACE)};
        for (int i = 0; i < 4; ++i) {
            POINT at{100, row - 1 + i};
            ClientToScreen(about.handle(), &at);
            EXPECT_EQ(seen::PixelAt(at), wanted[i]) << i;
        }
    });
}

TEST(AboutBox, ShowsTheHandOverALink) {
    WithAboutBox([](FrmAboutReg& about) {
        const HCURSOR hand = LoadCursorA(GetModuleHandleA(nullptr), "mano");
        ASSERT_NE(hand, nullptr);
        for (const Label& link : about.LblInternet) {
            EXPECT_TRUE(WaitUntil([&] {
                user::MoveTo(user::CentreOf(about.LblVersion.handle()));
                return seen::Pointer() != hand;
            }));
            EXPECT_TRUE(WaitUntil([&] {
                user::MoveTo(user::CentreOf(link.handle()));
                return seen::Pointer() == hand;
            })) << link.Text();
        }
    });
}

TEST(AboutBox, OpensEachAddressMaximizedInTheProgramsFolder) {
    const std::string opened[] = {
        "mailto:support@vistrel.example.org?subject=Vistrel 98", "http://www.vistrel.example.org",
        "mailto:ideas@vistrel.example.org?subject=Vistrel 98", "http://logos.vistrel.example.org"};
    user::RecordOpenings("mailto");
    user::RecordOpenings("http");
    WithAboutBox([&](FrmAboutReg& about) {
        for (int i = 0; i < 4; ++i) {
            EXPECT_TRUE(user::Click(about.LblInternet[i].handle()));
            const user::Opening opening = user::NextOpening();
            EXPECT_EQ(opening.address.substr(0, opened[i].size()), opened[i]);
            // The system may write a slash behind a bare host.
            EXPECT_LE(opening.address.size(), opened[i].size() + 1);
            EXPECT_EQ(opening.folder, "C:\\test");
            EXPECT_EQ(opening.show, SW_SHOWMAXIMIZED);
        }
    });
}

TEST(AboutBox, OpensNothingAndSaysNothingWithoutAProgramForAnAddress) {
    OpenLink("vistrelnone:nobody", nullptr);
    EXPECT_EQ(user::FindTop("#32770"), nullptr);
}

TEST(AboutBox, ShowsTheHelpsTopicAboutItAtF1) {
    user::HelpRequests requests;
    Window::SetHelpFile("C:\\test\\vistrl.hlp");
    WithAboutBox([&](FrmAboutReg&) {
        user::Press(VK_F1);
        EXPECT_EQ(requests.Next(),
                  (user::HelpRequest{HELP_CONTEXT, help_number::AboutBox, "C:\\test\\vistrl.hlp"}));
    });
}

TEST(AboutBox, ClosesByItsButtonByEnterAndByEsc) {
    WithAboutBox([](FrmAboutReg& about) {
        user::Click(about.BtnOK.handle());
        EXPECT_TRUE(WaitUntil([&] { return !about.IsOpen(); }));
    });
    for (const WORD key : {WORD{VK_RETURN}, WORD{VK_ESCAPE}})
        WithAboutBox([key](FrmAboutReg& about) {
            user::Press(key);
            EXPECT_TRUE(WaitUntil([&] { return !about.IsOpen(); })) << key;
        });
}

TEST(SplashScreen, ShowsItsPictureAndVersion) {
    frmSplash splash;
    ASSERT_TRUE(splash.Create(nullptr));
    splash.Show();
    splash.PaintAtOnce();
    EXPECT_EQ(splash.LblVersion.Text(), "4.00 - BETA 2\r\n5th May 1998");
    EXPECT_TRUE(splash.SplashPicture.HasPicture());
    user::TakeShot("splash");
    EXPECT_TRUE(splash.Unload());
}

TEST(SplashScreen, ShowsItsVersionInWhiteInItsLowerRightCorner) {
    frmSplash splash;
    ASSERT_TRUE(splash.Create(nullptr));
    splash.Show();
    splash.PaintAtOnce();
    EXPECT_TRUE(seen::ShowsColor(splash.LblVersion.handle(), RGB(255, 255, 255)));
    RECT whole{}, label{};
    GetClientRect(splash.handle(), &whole);
    GetWindowRect(splash.LblVersion.handle(), &label);
    MapWindowPoints(nullptr, splash.handle(), reinterpret_cast<POINT*>(&label), 2);
    EXPECT_EQ(whole.right - label.right, 12);
    EXPECT_EQ(whole.bottom - label.bottom, 10);
    EXPECT_TRUE(splash.Unload());
}

TEST(SplashTest, StaysForSevenTenthsOfASecondHoweverLongTheStartTook) {
    const double noon = 0.5;
    const double second = 1.0 / (24 * 60 * 60);
    EXPECT_EQ(SplashWait(noon, noon), 700);
    EXPECT_NEAR(SplashWait(noon, noon + 5 * second), 700, 0.1);
}

}  // namespace
}  // namespace vistrel
