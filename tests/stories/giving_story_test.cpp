// A set that one user gives to another, as a file.
#include "resources/ids.h"
#include "tests/stories/running_program.h"

namespace vistrel::test {
namespace {

class GivingStory : public RunningProgram {
 protected:
    ~GivingStory() override { DeleteFileA(zip_.c_str()); }

    /// Selects the second set of the list.
    void SelectCityLights(HWND main) {
        SelectSet(main, 1);
        ASSERT_TRUE(WaitUntil([&] { return LabelOf(main, ID_Imag) == set_ + "\\LOGO.SYS"; }));
    }

    /// A right click on the selected set opens the same commands.
    void ChooseFromMenuOfSet(HWND main, char letter) {
        RECT list{};
        GetWindowRect(user::Control(main, ID_MyList), &list);
        user::RightClickAt({list.left + 30, list.top + 10});
        ASSERT_NE(user::WaitForTop("#32768", "", process), nullptr);
        user::TakeShot("story_menu_of_set");
        user::Press(letter);
    }

    std::vector<std::optional<std::string>> ScreensOfSet() {
        return {Contents(set_ + "\\LOGO.SYS"), Contents(set_ + "\\LOGOW.SYS"),
                Contents(set_ + "\\LOGOS.SYS")};
    }

    bool Counts(HWND main, const std::string& sets) {
        return WaitUntil([&] { return LabelOf(main, ID_NumLogo) == sets; });
    }

    const std::string set_ = logos + "City Lights";
    const std::string zip_ = "C:\\gift.zip";
};

TEST_F(GivingStory, ExportsASetDeletesItAndImportsItAgain) {
    HWND main = Start();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(Counts(main, " 10 logo sets"));
    SelectCityLights(main);
    const auto screens = ScreensOfSet();
    ChooseFromLogoMenu('X');
    AnswerDialog("Export logo set", zip_);
    EXPECT_TRUE(WaitUntil([&] { return Exists(zip_); }));

    user::Activate(main);
    user::Press(VK_DELETE);
    EXPECT_NE(user::AnswerBox(IDYES, process).text.find("City Lights"), std::string::npos);
    // The system has a question of its own before files go into the bin.
    EXPECT_TRUE(user::AnswerShell(IDYES, process));
    EXPECT_TRUE(Counts(main, " 9 logo sets"));
    EXPECT_FALSE(Exists(set_));

    ChooseFromLogoMenu('I');
    AnswerDialog("Import logo sets", zip_);
    EXPECT_TRUE(Counts(main, " 10 logo sets"));
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_Imag) == set_ + "\\LOGO.SYS"; }));
    user::TakeShot("story_given", main);
    Close();
    EXPECT_TRUE(ScreensOfSet() == screens);
}

TEST_F(GivingStory, ASecondImportReplacesWhatHasBeenPaintedOver) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    // The first of the list.
    const std::string startup = logos + NamesIn(logos).at(0) + "\\LOGO.SYS";
    SelectSet(main, 0);
    ASSERT_TRUE(WaitUntil([&] { return LabelOf(main, ID_Imag) == startup; }));
    const auto before = Contents(startup);
    ChooseFromMenuOfSet(main, 'X');
    AnswerDialog("Export logo set", zip_);
    EXPECT_TRUE(WaitUntil([&] { return Exists(zip_); }));
    Put(startup, "painted over");

    user::Activate(main);
    ChooseFromMenuOfSet(main, 'I');
    AnswerDialog("Import logo sets", zip_);
    user::AnswerBox(IDNO, process);
    EXPECT_EQ(Contents(startup), "painted over");
    user::Activate(main);
    ChooseFromMenuOfSet(main, 'I');
    AnswerDialog("Import logo sets", zip_);
    user::AnswerBox(IDYES, process);
    EXPECT_TRUE(WaitUntil([&] { return before && Contents(startup) == before; }));
    Close();
}

}  // namespace
}  // namespace vistrel::test
