// The blurred border around a picture that does not fill the screen.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <optional>

#include "pictures/compose/geometry.h"
#include "tests/pictures/compose/reference.h"
#include "tests/pictures/compose/scene.h"

namespace vistrel::compose {

using namespace pictures;

namespace {

using namespace vistrel::test;

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
TEST(BlurredBorder, HasNoStreaksBesideABusyEdge) {
    for (const auto& [width, height] : {std::pair{480, 150}, {150, 480}, {420, 300}}) {
        for (const int stripe : {1, 3, 12, 27}) {
            const Blurred screen(Stripes(width, height, stripe, height > width));
            ASSERT_TRUE(screen.framed.has_value());
            EXPECT_LE(screen.LargestStep(1, 0), 8) << width << " x " << height << ": " << stripe;
            EXPECT_LE(screen.LargestStep(0, 1), 5) << width << " x " << height << ": " << stripe;
        }
    }
}

TEST(BlurredBorder, ContinuesThePicture) {
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

TEST(BlurredBorder, MixesItsColorsOutwards) {
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
TEST(BlurredBorder, IsOfThePicturesEdgeAlone) {
    RgbPicture night{480, 150, Bytes(std::size_t{480} * 150 * 3)};
    for (int y = 60; y < 90; ++y)
        std::fill_n(&night.pixels[(std::size_t(y) * 480 + 200) * 3], 80 * 3, 255);
    const Blurred screen(night);
    ASSERT_TRUE(screen.framed.has_value());
    for (int y = 0; y < screen.inside.top; ++y)
        for (int x = 0; x < 320; ++x) ASSERT_LE(screen.At(x, y, 1), 8) << x << ", " << y;
}

TEST(BlurredBorder, IsAlikeAtOnceAndWhenTheHandRests) {
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

TEST(BlurredBorder, OfAPictureOfOneColorIsOfIt) {
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
