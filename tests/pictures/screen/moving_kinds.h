// Every kind of movement, and what has to be true of a screen that is made with it.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>

#include "pictures/reduce/quantize.h"
#include "pictures/screen/check.h"
#include "pictures/screen/moving_screen.h"
#include "tests/pictures/screen/system_screen.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

struct Kind {
    std::string name;
    screen::Pattern pattern;
    screen::RingShape shape;
    int count;
    bool reversed;
};

/// Each pattern, with the shapes of a ring, numbers of colours and directions in turn.
inline std::vector<Kind> Kinds() {
    using screen::Pattern;
    using screen::RingShape;
    return {{"gradient bar", Pattern::Along, RingShape::Smooth, 20, false},
            {"pulsing bar", Pattern::Along, RingShape::Pulse, 32, true},
            {"striped bar", Pattern::Along, RingShape::Stripes, 2, false},
            {"comet bar", Pattern::Along, RingShape::Comet, 64, true},
            {"dots", Pattern::Dots, RingShape::Comet, 12, false},
            {"brightness", Pattern::Brightness, RingShape::Smooth, 20, false},
            {"left to right", Pattern::LeftToRight, RingShape::Smooth, 33, true},
            {"top to bottom", Pattern::TopToBottom, RingShape::Stripes, 7, false},
            {"rings", Pattern::Rings, RingShape::Pulse, 16, false},
            {"rays", Pattern::Rays, RingShape::Smooth, 24, true},
            {"diagonal", Pattern::Diagonal, RingShape::Comet, 40, false},
            {"noise", Pattern::Noise, RingShape::Smooth, 10, false},
            {"pieces", Pattern::Pieces, RingShape::Pulse, 8, false},
            {"waves", Pattern::Waves, RingShape::Smooth, 30, false},
            {"ripples", Pattern::Ripples, RingShape::Smooth, 20, true},
            {"plasma", Pattern::Plasma, RingShape::Smooth, 64, false},
            {"rain", Pattern::Rain, RingShape::Comet, 48, false},
            {"stars", Pattern::Stars, RingShape::Comet, 32, true},
            {"another screen", Pattern::OfAScreen, RingShape::Smooth, 20, false}};
}

/// A bar for what is a bar, a round part for backgrounds, the likes of the middle for the rest.
inline screen::Area AreaFor(screen::Pattern pattern, const pictures::RgbPicture& picture) {
    using screen::Pattern;
    if (pattern == Pattern::Along || pattern == Pattern::Dots)
        return screen::RectangleArea(10, 370, 300, 20);
    if (pattern < Pattern::Waves) {
        screen::Area area = screen::LikeColorArea(picture, {160, 200}, 15, false);
        screen::Add(area, screen::RectangleArea(150, 190, 20, 20));
        return area;
    }
    constexpr screen::ScreenPoint kRound[] = {{100, 20},  {220, 20},  {300, 90}, {300, 210},
                                              {220, 290}, {100, 290}, {20, 210}, {20, 90}};
    return screen::LassoArea(kRound);
}

/// A screen with a movement in its upper half.
inline screen::IndexedScreen OtherScreen(int count) {
    screen::IndexedScreen other{320, 400, Bytes(screen::kScreenPixels), {}, 256 - count};
    for (int i = 0; i < 256; ++i)
        other.palette[i] = {std::uint8_t(i), std::uint8_t(255 - i), std::uint8_t(i * 7)};
    for (int y = 0; y < 200; ++y)
        for (int x = y % 3; x < 320; x += 3)
            other.indices[screen::Area::At(x, y)] = std::uint8_t(256 - count + (x + y) % count);
    return other;
}

/// A document of that kind over a still screen.
inline screen::MovingPicture MakeMoving(const Kind& kind, const screen::IndexedScreen& base,
                                        const std::optional<pictures::RgbPicture>& original) {
    auto begun = screen::BeginMoving(base, original);
    EXPECT_TRUE(begun) << kind.name;
    screen::MovingPicture& document = *begun;
    document.ring.shape = kind.shape;
    document.ring.keys = {{20, 10, 60}, {80, 90, 250}, {255, 250, 240}};
    document.ring.count = kind.count;
    const pictures::RgbPicture picture = screen::StillPicture(document);
    screen::Layer layer;
    layer.pattern = kind.pattern;
    layer.reversed = kind.reversed;
    layer.area = AreaFor(kind.pattern, picture);
    if (kind.pattern == screen::Pattern::OfAScreen) {
        layer = screen::LayerOfScreen(OtherScreen(kind.count));
        document.ring = screen::RingOfScreen(OtherScreen(kind.count));
    }
    if (kind.pattern == screen::Pattern::Brightness)
        document.ring = screen::RingOfArea(picture, layer.area, kind.count);
    if (kind.pattern == screen::Pattern::Stars) document.ground = screen::ScreenColor{3, 2, 40};
    document.layers = {layer};
    return document;
}

