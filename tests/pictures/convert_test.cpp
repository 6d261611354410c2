// The way from a picture's file to a screen file, and what is left when it fails.
#include "pictures/convert.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>

#include "pictures/file.h"
#include "pictures/read_picture.h"
#include "pictures/scale/resize.h"
#include "platform/fault.h"
#include "tests/support/picture_files/bmp_file.h"
#include "tests/support/picture_files/gif_file.h"
#include "tests/support/picture_files/jpg_maker.h"

namespace vistrel::test {

using namespace pictures;
using namespace scale;

namespace {

namespace fs = std::filesystem;

Bytes BmpOf(const RgbPicture& picture) {
    BmpFile file;
    file.width = picture.width;
    file.height = picture.height;
    file.pixels = PackRgb24(picture);
    return file.Encode();
}

class ConvertTest : public testing::Test {
 protected:
    ConvertTest() {
        const auto* const test = testing::UnitTest::GetInstance()->current_test_info();
        folder_ = fs::temp_directory_path() /
                  (std::string("vistrel_convert_") + test->name() + std::to_string(getpid()));
        fs::create_directory(folder_);
        target_ = PathOf("target.sys");
    }
    ~ConvertTest() override { fs::remove_all(folder_); }

    std::string PathOf(const std::string& name) const { return (folder_ / name).string(); }

    std::string Save(const std::string& name, const Bytes& bytes) const {
        std::ofstream(PathOf(name), std::ios::binary)
            .write(reinterpret_cast<const char*>(bytes.data()), std::streamsize(bytes.size()));
        return PathOf(name);
    }

    /// Expects that nothing is written, neither to a new target nor over an old one.
    void ExpectNothingWritten(const std::string& source, ConversionResult why) const {
        EXPECT_EQ(TryConvertToLogo(source, target_), why);
        EXPECT_FALSE(fs::exists(target_));
        const std::string old = Save("old.sys", {1, 2, 3});
        ConvertToLogo(source, old);
        EXPECT_EQ(ReadWholeFile(old), (Bytes{1, 2, 3}));
    }

