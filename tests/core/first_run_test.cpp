// The first run: keeping the screens that are installed as a set of their own.
#include <windows.h>

#include <algorithm>

#include "core/settings.h"
#include "platform/fault.h"
#include "tests/support/machine/machine.h"
#include "tests/support/machine/setting_rows.h"

namespace vistrel::test {

using namespace core;
using namespace platform;

namespace {

class FirstRunTest : public Machine {
 protected:
    FirstRunTest() { PutInstalled(); }

    /// The startup screen lies in the root of drive C, which no value names yet.
    void PutInstalled() {
        Put("C:\\LOGO.SYS", "old startup");
        Put(windows + "LOGOW.SYS", "old wait");
        Put(windows + "LOGOS.SYS", "old shutdown");
    }
    std::vector<std::string> Kept(const std::string& folder) const {
        const std::string set = folder + "Original Logos\\";
        return {Contents(set + "LOGO.SYS").value_or("-"), Contents(set + "LOGOW.SYS").value_or("-"),
                Contents(set + "LOGOS.SYS").value_or("-")};
    }
    static void ExpectFlagsOn(const Settings& settings) {
        EXPECT_EQ(settings.deleteInTheRecycleBin, 1);
        EXPECT_EQ(settings.confirmLogosetDelete, 1);
        EXPECT_EQ(settings.confirmLogoTypeChange, 1);
        EXPECT_EQ(settings.showSplashScreen, 1);
    }

    const std::vector<std::string> kept_ = {"old startup", "old wait", "old shutdown"};
};

TEST_F(FirstRunTest, OnACleanMachineTheInstalledScreensBecomeASetInTheProgramFolder) {
    const Settings settings = LoadSettings(locations);
    EXPECT_EQ(settings.logoPath, program);
    EXPECT_EQ(settings.defaultLogoSet, "Original Logos");
    EXPECT_EQ(Kept(program), kept_);
    ExpectFlagsOn(settings);
    EXPECT_EQ(Contents("C:\\LOGO.SYS"), "old startup");
}

TEST_F(FirstRunTest, TheSetIsMadeInTheStoredLogoFolder) {
    Store("LogoPath", TextValue(logos));
    Store("ShowSplashScreen", TextValue("0"));
    Store("ConfirmLogosetDelete", TextValue("7"));
    const Settings settings = LoadSettings(locations);
    EXPECT_EQ(settings.defaultLogoSet, "Original Logos");
    EXPECT_EQ(Kept(logos), kept_);
    ExpectFlagsOn(settings);
}

TEST_F(FirstRunTest, AFolderOfThatNameIsLeftAloneAndNoSetIsKnown) {
    MakeFolders(program + "original logos\\");
    Store("ShowSplashScreen", TextValue("0"));
    const Settings settings = LoadSettings(locations);
    EXPECT_EQ(settings.defaultLogoSet, "");
    EXPECT_EQ(NamesIn(program + "original logos\\"), std::vector<std::string>{});
    ExpectFlagsOn(settings);
}

TEST_F(FirstRunTest, AScreenThatIsMissingIsNotCopied) {
    RemoveTree(windows + "LOGOW.SYS");
    const Settings settings = LoadSettings(locations);
    EXPECT_EQ(settings.defaultLogoSet, "Original Logos");
    EXPECT_EQ(Kept(program), (std::vector<std::string>{"old startup", "-", "old shutdown"}));
}

TEST_F(FirstRunTest, AFileOfThatNameLeavesNothingToCopyToButTheSetIsTheInstalledOne) {
    Put(program + "Original Logos", "a file");
    const Settings settings = LoadSettings(locations);
    EXPECT_EQ(settings.defaultLogoSet, "Original Logos");
    EXPECT_EQ(Contents(program + "Original Logos"), "a file");
}

TEST_F(FirstRunTest, HiddenAndReadOnlyScreensAreKeptToo) {
    GiveAttributes("C:\\LOGO.SYS", FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_READONLY);
    LoadSettings(locations);
    EXPECT_EQ(Kept(program), kept_);
}

TEST_F(FirstRunTest, AKnownSetMakesNoFirstRun) {
    Store("DefaultLogoSet", TextValue("Blue"));
    Store("ShowSplashScreen", TextValue("0"));
    const Settings settings = LoadSettings(locations);
    EXPECT_EQ(settings.defaultLogoSet, "Blue");
    EXPECT_EQ(settings.showSplashScreen, 0);
    EXPECT_EQ(NamesIn(program), std::vector<std::string>{});
}

TEST_F(FirstRunTest, AStepThatFailsIsPassedOver) {
    Settings settings;
    std::vector<int> missing;
    // Reading the values: a key each that does not open.
    const int reading = static_cast<int>(SettingNames().size());
    WithEachOperationFailing(
        [&] {
            RemoveTree(program);
            MakeFolders(program);
        },
        [&] { settings = LoadSettings(locations); },
        [&](int failed) {
            const auto kept = Kept(program);
            const auto lost = std::count(kept.begin(), kept.end(), "-");
            if (failed <= reading) {
                EXPECT_EQ(lost, 0);
            }
            // One that cannot be copied, or all where the set cannot be made or named.
            if (lost > 0) missing.push_back(static_cast<int>(lost));
            EXPECT_EQ(settings.defaultLogoSet, "Original Logos");
            EXPECT_EQ(settings.logoPath, program);
            ExpectFlagsOn(settings);
        });
    EXPECT_EQ(missing, (std::vector<int>{3, 3, 3, 1, 1, 1, 3}));
}

TEST_F(FirstRunTest, WithEverythingFailingTheDefaultsAreLeft) {
    Store("LogoPath", TextValue(logos));
    fault::FailFromOperation(1);
    const Settings settings = LoadSettings(locations);
    fault::Reset();
    EXPECT_EQ(settings.logoPath, program);
    EXPECT_EQ(settings.bootRoot, "C:\\");
    ExpectFlagsOn(settings);
    EXPECT_EQ(NamesIn(program), std::vector<std::string>{});
}

}  // namespace
}  // namespace vistrel::test
