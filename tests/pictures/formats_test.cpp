// What names stand for, and that every format of the table is read in every way.
#include "pictures/formats.h"

#include <gtest/gtest.h>

#include <string>

namespace vistrel::test {

using namespace pictures;

namespace {

std::string EndingOf(const std::string& name) { return FormatOfName(name).endings[0]; }

TEST(FormatsTest, TheLastFourCharactersOfANameTellItsFormatInAnyCase) {
    for (const char* name : {"a.gif", "C:\\b.GIF", "x.Gif", ".gIf"})
        EXPECT_EQ(EndingOf(name), ".GIF") << name;
    for (const char* name : {"a.jpg", "C:\\b.JPG", "x.gif.Jpg"})
        EXPECT_EQ(EndingOf(name), ".JPG") << name;
    for (const char* name : {"a.jpeg", "a.bmp", "LOGO.SYS", "gif", "", "jpg", "a.jpg.bak"})
        EXPECT_EQ(EndingOf(name), ".BMP") << name;
}

TEST(FormatsTest, PicturesAreKnownByTheirNames) {
    for (const char* name : {"a.bmp", "LOGO.SYS", "logo.Sys", "C:\\b.GIF", "x.jpg", ".jpg"})
        EXPECT_TRUE(IsPictureName(name)) << name;
    for (const char* name : {"a.jpeg", "gif", "", "jpg", "a.jpg.bak", "a.txt", "a.bmp "})
        EXPECT_FALSE(IsPictureName(name)) << name;
}

TEST(FormatsTest, DepthsAreAsTheyAreTold) {
    EXPECT_EQ(FormatOfName("a.gif").depth, 8);
    EXPECT_EQ(FormatOfName("a.jpg").depth, 24);
    EXPECT_EQ(FormatOfName("a.bmp").depth, 0);  // the header's
}

TEST(FormatsTest, EveryFormatHasAnEndingOfItsOwnAndIsReadInEveryWay) {
    for (const PictureFormat& format : PictureFormats()) {
        SCOPED_TRACE(format.endings[0]);
        EXPECT_EQ(&FormatOfName(std::string("a") + format.endings[0]), &format);
        const FileBytes nothing;
        EXPECT_FALSE(format.read(nothing).has_value());
        EXPECT_FALSE(format.readScaled(nothing, 4, 4).has_value());
        EXPECT_FALSE(format.readPart(nothing, PictureArea::WholeOf(1, 1), 4, 4).has_value());
        EXPECT_FALSE(format.size(nothing).has_value());
    }
}

}  // namespace
}  // namespace vistrel::test
