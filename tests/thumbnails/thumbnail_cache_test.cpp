// The file of small pictures: what it keeps, what it forgets, and what damage does to it.
#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <string>

#include "pictures/bmp/writer.h"
#include "pictures/file.h"
#include "pictures/scale/resize.h"
#include "platform/fault.h"
#include "thumbnails/packed_pixels.h"
#include "thumbnails/thumbnail.h"

namespace vistrel::test {
namespace {

using pictures::RgbPicture;
using thumbnails::Cache;
using thumbnails::Source;

constexpr std::uint32_t kMost = 4;
constexpr std::size_t kHeader = 32;
constexpr std::size_t kRow = 32;
constexpr std::size_t kPixels = std::size_t{thumbnails::kKeptWidth} * thumbnails::kKeptHeight * 2;

/// A picture like no other's that loses nothing when it is packed.
RgbPicture Plain(int number) {
    RgbPicture picture{thumbnails::kKeptWidth, thumbnails::kKeptHeight, {}};
    picture.pixels.assign(kPixels / 2 * 3, number % 2 ? 255 : 0);
    for (std::size_t bit = 0; bit < 8; ++bit)
        if (number >> bit & 1) picture.pixels[bit * 3] ^= 255;
    return picture;
}

Source SourceOf(int number) {
    return {"C:\\Logos\\Set " + std::to_string(number) + "\\LOGO.SYS", 1000, 129078};
}

class ThumbnailCache : public testing::Test {
 protected:
    ThumbnailCache() { std::filesystem::create_directories(folder); }
    ~ThumbnailCache() override { std::filesystem::remove_all(folder); }

