// Registering Mirrorkin.
#include "core/synchronizing.h"

#include <windows.h>

#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;

namespace {

TEST(SynchronizedPathTest, IsTheLogoFolderForASingleLogoSetAndTheSetsOwnOtherwise) {
    EXPECT_EQ(SynchronizedPath("C:\\L\\", "Sunset.SLS"), "C:\\L\\");
    EXPECT_EQ(SynchronizedPath("C:\\L\\", "sunset.sls"), "C:\\L\\");
    EXPECT_EQ(SynchronizedPath("C:\\L\\", "Blue"), "C:\\L\\Blue");
}

TEST(SynchronizedPathTest, IsAFolderThatCannotExistWhereNoSetIsKnown) {
    EXPECT_EQ(SynchronizedPath("C:\\L\\", ""), "C:\\L\\<Don't know>");
    EXPECT_EQ(SynchronizedPath("C:\\L\\", "<Don't know>"), "C:\\L\\<Don't know>");
}

TEST_F(Machine, RegisteringEntersTheProgramAndWritesItsFile) {
    EXPECT_TRUE(RegisterMirrorkin(program, logos, "Blue"));
    EXPECT_EQ(StoredIn(kRunKey, "Mirrorkin"), SavedText(program + "Mirrorkin.exe /auto"));
    EXPECT_EQ(Contents(program + "Mirrorkin.ini"), "[Settings]\r\nPath=" + logos + "Blue\r\n");
    EXPECT_EQ(ReadSynchronizedPath(program), logos + "Blue");
}

TEST_F(Machine, RegisteringAgainReplacesThePath) {
    RegisterMirrorkin(program, logos, "Blue");
    EXPECT_TRUE(RegisterMirrorkin(program, logos, OddName() + ".sls"));
    EXPECT_EQ(ReadSynchronizedPath(program), logos);
}

TEST_F(Machine, RemovingTakesBothAway) {
    RegisterMirrorkin(program, logos, "Blue");
    StoreIn(kRunKey, "Other", TextValue("stays"));
    RemoveMirrorkin(program);
    EXPECT_FALSE(StoredIn(kRunKey, "Mirrorkin"));
    EXPECT_FALSE(Exists(program + "Mirrorkin.ini"));
    EXPECT_EQ(StoredIn(kRunKey, "Other"), TextValue("stays"));
    ForgetValue(kRunKey, "Other");
    EXPECT_EQ(ReadSynchronizedPath(program), "");
}

TEST_F(Machine, RemovingWhatIsNotThereIsNoTrouble) {
    RemoveMirrorkin(program);
    EXPECT_FALSE(StoredIn(kRunKey, "Mirrorkin"));
}

TEST_F(Machine, ARegisteringStepThatFailsIsPassedOverButTold) {
    bool registered = true;
    WithEachOperationFailing(
        [&] {
            ForgetValue(kRunKey, "Mirrorkin");
            RemoveTree(program + "Mirrorkin.ini");
        },
        [&] { registered = RegisterMirrorkin(program, logos, "Blue"); },
        [&](int failed) {
            // Opening the key, writing the value, writing the file.
            EXPECT_FALSE(registered);
            EXPECT_EQ(StoredIn(kRunKey, "Mirrorkin").has_value(), failed == 3);
            EXPECT_EQ(Exists(program + "Mirrorkin.ini"), failed != 3);
        });
}

TEST_F(Machine, ARemovingStepThatFailsIsPassedOver) {
    WithEachOperationFailing([&] { RegisterMirrorkin(program, logos, "Blue"); },
                             [&] { RemoveMirrorkin(program); },
                             [&](int failed) {
                                 EXPECT_EQ(Exists(program + "Mirrorkin.ini"), failed == 1);
                                 EXPECT_EQ(StoredIn(kRunKey, "Mirrorkin").has_value(), failed != 1);
                             });
}

}  // namespace
}  // namespace vistrel::test
