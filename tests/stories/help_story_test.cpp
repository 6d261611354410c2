// What a user gets who asks for help: each way to the help file, and to the program's makers.
#include "help/context_numbers.h"
#include "resources/ids.h"
#include "tests/stories/running_program.h"
#include "tests/support/user/help_requests.h"
#include "tests/support/user/openings.h"

namespace vistrel::test {
namespace {

class AskingForHelp : public RunningProgram {
 protected:
    /// Chooses the item at this place (from 0) of the Help menu.
    void ChooseFromHelpMenu(int place) {
        EXPECT_NE(user::OpenMenuByLetter('H', process), nullptr);
        for (int i = 0; i < place; ++i) user::Press(VK_DOWN);
        user::Press(VK_RETURN);
        EXPECT_TRUE(WaitUntil([&] { return user::FindTop("#32768", "", process) == nullptr; }));
    }

    /// The program's own help file.
    static user::HelpRequest Asked(unsigned command, unsigned long data = 0) {
        return {command, data, kProgramFolder + "vistrl.hlp"};
    }

    user::HelpRequests requests;
};

constexpr unsigned kIndex = 3;
enum HelpMenu { kContents, kTutorial, kBug, kAbout };

TEST_F(AskingForHelp, GetsTheContentsByF1ByTheMenuAndByTheToolbar) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    user::Press(VK_F1);
    EXPECT_EQ(requests.Next(), Asked(kIndex));
    ChooseFromHelpMenu(kContents);
    EXPECT_EQ(requests.Next(), Asked(kIndex));
    PressToolbarButton(main, 7, 3);
    EXPECT_EQ(requests.Next(), Asked(kIndex));
    EXPECT_TRUE(requests.None());
    Close();
}

TEST_F(AskingForHelp, GetsTheTutorial) {
    ASSERT_NE(Start(), nullptr);
    ChooseFromHelpMenu(kTutorial);
    EXPECT_EQ(requests.Next(), Asked(HELP_CONTEXT, 30));
    Close();
}

TEST_F(AskingForHelp, GetsTheAboutBoxAndItsTopic) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    ChooseFromHelpMenu(kAbout);
    const HWND about = user::WaitForTop("FrmAboutReg", "About Vistrel 98", process);
    ASSERT_NE(about, nullptr);
    EXPECT_FALSE(IsWindowEnabled(main));
    user::Press(VK_F1);
    EXPECT_EQ(requests.Next(), Asked(HELP_CONTEXT, help_number::AboutBox));
    user::Press(VK_RETURN);
    EXPECT_TRUE(user::WaitUntilGone(about));
    PressToolbarButton(main, 8, 3);
    const HWND again = user::WaitForTop("FrmAboutReg", "About Vistrel 98", process);
    ASSERT_NE(again, nullptr);
    user::Press(VK_ESCAPE);
    EXPECT_TRUE(user::WaitUntilGone(again));
    Close();
}

TEST_F(AskingForHelp, GetsTheTopicOfTheActualSizeAtF1) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    ASSERT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == "Sunny Day"; }));
    EXPECT_TRUE(user::Click(user::Control(main, ID_Imag)));
    const HWND view = user::WaitForTop("FrmView", "", process);
    ASSERT_NE(view, nullptr);
    user::Press(VK_F1);
    EXPECT_EQ(requests.Next(), Asked(HELP_CONTEXT, help_number::ActualSize));
    EXPECT_TRUE(IsWindow(view));
    user::Press(VK_ESCAPE);
    EXPECT_TRUE(user::WaitUntilGone(view));
    Close();
}

TEST_F(AskingForHelp, GetsToKnowWhatALabelIs) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    const std::pair<int, unsigned long> labels[] = {{ID_DefaultLogo, help_number::DefaultLogo},
                                                    {ID_LogoType, help_number::LogoType},
                                                    {ID_NumLogo, help_number::NumLogo}};
    for (const auto& [id, number] : labels) {
        ASSERT_TRUE(user::RightClick(user::Control(main, id)));
        // Its only item fills it.
        const HWND menu = user::WaitForTop("#32768", "", process);
        ASSERT_NE(menu, nullptr);
        user::ClickAt(user::CentreOf(menu));
        EXPECT_EQ(requests.Next(), Asked(HELP_CONTEXTPOPUP, number));
        EXPECT_TRUE(WaitUntil([&] { return user::FindTop("#32768", "", process) == nullptr; }));
    }
    Close();
}

TEST_F(AskingForHelp, WritesABugReportToTheMakers) {
    user::RecordOpenings("mailto");
    ASSERT_NE(Start(), nullptr);
    ChooseFromHelpMenu(kBug);
    EXPECT_EQ(user::NextOpening().address, "mailto:support@vistrel.example.org?subject=Bug report");
    Close();
}

}  // namespace
}  // namespace vistrel::test
