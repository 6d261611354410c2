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

/// A screen with a picture fitted on it and a border of its own colours, and where the picture is.
struct Blurred {
    explicit Blurred(const RgbPicture& picture) {
        const Folder folder;
        Composition composition = WithFraming(FramingKind::Fit);
        composition.framing.border = Border::BlurredEdge;
        framed = ReadFramed(folder.Save("scene.bmp", BmpOf(picture)), composition);
        inside = ScreenRectFor({picture.width, picture.height}, composition);
    }
    bool InBorder(int x, int y) const {
        return x < inside.left || x >= inside.left + inside.width || y < inside.top ||
               y >= inside.top + inside.height;
    }
    int At(int x, int y, int channel) const {
        return framed->screen.pixels[(y * 320 + x) * 3 + channel];
    }
    /// The largest step of any channel from a pixel of the border to the next one of it.
    int LargestStep(int across, int down) const {
        int largest = 0;
        for (int y = 0; y + down < 400; ++y)
            for (int x = 0; x + across < 320; ++x)
                for (int c = 0; c < 3; ++c)
                    if (InBorder(x, y) && InBorder(x + across, y + down))
                        largest =
                            std::max(largest, std::abs(At(x, y, c) - At(x + across, y + down, c)));
        return largest;
    }
    /// The mean of a channel over a rectangle of the screen.
    double MeanOf(const ScreenRectangle& part, int channel) const {
        double sum = 0;
        for (int y = part.top; y < part.top + part.height; ++y)
            for (int x = part.left; x < part.left + part.width; ++x) sum += At(x, y, channel);
        return sum / part.width / part.height;
    }

    std::optional<Framed> framed;
    ScreenRectangle inside;
};

/// Black and white in stripes of so many pixels, across or down, as a fence or a page of text has.
RgbPicture Stripes(int width, int height, int stripe, bool across) {
    RgbPicture picture{width, height, {}};
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            picture.pixels.insert(picture.pixels.end(), 3, (across ? y : x) / stripe % 2 ? 255 : 0);
    return picture;
}

// A streak is what the eye follows outwards: a step from a pixel to the next along the border.
TEST(FrameTest, ABlurredBorderHasNoStreaksBesideABusyEdge) {
    for (const auto& [width, height] : {std::pair{480, 150}, {150, 480}, {420, 300}}) {
        for (const int stripe : {1, 3, 12, 27}) {
            const Blurred screen(Stripes(width, height, stripe, height > width));
            ASSERT_TRUE(screen.framed.has_value());
            EXPECT_LE(screen.LargestStep(1, 0), 8) << width << " x " << height << ": " << stripe;
            EXPECT_LE(screen.LargestStep(0, 1), 5) << width << " x " << height << ": " << stripe;
        }
    }
}

TEST(FrameTest, ABlurredBorderContinuesThePicture) {
    for (const auto& [width, height] : {std::pair{1600, 500}, {500, 1600}}) {
        const Blurred screen(MakeScene(width, height));
        ASSERT_TRUE(screen.framed.has_value());
        // The light works on the border too.
        EXPECT_EQ(screen.framed->picture, (ScreenRectangle{0, 0, 320, 400}));
        // Beside each part of the picture's edge are the colours of that part.
        const ScreenRectangle& inside = screen.inside;
        const bool isTall = inside.width < 320;
        constexpr int kParts = 5;
        double difference = 0;
        for (int i = 0; i < kParts; ++i) {
            ScreenRectangle within = inside;
            if (isTall)
                within = {inside.left, i * 400 / kParts, 16, 400 / kParts};
            else
                within = {i * 320 / kParts, inside.top, 320 / kParts, 26};
            ScreenRectangle beside = within;
            (isTall ? beside.left : beside.top) -= isTall ? 16 : 26;
            for (int c = 0; c < 3; ++c)
                difference += std::abs(screen.MeanOf(within, c) - screen.MeanOf(beside, c));
        }
        EXPECT_LT(difference / kParts / 3, 8) << width << " x " << height;
    }
}

TEST(FrameTest, TheColorsOfABlurredBorderMixOutwards) {
    for (const auto& [width, height] : {std::pair{480, 150}, {150, 480}}) {
        const bool isTall = height > width;
        const Blurred screen(Stripes(width, height, 36, isTall));
        ASSERT_TRUE(screen.framed.has_value());
        const auto range = [&](int line) {
            int darkest = 255, lightest = 0;
            for (int i = 0; i < (isTall ? 400 : 320); ++i) {
                const int value = isTall ? screen.At(line, i, 0) : screen.At(i, line, 0);
                darkest = std::min(darkest, value);
                lightest = std::max(lightest, value);
            }
            return lightest - darkest;
        };
        const int beside = range((isTall ? screen.inside.left : screen.inside.top) - 1);
        EXPECT_GT(beside, 40);
        EXPECT_LT(range(0), beside / 2);
    }
}

// A sun in the middle of a night does not shine beside it.
TEST(FrameTest, ABlurredBorderIsOfThePicturesEdgeAlone) {
    RgbPicture night{480, 150, Bytes(std::size_t{480} * 150 * 3)};
    for (int y = 60; y < 90; ++y)
        std::fill_n(&night.pixels[(std::size_t(y) * 480 + 200) * 3], 80 * 3, 255);
    const Blurred screen(night);
    ASSERT_TRUE(screen.framed.has_value());
    for (int y = 0; y < screen.inside.top; ++y)
        for (int x = 0; x < 320; ++x) ASSERT_LE(screen.At(x, y, 1), 8) << x << ", " << y;
}

TEST(FrameTest, ABlurredBorderIsAlikeAtOnceAndWhenTheHandRests) {
    const Folder folder;
    const std::string path = folder.Save("scene.bmp", BmpOf(MakeScene(1600, 500)));
    Composition composition = WithFraming(FramingKind::Fit);
    composition.framing.border = Border::BlurredEdge;
    const auto intermediate = ReadComposed(path);
    ASSERT_TRUE(intermediate.has_value());
    const Framed quick = Frame(*intermediate, composition);
    const Framed fine = FrameFinely(*intermediate, composition);
    for (std::size_t i = 0; i < std::size_t{3} * 320 * 60; ++i)
        ASSERT_NEAR(quick.screen.pixels[i], fine.screen.pixels[i], 2) << i;
}

TEST(FrameTest, APictureOfOneColorHasABorderOfIt) {
    const Folder folder;
    RgbPicture flat{90, 20, {}};
    for (int i = 0; i < 90 * 20; ++i) flat.pixels.insert(flat.pixels.end(), {7, 130, 255});
    const std::string path = folder.Save("flat.bmp", BmpOf(flat));
    Composition composition = WithFraming(FramingKind::Fit);
    composition.framing.border = Border::BlurredEdge;
    const auto framed = ReadFramed(path, composition);
    ASSERT_TRUE(framed.has_value());
    for (std::size_t i = 0; i < framed->screen.pixels.size(); i += 3) {
        ASSERT_EQ(framed->screen.pixels[i], 7);
        ASSERT_EQ(framed->screen.pixels[i + 1], 130);
        ASSERT_EQ(framed->screen.pixels[i + 2], 255);
    }
}

}  // namespace
}  // namespace vistrel::compose
