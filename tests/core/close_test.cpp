// What closing the program leaves behind.
#include "core/close.h"

#include <windows.h>

#include "core/boot_option.h"
#include "tests/support/machine/machine.h"
#include "tests/support/machine/setting_rows.h"

namespace vistrel::test {

using namespace core;

namespace {

constexpr const char* kBootFile = "C:\\msdos.sys";
class CloseTest : public Machine {
 protected:
    CloseTest() {
        Put(kBootFile, "[Options]\r\nLogo=1\r\n");
        GiveAttributes(kBootFile,
                       FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY);
        state_.settings = ReadSettings(locations);
        state_.settings.logoPath = logos;
        state_.settings.defaultLogoSet = "Blue";
    }
    std::optional<std::string> Ini() const { return Contents(program + "Mirrorkin.ini"); }

    ClosingState state_;
};

TEST_F(CloseTest, AnUnchangedOptionLeavesTheFileReadOnlyAndNotHidden) {
    WriteBackOnClose(locations, state_);
    EXPECT_EQ(AttributesOf(kBootFile), static_cast<unsigned long>(FILE_ATTRIBUTE_READONLY));
    EXPECT_EQ(Contents(kBootFile), "[Options]\r\nLogo=1\r\n");
}

TEST_F(CloseTest, AChangedOptionIsWritten) {
    state_.changedBootOption = 0;
    WriteBackOnClose(locations, state_);
    EXPECT_EQ(AttributesOf(kBootFile), 0u);
    EXPECT_EQ(ReadBootLogoOption(kBootFile), 0);
}

TEST_F(CloseTest, TheSettingsAreSaved) {
    WriteBackOnClose(locations, state_);
    EXPECT_EQ(Stored("DefaultLogoSet"), SavedText("Blue"));
    EXPECT_EQ(Stored("ActionOnDoubleClick"), SavedText("0"));
}

TEST_F(CloseTest, AWantedCompanionGetsTheFolderOfTheInstalledSet) {
    state_.companionWanted = true;
    WriteBackOnClose(locations, state_);
    EXPECT_EQ(StoredIn(kRunKey, "Mirrorkin"), SavedText(program + "Mirrorkin.exe /auto"));
    EXPECT_EQ(Ini(), "[Settings]\r\nPath=" + logos + "Blue\r\n");

    state_.settings.defaultLogoSet = "Sunset.SLS";
    WriteBackOnClose(locations, state_);
    EXPECT_EQ(Ini(), "[Settings]\r\nPath=" + logos + "\r\n");
}

TEST_F(CloseTest, WithoutAKnownSetTheCompanionGetsAFolderThatCannotExist) {
    PutScreens(logos, "shared");
    state_.companionWanted = true;
    state_.settings.defaultLogoSet = "";
    WriteBackOnClose(locations, state_);
    EXPECT_EQ(Ini(), "[Settings]\r\nPath=" + logos + "<Don't know>\r\n");
}

TEST_F(CloseTest, ACompanionThatIsNotWantedIsRemoved) {
    StoreIn(kRunKey, "Mirrorkin", TextValue("old"));
    Put(program + "Mirrorkin.ini", "old");
    WriteBackOnClose(locations, state_);
    EXPECT_FALSE(StoredIn(kRunKey, "Mirrorkin"));
    EXPECT_FALSE(Ini());
    WriteBackOnClose(locations, state_);  // with neither of them there
    EXPECT_FALSE(Ini());
}

TEST_F(CloseTest, AStepThatFailsIsPassedOver) {
    state_.changedBootOption = 0;
    state_.companionWanted = true;
    // Attributes, option; the key and two operations for each value; then the entry's key, the
    // entry and the ini file.
    const int key = 3;
    const int entryKey = key + 2 * static_cast<int>(SettingNames().size()) + 1;
    int failing = 0;
    WithEachOperationFailing(
        [&] {
            Put(kBootFile, "[Options]\r\nLogo=1\r\n");
            GiveAttributes(kBootFile, FILE_ATTRIBUTE_HIDDEN);
            ForgetSettings();
            Store("other", TextValue("kept"));
            ForgetValue(kRunKey, "Mirrorkin");
            RemoveTree(program + "Mirrorkin.ini");
        },
        [&] { WriteBackOnClose(locations, state_); },
        [&](int failed) {
            failing = failed;
            EXPECT_EQ((AttributesOf(kBootFile) & FILE_ATTRIBUTE_HIDDEN) == 0, failed != 1);
            EXPECT_EQ(ReadBootLogoOption(kBootFile), failed == 2 ? 1 : 0);
            // The last of the values is saved unless one before it could not be.
            EXPECT_EQ(Stored(SettingNames().back()).has_value(),
                      failed <= key || failed >= entryKey);
            EXPECT_EQ(StoredIn(kRunKey, "Mirrorkin").has_value(),
                      failed < entryKey || failed > entryKey + 1);
            EXPECT_EQ(Ini().has_value(), failed != entryKey + 2);
        });
    EXPECT_EQ(failing, entryKey + 2);
}

}  // namespace
}  // namespace vistrel::test
