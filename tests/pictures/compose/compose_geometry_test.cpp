// Which part of a picture comes to which part of the screen.
#include <gtest/gtest.h>

#include <cmath>

#include "pictures/compose/geometry.h"

namespace vistrel::compose {

using namespace compose;
using namespace pictures;

namespace {

constexpr double kPixel = PictureArea::kPixel;

Composition Framed(FramingKind kind) {
    Composition composition;
    composition.framing.kind = kind;
    return composition;
}

/// How wide a square of a picture is seen on a 4:3 screen, where it is one high.
double SeenWidthOfSquare(const PictureSize& turned, const Composition& composition) {
    const PictureArea source = SourceRectFor(turned, composition);
    const ScreenRectangle screen = ScreenRectFor(turned, composition);
    const double across = screen.width * (4.0 / 320) / static_cast<double>(source.width);
    const double down = screen.height * (3.0 / 400) / static_cast<double>(source.height);
    return across * turned.pixel.height / (down * turned.pixel.width);
}

const PictureSize kSizes[] = {{640, 480},
                              {1920, 1080},
                              {3000, 4000},
                              {6000, 2500},
                              {320, 400},
                              {4752, 3168},
                              {7, 5},
                              {1000, 1001},
                              {320, 400, kScreenPixel},
                              {400, 320, {3, 5}}};

TEST(GeometryTest, StretchShowsAllOfThePictureEverywhere) {
    for (const PictureSize& size : kSizes) {
        const Composition composition = Framed(FramingKind::Stretch);
        EXPECT_EQ(SourceRectFor(size, composition), PictureArea::WholeOf(size.width, size.height));
        EXPECT_EQ(ScreenRectFor(size, composition), (ScreenRectangle{0, 0, 320, 400}));
    }
}

TEST(GeometryTest, FillKeepsShapesAtEveryZoom) {
    for (const PictureSize& size : kSizes) {
        for (const int zoom : {1000, 1337, 4000, kMostZoom}) {
            Composition composition = Framed(FramingKind::Fill);
            composition.framing.zoom = zoom;
            // A circle as high as the screen is 300 units wide to less than a hundredth of one.
            EXPECT_NEAR(SeenWidthOfSquare(size, composition), 1, 1.0 / 30000)
                << size.width << " x " << size.height << " at " << zoom;
        }
    }
}

TEST(GeometryTest, FillShowsAsMuchAsFillsTheScreen) {
    const PictureArea wide = SourceRectFor({1920, 1080}, Framed(FramingKind::Fill));
    EXPECT_EQ(wide, (PictureArea{240 * 65536, 0, 1440 * 65536, 1080 * 65536}));
    const PictureArea high = SourceRectFor({300, 1000}, Framed(FramingKind::Fill));
    EXPECT_EQ(high.width, 300 * 65536);
    EXPECT_EQ(high.height, 225 * 65536);
    EXPECT_EQ(high.top, (1000 - 225) * 65536 / 2);
}

TEST(GeometryTest, FitShowsAllOfThePictureInTheMiddle) {
    EXPECT_EQ(ScreenRectFor({1600, 900}, Framed(FramingKind::Fit)),
              (ScreenRectangle{0, 50, 320, 300}));
    EXPECT_EQ(ScreenRectFor({600, 900}, Framed(FramingKind::Fit)),
              (ScreenRectangle{80, 0, 160, 400}));
    EXPECT_EQ(ScreenRectFor({400, 300}, Framed(FramingKind::Fit)),
              (ScreenRectangle{0, 0, 320, 400}));
    EXPECT_EQ(SourceRectFor({600, 900}, Framed(FramingKind::Fit)), PictureArea::WholeOf(600, 900));
}

TEST(GeometryTest, AFinishedScreenFillsTheScreenAndFitsIt) {
    const PictureSize screen{320, 400, kScreenPixel};
    for (const FramingKind kind : {FramingKind::Fill, FramingKind::Fit}) {
        EXPECT_EQ(SourceRectFor(screen, Framed(kind)), PictureArea::WholeOf(320, 400));
        EXPECT_EQ(ScreenRectFor(screen, Framed(kind)), (ScreenRectangle{0, 0, 320, 400}));
    }
    // On its side it is as much too high as an upright photograph of 3 to 4.
    const PictureSize turned = SizeWhenTurned(screen, {1, false});
    EXPECT_EQ(turned, (PictureSize{400, 320, {3, 5}}));
    EXPECT_EQ(ScreenRectFor(turned, Framed(FramingKind::Fit)),
              ScreenRectFor({300, 400}, Framed(FramingKind::Fit)));
}

TEST(GeometryTest, FitKeepsShapesToHalfAPixel) {
    for (const PictureSize& size : kSizes) {
        const Composition composition = Framed(FramingKind::Fit);
        const ScreenRectangle screen = ScreenRectFor(size, composition);
        const int shorter = screen.width < 320 ? screen.width : screen.height;
        EXPECT_NEAR(SeenWidthOfSquare(size, composition), 1, 0.51 / shorter)
            << size.width << " x " << size.height;
    }
}

TEST(GeometryTest, WhatWouldShowMoreThanThePictureStaysAtItsEdge) {
    for (const int centre : {-5, 0, kWhole, kWhole + 7}) {
        Composition composition = Framed(FramingKind::Fill);
        composition.framing.zoom = 2000;
        composition.framing.centreX = composition.framing.centreY = centre;
        const PictureArea seen = SourceRectFor({1000, 700}, composition);
        const bool isFirst = centre <= 0;
        EXPECT_EQ(seen.left, isFirst ? 0 : 1000 * 65536 - seen.width);
        EXPECT_EQ(seen.top, isFirst ? 0 : 700 * 65536 - seen.height);
    }
}

TEST(GeometryTest, ZoomStaysWithinItsBounds) {
    Composition composition = Framed(FramingKind::Fill);
    for (const auto& [zoom, width] : {std::pair{-3, 1440.0}, {0, 1440.0}, {2000000000, 90.0}}) {
        composition.framing.zoom = zoom;
        EXPECT_EQ(static_cast<double>(SourceRectFor({1920, 1080}, composition).width),
                  width * kPixel);
    }
}

TEST(GeometryTest, ACropIsCutToThePicture) {
    const PictureSize size{100, 80};
    EXPECT_EQ(AreaOfCrop(size, Crop{10, 20, 30, 40}),
              (PictureArea{10 * 65536, 20 * 65536, 30 * 65536, 40 * 65536}));
    EXPECT_EQ(AreaOfCrop(size, Crop{-10, -20, 30, 40}),
              (PictureArea{0, 0, 20 * 65536, 20 * 65536}));
    EXPECT_EQ(AreaOfCrop(size, Crop{90, 70, 2147483647, 2147483647}),
              (PictureArea{90 * 65536, 70 * 65536, 10 * 65536, 10 * 65536}));
}

TEST(GeometryTest, OfACropOutsideThePictureTheNearestPixelIsSeen) {
    const PictureSize size{100, 80};
    EXPECT_EQ(AreaOfCrop(size, Crop{500, 500, 10, 10}),
              (PictureArea{99 * 65536, 79 * 65536, 65536, 65536}));
    EXPECT_EQ(AreaOfCrop(size, Crop{-2147483647 - 1, -50, 10, 10}),
              (PictureArea{0, 0, 65536, 65536}));
    EXPECT_EQ(AreaOfCrop(size, Crop{50, 40, 0, -3}),
              (PictureArea{50 * 65536, 40 * 65536, 65536, 65536}));
}

TEST(GeometryTest, FramingIsDoneWithinACrop) {
    Composition composition = Framed(FramingKind::Fill);
    composition.crop = Crop{100, 200, 400, 400};
    const PictureArea seen = SourceRectFor({1000, 1000}, composition);
    EXPECT_EQ(seen, (PictureArea{100 * 65536, 250 * 65536, 400 * 65536, 300 * 65536}));
}

TEST(GeometryTest, TurnedPicturesHaveTheirSidesSwapped) {
    EXPECT_EQ(SizeWhenTurned({30, 20}, {1, false}), (PictureSize{20, 30}));
    EXPECT_EQ(SizeWhenTurned({30, 20}, {-1, true}), (PictureSize{20, 30}));
    EXPECT_EQ(SizeWhenTurned({30, 20}, {2, true}), (PictureSize{30, 20}));
    EXPECT_EQ(SizeWhenTurned({30, 20}, {400, false}), (PictureSize{30, 20}));
}

// The left upper pixel of what is seen, in a file of 30 x 20 pixels.
TEST(GeometryTest, APlaceIsFoundInTheFileWhateverTheTurn) {
    const auto placeOf = [](int quarterTurns, bool mirrored) {
        const Orientation orientation{quarterTurns, mirrored};
        const PictureArea corner{0, 0, 65536, 65536};
        const PictureArea stored =
            AreaBeforeTurning(corner, SizeWhenTurned({30, 20}, orientation), orientation);
        return std::pair{stored.left / 65536, stored.top / 65536};
    };
    using Place = std::pair<std::int64_t, std::int64_t>;
    EXPECT_EQ(placeOf(0, false), (Place{0, 0}));
    EXPECT_EQ(placeOf(1, false), (Place{0, 19}));
    EXPECT_EQ(placeOf(2, false), (Place{29, 19}));
    EXPECT_EQ(placeOf(3, false), (Place{29, 0}));
    EXPECT_EQ(placeOf(0, true), (Place{29, 0}));
    EXPECT_EQ(placeOf(1, true), (Place{0, 0}));
    EXPECT_EQ(placeOf(2, true), (Place{0, 19}));
    EXPECT_EQ(placeOf(3, true), (Place{29, 19}));
}

TEST(GeometryTest, DraggingMovesThePictureWithTheMouse) {
    const PictureSize size{4000, 3000};
    Composition composition = Framed(FramingKind::Fill);
    composition.framing.zoom = 4000;
    const PictureArea before = SourceRectFor(size, composition);
    composition.framing = MovedBy(size, composition, 16, -40);
    const PictureArea after = SourceRectFor(size, composition);
    // A pixel of the screen is 1000 / 320 of the picture's across and 750 / 400 down.
    EXPECT_NEAR(static_cast<double>(before.left - after.left), 50 * kPixel, 8);
    EXPECT_NEAR(static_cast<double>(after.top - before.top), 75 * kPixel, 8);
}

TEST(GeometryTest, AHundredStepsOfAPixelAreAHundredPixels) {
    const PictureSize size{kLargestSide, 24000};
    Composition composition = Framed(FramingKind::Fill);
    composition.framing.zoom = kMostZoom;
    const PictureArea before = SourceRectFor(size, composition);
    for (int i = 0; i < 100; ++i) composition.framing = MovedBy(size, composition, 1, 0);
    const PictureArea after = SourceRectFor(size, composition);
    const double pixel = static_cast<double>(before.width) / 320;
    EXPECT_NEAR(static_cast<double>(before.left - after.left), 100 * pixel, pixel / 50);
}

TEST(GeometryTest, DraggingEndsAtThePicturesEdgeAndComesBackAtOnce) {
    const PictureSize size{1000, 750};
    Composition composition = Framed(FramingKind::Fill);
    composition.framing.zoom = 2000;
    composition.framing = MovedBy(size, composition, 100000, 100000);
    EXPECT_EQ(SourceRectFor(size, composition).left, 0);
    composition.framing = MovedBy(size, composition, -10, 0);
    EXPECT_NEAR(static_cast<double>(SourceRectFor(size, composition).left), 500 * kPixel / 32, 8);
}

TEST(GeometryTest, ZoomingKeepsWhatIsUnderThePointer) {
    const PictureSize size{4000, 3000};
    Composition composition = Framed(FramingKind::Fill);
    composition.framing.zoom = 2000;
    const auto under = [&](double x, double y) {
        const PictureArea seen = SourceRectFor(size, composition);
        return std::pair{
            (static_cast<double>(seen.left) + x / 320 * static_cast<double>(seen.width)) / kPixel,
            (static_cast<double>(seen.top) + y / 400 * static_cast<double>(seen.height)) / kPixel};
    };
    const auto before = under(40, 350);
    composition.framing = ZoomedAt(size, composition, 3300, 40, 350);
    const auto after = under(40, 350);
    EXPECT_EQ(composition.framing.zoom, 3300);
    EXPECT_NEAR(before.first, after.first, 0.01);
    EXPECT_NEAR(before.second, after.second, 0.01);
    composition.framing = ZoomedAt(size, composition, 1, 0, 0);
    EXPECT_EQ(composition.framing.zoom, kZoomOne);
}

TEST(GeometryTest, OtherKindsOfFramingAreNotMoved) {
    for (const FramingKind kind : {FramingKind::Stretch, FramingKind::Fit}) {
        const Composition composition = Framed(kind);
        EXPECT_EQ(MovedBy({900, 100}, composition, 5, 5), composition.framing);
        EXPECT_EQ(ZoomedAt({900, 100}, composition, 2000, 5, 5), composition.framing);
    }
}

TEST(GeometryTest, ExtremePicturesGiveAreasWithinThem) {
    for (const PictureSize& size :
         {PictureSize{1, 1}, {kLargestSide, 1}, {1, kLargestSide}, {kLargestSide, 2047}, {2, 1}}) {
        for (const FramingKind kind : {FramingKind::Stretch, FramingKind::Fill, FramingKind::Fit}) {
            for (const int zoom : {kZoomOne, kMostZoom}) {
                Composition composition = Framed(kind);
                composition.framing.zoom = zoom;
                const PictureArea seen = SourceRectFor(size, composition);
                const PictureArea whole = PictureArea::WholeOf(size.width, size.height);
                EXPECT_GE(seen.left, 0);
                EXPECT_GE(seen.top, 0);
                EXPECT_GT(seen.width, 0);
                EXPECT_GT(seen.height, 0);
                EXPECT_LE(seen.left + seen.width, whole.width);
                EXPECT_LE(seen.top + seen.height, whole.height);
                const ScreenRectangle screen = ScreenRectFor(size, composition);
                EXPECT_GE(screen.width, 1);
                EXPECT_GE(screen.height, 1);
                EXPECT_GE(screen.left, 0);
                EXPECT_LE(screen.left + screen.width, 320);
                EXPECT_LE(screen.top + screen.height, 400);
            }
        }
    }
}

}  // namespace
}  // namespace vistrel::compose
