// A user with many sets: several of them are given away, copied and deleted at once.
#include "resources/ids.h"
#include "tests/main_window/dropped_paths.h"
#include "tests/stories/running_program.h"

namespace vistrel::test {
namespace {

class SeveralStory : public RunningProgram {
 protected:
    ~SeveralStory() override { DeleteFileA(zip_.c_str()); }

    bool Counts(HWND main, const std::string& sets) {
        return WaitUntil([&] { return LabelOf(main, ID_NumLogo) == sets; });
    }
    bool Shows(HWND main, const std::string& set) {
        return WaitUntil([&] { return LabelOf(main, ID_Imag) == logos + set + "\\LOGO.SYS"; });
    }
    /// The first two sets of the list, by the keyboard.
    void SelectTwo(HWND main) {
        SelectSet(main, 0);
        user::Press(VK_DOWN, {VK_SHIFT});
        EXPECT_TRUE(Shows(main, sets_.at(1)));
    }
    static Names OnTheClipboard() {
        Names paths;
        if (!OpenClipboard(nullptr)) return paths;
        if (const auto list = static_cast<HDROP>(GetClipboardData(CF_HDROP))) paths = PathsOf(list);
        CloseClipboard();
        return paths;
    }

    const std::string zip_ = "C:\\gift.zip";
    const Names sets_ = NamesIn(logos);
};

TEST_F(SeveralStory, AllSetsAreExportedDeletedAndImportedAgainByTheKeyboard) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(Counts(main, " 10 logo sets"));
    SelectSet(main, 0);
    user::Press('A', {VK_CONTROL});
    ChooseFromLogoMenu('X');
    AnswerDialog("Export logo sets", zip_);
    EXPECT_TRUE(WaitUntil([&] { return Exists(zip_); }));
    user::Activate(main);
    user::TakeShot("story_all_selected", main);

    user::Press(VK_DELETE);
    EXPECT_NE(user::AnswerBox(IDYES, process).text.find(" 10 logo sets?"), std::string::npos);
    // The system's own question.
    const HWND question = user::WaitForTop("#32770", "", process);
    user::Activate(question);
    EXPECT_TRUE(user::Click(GetDlgItem(question, IDYES)));
    EXPECT_TRUE(Counts(main, " 0 logo sets"));
    EXPECT_EQ(LabelOf(main, ID_DefaultLogo), "<Don't know>");

    ChooseFromLogoMenu('I');
    AnswerDialog("Import logo sets", zip_);
    EXPECT_TRUE(Counts(main, " 10 logo sets"));
    Close();
    EXPECT_EQ(NamesIn(logos), sets_);
}

TEST_F(SeveralStory, ACopyIsMadeAndNamedAndTwoSetsAreTakenElsewhere) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    SelectSet(main, 1);
    EXPECT_TRUE(Shows(main, sets_.at(1)));
    ChooseFromLogoMenu('P');
    EXPECT_TRUE(Shows(main, "Copy of " + sets_.at(1)));
    user::Type("My own");
    user::Press(VK_RETURN);
    EXPECT_TRUE(Shows(main, "My own"));
    EXPECT_TRUE(Counts(main, " 11 logo sets"));
    EXPECT_TRUE(Contents(logos + "My own\\LOGO.SYS") ==
                Contents(logos + sets_.at(1) + "\\LOGO.SYS"));

    SelectTwo(main);
    user::Press('C', {VK_CONTROL});
    const Names two = {logos + sets_.at(0), logos + sets_.at(1)};
    EXPECT_TRUE(WaitUntil([&] { return OnTheClipboard() == two; }));
    Close();
    EXPECT_EQ(OnTheClipboard(), two);
}

}  // namespace
}  // namespace vistrel::test
