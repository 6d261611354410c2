// Framed pictures look like the same part cut out and scaled in doubles, whatever the turn.
#include <gtest/gtest.h>

#include "pictures/compose/geometry.h"
#include "pictures/read_picture.h"
#include "tests/pictures/compose/reference.h"
#include "tests/pictures/compose/scene.h"

namespace vistrel::compose {

using namespace compose;
using namespace pictures;

namespace {

using namespace vistrel::test;

/// The picture turned pixel by pixel: clockwise, then mirrored.
RgbPicture Turned(const RgbPicture& source, const Orientation& orientation) {
    RgbPicture picture = source;
    for (int turns = 0; turns < orientation.quarterTurns; ++turns) {
        RgbPicture next{picture.height, picture.width, Bytes(picture.pixels.size())};
        for (int y = 0; y < picture.height; ++y)
            for (int x = 0; x < picture.width; ++x)
                std::copy_n(&picture.pixels[(y * picture.width + x) * 3], 3,
                            &next.pixels[(x * next.width + next.width - 1 - y) * 3]);
        picture = next;
    }
    if (!orientation.mirrored) return picture;
    RgbPicture mirrored = picture;
    for (int y = 0; y < picture.height; ++y)
        for (int x = 0; x < picture.width; ++x)
            std::copy_n(&picture.pixels[(y * picture.width + x) * 3], 3,
                        &mirrored.pixels[(y * picture.width + picture.width - 1 - x) * 3]);
    return mirrored;
}

/// What of a screen the picture itself covers.
RgbPicture Inside(const RgbPicture& screen, const ScreenRectangle& rectangle) {
    RgbPicture picture{rectangle.width, rectangle.height, {}};
    for (int y = 0; y < rectangle.height; ++y) {
        const auto from =
            screen.pixels.begin() + ((rectangle.top + y) * screen.width + rectangle.left) * 3;
        picture.pixels.insert(picture.pixels.end(), from, from + rectangle.width * 3);
    }
    return picture;
}

/// The decibels between the framed file and the reference made of `whole`, its picture.
double Nearness(const std::string& path, const RgbPicture& whole, const Composition& composition) {
    const std::optional<Framed> framed = ReadFramed(path, composition);
    EXPECT_TRUE(framed.has_value());
    if (!framed) return 0;
    const RgbPicture turned = Turned(whole, composition.orientation);
    const PictureSize size{turned.width, turned.height};
    const PictureArea area = SourceRectFor(size, composition);
    const ScreenRectangle screen = ScreenRectFor(size, composition);
    const auto pixels = [](std::int64_t length) { return static_cast<double>(length) / 65536; };
    const RgbPicture reference = ScaledReference(
        turned, {pixels(area.left), pixels(area.top), pixels(area.width), pixels(area.height)},
        screen.width, screen.height);
    return Psnr(Inside(framed->screen, screen), reference);
}

std::vector<Composition> Framings() {
    std::vector<Composition> framings;
    for (const Orientation& turn : kTurns) {
        framings.push_back(WithFraming(FramingKind::Fit, turn));
        Composition fill = WithFraming(FramingKind::Fill, turn);
        framings.push_back(fill);
        fill.framing.zoom = 1700;
        fill.framing.centreX = kWhole / 3;
        fill.framing.centreY = kWhole / 5 * 3;
        framings.push_back(fill);
        Composition crop = WithFraming(FramingKind::Stretch, turn);
        crop.crop = Crop{101, 73, 211, 187};
        framings.push_back(crop);
    }
    return framings;
}

TEST(FrameTest, BitmapsAreWithinSixtyDecibelsOfTheReference) {
    const Folder folder;
    const RgbPicture noise = MakePicture(701, 523);
    const std::string path = folder.Save("noise.bmp", BmpOf(noise));
    for (const Composition& composition : Framings())
        EXPECT_GE(Nearness(path, noise, composition), 60)
            << int(composition.framing.kind) << composition.orientation.quarterTurns
            << composition.orientation.mirrored;
}

TEST(FrameTest, GifPicturesAreWithinSixtyDecibelsOfTheReference) {
    const Folder folder;
    const std::string path = folder.Save("drawn.gif", MakeGif(640, 480, 256).Encode());
    const std::optional<RgbPicture> whole = ReadPicture(path);
    ASSERT_TRUE(whole.has_value());
    for (const Composition& composition : Framings())
        EXPECT_GE(Nearness(path, *whole, composition), 60);
}

TEST(FrameTest, PhotographsAreWithinFortySevenDecibelsOfTheReference) {
    const Folder folder;
    const RgbPicture scene = MakeScene(803, 617);
    for (const bool progressive : {false, true}) {
        JpgOptions options;
        options.progressive = progressive;
        options.sampling = {{2, 2}};
        const Bytes file = MakeJpg(scene, options);
        const std::string path = folder.Save("photo.jpg", file);
        const RgbPicture whole = DecodeByLibrary(file);
        for (const Composition& composition : Framings())
            EXPECT_GE(Nearness(path, whole, composition), 47)
                << progressive << int(composition.framing.kind)
                << composition.orientation.quarterTurns << composition.orientation.mirrored;
    }
}

TEST(FrameTest, APhotographOnItsSideIsTurnedFromUpright) {
    const Folder folder;
    const RgbPicture scene = MakeScene(640, 440);
    const Bytes file = WithOrientation(MakeJpg(scene, {}), 6, false);  // a quarter clockwise
    const std::string path = folder.Save("photo.jpg", file);
    const RgbPicture upright = Turned(DecodeByLibrary(MakeJpg(scene, {})), {1, false});
    EXPECT_EQ(SizeOfPicture(path), (PictureSize{440, 640}));
    for (const Composition& composition : Framings())
        EXPECT_GE(Nearness(path, upright, composition), 47);
}

// Zoomed in, a large file has blocks that are not seen, and more to be kept than memory is for.
TEST(FrameTest, ASmallPartOfALargePhotographIsSharp) {
    const Folder folder;
    const RgbPicture scene = MakeScene(4200, 2900, 2.1);
    for (const bool progressive : {false, true}) {
        JpgOptions options;
        options.progressive = progressive;
        options.sampling = {{2, 2}};
        const Bytes file = MakeJpg(scene, options);
        const std::string path = folder.Save("photo.jpg", file);
        Composition composition = WithFraming(FramingKind::Fill);
        for (const int zoom : {3000, 9000}) {
            composition.framing.zoom = zoom;
            composition.framing.centreY = kWhole / 3;
            EXPECT_GE(Nearness(path, DecodeByLibrary(file), composition), 47)
                << progressive << zoom;
        }
    }
}

/// A white disc on black, `diameter` across in a picture of `width` x `height`.
RgbPicture Disc(int width, int height, double diameter) {
    RgbPicture picture{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            const double distance = std::hypot(x + 0.5 - width / 2.0, y + 0.5 - height / 2.0);
            picture.pixels.insert(picture.pixels.end(), 3, distance < diameter / 2 ? 255 : 0);
        }
    }
    return picture;
}

/// Expects that a white disc in the middle of a picture is as wide as high on a 4:3 screen, framed
/// whichever way keeps shapes.
void ExpectCircle(const std::string& path) {
    for (const FramingKind kind : {FramingKind::Fill, FramingKind::Fit}) {
        for (const int turns : {0, 1}) {
            const auto framed = ReadFramed(path, WithFraming(kind, {turns, false}));
            ASSERT_TRUE(framed.has_value());
            // Lengths in parts of a screen that is 4 wide and 3 high.
            double across = 0, down = 0;
            for (int x = 0; x < 320; ++x)
                across += framed->screen.pixels[(200 * 320 + x) * 3] / 255.0 * 4 / 320;
            for (int y = 0; y < 400; ++y)
                down += framed->screen.pixels[(y * 320 + 160) * 3] / 255.0 * 3 / 400;
            EXPECT_NEAR(across, down, 4.0 / 320) << path << int(kind) << turns;
        }
    }
}

TEST(FrameTest, ACircleIsACircleOnA4To3Screen) {
    const Folder folder;
    for (const auto& [width, height] : {std::pair{1200, 700}, {500, 900}, {640, 480}})
        ExpectCircle(folder.Save("disc.bmp", BmpOf(Disc(width, height, 350))));
}

TEST(FrameTest, ACircleOfAFinishedScreenIsACircleStill) {
    const Folder folder;
    const std::string photograph = folder.Save("disc.bmp", BmpOf(Disc(800, 600, 350)));
    for (const char* name : {"LOGO.SYS", "screen.bmp"}) {
        ASSERT_EQ(MakeScreen(photograph, folder.PathOf(name), {}), ConversionResult::Written);
        ExpectCircle(folder.PathOf(name));
    }
}

TEST(FrameTest, AFinishedScreenThatFillsOrFitsIsAsItWas) {
    const Folder folder;
    const std::string scene = folder.Save("scene.bmp", BmpOf(MakeScene(640, 480)));
    const std::string screen = folder.PathOf("LOGO.SYS");
    ASSERT_EQ(MakeScreen(scene, screen, {}), ConversionResult::Written);
    for (const FramingKind kind : {FramingKind::Fill, FramingKind::Fit}) {
        const auto framed = ReadFramed(screen, WithFraming(kind));
        ASSERT_TRUE(framed.has_value());
        EXPECT_EQ(framed->screen.pixels, ReadPicture(screen)->pixels);
    }
}

double Mean(const RgbPicture& picture) {
    double sum = 0;
    for (const std::uint8_t value : picture.pixels) sum += value;
    return sum / static_cast<double>(picture.pixels.size());
}

TEST(FrameTest, TheQuickWayAndTheFineOneShowWhatTheFileShows) {
    const Folder folder;
    const std::string path = folder.Save("scene.bmp", BmpOf(MakeScene(1003, 771)));
    const std::optional<Intermediate> intermediate = ReadComposed(path);
    ASSERT_TRUE(intermediate.has_value());
    for (Composition& composition : Framings()) {
        composition.framing.borderColor = {9, 8, 7};
        const auto real = ReadFramed(path, composition);
        ASSERT_TRUE(real.has_value());
        const Framed quick = Frame(*intermediate, composition);
        const Framed fine = FrameFinely(*intermediate, composition);
        EXPECT_EQ(quick.picture, real->picture);
        EXPECT_EQ(fine.picture, real->picture);
        // Means of whole numbers make a picture darker that is always rounded down.
        EXPECT_NEAR(Mean(quick.screen), Mean(real->screen), 0.2);
        EXPECT_GE(Psnr(quick.screen, real->screen), 39)
            << int(composition.framing.kind) << composition.orientation.quarterTurns
            << composition.orientation.mirrored;
        EXPECT_GE(Psnr(fine.screen, real->screen), 46);
    }
}

TEST(FrameTest, ThePictureThatIsKeptIsAFewScreensAtMost) {
    const Folder folder;
    for (const auto& [width, height] :
         {std::pair{3000, 2250}, {2000, 300}, {40, 30}, {1, 1}, {kLargestSide, 1}, {1, 3000}}) {
        const std::string path = folder.Save("scene.bmp", BmpOf(MakeScene(width, height)));
        const std::optional<Intermediate> intermediate = ReadComposed(path);
        ASSERT_TRUE(intermediate.has_value());
        const RgbPicture& reduced = intermediate->reduced;
        EXPECT_EQ(intermediate->file, (PictureSize{width, height}));
        EXPECT_LE(reduced.width * reduced.height, kMostIntermediatePixels);
        EXPECT_LE(reduced.width, width);
        EXPECT_LE(reduced.height, height);
        EXPECT_EQ(reduced.pixels.size(), std::size_t(reduced.width) * reduced.height * 3 + 1);
    }
}

TEST(FrameTest, APlainBorderHasItsColorWhateverTheLight) {
    const Folder folder;
    const std::string path = folder.Save("scene.bmp", BmpOf(MakeScene(800, 300)));
    Composition composition = WithFraming(FramingKind::Fit);
    composition.framing.borderColor = {10, 200, 30};
    composition.light.brightness = 70;
    const auto framed = ReadFramed(path, composition);
    ASSERT_TRUE(framed.has_value());
    EXPECT_EQ(framed->picture, (ScreenRectangle{0, 100, 320, 200}));
    const RgbPicture screen = Adjust(*framed, composition);
    for (const int y : {0, 99, 300, 399})
        for (const int x : {0, 160, 319})
            EXPECT_EQ(std::vector(&screen.pixels[(y * 320 + x) * 3],
                                  &screen.pixels[(y * 320 + x) * 3] + 3),
                      (Bytes{10, 200, 30}))
                << x << ", " << y;
    EXPECT_NE(Inside(screen, framed->picture).pixels,
              Inside(framed->screen, framed->picture).pixels);
}

}  // namespace
}  // namespace vistrel::compose