/// Decibels between pixels of two pictures for which `counts` holds.
template <class Counts>
double PsnrWhere(const Bytes& one, const Bytes& other, Counts counts) {
    double sum = 0;
    double samples = 1e-9;
    for (std::size_t i = 0; i < one.size(); ++i) {
        if (!counts(i / 3)) continue;
        sum += (one[i] - other[i]) * (one[i] - other[i]);
        ++samples;
    }
    return 10 * std::log10(255.0 * 255.0 / std::max(sum / samples, 1e-6));
}

/// The picture in `colors` colours.
inline Bytes ReducedTo(const pictures::RgbPicture& picture, int colors) {
    Bytes indices(screen::kScreenPixels);
    Bytes palette(std::size_t(colors) * 4);
    EXPECT_TRUE(reduce::QuantizeRgb(picture.pixels.data(), 320, 400, colors, indices.data(),
                                    palette.data()));
    Bytes pixels;
    for (const std::size_t index : indices)
        pixels.insert(pixels.end(),
                      {palette[4 * index + 2], palette[4 * index + 1], palette[4 * index]});
    return pixels;
}

/// That nothing stirs at any step but the pixels of `may`, that something does at the first, and
/// that all is as it was after a turn.
inline void ExpectMovesOnlyIn(SystemScreen screen, const screen::Area& may, int count) {
    bool isOneColor = true;  // as the ring of a flat area is
    for (int entry = screen.First(); entry < 256; ++entry)
        isOneColor = isOneColor && screen.Shown(entry) == screen.Shown(255);
    const Bytes still = screen.Frame();
    int stirred = 0;
    for (int step = 1; step <= count; ++step) {
        screen.Step();
        const Bytes frame = screen.Frame();
        auto at = frame.begin();
        const auto nextChange = [&] {
            at = std::mismatch(at, frame.end(), still.begin() + (at - frame.begin())).first;
            return at != frame.end();
        };
        for (; nextChange(); ++at) {
            const auto pixel = std::size_t(at - frame.begin()) / 3;
            ++stirred;
            ASSERT_TRUE(may.in[pixel]) << "step " << step << ", pixel " << pixel;
            ASSERT_LT(step, count) << "pixel " << pixel;
        }
    }
    EXPECT_EQ(stirred == 0, isOneColor);
}

/// All that has to be true of any screen that moves.
inline void ExpectGoodScreen(const screen::MovingPicture& document, const std::string& name) {
    SCOPED_TRACE(name);
    const auto made = screen::MakeMovingScreen(document);
    ASSERT_TRUE(made);
    const Bytes file = screen::ScreenFile(*made);
    ASSERT_NO_FATAL_FAILURE(SystemScreen::ExpectHeader(file));
    EXPECT_EQ(screen::FaultsOfScreen(file), std::vector<screen::ScreenFault>{});
    const SystemScreen shown(file);
    const int count = static_cast<int>(screen::RingColors(document.ring).size());
    EXPECT_EQ(shown.First(), 256 - count);
    const screen::Area& area = document.layers[0].area;
    ExpectMovesOnlyIn(shown, area, count);
    const pictures::RgbPicture picture = screen::StillPicture(document);
    const auto stands = [&](std::size_t pixel) { return area.in[pixel] == 0; };
    const int left = 256 - count - (document.ground ? 1 : 0);
    const double wanted = PsnrWhere(ReducedTo(picture, left), picture.pixels, stands);
    EXPECT_GE(PsnrWhere(shown.Frame(), picture.pixels, stands), std::min(wanted, 90.0) - 0.3);
}

/// A screen of a picture's own 256 colours.
inline screen::IndexedScreen ScreenOf(const pictures::RgbPicture& picture) {
    screen::IndexedScreen made{320, 400, Bytes(screen::kScreenPixels), {}, 0};
    Bytes palette(256 * 4);
    EXPECT_TRUE(reduce::QuantizeRgb(picture.pixels.data(), 320, 400, 256, made.indices.data(),
                                    palette.data()));
    for (std::size_t i = 0; i < 256; ++i)
        made.palette[i] = {palette[4 * i + 2], palette[4 * i + 1], palette[4 * i]};
    return made;
}

}  // namespace vistrel::test
