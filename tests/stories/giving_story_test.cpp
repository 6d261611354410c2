// A set that one user gives to another, as a file.
#include "resources/ids.h"
#include "tests/stories/running_program.h"

namespace vistrel::test {
namespace {

using GivingStory = RunningProgram;

void Answer(const std::string& title, const std::string& path, DWORD process) {
    const HWND dialog = user::WaitForTop("#32770", title, process);
    ASSERT_NE(dialog, nullptr) << title;
    user::Activate(dialog);
    user::Type(path);
    user::Press(VK_RETURN);
    EXPECT_TRUE(user::WaitUntilGone(dialog));
}

TEST_F(GivingStory, ExportsASetDeletesItsFolderAndImportsItAgain) {
    const std::string zip = "C:\\gift.zip";
    DeleteFileA(zip.c_str());
    HWND main = Start();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_NumLogo) == " 10 logo sets"; }));
    const std::string set = logos + "City Lights";
    const auto startup = Contents(set + "\\LOGO.SYS");
    SelectSet(main, 1);
    ASSERT_TRUE(WaitUntil([&] { return LabelOf(main, ID_Imag) == set + "\\LOGO.SYS"; }));

    ASSERT_NE(user::OpenMenuByLetter('L', process), nullptr);
    user::TakeShot("story_logo_menu");
    user::Press('X');
    Answer("Export logo set", zip, process);
    EXPECT_TRUE(WaitUntil([&] { return Exists(zip); }));

    RemoveTree(set);
    user::Activate(main);
    user::Press(VK_F5);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_NumLogo) == " 9 logo sets"; }));
    ASSERT_NE(user::OpenMenuByLetter('L', process), nullptr);
    user::Press('I');
    Answer("Import logo sets", zip, process);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_NumLogo) == " 10 logo sets"; }));
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_Imag) == set + "\\LOGO.SYS"; }));
    user::TakeShot("story_given", main);
    Close();
    EXPECT_TRUE(startup && Contents(set + "\\LOGO.SYS") == startup);
    DeleteFileA(zip.c_str());
}

}  // namespace
}  // namespace vistrel::test
