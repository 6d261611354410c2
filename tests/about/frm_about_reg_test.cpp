// The about box and the splash screen.
#include "about/frm_about_reg.h"

#include <gtest/gtest.h>
#include <windows.h>

#include "about/frm_splash.h"
#include "controls/message_loop.h"
#include "resources/ids.h"
#include "tests/support/user.h"

namespace vistrel {
namespace {

/// Makes a program the one that opens addresses of a kind: it writes the address to a file.
void Register(const std::string& protocol) {
    HKEY key = nullptr;
    RegCreateKeyExA(HKEY_CLASSES_ROOT, protocol.c_str(), 0, nullptr, 0, KEY_ALL_ACCESS, nullptr,
                    &key, nullptr);
    RegSetValueExA(key, "URL Protocol", 0, REG_SZ, reinterpret_cast<const BYTE*>(""), 1);
    RegCloseKey(key);
    const std::string command = "cmd /c echo %1> C:\\opened.txt";
    RegCreateKeyExA(HKEY_CLASSES_ROOT, (protocol + "\\shell\\open\\command").c_str(), 0, nullptr, 0,
                    KEY_ALL_ACCESS, nullptr, &key, nullptr);
    RegSetValueExA(key, nullptr, 0, REG_SZ, reinterpret_cast<const BYTE*>(command.c_str()),
                   static_cast<DWORD>(command.size() + 1));
    RegCloseKey(key);
}

std::string Opened() {
    char text[512] = "";
    DWORD read = 0;
    const HANDLE file =
        CreateFileA("C:\\opened.txt", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr,
                    OPEN_EXISTING, 0, nullptr);
    if (file == INVALID_HANDLE_VALUE) return {};
    ReadFile(file, text, sizeof text - 1, &read, nullptr);
    CloseHandle(file);
    return text;
}

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
        EXPECT_EQ(about.LblVersion.Text(), "Version: 4.00b2 - Beta 2");
        EXPECT_EQ(about.Label4.Text(), "Send suggestions and comments to:");
        EXPECT_EQ(about.Label5.Text(), "Look for logos and updates at my homepage:");
        EXPECT_TRUE(about.Image1.HasPicture());
        LOGFONTA font{};
        GetObjectA(
            reinterpret_cast<HFONT>(SendMessageA(about.LblTitProgram.handle(), WM_GETFONT, 0, 0)),
            sizeof font, &font);
        EXPECT_STREQ(font.lfFaceName, "Arial");
        user::TakeShot("about_box");
    });
}

TEST(AboutBox, ShowsTheHandOverALink) {
    WithAboutBox([](FrmAboutReg& about) {
        const HWND link = about.LblInternet[0].handle();
        EXPECT_EQ(SendMessageA(about.handle(), WM_SETCURSOR, reinterpret_cast<WPARAM>(link),
                               MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)),
                  TRUE);
        EXPECT_NE(LoadCursorA(GetModuleHandleA(nullptr), "mano"), nullptr);
    });
}

TEST(AboutBox, OpensTheMailProgramWithTheSubject) {
    Register("mailto");
    DeleteFileA("C:\\opened.txt");
    WithAboutBox([](FrmAboutReg& about) {
        user::Click(about.LblInternet[0].handle());
        const std::string wanted = "mailto:" + about.LblInternet[0].Text() + "?subject=Vistrel 98";
        EXPECT_TRUE(WaitUntil([&] {
            const std::string opened = Opened();
            // The blank may arrive written as %20.
            return opened.find("?subject=Vistrel") != std::string::npos &&
                   opened.substr(0, 20) == wanted.substr(0, 20);
        })) << Opened();
    });
}

TEST(AboutBox, OpensAWebPageAsItIs) {
    Register("http");
    DeleteFileA("C:\\opened.txt");
    WithAboutBox([](FrmAboutReg& about) {
        const std::string page = about.LblInternet[1].Text();
        user::Click(about.LblInternet[1].handle());
        EXPECT_TRUE(WaitUntil([&] { return Opened().substr(0, page.size()) == page; })) << Opened();
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

}  // namespace
}  // namespace vistrel
