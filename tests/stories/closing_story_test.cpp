// A second start, and the program closed from outside while something is open in front of it.
#include "resources/ids.h"
#include "tests/stories/running_program.h"

namespace vistrel::test {
namespace {

class Ending : public RunningProgram {
 protected:
    /// Opens the preferences, which keep the main window waiting.
    HWND OpenPreferences() {
        EXPECT_NE(user::OpenMenuByLetter('O', process), nullptr);
        user::Press('P');
        return user::WaitForTop("FrmOptions", "", process);
    }

    /// Starts the program a second time, and again where the system did not let it bring the first
    /// to the front, as a user would.
    template <typename Condition>
    static bool StartsUntil(Condition condition) {
        constexpr int kTries = 3;
        for (int i = 0; i < kTries; ++i) {
            EXPECT_EQ(StartedProgram(kOpenProgram).WaitForEnd(), 0u);
            if (WaitUntil(condition, 5000)) return true;
        }
        return false;
    }

    /// Types into the field of the set's name, and again where nothing has come there.
    bool TypesAName(HWND browser) {
        constexpr int kTries = 3;
        for (int i = 0; i < kTries; ++i) {
            user::Activate(browser);
            RECT r{};
            GetWindowRect(user::Control(browser, ID_NameLogoSet), &r);
            user::ClickAt({r.left + 20, (r.top + r.bottom) / 2});
            user::Type("X");
            if (WaitUntil(
                    [&] { return LabelOf(browser, ID_NameLogoSet).find('X') != std::string::npos; },
                    5000))
                return true;
        }
        return false;
    }

    /// Asks every window of the program to close, as the system's own tool does.
    static void CloseFromOutside() {
        EXPECT_EQ(StartedProgram("taskkill /IM vistrel.exe").WaitForEnd(), 0u);
    }
};

TEST_F(Ending, ASecondStartBringsTheOpenProgramToTheFrontAndEnds) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    ShowWindow(main, SW_MINIMIZE);
    EXPECT_TRUE(WaitUntil([&] { return IsIconic(main) != 0; }));
    EXPECT_TRUE(StartsUntil([&] { return !IsIconic(main) && GetForegroundWindow() == main; }));
    Close();
}

TEST_F(Ending, ASecondStartBringsTheWindowToTheFrontThatWaitsForAnAnswer) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    const HWND preferences = OpenPreferences();
    ASSERT_NE(preferences, nullptr);
    const HWND other = CreateWindowA("STATIC", "another program", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                     0, 0, 900, 700, nullptr, nullptr, nullptr, nullptr);
    EXPECT_TRUE(user::Activate(other));
    EXPECT_TRUE(StartsUntil([&] { return GetForegroundWindow() == preferences; }));
    user::TakeShot("story_second_start");
    DestroyWindow(other);
    user::Press(VK_ESCAPE);
    EXPECT_TRUE(user::WaitUntilGone(preferences));
    Close();
}

TEST_F(Ending, ASecondStartRightAfterTheFirstOpensOneProgram) {
    const StartedProgram one(kOpenProgram);
    const StartedProgram other(kOpenProgram);
    // Of either of the two, whichever came first. Were there another, its program would not end.
    const HWND main = user::WaitForTop("Principale");
    EXPECT_NE(main, nullptr);
    // That is a second start only while the window is there.
    EXPECT_TRUE(WaitUntil(
        [&] { return one.WaitForEnd(0).has_value() || other.WaitForEnd(0).has_value(); }, 60000));
    PostMessageA(main, WM_CLOSE, 0, 0);
    EXPECT_EQ(one.WaitForEnd(), 0u);
    EXPECT_EQ(other.WaitForEnd(), 0u);
}

TEST_F(Ending, AStartRightAfterClosingOpensTheProgramAgain) {
    HWND main = Start();
    ASSERT_NE(main, nullptr);
    PostMessageA(main, WM_SYSCOMMAND, SC_CLOSE, 0);
    // The user sees it gone, not its program end.
    EXPECT_TRUE(WaitUntil([&] { return !IsWindowVisible(main); }));
    main = Start();
    EXPECT_NE(main, nullptr);
    Close();
}

TEST_F(Ending, ClosedFromOutsideTheProgramEndsAlthoughThePreferencesAreOpen) {
    ASSERT_NE(Start(), nullptr);
    ASSERT_NE(OpenPreferences(), nullptr);
    CloseFromOutside();
    EXPECT_EQ(WaitForEnd(), 0u);
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Sunny Day"));
}

TEST_F(Ending, ClosedFromOutsideTheProgramStaysWhereItHasAQuestion) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    PressToolbarButton(main, 3, 1);
    const HWND browser = user::WaitForTop("SelPictureForm", "", process);
    ASSERT_NE(browser, nullptr);
    EXPECT_TRUE(TypesAName(browser));
    CloseFromOutside();
    // What the user has not saved is asked about; with No everything stands as it was.
    EXPECT_EQ(user::AnswerBox(IDNO, process).text,
              "You haven't saved the last changes. Would you like to discard them?");
    EXPECT_TRUE(IsWindowVisible(browser));
    EXPECT_TRUE(IsWindowVisible(main));
    EXPECT_TRUE(IsWindowEnabled(browser));
    user::Click(user::Control(browser, ID_CloseButton));
    user::AnswerBox(IDYES, process);
    EXPECT_TRUE(user::WaitUntilGone(browser));
    EXPECT_TRUE(WaitUntil([&] { return IsWindowEnabled(main) != 0; }));
    Close();
}

// The system asks every window, tells every window, and ends the program.
TEST_F(Ending, WithTheSessionTheProgramKeepsItsSettings) {
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    SelectSet(main, 1);
    ASSERT_TRUE(
        WaitUntil([&] { return LabelOf(main, ID_Imag) == logos + "City Lights\\LOGO.SYS"; }));
    PressToolbarButton(main, 2, 0);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == "City Lights"; }));
    DWORD_PTR answer = 0;
    SendMessageTimeoutA(main, WM_QUERYENDSESSION, 0, 0, SMTO_NORMAL, 20000, &answer);
    EXPECT_EQ(answer, DWORD_PTR{TRUE});
    SendMessageTimeoutA(main, WM_ENDSESSION, TRUE, 0, SMTO_NORMAL, 20000, &answer);
    EndAtOnce();
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("City Lights"));
    EXPECT_EQ(AttributesOf("C:\\msdos.sys"), DWORD{FILE_ATTRIBUTE_READONLY});
}

}  // namespace
}  // namespace vistrel::test
