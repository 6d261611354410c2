// What is remembered of pictures that were adjusted or converted.
#include "adjust/adjustments.h"

#include <gtest/gtest.h>

namespace vistrel::test {

using namespace adjust;

namespace {

Adjustment Filled(const std::string& source) {
    Adjustment adjustment;
    adjustment.source = source;
    adjustment.composition.framing.kind = compose::FramingKind::Fill;
    return adjustment;
}

bool IsFilled(const Adjustment& adjustment) {
    return adjustment.composition.framing.kind == compose::FramingKind::Fill;
}

TEST(Adjustments, OfAnUnknownFileAreNothingSet) {
    const Adjustments adjustments;
    EXPECT_EQ(adjustments.For("C:\\a.jpg").source, "C:\\a.jpg");
    EXPECT_FALSE(IsFilled(adjustments.For("C:\\a.jpg")));
    EXPECT_EQ(adjustments.PictureOf("C:\\a.jpg"), "C:\\a.jpg");
}

TEST(Adjustments, AreFoundByTheScreenAndByThePictureInAnyCase) {
    Adjustments adjustments;
    adjustments.Remember("C:\\~tm1.tmp", Filled("C:\\a.jpg"));
    for (const char* path : {"C:\\~TM1.TMP", "c:\\A.JPG"}) {
        EXPECT_EQ(adjustments.For(path).source, "C:\\a.jpg");
        EXPECT_TRUE(IsFilled(adjustments.For(path)));
    }
    EXPECT_EQ(adjustments.PictureOf("c:\\~tm1.tmp"), "C:\\a.jpg");
}

TEST(Adjustments, OfAPictureAreThoseMadeLast) {
    Adjustments adjustments;
    adjustments.Remember("C:\\~tm1.tmp", Filled("C:\\a.jpg"));
    Adjustment other = Filled("C:\\a.jpg");
    other.composition.light.brightness = 10;
    adjustments.Remember("C:\\~tm2.tmp", other);
    EXPECT_EQ(adjustments.For("C:\\a.jpg").composition.light.brightness, 10);
    EXPECT_EQ(adjustments.For("C:\\~tm1.tmp").composition.light.brightness, 0);
}

// A slot that was filled by a conversion is stretched, however its picture was adjusted before.
TEST(Adjustments, OfAConversionAreNothingSetAndLeaveThePicturesOwn) {
    Adjustments adjustments;
    adjustments.Remember("C:\\~tm1.tmp", Filled("C:\\a.jpg"));
    adjustments.RememberConversion("C:\\~tm2.tmp", "C:\\a.jpg");
    EXPECT_EQ(adjustments.For("C:\\~tm2.tmp").source, "C:\\a.jpg");
    EXPECT_FALSE(IsFilled(adjustments.For("C:\\~tm2.tmp")));
    EXPECT_TRUE(IsFilled(adjustments.For("C:\\a.jpg")));
}

TEST(Adjustments, FollowAPictureThatIsRenamed) {
    Adjustments adjustments;
    adjustments.Remember("C:\\~tm1.tmp", Filled("C:\\a.jpg"));
    adjustments.Repoint(
        [](const std::string& path) { return path == "C:\\a.jpg" ? "C:\\b.jpg" : path; });
    EXPECT_EQ(adjustments.For("C:\\~tm1.tmp").source, "C:\\b.jpg");
    EXPECT_TRUE(IsFilled(adjustments.For("C:\\b.jpg")));
}

}  // namespace
}  // namespace vistrel::test
