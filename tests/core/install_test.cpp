// Installing a logo set.
#include "core/install.h"

#include <windows.h>

#include "platform/fault.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;

namespace {

using Screens = std::vector<std::string>;

class InstallTest : public Machine {
 protected:
    void PutInstalled() {
        Put(boot + "LOGO.SYS", "old LOGO.SYS");
        Put(windows + "LOGOW.SYS", "old LOGOW.SYS");
        Put(windows + "LOGOS.SYS", "old LOGOS.SYS");
    }
    void GiveInstalled(unsigned long attributes) {
        GiveAttributes(boot + "LOGO.SYS", attributes);
        GiveAttributes(windows + "LOGOW.SYS", attributes);
        GiveAttributes(windows + "LOGOS.SYS", attributes);
    }

    const InstallTargets targets_ = {logos, boot, windows};
};

TEST_F(InstallTest, AMultiLogoSetBringsItsOwnScreens) {
    PutInstalled();
    PutScreens(logos, "shared");
    PutScreens(logos + "Blue\\", "Blue");
    InstallLogoSet(targets_, "Blue", false);
    EXPECT_EQ(Installed(), (Screens{"Blue LOGO.SYS", "Blue LOGOW.SYS", "Blue LOGOS.SYS"}));
}

TEST_F(InstallTest, ASingleLogoSetBringsTheSharedScreensAndNotThoseInsideIt) {
    PutInstalled();
    PutScreens(logos, "shared");
    PutScreens(logos + "Blue.sls\\", "Blue");
    InstallLogoSet(targets_, "Blue.sls", false);
    EXPECT_EQ(Installed(), (Screens{"Blue LOGO.SYS", "shared LOGOW.SYS", "shared LOGOS.SYS"}));
}

TEST_F(InstallTest, WhileSynchronizingOnlyTheStartupScreenChanges) {
    PutInstalled();
    PutScreens(logos + "Blue\\", "Blue");
    InstallLogoSet(targets_, "Blue", true);
    EXPECT_EQ(Installed(), (Screens{"Blue LOGO.SYS", "old LOGOW.SYS", "old LOGOS.SYS"}));
}

TEST_F(InstallTest, AScreenThatTheSetLacksEndsUpAbsent) {
    PutInstalled();
    MakeFolders(logos + "Blue\\");
    Put(logos + "Blue\\LOGO.SYS", "Blue LOGO.SYS");
    InstallLogoSet(targets_, "Blue", false);
    EXPECT_EQ(Installed(), (Screens{"Blue LOGO.SYS", "-", "-"}));
}

TEST_F(InstallTest, ASetThatIsGoneLeavesNoScreen) {
    PutInstalled();
    InstallLogoSet(targets_, "gone", false);
    EXPECT_EQ(Installed(), (Screens{"-", "-", "-"}));
}

TEST_F(InstallTest, ReadOnlyHiddenAndSystemFilesAreReplaced) {
    PutScreens(logos + "Blue\\", "Blue");
    for (unsigned long attributes = 1; attributes < 8; ++attributes) {
        PutInstalled();
        GiveInstalled(attributes);
        InstallLogoSet(targets_, "Blue", false);
        EXPECT_EQ(Installed(), (Screens{"Blue LOGO.SYS", "Blue LOGOW.SYS", "Blue LOGOS.SYS"}));
    }
}

TEST_F(InstallTest, WhileSynchronizingAttributesAreClearedAllTheSame) {
    PutInstalled();
    GiveInstalled(FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    PutScreens(logos + "Blue\\", "Blue");
    InstallLogoSet(targets_, "Blue", true);
    EXPECT_EQ(AttributesOf(windows + "LOGOW.SYS") & 7, 0u);
    EXPECT_EQ(AttributesOf(windows + "LOGOS.SYS") & 7, 0u);
}

TEST_F(InstallTest, TheInstalledFileIsReadOnlyWhereTheSetsIs) {
    PutScreens(logos + "Blue\\", "Blue");
    GiveAttributes(logos + "Blue\\LOGO.SYS", FILE_ATTRIBUTE_READONLY);
    InstallLogoSet(targets_, "Blue", false);
    EXPECT_EQ(AttributesOf(boot + "LOGO.SYS"), static_cast<unsigned long>(FILE_ATTRIBUTE_READONLY));
    InstallLogoSet(targets_, "Blue", false);
}

TEST_F(InstallTest, ToggleReadOnlyAttribClearsWhatIsThereAndPassesOverWhatIsNot) {
    PutInstalled();
    GiveInstalled(7);
    RemoveTree(boot + "LOGO.SYS");
    ToggleReadOnlyAttrib(targets_);
    EXPECT_EQ(AttributesOf(windows + "LOGOW.SYS") & 7, 0u);
    EXPECT_EQ(AttributesOf(windows + "LOGOS.SYS") & 7, 0u);
}

TEST_F(InstallTest, OddSetNamesAndFoldersNamedLikeScreens) {
    for (const std::string& name :
         {std::string("My blue set"), std::string("v1.2.3"), OddName() + " 'o'",
          std::string(200, 'n'), std::string("LOGO.SYS")}) {
        PutInstalled();
        PutScreens(logos + name + "\\", "odd");
        InstallLogoSet(targets_, name, false);
        EXPECT_EQ(Installed(), (Screens{"odd LOGO.SYS", "odd LOGOW.SYS", "odd LOGOS.SYS"}));
    }
    MakeFolders(logos + "Blue\\LOGO.SYS\\");
    InstallLogoSet(targets_, "Blue", true);
    EXPECT_EQ(Installed()[0], "-");
}

TEST_F(InstallTest, ScreensOfEverySizeArriveByteForByte) {
    MakeFolders(logos + "Blue\\");
    const std::string bytes = std::string("BM\0\xFF\r\n\x1A", 7);
    std::string large;
    while (large.size() < 129077) large += bytes;
    large.resize(129077);
    Put(logos + "Blue\\LOGO.SYS", "");
    Put(logos + "Blue\\LOGOW.SYS", large.substr(0, 53));
    Put(logos + "Blue\\LOGOS.SYS", large);
    InstallLogoSet(targets_, "Blue", false);
    EXPECT_EQ(Installed(), (Screens{"", large.substr(0, 53), large}));
}

TEST_F(InstallTest, EachStepThatFailsIsPassedOver) {
    const Screens fresh = {"Blue LOGO.SYS", "Blue LOGOW.SYS", "Blue LOGOS.SYS"};
    // What the screens are when step n fails, in the order of the steps: three times clearing
    // attributes (a read-only file then stays), deleting and copying the startup screen, deleting
    // the other two (the copy then replaces them), copying them.
    const std::vector<Screens> after = {
        {"old LOGO.SYS", fresh[1], fresh[2]},
        {fresh[0], "old LOGOW.SYS", fresh[2]},
        {fresh[0], fresh[1], "old LOGOS.SYS"},
        fresh,
        {"-", fresh[1], fresh[2]},
        fresh,
        fresh,
        {fresh[0], "-", fresh[2]},
        {fresh[0], fresh[1], "-"},
    };
    PutScreens(logos + "Blue\\", "Blue");
    std::size_t failing = 0;
    WithEachOperationFailing(
        [&] {
            PutInstalled();
            GiveInstalled(FILE_ATTRIBUTE_READONLY);
        },
        [&] { InstallLogoSet(targets_, "Blue", false); },
        [&](int failed) {
            failing = failed;
            EXPECT_EQ(Installed(), after[failed - 1]);
        });
    EXPECT_EQ(failing, after.size());
}

TEST_F(InstallTest, EachStepThatFailsWhileSynchronizingIsPassedOver) {
    const std::vector<std::string> after = {"old LOGO.SYS", "Blue LOGO.SYS", "Blue LOGO.SYS",
                                            "Blue LOGO.SYS", "-"};
    PutScreens(logos + "Blue\\", "Blue");
    std::size_t failing = 0;
    WithEachOperationFailing(
        [&] {
            PutInstalled();
            GiveInstalled(FILE_ATTRIBUTE_READONLY);
        },
        [&] { InstallLogoSet(targets_, "Blue", true); },
        [&](int failed) {
            failing = failed;
            EXPECT_EQ(Installed(), (Screens{after[failed - 1], "old LOGOW.SYS", "old LOGOS.SYS"}));
        });
    EXPECT_EQ(failing, after.size());
}

TEST_F(InstallTest, ATargetFolderThatIsGoneIsPassedOver) {
    PutScreens(logos + "Blue\\", "Blue");
    RemoveTree(windows);
    InstallLogoSet(targets_, "Blue", false);
    EXPECT_EQ(Installed(), (Screens{"Blue LOGO.SYS", "-", "-"}));
}

}  // namespace
}  // namespace vistrel::test
