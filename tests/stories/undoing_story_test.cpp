// A user who takes back that a set was put in place.
#include "resources/ids.h"
#include "tests/stories/running_program.h"

namespace vistrel::test {
namespace {

constexpr const char* kInstalled[] = {"C:\\LOGO.SYS", "C:\\windows\\LOGOW.SYS",
                                      "C:\\windows\\LOGOS.SYS"};

class UndoingStory : public RunningProgram {
 protected:
    UndoingStory() { RemoveTree(kProgramFolder + "Previous screens"); }

    void InstallCityLights(HWND main) {
        SelectSet(main, 1);
        ASSERT_TRUE(
            WaitUntil([&] { return LabelOf(main, ID_Imag) == logos + "City Lights\\LOGO.SYS"; }));
        PressToolbarButton(main, 2, 0);
        EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == "City Lights"; }));
    }

    /// The three screens that were there before the program came, attributes and all.
    static void ExpectOldScreens() {
        for (const char* screen : kInstalled) {
            EXPECT_EQ(Contents(screen), "an old screen") << screen;
            EXPECT_EQ(AttributesOf(screen), DWORD{FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN})
                << screen;
        }
    }
};

TEST_F(UndoingStory, InstallsASetAndTakesItBackByCtrlZ) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == "Sunny Day"; }));
    InstallCityLights(main);
    EXPECT_TRUE(Contents("C:\\LOGO.SYS") == Contents(logos + "City Lights\\LOGO.SYS"));
    user::Press('Z', {VK_CONTROL});
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == "Sunny Day"; }));
    ExpectOldScreens();
    // There is nothing more to take back.
    user::Press('Z', {VK_CONTROL});
    Close();
    ExpectOldScreens();
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Sunny Day"));
}

TEST_F(UndoingStory, TakesAnInstallOfYesterdayBackByTheMenu) {
    HWND main = Start();
    ASSERT_NE(main, nullptr);
    InstallCityLights(main);
    Close();
    EXPECT_EQ(Contents(kProgramFolder + "Previous screens\\LOGOW.SYS"), "an old screen");

    main = Start();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == "City Lights"; }));
    ASSERT_NE(user::OpenMenuByLetter('L', process), nullptr);
    user::TakeShot("story_undo_menu");
    user::Press('U');
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == "Sunny Day"; }));
    user::TakeShot("story_undone", main);
    Close();
    ExpectOldScreens();
}

}  // namespace
}  // namespace vistrel::test
