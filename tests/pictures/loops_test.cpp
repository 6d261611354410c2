// The innermost loops give the same, whatever kind of processor they are for: here for sizes and
// pictures that suit no vector, and for those of the corpus.
#include "pictures/loops/loops.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <random>

#include "pictures/read_picture.h"
#include "pictures/reduce/quantize.h"
#include "pictures/scale/resize.h"
#include "tests/support/picture_files/md5.h"
#include "tests/support/picture_files/test_picture.h"

namespace vistrel::test {

using namespace pictures;
using reduce::Dither;
using reduce::QuantizeRgb;

namespace {

constexpr loops::Kind kKinds[] = {loops::Kind::Singles, loops::Kind::Mmx, loops::Kind::Sse2};

/// What is made must be the same by all loops that this machine can run.
void ExpectTheSame(const std::function<Bytes()>& make) {
    loops::Force(loops::Kind::Singles);
    const Bytes wanted = make();
    for (const loops::Kind kind : kKinds) {
        if (!loops::CanRun(kind)) continue;
        loops::Force(kind);
        EXPECT_TRUE(make() == wanted) << "kind " << static_cast<int>(kind);
    }
}

Bytes Reduced(const RgbPicture& picture, int colors, Dither dither) {
    const std::size_t pixels = std::size_t(picture.width) * picture.height;
    Bytes result(pixels + std::size_t(colors) * 4);
    EXPECT_TRUE(QuantizeRgb(picture.pixels.data(), picture.width, picture.height, colors,
                            result.data(), result.data() + pixels, dither));
    return result;
}

RgbPicture Noise(std::mt19937& random, int width, int height) {
    RgbPicture picture{width, height, {}};
    picture.pixels.resize(std::size_t(width) * height * 3);
    // Black and white alone make the largest errors there are.
    const bool isHard = random() % 2 == 0;
    for (std::uint8_t& sample : picture.pixels)
        sample = static_cast<std::uint8_t>(isHard ? random() % 2 * 255 : random());
    return picture;
}

TEST(Loops, ReduceSmallPicturesOfAnySizeToTheSameColors) {
    std::mt19937 random(1);
    constexpr Dither kStrengths[] = {Dither::On, Dither::Light, Dither::Medium, Dither::Strong};
    for (int i = 0; i < 150; ++i) {
        const int width = static_cast<int>(random() % 40) + 1;
        const int height = static_cast<int>(random() % 20) + 1;
        const int colors = i % 3 == 0 ? 2 + i % 7 : static_cast<int>(random() % 255) + 2;
        const RgbPicture picture =
            i % 2 == 0 ? Noise(random, width, height) : MakePicture(width, height);
        SCOPED_TRACE(std::to_string(width) + " x " + std::to_string(height) + ", " +
                     std::to_string(colors) + " colours");
        ExpectTheSame([&] { return Reduced(picture, colors, kStrengths[i % 4]); });
    }
}

TEST(Loops, ScalePicturesFromAnySizeToAnyToTheSamePixels) {
    std::mt19937 random(2);
    for (int i = 0; i < 100; ++i) {
        const auto side = [&] { return static_cast<int>(random() % 70) + 1; };
        const RgbPicture picture = Noise(random, side(), side());
        const int width = side(), height = side();
        SCOPED_TRACE(std::to_string(picture.width) + " x " + std::to_string(picture.height) +
                     " to " + std::to_string(width) + " x " + std::to_string(height));
        ExpectTheSame([&] { return scale::Resize(picture, width, height).pixels; });
    }
}

#ifdef PICTURE_CORPUS
TEST(Loops, MakeTheSameOfEverySmallPictureOfTheCorpus) {
    constexpr std::uintmax_t kSmall = 20000;
    int read = 0;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(PICTURE_CORPUS)) {
        if (!entry.is_regular_file() || entry.file_size() > kSmall) continue;
        const std::string path = entry.path().string();
        SCOPED_TRACE(path);
        ExpectTheSame([&] {
            const auto scaled = ReadPictureScaled(path, 64, 80);
            if (!scaled) return Bytes();
            ++read;
            return Reduced(scaled->picture, 256, Dither::On);
        });
    }
    EXPECT_GT(read, 100);
}
#endif

TEST(Loops, AreTheBestThatTheMachineRunsUnlessForced) {
    const loops::Loops* const chosen = &loops::Chosen();
    loops::Force(loops::Kind::Singles);
    const loops::Loops* best = &loops::Chosen();
    for (const loops::Kind kind : kKinds) {
        if (!loops::CanRun(kind)) continue;
        loops::Force(kind);
        best = &loops::Chosen();
    }
    EXPECT_EQ(chosen, best);
#ifdef __x86_64__
    EXPECT_TRUE(loops::CanRun(loops::Kind::Sse2));
#endif
}

}  // namespace
}  // namespace vistrel::test