    std::string Bytes() const {
        std::ifstream in(file, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }
    void Put(const std::string& bytes) const {
        std::ofstream(file, std::ios::binary | std::ios::trunc) << bytes;
    }
    void KeepFirst(int count) const {
        Cache cache(file, kMost);
        for (int i = 0; i < count; ++i) cache.Keep(SourceOf(i), Plain(i));
    }

    const std::string folder =
        std::filesystem::temp_directory_path() / ("thumbnails" + std::to_string(getpid()));
    const std::string file = folder + "/thumbnails.dat";
};

TEST_F(ThumbnailCache, KeepsPicturesFromOneRunToTheNext) {
    KeepFirst(3);
    Cache later(file, kMost);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(later.Find(SourceOf(i)), Plain(i)) << i;
    EXPECT_EQ(later.Find(SourceOf(3)), std::nullopt);
}

TEST_F(ThumbnailCache, MakesNoFileBeforeItIsNeeded) {
    const Cache cache(file, kMost);
    EXPECT_FALSE(std::filesystem::exists(file));
}

TEST_F(ThumbnailCache, ForgetsTheScreenThatHasAnotherTimeOrSize) {
    KeepFirst(1);
    Cache cache(file, kMost);
    Source changed = SourceOf(0);
    changed.modified += 1ull << 40;
    EXPECT_EQ(cache.Find(changed), std::nullopt);
    changed = SourceOf(0);
    ++changed.size;
    EXPECT_EQ(cache.Find(changed), std::nullopt);
    cache.Keep(changed, Plain(7));
    EXPECT_EQ(cache.Find(changed), Plain(7));
    EXPECT_EQ(cache.Find(SourceOf(0)), std::nullopt);
    // In the place of the old one.
    EXPECT_EQ(Bytes().size(), kHeader + kMost * kRow + kPixels);
}

TEST_F(ThumbnailCache, FindsByThePathAloneWhateverTheScreenIsNow) {
    KeepFirst(2);
    Cache cache(file, kMost);
    const auto kept = cache.FindOfPath(SourceOf(1).path);
    ASSERT_TRUE(kept);
    EXPECT_EQ(kept->picture, Plain(1));
    EXPECT_EQ(kept->stamp, SourceOf(1).Stamp());
    for (const Source& other :
         {Source{SourceOf(1).path, 1001, 129078}, Source{SourceOf(1).path, 1000, 129079},
          Source{SourceOf(1).path, 129078, 1000}})
        EXPECT_NE(kept->stamp, other.Stamp());
    EXPECT_FALSE(cache.FindOfPath(SourceOf(2).path));
}

TEST_F(ThumbnailCache, KeepsSmallerPicturesInTheirOwnSize) {
    const RgbPicture small{64, 48, std::vector<std::uint8_t>(64 * 48 * 3, 255)};
    {
        Cache cache(file, kMost);
        cache.Keep(SourceOf(0), Plain(0));
        cache.Keep(SourceOf(1), small);
        cache.Keep(SourceOf(2), Plain(2));
        cache.Keep(SourceOf(0), small);
        cache.Keep(SourceOf(3), small);
    }
    // A small one takes a whole place too.
    EXPECT_EQ(Bytes().size(), kHeader + 4 * (kRow + kPixels));
    Cache later(file, kMost);
    EXPECT_EQ(later.Find(SourceOf(0)), small);
    EXPECT_EQ(later.Find(SourceOf(1)), small);
    EXPECT_EQ(later.Find(SourceOf(2)), Plain(2));
}

TEST_F(ThumbnailCache, KeepsNoPictureThatIsLargerThanItsPlace) {
    Cache cache(file, kMost);
    for (const auto& [width, height] : {std::pair{129, 96}, std::pair{128, 97}, std::pair{0, 0}}) {
        const RgbPicture picture{
            width, height, std::vector<std::uint8_t>(static_cast<std::size_t>(width * height * 3))};
        cache.Keep(SourceOf(0), picture);
        EXPECT_FALSE(cache.Find(SourceOf(0))) << width;
    }
}

TEST_F(ThumbnailCache, BelievesNoRowThatTellsOfMorePixelsThanHaveRoom) {
    KeepFirst(1);
    std::string bytes = Bytes();
    bytes[kHeader + 24] = '\x81';  // 129 pixels wide
    // The row's own sum, so that the row is well but for its size.
    std::uint32_t sum = 0x811c9dc5;
    for (std::size_t i = 0; i < kRow - 4; i += 4) {
        std::uint32_t word = 0;
        std::memcpy(&word, &bytes[kHeader + i], sizeof word);
        sum = (sum ^ word) * 0x01000193;
    }
    std::memcpy(&bytes[kHeader + kRow - 4], &sum, sizeof sum);
    Put(bytes + std::string(kPixels, '\0'));
    Cache cache(file, kMost);
    EXPECT_FALSE(cache.FindOfPath(SourceOf(0).path));
    // The row is free: the next picture takes its place.
    cache.Keep(SourceOf(3), Plain(3));
    EXPECT_EQ(Bytes().substr(kHeader + kMost * kRow, 2), "\xff\x07");
}

TEST_F(ThumbnailCache, DropsThePictureOfOneScreenForGood) {
    KeepFirst(3);
    {
        Cache cache(file, kMost);
        cache.Drop(SourceOf(1).path);
        cache.Drop(SourceOf(3).path);
        EXPECT_FALSE(cache.FindOfPath(SourceOf(1).path));
    }
    Cache later(file, kMost);
    EXPECT_EQ(later.Find(SourceOf(0)), Plain(0));
    EXPECT_EQ(later.Find(SourceOf(1)), std::nullopt);
    EXPECT_EQ(later.Find(SourceOf(2)), Plain(2));
}

TEST_F(ThumbnailCache, NeverGrowsBeyondItsBoundAndDropsTheOldest) {
    KeepFirst(11);
    EXPECT_EQ(Bytes().size(), kHeader + kMost * (kRow + kPixels));
    Cache cache(file, kMost);
    for (int i = 0; i < 11; ++i) EXPECT_EQ(cache.Find(SourceOf(i)).has_value(), i >= 7) << i;
}

TEST_F(ThumbnailCache, IsOfSixteenMegabytesAtMost) {
    EXPECT_LE(kHeader + thumbnails::kMostKept * (kRow + kPixels), std::size_t{16} << 20);
}

/// What may come out of a damaged file: each picture that was kept, or none.
void ExpectPictureOrNone(Cache& cache, const std::string& what) {
    for (int i = 0; i < 3; ++i) {
        const auto picture = cache.Find(SourceOf(i));
        ASSERT_TRUE(!picture || *picture == Plain(i)) << what;
    }
}

TEST_F(ThumbnailCache, ADamagedByteAnywhereLosesAPictureAtMostAndShowsNoWrongOne) {
    KeepFirst(3);
    const std::string good = Bytes();
    const std::size_t table = kHeader + kMost * kRow;
    for (std::size_t at = 0; at < good.size(); at += at < table ? 1 : 1013) {
        for (const char change : {'\x01', '\x80', '\xff'}) {
            std::string bad = good;
            bad[at] = static_cast<char>(bad[at] ^ change);
            Put(bad);
            Cache cache(file, kMost);
            ExpectPictureOrNone(cache, "byte " + std::to_string(at));
            if (HasFatalFailure()) return;
        }
        // Nor does it keep the next picture from being kept.
        if (at % 11 != 0) continue;
        Cache cache(file, kMost);
        cache.Keep(SourceOf(3), Plain(3));
        ASSERT_EQ(cache.Find(SourceOf(3)), Plain(3)) << at;
    }
}

TEST_F(ThumbnailCache, DamageDoesNotMakeAnOldPictureTheNewScreens) {
    KeepFirst(1);
    std::string bytes = Bytes();
    bytes[kHeader + 8] ^= 1;  // the time in the first row
    Put(bytes);
    Cache cache(file, kMost);
    Source changed = SourceOf(0);
    changed.modified ^= 1;
    EXPECT_EQ(cache.Find(changed), std::nullopt);
}

TEST_F(ThumbnailCache, AFileCutShortAnywhereOrFullOfOtherBytesIsHarmless) {
    KeepFirst(3);
    const std::string good = Bytes();
    for (std::size_t size = 0; size < good.size(); size += size < 200 ? 1 : 5003) {
        Put(good.substr(0, size));
        Cache cache(file, kMost);
        ExpectPictureOrNone(cache, "cut at " + std::to_string(size));
        cache.Keep(SourceOf(3), Plain(3));
        ASSERT_EQ(cache.Find(SourceOf(3)), Plain(3)) << size;
    }
    for (const char fill : {'\0', '\xff', 'x'}) {
        Put(good.substr(0, kHeader) + std::string(good.size() - kHeader, fill));
        Cache cache(file, kMost);
        for (int i = 0; i < 3; ++i) EXPECT_EQ(cache.Find(SourceOf(i)), std::nullopt);
    }
}

TEST_F(ThumbnailCache, AFileOfAnotherFormatIsBegunAnew) {
    {
        Cache larger(file, kMost + 1);
        larger.Keep(SourceOf(0), Plain(0));
    }
    Cache cache(file, kMost);
    EXPECT_EQ(cache.Find(SourceOf(0)), std::nullopt);
    EXPECT_EQ(Bytes().size(), kHeader);
}

TEST_F(ThumbnailCache, KeepsNothingWhereNoFileCanBeAndComplainsNot) {
    Cache cache(folder + "/missing/thumbnails.dat", kMost);
    cache.Keep(SourceOf(0), Plain(0));
    EXPECT_EQ(cache.Find(SourceOf(0)), std::nullopt);
}

TEST_F(ThumbnailCache, APowerCutAtAnyStepLeavesPicturesOrNone) {
    for (int step = 1;; ++step) {
        std::filesystem::remove(file);
        KeepFirst(2);
        platform::fault::FailFromOperation(step);
        {
            Cache cache(file, kMost);
            for (int i = 0; i < 6; ++i) cache.Keep(SourceOf(i), Plain(i));
        }
        const bool all = platform::fault::Counted() < step;
        platform::fault::Reset();
        Cache after(file, kMost);
        ExpectPictureOrNone(after, "step " + std::to_string(step));
        if (HasFatalFailure() || all) return;
    }
}

class Thumbnails : public ThumbnailCache {
 protected:
    /// A screen file: the left half of one colour and the right of another.
    Source PutScreen() const {
        std::vector<std::uint8_t> indices(320 * 400);
        for (std::size_t i = 0; i < indices.size(); ++i) indices[i] = i % 320 < 160 ? 1 : 2;
        std::vector<std::uint8_t> palette(1024);
        palette[4] = 255;      // blue
        palette[8 + 2] = 255;  // red
        const std::string path = folder + "/LOGO.SYS";
        pictures::WriteWholeFile(
            path, bmp::ColormappedBmp(indices.data(), 320, 400, 256, palette.data()));
        return {path, 5, 129078};
    }
    static int At(const RgbPicture& picture, int x, int y, int channel) {
        return picture.pixels[(static_cast<std::size_t>(y) * picture.width + x) * 3 + channel];
    }
};

TEST_F(Thumbnails, ShowTheScreenInEverySizeAndReadItOnce) {
    const Source source = PutScreen();
    Cache cache(file, kMost);
    for (const int width : {128, 96, 64}) {
        const auto picture = thumbnails::ThumbnailOf(source, cache, width, width * 3 / 4);
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->width, width);
        EXPECT_EQ(picture->height, width * 3 / 4);
        EXPECT_EQ(At(*picture, width / 4, 20, 2), 255);
        EXPECT_EQ(At(*picture, width * 3 / 4, 20, 0), 255);
        std::filesystem::remove(source.path);
    }
}

TEST_F(Thumbnails, AreKeptInTheSizeThatIsShownAndNeverEnlarged) {
    const Source source = PutScreen();
    Cache cache(file, kMost);
    for (const int width : {64, 128, 96}) {
        const int height = width * 3 / 4;
        const auto picture = thumbnails::ThumbnailOf(source, cache, width, height);
        const auto kept = cache.FindOfPath(source.path);
        ASSERT_TRUE(kept);
        EXPECT_EQ(kept->picture.width, width);
        EXPECT_EQ(kept->stamp, source.Stamp());
        // A larger one shows what the file has: a sharp edge where its colours meet.
        if (width != 128) continue;
        EXPECT_EQ(At(*picture, 63, 20, 2), 255);
        EXPECT_EQ(At(*picture, 64, 20, 2), 0);
    }
}

TEST_F(Thumbnails, AreNoneOfWhatIsNoPicture) {
    pictures::WriteWholeFile(folder + "/LOGO.SYS", {'n', 'o'});
    Cache cache(file, kMost);
    EXPECT_FALSE(thumbnails::ThumbnailOf({folder + "/LOGO.SYS", 1, 2}, cache, 64, 48));
    EXPECT_FALSE(thumbnails::ThumbnailOf({folder + "/none", 1, 2}, cache, 64, 48));
}

TEST_F(Thumbnails, LoseLessThanFiveBitsOfAChannelByBeingKept) {
    RgbPicture ramp{256, 1, {}};
    for (int i = 0; i < 256; ++i)
        for (int channel = 0; channel < 3; ++channel)
            ramp.pixels.push_back(static_cast<std::uint8_t>(i));
    const auto back = thumbnails::UnpackPixels(thumbnails::PackPixels(ramp), 256, 1);
    for (std::size_t i = 0; i < ramp.pixels.size(); ++i)
        EXPECT_LE(std::abs(int{back.pixels[i]} - int{ramp.pixels[i]}), i % 3 == 1 ? 2 : 4);
    EXPECT_EQ(At(back, 0, 0, 0), 0);
    EXPECT_EQ(At(back, 255, 0, 0), 255);
}

}  // namespace
}  // namespace vistrel::test