    fs::path folder_;
    std::string target_;
};

TEST_F(ConvertTest, MakesAScreenFileOfEveryFormatAndSize) {
    const RgbPicture small = MakePicture(32, 32);
    const RgbPicture large = MakePicture(640, 480);
    for (const std::string& source :
         {Save("small.bmp", BmpOf(small)), Save("large.sys", BmpOf(large)),
          Save("drawn.Gif", MakeGif(640, 480, 256).Encode()), Save("photo.JPG", MakeJpg(large, {})),
          Save("one.bmp", BmpOf(MakePicture(1, 1)))}) {
        fs::remove(target_);
        EXPECT_EQ(TryConvertToLogo(source, target_), ConversionResult::Written) << source;
        const auto file = ReadWholeFile(target_);
        ASSERT_TRUE(file.has_value()) << source;
        EXPECT_EQ(file->size(), 129078u);
        const auto logo = ReadPicture(target_);
        ASSERT_TRUE(logo.has_value());
        EXPECT_EQ(logo->width, 320);
        EXPECT_EQ(logo->height, 400);
        EXPECT_EQ((*file)[28], 8);
    }
}

TEST_F(ConvertTest, KeepsAScreenOfAFewColorsAsItIs) {
    const Bytes indices = MakeIndices(320, 400, 256);
    BmpFile file;
    file.width = 320;
    file.height = 400;
    file.bitsPerPixel = 8;
    file.palette = MakePalette(256);
    file.pixels = PackIndices(indices, 320, 400, 8);
    const std::string source = Save("screen.bmp", file.Encode());
    ConvertToLogo(source, target_);
    const auto before = ReadPicture(source);
    const auto after = ReadPicture(target_);
    ASSERT_TRUE(before.has_value() && after.has_value());
    EXPECT_EQ(after->pixels, before->pixels);
}

TEST_F(ConvertTest, ShowsThePictureUprightAndWhole) {
    // A different colour in each quarter.
    RgbPicture picture{64, 64, {}};
    for (int i = 0; i < 64 * 64; ++i) {
        const bool right = i % 64 >= 32;
        const bool below = i / 64 >= 32;
        picture.pixels.insert(picture.pixels.end(),
                              {std::uint8_t(right ? 240 : 10), std::uint8_t(below ? 230 : 20), 77});
    }
    const std::string source = Save("quarters.bmp", BmpOf(picture));
    ConvertToLogo(source, target_);
    const auto logo = ReadPicture(target_);
    ASSERT_TRUE(logo.has_value());
    const auto at = [&](int x, int y) { return &logo->pixels[(y * 320 + x) * 3]; };
    for (const auto& [x, y, red, green] : {std::tuple{40, 50, 10, 20},
                                           {280, 50, 240, 20},
                                           {40, 350, 10, 230},
                                           {280, 350, 240, 230}}) {
        EXPECT_NEAR(at(x, y)[0], red, 2);
        EXPECT_NEAR(at(x, y)[1], green, 2);
        EXPECT_NEAR(at(x, y)[2], 77, 2);
    }
}

TEST_F(ConvertTest, WritesNothingWhenThePictureCannotBeRead) {
    const Bytes jpg = MakeJpg(MakePicture(50, 40), {});
    ExpectNothingWritten(PathOf("missing.bmp"), ConversionResult::NotRead);
    ExpectNothingWritten(folder_.string(), ConversionResult::NotRead);
    ExpectNothingWritten(Save("photo.jpeg", jpg), ConversionResult::NotRead);
    ExpectNothingWritten(Save("photo.gif", jpg), ConversionResult::NotRead);
    ExpectNothingWritten(Save("empty.jpg", {}), ConversionResult::NotRead);
    ExpectNothingWritten(Save("head.jpg", Bytes(jpg.begin(), jpg.begin() + 30)),
                         ConversionResult::NotRead);
    Bytes huge = BmpOf(MakePicture(4, 4));
    for (int i = 0; i < 8; ++i) huge[18 + i] = 0x7F;
    ExpectNothingWritten(Save("huge.bmp", huge), ConversionResult::NotRead);
}

TEST_F(ConvertTest, TellsWhenTheTargetCannotBeWritten) {
    const std::string source = Save("small.bmp", BmpOf(MakePicture(8, 8)));
    EXPECT_EQ(TryConvertToLogo(source, PathOf("none/target.sys")), ConversionResult::NotWritten);
    EXPECT_EQ(TryConvertToLogo(source, folder_.string()), ConversionResult::NotWritten);
}

TEST_F(ConvertTest, LeavesTheTargetAsItWasWhicheverStepFails) {
    namespace fault = platform::fault;
    const std::string source = Save("small.bmp", BmpOf(MakePicture(8, 8)));
    fault::Reset();
    ASSERT_EQ(TryConvertToLogo(source, target_), ConversionResult::Written);
    const int steps = fault::Counted();
    const std::string old = Save("old.sys", {1, 2, 3});
    for (int step = 1; step <= steps; ++step) {
        fault::FailOperation(step);
        EXPECT_NE(TryConvertToLogo(source, old), ConversionResult::Written) << step;
        fault::Reset();
        EXPECT_EQ(ReadWholeFile(old), (Bytes{1, 2, 3})) << step;
    }
}

TEST_F(ConvertTest, ConvertsAPictureOntoItself) {
    const std::string path = Save("logo.sys", BmpOf(MakePicture(30, 20)));
    EXPECT_EQ(TryConvertToLogo(path, path), ConversionResult::Written);
    EXPECT_EQ(fs::file_size(path), 129078u);
}

TEST_F(ConvertTest, ReadsAPictureAtTheSizeAskedFor) {
    const RgbPicture picture = MakePicture(200, 100);
    const auto scaled = ReadPictureScaled(Save("a.bmp", BmpOf(picture)), 160, 120);
    ASSERT_TRUE(scaled.has_value());
    EXPECT_EQ(scaled->fileWidth, 200);
    EXPECT_EQ(scaled->fileHeight, 100);
    EXPECT_EQ(scaled->picture.pixels, Resize(picture, 160, 120).pixels);
    const auto photo = ReadPictureScaled(Save("a.jpg", MakeJpg(picture, {})), 20, 30);
    ASSERT_TRUE(photo.has_value());
    EXPECT_EQ(photo->fileWidth, 200);
    EXPECT_EQ(photo->picture.width, 20);
    EXPECT_EQ(photo->picture.height, 30);
    EXPECT_FALSE(ReadPictureScaled(PathOf("a.bmp"), 0, 5).has_value());
    EXPECT_FALSE(ReadPictureScaled(PathOf("a.bmp"), 5, 40000).has_value());
    EXPECT_FALSE(ReadPictureScaled(PathOf("none.bmp"), 5, 5).has_value());
}

}  // namespace
}  // namespace vistrel::test
