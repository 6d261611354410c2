// Scaling against the same filter in double precision.
#include "pictures/scale/resize.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "pictures/scale/weights.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

using namespace pictures;
using namespace scale;

namespace {

double Lanczos3(double x) {
    x = std::abs(x);
    if (x < 1e-12) return 1;
    if (x >= 3) return 0;
    const double angle = std::acos(-1.0) * x;
    return 3 * std::sin(angle) * std::sin(angle / 3) / (angle * angle);
}

/// The weights of target sample i, over all `samples` source samples.
std::vector<double> ReferenceWeights(int samples, double extent, int target, int i) {
    const double scale = std::max(1.0, extent / target);
    const double centre = (i + 0.5) * extent / target;
    std::vector<double> weights(samples);
    double sum = 0;
    for (int j = 0; j < samples; ++j) sum += weights[j] = Lanczos3((j + 0.5 - centre) / scale);
    for (double& weight : weights) weight /= sum;
    return weights;
}

using Samples = std::vector<double>;

/// Scales rows of `channels` interleaved channels along x.
Samples Along(const Samples& source, int width, int height, int channels, double extent,
              int target) {
    Samples result(std::size_t(target) * height * channels);
    for (int i = 0; i < target; ++i) {
        const std::vector<double> weights = ReferenceWeights(width, extent, target, i);
        for (int j = 0; j < width; ++j) {
            if (weights[j] == 0) continue;
            for (int y = 0; y < height; ++y) {
                for (int c = 0; c < channels; ++c) {
                    result[(std::size_t(y) * target + i) * channels + c] +=
                        weights[j] * source[(std::size_t(y) * width + j) * channels + c];
                }
            }
        }
    }
    return result;
}

Samples Turned(const Samples& source, int width, int height, int channels) {
    Samples result(source.size());
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x) {
            for (int c = 0; c < channels; ++c) {
                result[(std::size_t(x) * height + y) * channels + c] =
                    source[(std::size_t(y) * width + x) * channels + c];
            }
        }
    }
    return result;
}

Samples Reference(const RgbPicture& source, int width, int height) {
    Samples samples(source.pixels.begin(), source.pixels.end());
    samples = Turned(samples, source.width, source.height, 3);
    samples = Along(samples, source.height, source.width, 3, source.height, height);
    samples = Turned(samples, height, source.width, 3);
    return Along(samples, source.width, height, 3, source.width, width);
}

double Psnr(const RgbPicture& picture, const Samples& reference) {
    double squares = 0;
    for (std::size_t i = 0; i < reference.size(); ++i) {
        const double wanted = std::round(std::clamp(reference[i], 0.0, 255.0));
        const double error = picture.pixels[i] - wanted;
        squares += error * error;
    }
    return 10 * std::log10(255.0 * 255.0 * double(reference.size()) / (squares + 1e-9));
}

/// Black and white at random: the hardest picture for rounding.
RgbPicture Noise(int width, int height) {
    Numbers numbers(7);
    RgbPicture picture{width, height, {}};
    for (int i = 0; i < width * height * 3; ++i) {
        picture.pixels.push_back(numbers.Next(2) != 0 ? 255 : 0);
    }
    return picture;
}

struct Scaling {
    int width, height, newWidth, newHeight;
};

class ResizeTest : public testing::TestWithParam<Scaling> {};

TEST_P(ResizeTest, IsWithinSixtyDecibelsOfTheFilterInDoubles) {
    const Scaling size = GetParam();
    const RgbPicture noise = Noise(size.width, size.height);
    const RgbPicture result = Resize(noise, size.newWidth, size.newHeight);
    ASSERT_EQ(result.width, size.newWidth);
    ASSERT_EQ(result.height, size.newHeight);
    ASSERT_EQ(result.pixels.size(), std::size_t(size.newWidth) * size.newHeight * 3);
    EXPECT_GE(Psnr(result, Reference(noise, size.newWidth, size.newHeight)), 60);
}

INSTANTIATE_TEST_SUITE_P(Sizes, ResizeTest,
                         testing::Values(Scaling{640, 480, 320, 400}, Scaling{321, 399, 320, 400},
                                         Scaling{320, 400, 160, 120}, Scaling{61, 89, 320, 400},
                                         Scaling{3, 2, 320, 400}, Scaling{1, 7, 40, 40},
                                         Scaling{1500, 20, 320, 40}, Scaling{20, 1500, 37, 1},
                                         Scaling{200, 150, 1, 1}));

TEST(Resize, KeepsAPictureOfTheSameSize) {
    const RgbPicture picture = MakePicture(320, 400);
    EXPECT_EQ(Resize(picture, 320, 400).pixels, picture.pixels);
}

