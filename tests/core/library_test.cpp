// The rules about logo sets on disk.
#include "core/library.h"

#include <algorithm>

#include "platform/fault.h"
#include "tests/core/machine.h"

namespace vistrel::test {
namespace {

using Names = std::vector<std::string>;

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

TEST(LibraryTest, ASingleLogoSetTakesTwoScreensFromTheLogoFolder) {
    EXPECT_EQ(ScreenPathsOfSet("D:\\L\\", "Blue"),
              (std::array<std::string, 3>{"D:\\L\\Blue\\LOGO.SYS", "D:\\L\\Blue\\LOGOW.SYS",
                                          "D:\\L\\Blue\\LOGOS.SYS"}));
    EXPECT_EQ(ScreenPathsOfSet("D:\\L\\", "Blue.sls"),
              (std::array<std::string, 3>{"D:\\L\\Blue.sls\\LOGO.SYS", "D:\\L\\LOGOW.SYS",
                                          "D:\\L\\LOGOS.SYS"}));
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
    const Names names = {"Blue set", "Caf\xE9 'one'", "LOGO.SYS", "a.b.c", std::string(200, 'n')};
    for (const std::string& name : names) MakeFolders(logos + name + "\\inside\\");
    Names found = LogoSetNames(logos);
    std::sort(found.begin(), found.end());
    EXPECT_EQ(found, names);
}

TEST_F(Machine, HiddenFoldersAreSetsToo) {
    MakeFolders(logos + "Blue\\");
    GiveAttributes(logos + "Blue", 2);
    EXPECT_EQ(LogoSetNames(logos), Names{"Blue"});
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
