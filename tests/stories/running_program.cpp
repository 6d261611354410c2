#include "tests/stories/running_program.h"

#include "resources/ids.h"

namespace vistrel::test {

RunningProgram::RunningProgram() {
    ForgetSettings();
    RemoveTree("C:\\Logos");
    MakeFolders("C:\\Logos\\");
    // The samples lie beside the program.
    SHFILEOPSTRUCTA copy{};
    copy.wFunc = FO_COPY;
    copy.pFrom = "C:\\test\\sets\\*.*\0";
    copy.pTo = "C:\\Logos\0";
    copy.fFlags = FOF_NOCONFIRMATION | FOF_SILENT;
    SHFileOperationA(&copy);
    for (const char* screen :
         {"C:\\LOGO.SYS", "C:\\windows\\LOGOW.SYS", "C:\\windows\\LOGOS.SYS"}) {
        Put(screen, "an old screen");
        GiveAttributes(screen, FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    }
    Put("C:\\msdos.sys", "[Paths]\r\nWinDir=C:\\WINDOWS\r\n[Options]\r\nLogo=1\r\n");
    GiveAttributes("C:\\msdos.sys",
                   FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
    Store("LogoPath", TextValue(logos));
    Store("DefaultLogoSet", TextValue("Sunny Day"));
}

RunningProgram::~RunningProgram() { running_.Terminate(); }

HWND RunningProgram::Start() {
    running_ = StartedProgram(kOpenProgram);
    if (!running_) return nullptr;
    process = running_.id();
    const HWND main = user::WaitForTop("Principale", "", process, 60000);
    if (main) user::Activate(main);
    return main;
}

void RunningProgram::Close() {
    const HWND main = user::FindTop("Principale", "", process);
    PostMessageA(main, WM_SYSCOMMAND, SC_CLOSE, 0);
    EXPECT_EQ(running_.WaitForEnd(), 0u);
    running_ = StartedProgram();
}

std::optional<unsigned long> RunningProgram::WaitForEnd() {
    const auto status = running_.WaitForEnd();
    if (status) running_ = StartedProgram();
    return status;
}

void RunningProgram::EndAtOnce() {
    running_.Terminate();
    EXPECT_TRUE(running_.WaitForEnd().has_value());
    running_ = StartedProgram();
}

void RunningProgram::SelectSet(HWND main, int place) {
    const HWND list = user::Control(main, ID_MyList);
    RECT r{};
    GetWindowRect(list, &r);
    user::ClickAt({r.left + 30, r.top + 10});  // the first set
    user::Press(VK_HOME);
    for (int i = 0; i < place; ++i) user::Press(VK_DOWN);
}

void RunningProgram::PressToolbarButton(HWND main, int place, int gaps) {
    const HWND bar = user::Control(main, ID_ActiveBar1);
    const auto size = SendMessageA(bar, WM_USER + 58 /* TB_GETBUTTONSIZE */, 0, 0);
    POINT at{place * LOWORD(size) + gaps * 8 + LOWORD(size) / 2, HIWORD(size) / 2 + 2};
    ClientToScreen(bar, &at);
    user::ClickAt(at);
}

void RunningProgram::ChooseFromLogoMenu(char letter) {
    ASSERT_NE(user::OpenMenuByLetter('L', process), nullptr);
    user::TakeShot("story_logo_menu");
    user::Press(letter);
}

void RunningProgram::AnswerDialog(const std::string& title, const std::string& path) {
    const HWND dialog = user::WaitForTop("#32770", title, process);
    ASSERT_NE(dialog, nullptr) << title;
    user::Activate(dialog);
    user::Type(path);
    user::Press(VK_RETURN);
    EXPECT_TRUE(user::WaitUntilGone(dialog));
}

}  // namespace vistrel::test
