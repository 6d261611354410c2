// Whether Windows shows a startup screen at all: from the boot configuration file and back.
#include "resources/ids.h"
#include "tests/stories/running_program.h"

namespace vistrel::test {
namespace {

constexpr char kBootFile[] = "C:\\msdos.sys";

class BootLogo : public RunningProgram {
 protected:
    void PutBootFile(const std::string& logo) {
        GiveAttributes(kBootFile, FILE_ATTRIBUTE_NORMAL);
        Put(kBootFile,
            "[Paths]\r\nWinDir=C:\\WINDOWS\r\n[Options]\r\nBootGUI=1\r\nLogo=" + logo + "\r\n");
        GiveAttributes(kBootFile,
                       FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    }

    /// Starts the program and opens its preferences.
    HWND OpenPreferences() {
        if (!Start()) return nullptr;
        EXPECT_NE(user::OpenMenuByLetter('O', process), nullptr);
        user::Press('P');
        return user::WaitForTop("FrmOptions", "", process);
    }

    /// The mark of "Show startup logo".
    static bool Shown(HWND preferences) {
        return SendMessageA(user::Control(preferences, ID_ActiveStart), BM_GETCHECK, 0, 0) ==
               BST_CHECKED;
    }

    static void Leave(HWND preferences, int button) {
        EXPECT_TRUE(user::Click(user::Control(preferences, button)));
        EXPECT_TRUE(user::WaitUntilGone(preferences));
    }

    static std::string BootFile() { return Contents(kBootFile).value_or(""); }
    /// Whether the file gives the option this value. The program writes a blank before it, which
    /// Wine leaves out.
    static bool Says(const std::string& logo) {
        const std::string file = BootFile();
        return file.find("\nLogo=" + logo + "\r\n") != std::string::npos ||
               file.find("\nLogo= " + logo + "\r\n") != std::string::npos;
    }
};

TEST_F(BootLogo, IsSwitchedOnInTheBootFileByOk) {
    PutBootFile("0");
    HWND preferences = OpenPreferences();
    ASSERT_NE(preferences, nullptr);
    EXPECT_FALSE(Shown(preferences));
    EXPECT_TRUE(user::ClickToMark(user::Control(preferences, ID_ActiveStart)));
    Leave(preferences, ID_BtnOK);
    EXPECT_TRUE(Says("0"));  // not before the program closes
    Close();
    EXPECT_TRUE(Says("1")) << BootFile();
    EXPECT_NE(BootFile().find("\nBootGUI=1\r\n"), std::string::npos);
    EXPECT_EQ(AttributesOf(kBootFile), DWORD{0});

    preferences = OpenPreferences();
    ASSERT_NE(preferences, nullptr);
    EXPECT_TRUE(Shown(preferences));
    Leave(preferences, ID_BtnCancel);
    Close();
    EXPECT_TRUE(Says("1")) << BootFile();
    EXPECT_EQ(AttributesOf(kBootFile), DWORD{FILE_ATTRIBUTE_READONLY});
}

TEST_F(BootLogo, IsSwitchedOffInTheBootFileByOk) {
    const HWND preferences = OpenPreferences();
    ASSERT_NE(preferences, nullptr);
    EXPECT_TRUE(Shown(preferences));
    EXPECT_TRUE(user::ClickToMark(user::Control(preferences, ID_ActiveStart)));
    Leave(preferences, ID_BtnOK);
    Close();
    EXPECT_TRUE(Says("0")) << BootFile();
}

TEST_F(BootLogo, StaysAsItWasByCancel) {
    PutBootFile("0");
    const HWND preferences = OpenPreferences();
    ASSERT_NE(preferences, nullptr);
    EXPECT_FALSE(Shown(preferences));
    EXPECT_TRUE(user::ClickToMark(user::Control(preferences, ID_ActiveStart)));
    Leave(preferences, ID_BtnCancel);
    Close();
    // The click alone has it written again, with the value that it has.
    EXPECT_TRUE(Says("0")) << BootFile();
}

TEST_F(BootLogo, IsLeftAloneByOkWhereTheBoxWasNotClicked) {
    PutBootFile("0");
    const std::string before = BootFile();
    const HWND preferences = OpenPreferences();
    ASSERT_NE(preferences, nullptr);
    Leave(preferences, ID_BtnOK);
    Close();
    EXPECT_EQ(BootFile(), before);
    EXPECT_EQ(AttributesOf(kBootFile), DWORD{FILE_ATTRIBUTE_READONLY});
}

}  // namespace
}  // namespace vistrel::test
