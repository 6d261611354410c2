// Puts the program on the machine before the first story and takes it away after the last.
#include <gtest/gtest.h>
#include <windows.h>

#include "tests/stories/installed_program.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {
namespace {

class ProgramOnTheMachine : public testing::Environment {
 public:
    void SetUp() override {
        if (HasInstaller()) {
            before_ = TakeSnapshot();
            ASSERT_EQ(InstallSilently(), 0u);
        } else {
            MakeFolders(kProgramFolder);
            for (const char* name : {"vistrel.exe", "Rotaline.exe"})
                CopyFileA((std::string("C:\\test\\") + name).c_str(),
                          (kProgramFolder + name).c_str(), FALSE);
        }
        // What the program makes at its first start, whichever stories run.
        MakeFolders(kProgramFolder + "Original Logos\\");
        Put(kProgramFolder + "Original Logos\\LOGO.SYS", "an old screen");
    }

    void TearDown() override {
        if (!HasInstaller()) return;
        EXPECT_TRUE(UninstallSilently());
        // The sets, the screens and the boot configuration file are the user's own, and so is the
        // mail program, which a story chooses. Which folder a dialog showed last is the system's
        // note. Screens that an install has replaced are there when a story has installed a set.
        std::vector<std::string> left = NamesIn(kProgramFolder);
        std::erase(left, "Previous screens");
        EXPECT_EQ(left, std::vector<std::string>{"Original Logos"});
        RemoveTree(kProgramFolder);
        std::vector<std::string> ignored = NotOurs();
        ignored.insert(
            ignored.end(),
            {"C:\\Logos\\", "C:\\LOGO.SYS", "C:\\msdos.sys", "C:\\windows\\LOGO",
             "HKLM\\Software\\Classes\\mailto\\", "C:\\opening.txt",
             "HKCU\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\ComDlg32\\"});
        EXPECT_EQ(Differences(before_, TakeSnapshot(), ignored), std::vector<std::string>{});
    }

 private:
    Snapshot before_;
};

const testing::Environment* const environment =
    testing::AddGlobalTestEnvironment(new ProgramOnTheMachine);

}  // namespace
}  // namespace vistrel::test
