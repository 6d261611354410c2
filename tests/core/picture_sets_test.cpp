// Sets of many pictures: what is made of which, and what is left out.
#include "core/picture_sets.h"

#include "core/library.h"
#include "pictures/compose/stages.h"
#include "platform/fault.h"
#include "tests/support/machine/machine.h"

namespace vistrel::test {

using namespace platform;
using namespace core;

namespace {

/// A bitmap of two pixels beside each other, in one colour.
std::string Bitmap(unsigned char red, unsigned char green, unsigned char blue) {
    std::string file = "BM";
    file += std::string{62, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0, 40, 0, 0, 0, 2, 0, 0, 0};
    file += std::string{1, 0, 0, 0, 1, 0, 24, 0};
    file.append(24, '\0');
    for (int i = 0; i < 2; ++i) file += std::string{char(blue), char(green), char(red)};
    return file + std::string(2, '\0');
}

class PictureSetsOf : public Machine {
 protected:
    PictureSetsOf() {
        MakeFolders(pictures);
        MakeFolders(logos);
    }

    std::string Picture(const std::string& name) {
        const std::string path = pictures + name;
        Put(path, Bitmap(static_cast<unsigned char>(name[0]), 100, 50));
        return path;
    }
    static void Run(PictureSets& sets) {
        while (!sets.IsDone()) sets.Next();
    }
    std::string ScreenOf(const std::string& path, compose::FramingKind kind) {
        compose::Composition composition;
        composition.framing.kind = kind;
        compose::MakeScreen(path, root + "expected.sys", composition);
        return *Contents(root + "expected.sys");
    }

    const std::string pictures = root + "pictures\\";
};

TEST_F(PictureSetsOf, OnePictureEachAreStartupOnlySetsOfItsName) {
    const Names some = {Picture("sea.bmp"), Picture("hill.bmp")};
    PictureSets sets(logos, some, SetKind::StartupOnly, compose::FramingKind::Fit);
    Run(sets);
    EXPECT_EQ(sets.Made(), (Names{"sea.sls", "hill.sls"}));
    EXPECT_EQ(NamesIn(logos), (Names{"hill.sls", "sea.sls"}));
    EXPECT_EQ(NamesIn(logos + "sea.sls\\"), Names{"LOGO.SYS"});
    EXPECT_TRUE(Contents(logos + "sea.sls\\LOGO.SYS") ==
                ScreenOf(some[0], compose::FramingKind::Fit));
}

TEST_F(PictureSetsOf, ThreePicturesAreCompleteAndTheLastMayLackScreens) {
    const Names some = {Picture("a.bmp"), Picture("b.bmp"), Picture("c.bmp"), Picture("d.bmp"),
                        Picture("e.bmp")};
    PictureSets sets(logos, some, SetKind::Complete, compose::FramingKind::Fill);
    Run(sets);
    EXPECT_EQ(sets.Made(), (Names{"a", "d"}));
    EXPECT_TRUE(Contents(logos + "a\\LOGOS.SYS") == ScreenOf(some[2], compose::FramingKind::Fill));
    EXPECT_EQ(NamesIn(logos + "d\\"), (Names{"LOGO.SYS", "LOGOW.SYS"}));
}

TEST_F(PictureSetsOf, NamesThatExistGetANumber) {
    MakeFolders(logos + "sea.SLS\\");
    MakeFolders(logos + "sea 2.sls\\");
    PictureSets sets(logos, {Picture("sea.bmp")}, SetKind::StartupOnly, compose::FramingKind::Fill);
    Run(sets);
    EXPECT_EQ(sets.Made(), Names{"sea 3.sls"});
}

TEST_F(PictureSetsOf, ACompleteSetIsNeverNamedAsAStartupOnlyOne) {
    PictureSets sets(logos, {Picture("sea.sls.bmp")}, SetKind::Complete,
                     compose::FramingKind::Fill);
    Run(sets);
    EXPECT_EQ(sets.Made(), Names{"sea"});
}

TEST_F(PictureSetsOf, WhatCannotBeReadIsNamedAndTheNextTakesItsPlace) {
    const Names some = {Picture("a.bmp"), pictures + "none.bmp", Picture("b.bmp"),
                        Picture("c.bmp")};
    PictureSets sets(logos, some, SetKind::Complete, compose::FramingKind::Fill);
    Run(sets);
    EXPECT_EQ(sets.Made(), Names{"a"});
    EXPECT_EQ(sets.NotRead(), Names{pictures + "none.bmp"});
    EXPECT_TRUE(Contents(logos + "a\\LOGOS.SYS") == ScreenOf(some[3], compose::FramingKind::Fill));
}

TEST_F(PictureSetsOf, StoppedLeaveNoSetUnfinished) {
    PictureSets sets(logos, {Picture("a.bmp"), Picture("b.bmp"), Picture("c.bmp")},
                     SetKind::Complete, compose::FramingKind::Fill);
    sets.Next();
    sets.Next();
    EXPECT_EQ(sets.Done(), 2u);
    sets.Stop();
    EXPECT_TRUE(sets.IsDone());
    EXPECT_EQ(NamesIn(logos), Names{});
}

TEST_F(PictureSetsOf, AFullDiskLeavesWholeSetsAndNamesTheRest) {
    const Names some = {Picture("a.bmp"), Picture("b.bmp"), Picture("c.bmp")};
    // Making the folder, reading the picture and each step of writing its screen are operations;
    // names are looked up without one.
    for (int failing = 1; failing < 30; ++failing) {
        RemoveTree(logos);
        MakeFolders(logos);
        PictureSets sets(logos, some, SetKind::StartupOnly, compose::FramingKind::Fill);
        fault::FailOperation(failing);
        Run(sets);
        const int counted = fault::Counted();
        fault::Reset();
        EXPECT_EQ(LogoSetNames(logos).size(), sets.Made().size()) << failing;
        for (const std::string& name : sets.Made())
            EXPECT_EQ(NamesIn(logos + name + "\\"), Names{"LOGO.SYS"}) << failing;
        EXPECT_EQ(sets.Made().size() + sets.NotWritten().size() + sets.NotRead().size(),
                  some.size())
            << failing;
        if (counted < failing) {
            EXPECT_EQ(sets.Made().size(), some.size());
        }
    }
}

TEST_F(PictureSetsOf, FiveHundredOnADiskThatFillsUpLeaveWholeSetsAndNameTheRest) {
    Names some;
    for (int i = 0; i < 500; ++i) some.push_back(Picture("p" + std::to_string(1000 + i) + ".bmp"));
    PictureSets sets(logos, some, SetKind::StartupOnly, compose::FramingKind::Fill);
    // Room for some sets and a part of one; nothing that comes after succeeds either.
    fault::FailFromOperation(200);
    Run(sets);
    fault::Reset();
    EXPECT_GT(sets.Made().size(), 10u);
    ASSERT_LT(sets.Made().size(), 100u);
    // What fails first may be the reading of a picture.
    EXPECT_LE(sets.NotRead().size(), 1u);
    ASSERT_EQ(sets.Made().size() + sets.NotWritten().size() + sets.NotRead().size(), some.size());
    EXPECT_EQ(sets.NotWritten().back(), some.back());
    for (const std::string& name : sets.Made())
        EXPECT_EQ(Contents(logos + name + "\\LOGO.SYS")->size(), 129078u) << name;
}

}  // namespace
}  // namespace vistrel::test
