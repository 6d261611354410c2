// The whole way from a file to a screen file, and what is left when it fails.
#include <gtest/gtest.h>

#include "pictures/bmp/writer.h"
#include "pictures/compose/text.h"
#include "pictures/file.h"
#include "pictures/read_picture.h"
#include "tests/pictures/compose/scene.h"
#include "tests/pictures/corpus.h"

namespace vistrel::compose {

using namespace compose;
using namespace pictures;
using namespace reduce;
using namespace screen;

namespace {

namespace fs = std::filesystem;
using namespace vistrel::test;

void ExpectSameAsConversion(const Folder& folder, const std::string& source) {
    const std::string converted = folder.PathOf("converted.sys");
    const std::string composed = folder.PathOf("composed.sys");
    const ConversionResult result = TryConvertToLogo(source, converted);
    EXPECT_EQ(MakeScreen(source, composed, {}), result) << source;
    if (result == ConversionResult::Written) {
        EXPECT_EQ(ReadWholeFile(composed), ReadWholeFile(converted)) << source;
    }
}

TEST(ScreenTest, UntouchedItIsTheConversionByteForByte) {
    const Folder folder;
    JpgOptions progressive;
    progressive.progressive = true;
    progressive.sampling = {{2, 2}};
    const Bytes photo = MakeJpg(MakeScene(900, 700), {});
    for (const std::string& source :
         {folder.Save("large.bmp", BmpOf(MakePicture(641, 481))),
          folder.Save("screen.bmp", BmpOf(MakePicture(320, 400))),
          folder.Save("small.bmp", BmpOf(MakePicture(61, 89))),
          folder.Save("one.bmp", BmpOf(MakePicture(1, 1))),
          folder.Save("drawn.gif", MakeGif(333, 500, 256).Encode()),
          folder.Save("photo.jpg", photo), folder.Save("side.jpg", WithOrientation(photo, 8, true)),
          folder.Save("progressive.jpg", MakeJpg(MakeScene(900, 700), progressive)),
          folder.Save("broken.jpg", Bytes(photo.begin(), photo.begin() + 40)),
          folder.PathOf("missing.gif")}) {
        ExpectSameAsConversion(folder, source);
    }
}

#ifdef PICTURE_CORPUS
TEST(ScreenTest, UntouchedEveryPictureOfTheCorpusIsReadAsAConversionReadsIt) {
    for (const char* ending : {".bmp", ".gif", ".jpg"}) {
        for (const CorpusFile& file : ReadCorpus(PICTURE_CORPUS, ending)) {
            const std::string path = std::string(PICTURE_CORPUS) + "/" + file.path;
            const auto converted = ReadPictureScaled(path, kLogoWidth, kLogoHeight);
            const auto framed = ReadFramed(path, {});
            ASSERT_EQ(framed.has_value(), converted.has_value()) << path;
            if (framed) {
                ASSERT_TRUE(framed->screen.pixels == converted->picture.pixels) << path;
            }
        }
    }
}
#endif

TEST(ScreenTest, WhatIsReducedIsWhatIsWritten) {
    const Folder folder;
    const auto screen = Reduce(MakeScene(320, 400), Dither::On);
    ASSERT_TRUE(screen.has_value());
    const std::string path = folder.PathOf("logo.sys");
    ASSERT_TRUE(Write(path, *screen));
    const auto file = ReadWholeFile(path);
    ASSERT_TRUE(file.has_value());
    EXPECT_EQ(file->size(), 129078u);
    const auto read = ReadIndexedScreen(*file);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->indices, screen->indices);
    EXPECT_EQ(read->palette, screen->palette);
    EXPECT_FALSE(read->IsAnimated());
}

TEST(ScreenTest, TextIsNotLitAndLiesOverTheBorder) {
    const Folder folder;
    const std::string source = folder.Save("wide.bmp", BmpOf(MakeScene(800, 300)));
    Composition composition = WithFraming(FramingKind::Fit);
    composition.light.brightness = 100;
    composition.light.saturation = -100;
    TextMask line;
    line.letters = {10, 95, 40, 20, Bytes(40 * 20, 255)};
    line.color = {200, 40, 60};
    composition.text.push_back(line);
    const std::string target = folder.PathOf("logo.sys");
    ASSERT_EQ(MakeScreen(source, target, composition), ConversionResult::Written);
    const auto logo = ReadPicture(target);
    ASSERT_TRUE(logo.has_value());
    for (const int y : {95, 99, 100, 114}) {
        const std::uint8_t* const pixel = &logo->pixels[(y * 320 + 30) * 3];
        EXPECT_NEAR(pixel[0], 200, 3);
        EXPECT_NEAR(pixel[1], 40, 3);
        EXPECT_NEAR(pixel[2], 60, 3);
    }
}

void ExpectNothingLeft(const Folder& folder, const std::string& source, ConversionResult why) {
    Composition composition = WithFraming(FramingKind::Fill, {1, true});
    composition.light.autoLevels = true;
    const std::string target = folder.Save("target.sys", {1, 2, 3});
    const int files = folder.Files();
    EXPECT_EQ(MakeScreen(source, target, composition), why) << source;
    EXPECT_EQ(ReadWholeFile(target), (Bytes{1, 2, 3}));
    EXPECT_EQ(MakeScreen(source, folder.PathOf("new.sys"), composition), why);
    EXPECT_EQ(folder.Files(), files);
}

TEST(ScreenTest, APictureThatCannotBeReadLeavesNoFile) {
    const Folder folder;
    const Bytes photo = MakeJpg(MakeScene(90, 70), {});
    ExpectNothingLeft(folder, folder.PathOf("missing.bmp"), ConversionResult::NotRead);
    ExpectNothingLeft(folder, folder.Save("empty.gif", {}), ConversionResult::NotRead);
    ExpectNothingLeft(folder, folder.Save("photo.gif", photo), ConversionResult::NotRead);
    ExpectNothingLeft(folder, folder.Save("cut.jpg", Bytes(photo.begin(), photo.begin() + 40)),
                      ConversionResult::NotRead);
}

TEST(ScreenTest, ATargetThatCannotBeWrittenLeavesNoFile) {
    const Folder folder;
    const std::string source = folder.Save("scene.bmp", BmpOf(MakeScene(50, 40)));
    fs::create_directory(folder.PathOf("folder.sys"));
    const int files = folder.Files();
    EXPECT_EQ(MakeScreen(source, folder.PathOf("none/logo.sys"), {}), ConversionResult::NotWritten);
    EXPECT_EQ(MakeScreen(source, folder.PathOf("folder.sys"), {}), ConversionResult::NotWritten);
    EXPECT_EQ(folder.Files(), files);
}

/// Every framing of a file comes out as a screen, by every stage.
void ExpectScreens(const std::string& path) {
    const std::optional<Intermediate> intermediate = ReadComposed(path);
    ASSERT_TRUE(intermediate.has_value()) << path;
    for (const FramingKind kind : {FramingKind::Stretch, FramingKind::Fill, FramingKind::Fit}) {
        for (const Orientation& turn : {kTurns[0], kTurns[5]}) {
            for (const int zoom : {kZoomOne, kMostZoom}) {
                Composition composition = WithFraming(kind, turn);
                composition.framing.zoom = zoom;
                composition.framing.centreX = kWhole;
                composition.framing.border = turn.mirrored ? Border::BlurredEdge : Border::Plain;
                composition.light.autoLevels = true;
                composition.light.saturation = 10;
                const auto framed = ReadFramed(path, composition);
                ASSERT_TRUE(framed.has_value()) << path;
                for (const Framed& each : {*framed, Frame(*intermediate, composition),
                                           FrameFinely(*intermediate, composition)}) {
                    const RgbPicture screen = Adjust(each, composition);
                    EXPECT_EQ(screen.width, 320);
                    EXPECT_EQ(screen.height, 400);
                    EXPECT_EQ(screen.pixels.size(), 320u * 400 * 3);
                }
            }
        }
    }
}

TEST(ScreenTest, PicturesOfExtremeShapesMakeScreens) {
    const Folder folder;
    for (const auto& [width, height] :
         {std::pair{1, 1}, {2, 1}, {kLargestSide, 1}, {1, kLargestSide}, {kLargestSide, 9}}) {
        const RgbPicture picture = MakePicture(width, height);
        ExpectScreens(folder.Save("extreme.bmp", BmpOf(picture)));
        ExpectScreens(folder.Save("extreme.jpg", MakeJpg(picture, {})));
    }
}

TEST(ScreenTest, APictureOfFifteenMegapixelsMakesScreens) {
    const Folder folder;
    JpgOptions options;
    options.progressive = true;
    options.sampling = {{2, 2}};
    const RgbPicture picture = MakePicture(4743, 3163);
    ExpectScreens(folder.Save("large.jpg", MakeJpg(picture, options)));
}

TEST(ScreenTest, ACropOutsideThePictureShowsItsNearestPixel) {
    const Folder folder;
    RgbPicture picture = MakePicture(40, 30);
    for (int c = 0; c < 3; ++c) picture.pixels[(29 * 40 + 39) * 3 + c] = std::uint8_t(50 + 70 * c);
    const std::string path = folder.Save("small.bmp", BmpOf(picture));
    Composition composition;
    composition.crop = Crop{1000, 1000, 50, 50};
    const auto framed = ReadFramed(path, composition);
    ASSERT_TRUE(framed.has_value());
    for (std::size_t i = 0; i < framed->screen.pixels.size(); ++i)
        ASSERT_EQ(framed->screen.pixels[i], 50 + 70 * (i % 3));
}

TEST(ScreenTest, AFileThatHasChangedHasAnotherChecksum) {
    const Folder folder;
    RgbPicture picture = MakePicture(40, 30);
    const std::string path = folder.Save("small.bmp", BmpOf(picture));
    const auto before = ChecksumOfPicture(path);
    ASSERT_TRUE(before.has_value());
    EXPECT_EQ(ReadComposed(path)->checksum, *before);
    std::swap(picture.pixels[0], picture.pixels[300]);
    folder.Save("small.bmp", BmpOf(picture));
    EXPECT_NE(ChecksumOfPicture(path), before);
    EXPECT_FALSE(ChecksumOfPicture(folder.Save("none.gif", {1, 2, 3})).has_value());
    EXPECT_FALSE(ChecksumOfPicture(folder.PathOf("missing.bmp")).has_value());
}

TEST(ScreenTest, AFileThatHasGoneIsNotRead) {
    const Folder folder;
    const std::string path = folder.Save("small.bmp", BmpOf(MakePicture(40, 30)));
    EXPECT_EQ(SizeOfPicture(path), (PictureSize{40, 30}));
    fs::remove(path);
    EXPECT_FALSE(SizeOfPicture(path).has_value());
    EXPECT_FALSE(ReadComposed(path).has_value());
    EXPECT_FALSE(ReadFramed(path, {}).has_value());
}

}  // namespace
}  // namespace vistrel::compose
