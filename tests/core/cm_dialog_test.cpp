// The open-file dialog: what it is asked for, and what it gives.
#include "core/cm_dialog.h"

#include <gtest/gtest.h>
#include <windows.h>
// commctrl.h needs windows.h first.
#include <commctrl.h>
#include <dlgs.h>

#include <algorithm>

#include "tests/support/user/user.h"

namespace vistrel {

using namespace core;

namespace {

TEST(DialogFilter, EndsEachPartWithANul) {
    const std::string parts("Applications (*.exe)\0*.exe\0", 27);
    EXPECT_EQ(DialogFilter("Applications (*.exe)|*.exe"), parts);
}

TEST(DialogFilter, GetsNoSecondBarWhereItEndsInOne) {
    EXPECT_EQ(DialogFilter("All|*.*|"), DialogFilter("All|*.*"));
}

void PutFile(const std::string& path) {
    CloseHandle(CreateFileA(path.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
}

BOOL CALLBACK KeepList(HWND window, LPARAM result) {
    if (user::ClassOf(window) != "SysListView32") return TRUE;
    *reinterpret_cast<HWND*>(result) = window;
    return FALSE;
}

/// The names of files and folders that the dialog lists.
std::vector<std::string> Listed(HWND dialog) {
    HWND list = nullptr;
    EnumChildWindows(dialog, KeepList, reinterpret_cast<LPARAM>(&list));
    std::vector<std::string> names;
    const auto count = SendMessageA(list, LVM_GETITEMCOUNT, 0, 0);
    for (LRESULT i = 0; i < count; ++i) {
        char text[MAX_PATH] = "";
        LVITEMA item{};
        item.pszText = text;
        item.cchTextMax = sizeof text;
        SendMessageA(list, LVM_GETITEMTEXTA, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&item));
        names.push_back(text);
    }
    return names;
}

class OpenDialog : public testing::Test {
 protected:
    OpenDialog() {
        CreateDirectoryA("C:\\tools", nullptr);
        PutFile("C:\\tools\\painter.exe");
        PutFile("C:\\tools\\notes.txt");
    }

    /// Shows the dialog and lets `user` act on it; what it gave.
    static std::string Show(const std::function<void(HWND dialog)>& user) {
        user::Meanwhile acting([&] {
            const HWND dialog = user::WaitForTop("#32770", "Where is it?");
            if (!dialog) return;
            user::Activate(dialog);
            user(dialog);
            user::WaitUntilGone(dialog);
        });
        const std::string chosen =
            ShowOpenDialog(nullptr, "Applications (*.exe)|*.exe", "Where is it?", "C:\\tools");
        acting.Finish();
        return chosen;
    }
};

TEST_F(OpenDialog, GivesTheWholePathWithItsNulAndKeepsTheName) {
    const std::string chosen = Show([](HWND) {
        user::Type("painter.exe");
        user::Press(VK_RETURN);
    });
    const std::string path = "C:\\tools\\painter.exe";
    EXPECT_EQ(chosen.substr(0, path.size()), path);
    // What stands behind it is the rest of the buffer, without blanks at its end.
    ASSERT_GT(chosen.size(), path.size());
    EXPECT_EQ(chosen[path.size()], '\0');
    EXPECT_NE(chosen.back(), ' ');
    EXPECT_EQ(FileTitle, "painter.exe");
}

TEST_F(OpenDialog, GivesNothingWhenItIsCancelledAndForgetsTheName) {
    FileTitle = "before.exe";
    EXPECT_EQ(Show([](HWND) { user::Press(VK_ESCAPE); }), "");
    EXPECT_EQ(FileTitle, "");
}

TEST_F(OpenDialog, OffersTheKindOfFileThatIsAskedForInItsFolder) {
    std::vector<std::string> kinds;
    std::vector<std::string> names;
    Show([&](HWND dialog) {
        const HWND combo = GetDlgItem(dialog, cmb1);
        for (LRESULT i = 0; i < SendMessageA(combo, CB_GETCOUNT, 0, 0); ++i) {
            char text[64] = "";
            SendMessageA(combo, CB_GETLBTEXT, static_cast<WPARAM>(i),
                         reinterpret_cast<LPARAM>(text));
            kinds.push_back(text);
        }
        WaitUntil([&] { return !(names = Listed(dialog)).empty(); });
        user::TakeShot("open_dialog");
        user::Press(VK_ESCAPE);
    });
    EXPECT_EQ(kinds, std::vector<std::string>{"Applications (*.exe)"});
    EXPECT_EQ(names, std::vector<std::string>{"painter.exe"});
}

TEST_F(OpenDialog, TakesNoFileThatDoesNotExistAndHasNoReadOnlyBox) {
    bool refused = false;
    bool hasReadOnlyBox = true;
    const std::string chosen = Show([&](HWND dialog) {
        const HWND box = GetDlgItem(dialog, chx1);
        hasReadOnlyBox = box && IsWindowVisible(box);
        user::Type("missing.exe");
        user::Press(VK_RETURN);
        HWND message = nullptr;
        refused = WaitUntil([&] {
            message = user::FindTop("#32770");
            return message && message != dialog;
        });
        user::Press(VK_RETURN);
        user::WaitUntilGone(message);
        user::Activate(dialog);
        user::Press(VK_ESCAPE);
    });
    EXPECT_TRUE(refused);
    EXPECT_FALSE(hasReadOnlyBox);
    EXPECT_EQ(chosen, "");
}

}  // namespace
}  // namespace vistrel
