// From a fresh machine to an installed logo set.
#include "resources/ids.h"
#include "tests/stories/running_program.h"
#include "tests/support/machine/setting_rows.h"

namespace vistrel::test {
namespace {

using Story = RunningProgram;

TEST_F(Story, SelectsASetInstallsItByTheToolbarAndFindsItInstalledAtTheNextStart) {
    HWND main = Start();
    ASSERT_NE(main, nullptr);
    EXPECT_EQ(user::TextOf(main), "Vistrel");
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == "Sunny Day"; }));
    EXPECT_EQ(LabelOf(main, ID_NumLogo), " 10 logo sets");

    // The second of the list, which the folder gives in alphabetical order.
    const std::string set = "City Lights";
    const std::string startup = logos + set + "\\LOGO.SYS";
    SelectSet(main, 1);
    ASSERT_TRUE(
        WaitUntil([&] { return LabelOf(main, ID_Imag + 2) == logos + set + "\\LOGOS.SYS"; }));
    const std::string wait = LabelOf(main, ID_Imag + 1);
    const std::string shutdown = LabelOf(main, ID_Imag + 2);
    user::TakeShot("story_selected", main);

    PressToolbarButton(main, 2, 0);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == set; })) << set;
    Close();

    EXPECT_TRUE(Contents("C:\\LOGO.SYS") == Contents(startup));
    EXPECT_TRUE(Contents("C:\\windows\\LOGOW.SYS") == Contents(wait));
    EXPECT_TRUE(Contents("C:\\windows\\LOGOS.SYS") == Contents(shutdown));
    EXPECT_EQ(Contents("C:\\LOGO.SYS").value_or("").size(), 129078u);
    EXPECT_EQ(AttributesOf("C:\\msdos.sys"), DWORD{FILE_ATTRIBUTE_READONLY});
    for (const std::string& name : SettingNames()) {
        const auto value = Stored(name);
        ASSERT_TRUE(value.has_value()) << name;
        EXPECT_EQ(value->type, DWORD{REG_SZ}) << name;
        EXPECT_EQ(value, SavedText(value->bytes.c_str())) << name;
    }
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText(set));

    main = Start();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == set; }));
    EXPECT_EQ(LabelOf(main, ID_Imag), startup);
    Close();
}

TEST_F(Story, MakesTheSetOriginalLogosAtTheFirstStart) {
    ForgetSettings();
    RemoveTree(kProgramFolder + "Original Logos");
    const HWND main = Start();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == "Original Logos"; }));
    Close();
    EXPECT_EQ(Contents(kProgramFolder + "Original Logos\\LOGO.SYS"), "an old screen");
    EXPECT_EQ(Contents(kProgramFolder + "Original Logos\\LOGOS.SYS"), "an old screen");
    EXPECT_EQ(Stored("LogoPath"), SavedText(kProgramFolder));
}

TEST_F(Story, ChangesTheScreensAtEveryStartOfWindowsOnceToldTo) {
    HWND main = Start();
    ASSERT_NE(main, nullptr);
    EXPECT_TRUE(WaitUntil([&] { return LabelOf(main, ID_DefaultLogo) == "Sunny Day"; }));
    ASSERT_NE(user::OpenMenuByLetter('O', process), nullptr);
    user::Press('P');
    const HWND preferences = user::WaitForTop("FrmOptions", "", process);
    ASSERT_NE(preferences, nullptr);
    RECT tabs{};
    GetWindowRect(user::Control(preferences, ID_TabStrip1), &tabs);
    user::ClickAt({tabs.left + 20, tabs.top + 10});
    for (int page = 1; page < 4; ++page) user::Press(VK_RIGHT);
    const HWND rotaline = user::Control(preferences, ID_StartUpAction);
    EXPECT_TRUE(WaitUntil([&] { return IsWindowVisible(rotaline); }));
    EXPECT_TRUE(user::ClickToMark(rotaline));
    user::TakeShot("story_preferences", preferences);
    EXPECT_TRUE(user::Click(user::Control(preferences, ID_BtnOK)));
    EXPECT_TRUE(user::WaitUntilGone(preferences));
    Close();

    // Windows starts what lies in this folder.
    char startup[MAX_PATH] = "";
    SHGetSpecialFolderPathA(nullptr, startup, CSIDL_STARTUP, FALSE);
    const std::string target = TargetOf(std::string(startup) + "\\Rotaline.lnk");
    EXPECT_EQ(target, kProgramFolder + "Rotaline.exe");
    EXPECT_EQ(StartedProgram("\"" + target + "\"").WaitForEnd(), 0u);
    EXPECT_TRUE(Contents("C:\\LOGO.SYS") == Contents(logos + "Sunrise.sls\\LOGO.SYS"));
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Sunrise.SLS"));
}

