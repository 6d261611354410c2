// The logo folder and the drive of the startup logo: typed, picked or chosen.
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>
#include <objbase.h>

#include "resources/ids.h"
#include "tests/options/options_fixture.h"

namespace vistrel::test {

using namespace controls;
using namespace options;

namespace {

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

TEST_F(Preferences, DropTheMenuOfDrivesUnderItsButton) {
    WithDialog([&](FrmOptions& options) {
        user::Click(options.DriveHost.handle());
        EXPECT_NE(user::WaitForPopUp(), nullptr);
        RECT button{};
        RECT menu{};
        GetWindowRect(options.DriveHost.handle(), &button);
        GetWindowRect(user::FindTop("#32768"), &menu);
        EXPECT_EQ(menu.left, button.left);
        EXPECT_EQ(menu.top, button.bottom);
        user::Press(VK_ESCAPE);
        EXPECT_TRUE(WaitUntil([] { return user::FindTop("#32768") == nullptr; }));
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

}  // namespace
}  // namespace vistrel::test