TEST(Resize, KeepsAFlatPictureExactlyAtEverySize) {
    for (const Scaling& size : {Scaling{1, 1, 320, 400}, Scaling{7, 3, 320, 400},
                                Scaling{641, 479, 320, 400}, Scaling{2000, 5, 3, 9}}) {
        RgbPicture flat{size.width, size.height, {}};
        for (int i = 0; i < size.width * size.height; ++i) {
            flat.pixels.insert(flat.pixels.end(), {255, 0, 97});
        }
        const RgbPicture result = Resize(flat, size.newWidth, size.newHeight);
        for (std::size_t i = 0; i < result.pixels.size(); i += 3) {
            ASSERT_EQ(result.pixels[i], 255);
            ASSERT_EQ(result.pixels[i + 1], 0);
            ASSERT_EQ(result.pixels[i + 2], 97);
        }
    }
}

TEST(Resize, TakesThirtyTwoThousandPixelsInEitherDirection) {
    RgbPicture wide{kLargestSide, 1, {}};
    for (int x = 0; x < kLargestSide; ++x) {
        wide.pixels.insert(wide.pixels.end(), 3, x < kLargestSide / 2 ? 0 : 255);
    }
    const RgbPicture narrow = Resize(wide, 9, 1);
    EXPECT_LE(narrow.pixels[0], 8);
    EXPECT_NEAR(narrow.pixels[4 * 3], 128, 1);
    EXPECT_GE(narrow.pixels[8 * 3], 247);
    wide.width = 1;
    wide.height = kLargestSide;
    EXPECT_EQ(Resize(wide, 1, 9).pixels, narrow.pixels);
}

TEST(FilterAxis, AddsUpToOneForEveryTargetSample) {
    for (int samples = 1; samples < 90; ++samples) {
        for (int target = 1; target < 40; ++target) {
            const FilterAxis axis = MakeFilterAxis({samples, std::int64_t{samples} << 16, target});
            for (const FilterTaps& taps : axis.taps) {
                ASSERT_GE(taps.first, 0);
                ASSERT_LE(taps.first + taps.count, samples);
                int sum = 0;
                for (int k = 0; k < taps.count; ++k) sum += axis.WeightsOf(taps)[k];
                ASSERT_EQ(sum, 1 << axis.shift);
            }
        }
    }
}

TEST(PlaneScaler, FollowsTheFilterOverAFractionalExtent) {
    constexpr int kWidth = 75;
    constexpr int kHeight = 53;
    const ScaleAxis across{kWidth, (std::int64_t{kWidth} << 16) - 32768, 32};
    const ScaleAxis down{kHeight, (std::int64_t{kHeight} << 16) - 16384, 40};
    Numbers numbers(3);
    Samples source;
    PlaneScaler scaler(across, down);
    for (int y = 0; y < kHeight; ++y) {
        std::vector<std::int16_t> row;
        for (int x = 0; x < kWidth; ++x) {
            row.push_back(static_cast<std::int16_t>(numbers.Next(16000)) - 8000);
        }
        source.insert(source.end(), row.begin(), row.end());
        scaler.AddRow(row.data());
    }
    Samples wanted = Turned(source, kWidth, kHeight, 1);
    wanted = Along(wanted, kHeight, kWidth, 1, kHeight - 0.25, 40);
    wanted = Along(Turned(wanted, 40, kWidth, 1), kWidth, 40, 1, kWidth - 0.5, 32);
    const std::vector<std::int16_t>& plane = scaler.plane();
    ASSERT_EQ(plane.size(), wanted.size());
    for (std::size_t i = 0; i < plane.size(); ++i) ASSERT_NEAR(plane[i], wanted[i], 5);
}

TEST(PlaneScaler, StretchesASingleSample) {
    PlaneScaler scaler({1, 32768, 5}, {1, 65536, 3});
    const std::int16_t sample = -1234;
    scaler.AddRow(&sample);
    EXPECT_EQ(scaler.plane(), std::vector<std::int16_t>(15, -1234));
}

TEST(PlaneScaler, BearsTheLargestSamples) {
    PlaneScaler scaler({64, 64 << 16, 29}, {64, 64 << 16, 31});
    Numbers numbers(5);
    std::vector<std::int16_t> row(64);
    for (int y = 0; y < 64; ++y) {
        for (std::int16_t& sample : row) sample = numbers.Next(2) != 0 ? 16383 : -16384;
        scaler.AddRow(row.data());
    }
    const auto [least, most] = std::minmax_element(scaler.plane().begin(), scaler.plane().end());
    EXPECT_LT(*least, 0);
    EXPECT_GT(*most, 0);
}

}  // namespace
}  // namespace vistrel::test