/// What a start shows until the main window is there.
struct SeenAtStart {
    bool splash = false;
    bool main = false;
    bool mainBesideSplash = false;
};

SeenAtStart WatchStart(DWORD process) {
    SeenAtStart seen;
    WaitUntil(
        [&] {
            const bool splash = user::FindTop("frmSplash", "", process) != nullptr;
            seen.main = user::FindTop("Principale", "", process) != nullptr;
            if (splash && !seen.splash) user::TakeShot("story_splash");
            seen.splash |= splash;
            seen.mainBesideSplash |= splash && seen.main;
            return seen.main;
        },
        60000);
    return seen;
}

TEST_F(Story, ShowsTheSplashScreenUntilTheMainWindowIsThere) {
    const StartedProgram program(kOpenProgram);
    ASSERT_TRUE(program);
    const SeenAtStart seen = WatchStart(program.id());
    EXPECT_TRUE(seen.splash);
    EXPECT_TRUE(seen.main);
    EXPECT_FALSE(seen.mainBesideSplash);
    PostMessageA(user::FindTop("Principale", "", program.id()), WM_CLOSE, 0, 0);
    EXPECT_EQ(program.WaitForEnd(), 0u);
    EXPECT_EQ(Stored("ShowSplashScreen"), SavedText("1"));
}

TEST_F(Story, ShowsNoSplashScreenWhereItIsSwitchedOff) {
    Store("ShowSplashScreen", TextValue("0"));
    const StartedProgram program(kOpenProgram);
    ASSERT_TRUE(program);
    const SeenAtStart seen = WatchStart(program.id());
    EXPECT_FALSE(seen.splash);
    EXPECT_TRUE(seen.main);
    PostMessageA(user::FindTop("Principale", "", program.id()), WM_CLOSE, 0, 0);
    EXPECT_EQ(program.WaitForEnd(), 0u);
    EXPECT_EQ(Stored("ShowSplashScreen"), SavedText("0"));
}

TEST_F(Story, EndsWellWhenClosedWhileTheSplashScreenIsUp) {
    const StartedProgram program(kOpenProgram);
    ASSERT_TRUE(program);
    // The main window exists, hidden, while the splash screen is shown.
    HWND hidden = nullptr;
    ASSERT_TRUE(WaitUntil([&] {
        hidden = FindWindowA("Principale", nullptr);
        return hidden != nullptr;
    }));
    PostMessageA(hidden, WM_CLOSE, 0, 0);
    EXPECT_EQ(program.WaitForEnd(), 0u);
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Sunny Day"));
    EXPECT_EQ(Stored("LogoPath"), SavedText(logos));
}

TEST_F(Story, SurvivesGarbageInTheRegistry) {
    const std::string number = std::string("\x01\x02\x03\x04", 4);
    for (const std::string& name : SettingNames()) Store(name, {REG_BINARY, "\xff\xfe garbage"});
    Store("View", {REG_DWORD, number});
    Store("DefaultLogoSet", TextValue(std::string(4000, 'x')));
    Store("LogoPath", TextValue(logos));
    Store("ActionOnDoubleClick", TextValue("12abc"));
    ASSERT_NE(Start(), nullptr);
    Close();
    ASSERT_NE(Start(), nullptr);
    Close();
    EXPECT_EQ(Stored("LogoPath"), SavedText(logos));
}

TEST_F(Story, SurvivesALogoFolderOnADriveThatIsGone) {
    Store("LogoPath", TextValue("Q:\\Logos\\"));
    ASSERT_NE(Start(), nullptr);
    Close();
    EXPECT_EQ(Stored("LogoPath"), SavedText(kProgramFolder));
}

}  // namespace
}  // namespace vistrel::test
