// The Help menu: its commands, their words, and what each does.
#include "tests/main_window/tool_words.h"
#include "tests/support/user/help_requests.h"

namespace vistrel::test {

using namespace controls;
using namespace main_window;

namespace {

constexpr const char* kMailKey = "SOFTWARE\\Classes\\mailto\\shell\\open\\command";

// In their order.
constexpr ToolWords kTools[] = {
    {"ToolContents", ID_ToolContents, "Contents\tF1", "Contents", "Logo"},
    {"ToolTutorial", ID_ToolTutorial, "Tutorial", "Tutorial", "Logo"},
    {"ToolBug", ID_ToolBug, "&Bug report", "", "Logo"},
    {"ToolAbout", ID_ToolAbout, "About...", "About...", "Logo"},
};

using HelpMenu = Commanding;

TEST_F(HelpMenu, HasItsCommandsInTheirOrderAndWords) {
    WithMainWindow([&](Principale& main) { ExpectTools(main, 2, kTools); });
}

TEST_F(HelpMenu, ContentsAndTutorialOpenTheHelp) {
    user::HelpRequests help;
    Window::SetHelpFile("C:\\test\\vistrl.hlp");
    const struct {
        int id;
        unsigned command;
        unsigned long data;
    } rows[] = {{ID_ToolContents, 3, 0}, {ID_ItmContents, 3, 0}, {ID_ToolTutorial, 1, 30}};
    WithMainWindow([&](Principale& main) {
        for (const auto& row : rows) {
            StartCommand(main, row.id);
            const user::HelpRequest expected{row.command, row.data, "C:\\test\\vistrl.hlp"};
            EXPECT_EQ(help.Next(), expected) << row.id;
        }
        main.MyList.Focus();
        user::Press(VK_F1);
        EXPECT_EQ(help.Next().command, 3u);
    });
}

TEST_F(HelpMenu, BugReportBeginsAMailWithASubject) {
    StoreIn(kMailKey, "", TextValueWithNul("C:\\test\\record_arguments.exe \"%1\""));
    ForEach({ID_ToolBug, ID_ItmBugReport}, [&](Principale& main, int id) {
        Command(main, id);
        const std::string arguments = Recorded();
        EXPECT_NE(arguments.find("mailto:"), std::string::npos) << arguments;
        EXPECT_NE(arguments.find("?subject=Bug report"), std::string::npos) << arguments;
    });
    ForgetValue(kMailKey, "");
}

TEST_F(HelpMenu, AboutOpens) { ExpectOpens({ID_ToolAbout, ID_ItmAbout}, "FrmAboutReg"); }

}  // namespace
}  // namespace vistrel::test
