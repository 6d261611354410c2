// The rules about logo sets on disk.
#include "core/library.h"

#include <windows.h>

#include <algorithm>

#include "platform/fault.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace core;
using namespace platform;

namespace {

TEST(LibraryTest, AnEndingInAnyCaseMakesASingleLogoSet) {
    for (const char* name : {"Sunset.SLS", "Sunset.sls", "Blue.sLs", ".SLS", "a.b.sls"}) {
        EXPECT_TRUE(IsSingleLogoSet(name)) << name;
        EXPECT_STREQ(IconKeyOfSet(name), "singlelogo");
        EXPECT_STREQ(TypeCaptionOfSet(name), "Single logo");
    }
    for (const char* name : {"Blue", "SLS", "Blue.SLS ", "Blue.SLSX", "BlueSLS", ""}) {
        EXPECT_FALSE(IsSingleLogoSet(name)) << name;
        EXPECT_STREQ(IconKeyOfSet(name), "multilogo");
        EXPECT_STREQ(TypeCaptionOfSet(name), "Multi logo");
    }
}

TEST(LibraryTest, TheStartupScreenLiesInTheBootRoot) {
    EXPECT_EQ(
        InstalledScreenPaths("D:\\", "C:\\WIN\\"),
        (std::array<std::string, 3>{"D:\\LOGO.SYS", "C:\\WIN\\LOGOW.SYS", "C:\\WIN\\LOGOS.SYS"}));
}

TEST(LibraryTest, TheCountLineHasOneLeadingBlank) {
    EXPECT_EQ(CountLine(0), " 0 logo sets");
    EXPECT_EQ(CountLine(1), " 1 logo set");
    EXPECT_EQ(CountLine(3), " 3 logo sets");
    EXPECT_EQ(CountLine(5000), " 5000 logo sets");
}

TEST_F(Machine, OnlyFoldersAreSets) {
    Put(logos + "LOGOW.SYS", "");
    Put(logos + "LOGOS.SYS", "");
    EXPECT_EQ(LogoSetNames(logos), Names{});
    MakeFolders(logos + "Sunset.sls\\");
    EXPECT_EQ(LogoSetNames(logos), Names{"Sunset.sls"});
}

TEST_F(Machine, OddNamesAndFoldersInsideSetsAreNoTrouble) {
    Names names = {"Blue set", OddName() + " 'one'", "LOGO.SYS", "a.b.c", std::string(200, 'n')};
    for (const std::string& name : names) MakeFolders(logos + name + "\\inside\\");
    Names found = LogoSetNames(logos);
    std::sort(found.begin(), found.end());
    std::sort(names.begin(), names.end());
    EXPECT_EQ(found, names);
}

TEST_F(Machine, HiddenAndSystemFoldersAreNoSets) {
    for (const char* name : {"Blue", "RECYCLED", "System"}) MakeFolders(logos + name + "\\");
    GiveAttributes(logos + "RECYCLED", 2);
    GiveAttributes(logos + "System", 4);
    EXPECT_EQ(LogoSetNames(logos), Names{"Blue"});
    GiveAttributes(logos + "Blue", 1);
    EXPECT_EQ(LogoSetNames(logos), Names{"Blue"});
}

TEST_F(Machine, ASetWhoseNameTheCodePageLacksIsListedByItsShortName) {
    // Two letters that neither code page 1252 nor 932 has.
    CreateDirectoryW(L"C:\\machine\\logos\\\x0E01\x0E02 set", nullptr);
    const Names names = LogoSetNames(logos);
    ASSERT_EQ(names.size(), 1u);
    EXPECT_EQ(names[0].find('?'), std::string::npos) << names[0];
    PutScreens(logos + names[0] + "\\", "odd");
    EXPECT_EQ(Contents(LogoSet{logos, names[0]}.Screens()[0]), "odd LOGO.SYS");
}

TEST_F(Machine, ALogoFolderThatEndsLikeABackslashListsItsSetsAndNotItself) {
    const std::string folder = root + OddName();
    CreateDirectoryA(folder.c_str(), nullptr);
    CreateDirectoryA((folder + "\\" + OddName()).c_str(), nullptr);
    EXPECT_EQ(LogoSetNames(folder), Names{OddName()});
}

TEST_F(Machine, AFolderWithoutABackslashIsReadAllTheSame) {
    MakeFolders(logos + "Blue\\");
    EXPECT_EQ(LogoSetNames(root + "logos"), Names{"Blue"});
}

TEST_F(Machine, AFolderThatIsGoneHoldsNoSets) {
    EXPECT_EQ(LogoSetNames(root + "gone\\"), Names{});
    EXPECT_EQ(LogoSetNames("Q:\\LOGOS\\"), Names{});
    MakeFolders(logos + "Blue\\");
    fault::FailOperation(1);
    EXPECT_EQ(LogoSetNames(logos), Names{});
}

TEST(NextLogoSetTest, FollowsTheInstalledOneAndBeginsAgain) {
    const Names sets = {"a", "b", "c"};
    EXPECT_EQ(NextLogoSet(sets, "a"), "b");
    EXPECT_EQ(NextLogoSet(sets, "b"), "c");
    EXPECT_EQ(NextLogoSet(sets, "c"), "a");
}

TEST(NextLogoSetTest, IsTheFirstWhereTheInstalledOneIsNotKnown) {
    EXPECT_EQ(NextLogoSet({"a", "b"}, ""), "a");
    EXPECT_EQ(NextLogoSet({"a", "b"}, "A"), "a");
    EXPECT_EQ(NextLogoSet({"a", "b"}, "deleted"), "a");
    EXPECT_EQ(NextLogoSet({"only"}, "only"), "only");
    EXPECT_EQ(NextLogoSet({}, "a"), std::nullopt);
}

}  // namespace
}  // namespace vistrel::test
