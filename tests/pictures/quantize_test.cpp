// Colour reduction: what it must keep, and how near it must come.
#include "pictures/reduce/quantize.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <set>

#include "pictures/reduce/palette.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

using namespace pictures;
using namespace reduce;

namespace {

struct Reduced {
    Bytes indices;
    Bytes palette;
};

Reduced Reduce(const RgbPicture& picture, int colors, Dither dither = Dither::On) {
    Reduced result{Bytes(std::size_t(picture.width) * picture.height, 255),
                   Bytes(std::size_t(colors) * 4, 99)};
    EXPECT_TRUE(QuantizeRgb(picture.pixels.data(), picture.width, picture.height, colors,
                            result.indices.data(), result.palette.data(), dither));
    return result;
}

RgbPicture Shown(const RgbPicture& size, const Reduced& reduced) {
    RgbPicture picture{size.width, size.height, {}};
    for (const std::uint8_t index : reduced.indices) {
        const std::uint8_t* const entry = &reduced.palette[4 * index];
        picture.pixels.insert(picture.pixels.end(), {entry[2], entry[1], entry[0]});
    }
    return picture;
}

/// The decibels between two pictures of which every pixel is the mean of `side` x `side` ones.
double Psnr(const RgbPicture& a, const RgbPicture& b, int side) {
    double squares = 0;
    int count = 0;
    for (int y = 0; y + side <= a.height; y += side) {
        for (int x = 0; x + side <= a.width; x += side) {
            for (int c = 0; c < 3; ++c) {
                double difference = 0;
                for (int v = 0; v < side; ++v) {
                    for (int u = 0; u < side; ++u) {
                        const std::size_t at = (std::size_t(y + v) * a.width + x + u) * 3 + c;
                        difference += a.pixels[at] - b.pixels[at];
                    }
                }
                difference /= side * side;
                squares += difference * difference;
                ++count;
            }
        }
    }
    return 10 * std::log10(255.0 * 255.0 * count / (squares + 1e-9));
}

/// Smooth in all three channels, as a sky is: far more than 256 colours.
RgbPicture Sky(int width, int height) {
    RgbPicture picture{width, height, {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            picture.pixels.push_back(static_cast<std::uint8_t>(60 + 150 * y / height));
            picture.pixels.push_back(static_cast<std::uint8_t>(90 + 100 * x / width));
            picture.pixels.push_back(
                static_cast<std::uint8_t>(240 - 60 * (x + y) / (width + height)));
        }
    }
    return picture;
}

/// What the simplest reduction gives: a fixed palette of 6 x 7 x 6 colours, nearest colour.
RgbPicture InFixedPalette(const RgbPicture& picture) {
    RgbPicture result = picture;
    for (std::size_t i = 0; i < result.pixels.size(); ++i) {
        const int steps = i % 3 == 1 ? 6 : 5;
        result.pixels[i] =
            static_cast<std::uint8_t>((result.pixels[i] * steps + 127) / 255 * 255 / steps);
    }
    return result;
}

TEST(QuantizeRgb, KeepsAPictureWithFewColorsExactly) {
    for (const int colors : {1, 2, 3, 100, 256}) {
        Numbers numbers(11);
        RgbPicture picture{64, 48, {}};
        for (int i = 0; i < 64 * 48; ++i) {
            const int k = i < colors ? i : static_cast<int>(numbers.Next(colors));
            picture.pixels.insert(picture.pixels.end(),
                                  {std::uint8_t(k), std::uint8_t(k * 7), std::uint8_t(255 - k)});
        }
        for (const Dither dither : {Dither::On, Dither::Off}) {
            const Reduced reduced = Reduce(picture, 256, dither);
            EXPECT_EQ(Shown(picture, reduced).pixels, picture.pixels) << colors;
        }
    }
}

TEST(QuantizeRgb, LeavesUnusedPaletteEntriesBlack) {
    RgbPicture picture{2, 1, {200, 100, 50, 1, 2, 3}};
    const Reduced reduced = Reduce(picture, 256);
    EXPECT_EQ(Bytes(reduced.palette.begin(), reduced.palette.begin() + 8),
              (Bytes{50, 100, 200, 0, 3, 2, 1, 0}));
    EXPECT_TRUE(std::all_of(reduced.palette.begin() + 8, reduced.palette.end(),
                            [](std::uint8_t byte) { return byte == 0; }));
}

TEST(QuantizeRgb, NeverUsesMoreColorsThanItMay) {
    const RgbPicture picture = Sky(120, 90);
    for (const int colors : {2, 3, 5, 16, 17, 255, 256}) {
        for (const Dither dither : {Dither::On, Dither::Off}) {
            const Reduced reduced = Reduce(picture, colors, dither);
            const std::set<std::uint8_t> used(reduced.indices.begin(), reduced.indices.end());
            EXPECT_LT(*used.rbegin(), colors);
            EXPECT_GE(used.size(), std::size_t(colors) / 2);
            for (int i = 0; i < colors; ++i) EXPECT_EQ(reduced.palette[4 * i + 3], 0);
        }
    }
}

TEST(QuantizeRgb, GivesTheSameResultEveryTime) {
    const RgbPicture picture = MakePicture(160, 130);
    const Reduced once = Reduce(picture, 256);
    const Reduced again = Reduce(picture, 256);
    EXPECT_EQ(once.indices, again.indices);
    EXPECT_EQ(once.palette, again.palette);
}

TEST(QuantizeRgb, ComesNearerThanAFixedPalette) {
    for (const RgbPicture& picture : {Sky(320, 400), MakePicture(320, 400)}) {
        const RgbPicture fixed = InFixedPalette(picture);
        const RgbPicture sharp = Shown(picture, Reduce(picture, 256, Dither::Off));
        const RgbPicture soft = Shown(picture, Reduce(picture, 256));
        EXPECT_GT(Psnr(sharp, picture, 1), Psnr(fixed, picture, 1) + 6);
        EXPECT_GT(Psnr(soft, picture, 1), Psnr(fixed, picture, 1) + 5);
    }
}

TEST(QuantizeRgb, ShowsASmoothSkyWithoutSteps) {
    const RgbPicture sky = Sky(320, 400);
    const RgbPicture sharp = Shown(sky, Reduce(sky, 256, Dither::Off));
    const RgbPicture soft = Shown(sky, Reduce(sky, 256));
    // Seen from afar, neighbouring pixels blend: their errors must cancel, at little cost near by.
    EXPECT_GT(Psnr(soft, sky, 4), Psnr(sharp, sky, 4) + 6);
    EXPECT_GT(Psnr(soft, sky, 1), Psnr(sharp, sky, 1) - 2);
    EXPECT_GT(Psnr(soft, sky, 4), 50);
}

TEST(QuantizeRgb, BlendsTheMoreFromAfarTheStrongerTheDithering) {
    const RgbPicture sky = Sky(320, 400);
    double near = 1000, far = 0;
    for (const Dither dither : {Dither::Off, Dither::Light, Dither::Medium, Dither::Strong}) {
        const RgbPicture shown = Shown(sky, Reduce(sky, 256, dither));
        EXPECT_LT(Psnr(shown, sky, 1), near - 0.2) << int(dither);
        EXPECT_GT(Psnr(shown, sky, 4), far + 1) << int(dither);
        near = Psnr(shown, sky, 1);
        far = Psnr(shown, sky, 4);
    }
}

TEST(QuantizeRgb, LeavesFlatAreasWithoutNoise) {
    // A flat field beside a busy one: the flat one's colour is in the palette.
    Numbers numbers(2);
    RgbPicture picture{128, 64, {}};
    for (int i = 0; i < 128 * 64; ++i) {
        if (i % 128 < 64) {
            picture.pixels.insert(picture.pixels.end(), {31, 99, 200});
        } else {
            for (int c = 0; c < 3; ++c) picture.pixels.push_back(std::uint8_t(numbers.Next(256)));
        }
    }
    const RgbPicture shown = Shown(picture, Reduce(picture, 256));
    int wrong = 0;
    for (int y = 0; y < 64; ++y) {
        for (int x = 0; x < 60; ++x) {
            const std::uint8_t* const rgb = &shown.pixels[(y * 128 + x) * 3];
            wrong += std::abs(rgb[0] - 31) + std::abs(rgb[1] - 99) + std::abs(rgb[2] - 200) > 3;
        }
    }
    EXPECT_EQ(wrong, 0);
}

TEST(QuantizeRgb, HandlesExtremePictures) {
    // Saturated noise in two colours is the farthest that pixels can be from what they should be.
    Numbers numbers(4);
    for (const auto& [width, height] : {std::pair{1, 300}, {300, 1}, {5, 5}, {97, 61}}) {
        RgbPicture picture{width, height, {}};
        for (int i = 0; i < width * height * 3; ++i) {
            picture.pixels.push_back(numbers.Next(2) != 0 ? std::uint8_t(255 - numbers.Next(3))
                                                          : std::uint8_t(numbers.Next(3)));
        }
        for (const int colors : {2, 3, 8, 256}) Reduce(picture, colors);
    }
}

TEST(QuantizeRgb, BearsEveryColorOnce) {
    RgbPicture picture{512, 512, {}};
    for (int i = 0; i < 512 * 512; ++i) {
        picture.pixels.insert(picture.pixels.end(), {std::uint8_t(i >> 12 << 2 | (i & 3)),
                                                     std::uint8_t(i >> 6 << 2 | (i & 3)),
                                                     std::uint8_t(i << 2 | (i >> 4 & 3))});
    }
    EXPECT_GT(Psnr(Shown(picture, Reduce(picture, 256)), picture, 1), 22);
}

TEST(QuantizeRgb, RefusesWhatIsOutOfRange) {
    const Bytes rgb(12);
    Bytes indices(4);
    Bytes palette(1024);
    const auto reduce = [&](const std::uint8_t* pixels, int width, int height, int colors) {
        return QuantizeRgb(pixels, width, height, colors, indices.data(), palette.data());
    };
    EXPECT_TRUE(reduce(rgb.data(), 2, 2, 256));
    EXPECT_FALSE(reduce(nullptr, 2, 2, 256));
    EXPECT_FALSE(reduce(rgb.data(), 0, 2, 256));
    EXPECT_FALSE(reduce(rgb.data(), 2, -1, 256));
    EXPECT_FALSE(reduce(rgb.data(), 2, 2, 1));
    EXPECT_FALSE(reduce(rgb.data(), 2, 2, 257));
    EXPECT_FALSE(reduce(rgb.data(), 32767, 32767, 256));
}

TEST(WorkingSpace, MeasuresTheWeightedDistance) {
    const DistanceWeights weights{256, 496, 208, 960};
    const WorkingSpace space(weights);
    Numbers numbers(9);
    for (int i = 0; i < 500; ++i) {
        int a[3];
        int b[3];
        for (int c = 0; c < 3; ++c) {
            a[c] = static_cast<int>(numbers.Next(256));
            b[c] = static_cast<int>(numbers.Next(256));
        }
        const double r = a[0] - b[0];
        const double g = a[1] - b[1];
        const double bl = a[2] - b[2];
        const double luma = 0.299 * r + 0.587 * g + 0.114 * bl;
        const double wanted =
            r * r + 496 / 256.0 * g * g + 208 / 256.0 * bl * bl + 960 / 256.0 * luma * luma;
        const double got =
            SquaredDistance(space.FromRgb(a[0], a[1], a[2]), space.FromRgb(b[0], b[1], b[2])) /
            256.0;
        EXPECT_NEAR(std::sqrt(got), std::sqrt(wanted), 0.3);
    }
}

TEST(WorkingSpace, GivesEveryByteColorBack) {
    const WorkingSpace space({256, 496, 208, 960});
    for (int i = 0; i < 256; ++i) {
        const Rgb color = space.ToRgb(space.FromRgb(i, 255 - i, i * 5 % 256));
        EXPECT_EQ(color.red, i);
        EXPECT_EQ(color.green, 255 - i);
        EXPECT_EQ(color.blue, i * 5 % 256);
    }
}

TEST(NeighborTable, ListsTheNearestColorsInOrder) {
    Numbers numbers(6);
    Palette palette;
    palette.size = 200;
    for (int i = 0; i < palette.size; ++i) {
        const auto next = [&] { return static_cast<std::int16_t>(numbers.Next(9000)); };
        palette.colors[i] = {next(), next(), next(), 0};
    }
    const NeighborTable table(palette);
    for (int i = 0; i < palette.size; ++i) {
        std::vector<std::int32_t> all;
        for (int j = 0; j < palette.size; ++j) {
            if (j != i) all.push_back(SquaredDistance(palette.colors[i], palette.colors[j]));
        }
        std::sort(all.begin(), all.end());
        ASSERT_EQ(table.Of(i).count, Neighbors::kMost);
        for (int k = 0; k < Neighbors::kMost; ++k) {
            EXPECT_EQ(table.Of(i).squared[k], all[k]);
            EXPECT_EQ(SquaredDistance(palette.colors[i], palette.colors[table.Of(i).color[k]]),
                      all[k]);
        }
    }
}

}  // namespace
}  // namespace vistrel::test
