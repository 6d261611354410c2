// No file makes a reader ask for much memory: 24 MB at most where a picture is read at a screen's
// size, and where it is read whole, that and what its pixels take. This program counts what is
// asked for, and so is built without the checks of the other tests.
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

#include "pictures/file.h"
#include "tests/pictures/corpus.h"
#include "tests/support/picture_files/bmp_file.h"
#include "tests/support/picture_files/gif_file.h"
#include "tests/support/picture_files/jpg_maker.h"
#include "tests/support/picture_files/pieces.h"

namespace {

std::size_t used = 0;
std::size_t mostUsed = 0;

}  // namespace

// Not inlined, since the compiler would take malloc and delete for a mismatch.
[[gnu::noinline]] void* operator new(std::size_t size) {
    void* const block = std::malloc(size);
    if (block == nullptr) throw std::bad_alloc();
    used += malloc_usable_size(block);
    mostUsed = std::max(mostUsed, used);
    return block;
}

[[gnu::noinline]] void operator delete(void* block) noexcept {
    used -= malloc_usable_size(block);
    std::free(block);
}

void operator delete(void* block, std::size_t) noexcept { operator delete(block); }

namespace vistrel::test {

using namespace pictures;

namespace {

constexpr std::size_t kAnyFile = 24 * 1024 * 1024;
constexpr std::size_t kEachPixel = 12;

void ExpectModestMemoryScaled(const Bytes& file) {
    for (const auto& [width, height] : {std::pair{320, 400}, {152, 190}}) {
        const std::size_t before = used;
        mostUsed = used;
        ReadScaledByContent(file, width, height);
        EXPECT_LE(mostUsed - before, kAnyFile);
    }
    // Parts of a picture, by as many of its pixels as a screen has and by few.
    for (const int part : {3, 40}) {
        const std::size_t before = used;
        mostUsed = used;
        ReadPartByContent(file, part);
        EXPECT_LE(mostUsed - before, kAnyFile);
    }
}

void ExpectModestMemory(const Bytes& file) {
    ExpectModestMemoryScaled(file);
    const std::size_t before = used;
    mostUsed = used;
    const std::optional<RgbPicture> picture = ReadByContent(file);
    const std::size_t pixels = picture ? picture->pixels.size() / 3 : 0;
    EXPECT_LE(mostUsed - before, kAnyFile + kEachPixel * pixels);
}

TEST(MemoryTest, TinyBitmapsOfEveryClaimedSize) {
    for (const std::int32_t side : {1, 100, 4000, 5793, 8191, 8192, 23170, 32767, 65536}) {
        for (const int bits : {1, 4, 8, 16, 24, 32}) {
            for (const std::uint32_t compression : {0u, kBmpRle8, kBmpRle4, kBmpBitFields}) {
                SCOPED_TRACE(testing::Message() << side << ", " << bits << ", " << compression);
                BmpFile file;
                file.width = side;
                file.height = side;
                file.bitsPerPixel = bits;
                file.compression = compression;
                file.pixels.assign(100, 0x55);
                ExpectModestMemory(file.Encode());
            }
        }
    }
}

TEST(MemoryTest, TinyGifsOfEveryClaimedSize) {
    for (const int side : {1, 100, 4000, 5793, 8191, 8192, 23170, 32767, 65535}) {
        SCOPED_TRACE(side);
        GifFile screen = MakeGif(4, 4, 4);
        screen.width = side;
        screen.height = side;
        ExpectModestMemory(screen.Encode());
        GifFile picture = MakeGif(4, 4, 4);
        picture.images[0].width = side;
        picture.images[0].height = side;
        ExpectModestMemory(picture.Encode());
    }
}

TEST(MemoryTest, LongCodesForALargeGif) {
    GifFile file = MakeGif(5000, 5000, 2);
    file.images[0].indices.assign(3'000'000, 1);  // enough to be shown
    file.images[0].lzw.clearWhenFull = false;
    ExpectModestMemory(file.Encode());
}

// An end code at once, then enough bytes for any picture.
TEST(MemoryTest, SmallGifThatHoldsNoPicture) {
    GifFile file = MakeGif(4, 4, 4);
    file.width = file.height = 8000;
    file.images[0].indices.clear();
    Bytes bytes = file.Encode();
    bytes.pop_back();
    bytes.insert(bytes.end(), 3400, 0xFF);
    EXPECT_FALSE(ReadByContent(bytes).has_value());
    ExpectModestMemory(bytes);
}

TEST(MemoryTest, LargeInterlacedGif) {
    GifFile file = MakeGif(8000, 4000, 2);
    file.images[0].interlaced = true;
    ExpectModestMemoryScaled(file.Encode());
}

/// What reading a file in pieces, straight to a screen's size, takes of the memory.
std::size_t MemoryForAScreen(const Bytes& file) {
    Pieces pieces(file);
    const std::size_t before = used;
    mostUsed = used;
    EXPECT_TRUE(ReadScaledByContent(pieces.File(), 320, 400).has_value());
    return mostUsed - before;
}

/// Rows of 3 to 4 thousand pixels, of which the filter reaches over some 50, the picture itself and
/// what the readers need.
constexpr std::size_t kLargePicture = 1536 * 1024;

TEST(MemoryTest, LargeBitmapsAreNeverThereAsAWhole) {
    for (const int bits : {1, 8, 24, 32}) {
        for (const int height : {3000, -3000}) {
            SCOPED_TRACE(testing::Message() << bits << ", " << height);
            BmpFile file;
            file.width = 4000;
            file.height = height;
            file.bitsPerPixel = bits;
            file.pixels.assign(std::size_t{500} * bits * 3000, 0x5A);
            EXPECT_LE(MemoryForAScreen(file.Encode()), kLargePicture);
        }
    }
}

TEST(MemoryTest, LargeRunLengthEncodedBitmapsAreNeverThereAsAWhole) {
    BmpFile file;
    file.width = 4000;
    file.height = 3000;
    file.compression = kBmpRle8;
    file.bitsPerPixel = 8;
    for (int pair = 0; pair < 3000 * 2000; ++pair) {
        file.pixels.push_back(2);
        file.pixels.push_back(static_cast<std::uint8_t>(pair));
        if (pair % 2000 == 1999) file.pixels.insert(file.pixels.end(), {0, 0});
    }
    EXPECT_LE(MemoryForAScreen(file.Encode()), kLargePicture);
}

TEST(MemoryTest, LargeGifsAreNeverThereAsAWhole) {
    for (const bool interlaced : {false, true}) {
        SCOPED_TRACE(interlaced);
        GifFile file = MakeGif(4000, 3000, 256);
        file.images[0].interlaced = interlaced;
        EXPECT_LE(MemoryForAScreen(file.Encode()), kLargePicture);
    }
}

TEST(MemoryTest, LargeJpgsAreNeverThereAsAWhole) {
    JpgOptions options;
    options.sampling = {{2, 2}};
    for (const bool progressive : {false, true}) {
        SCOPED_TRACE(progressive);
        options.progressive = progressive;
        EXPECT_LE(MemoryForAScreen(MakeJpg(MakePicture(4000, 3000), options)), kLargePicture);
    }
}

TEST(MemoryTest, SmallRunLengthFilesOfLargePictures) {
    for (const std::uint32_t compression : {kBmpRle8, kBmpRle4}) {
        BmpFile file;
        file.width = file.height = 8000;
        file.bitsPerPixel = compression == kBmpRle8 ? 8 : 4;
        file.compression = compression;
        file.pixels.assign(53'000, 255);
        ExpectModestMemoryScaled(file.Encode());
    }
}

/// A file that claims to be of another size, with `zeros` bytes of zeros behind its coded data.
Bytes Claiming(Bytes file, int width, int height, std::size_t zeros, bool progressive) {
    const std::size_t frame = MarkerAt(file, progressive ? 0xC2 : 0xC0);
    file[frame + 5] = static_cast<std::uint8_t>(height >> 8);
    file[frame + 6] = static_cast<std::uint8_t>(height);
    file[frame + 7] = static_cast<std::uint8_t>(width >> 8);
    file[frame + 8] = static_cast<std::uint8_t>(width);
    const std::size_t data = MarkerAt(file, 0xDA);
    const std::size_t header = static_cast<std::size_t>(file[data + 2] << 8 | file[data + 3]);
    return WithInserted(file, data + 2 + header, Bytes(zeros));
}

TEST(MemoryTest, SmallJpgsOfEveryClaimedSize) {
    const std::pair<int, int> sizes[] = {{100, 100},   {1500, 1900}, {2000, 1500},  {4000, 3000},
                                         {8191, 8191}, {32767, 300}, {32767, 2047}, {3, 32767}};
    for (const J_COLOR_SPACE color : {JCS_YCbCr, JCS_GRAYSCALE, JCS_CMYK, JCS_YCCK}) {
        for (const bool progressive : {false, true}) {
            JpgOptions options;
            options.color = color;
            options.progressive = progressive;
            options.sampling = {{1, 1}, {2, 2}};
            const Bytes small = MakeJpg(MakePicture(16, 16), options);
            for (const auto& [width, height] : sizes) {
                for (const std::size_t zeros : {0, 13'000, 300'000}) {
                    SCOPED_TRACE(testing::Message() << color << progressive << " " << width << " x "
                                                    << height << ", " << zeros);
                    const Bytes file = Claiming(small, width, height, zeros, progressive);
                    ExpectModestMemoryScaled(file);
                    if (width * height < 4'000'000) ExpectModestMemory(file);
                }
            }
        }
    }
}

TEST(MemoryTest, LargeJpgsThatAreNotThere) {
    for (const bool progressive : {false, true}) {
        JpgOptions options;
        options.color = JCS_CMYK;
        options.progressive = progressive;
        Bytes file = MakeJpg(MakePicture(16, 16), options);
        file.insert(file.end() - 2, 14'000, 0);  // behind the last scan: of no use
        file = Claiming(file, 4000, 3000, 0, progressive);
        ExpectModestMemory(file);
    }
}

TEST(MemoryTest, LargeJpgsWhoseBytesAreNoPicture) {
    Bytes comments;
    for (int i = 0; i < 20; ++i) {
        const Bytes begin = {0xFF, 0xFE, 0xFF, 0xFF};
        comments.insert(comments.end(), begin.begin(), begin.end());
        comments.insert(comments.end(), 0xFFFD, 'c');
    }
    for (const J_COLOR_SPACE color : {JCS_YCbCr, JCS_GRAYSCALE, JCS_CMYK}) {
        for (const bool progressive : {false, true}) {
            JpgOptions options;
            options.color = color;
            options.progressive = progressive;
            const Bytes small = MakeJpg(MakePicture(16, 16), options);
            for (const auto& [width, height] :
                 {std::pair{2000, 2000}, {4000, 3000}, {8000, 8000}}) {
                SCOPED_TRACE(testing::Message() << color << progressive << " " << width);
                const Bytes file =
                    Claiming(WithInserted(small, 2, comments), width, height, 0, progressive);
                EXPECT_FALSE(ReadByContent(file).has_value());
                ExpectModestMemory(file);
            }
        }
    }
}

TEST(MemoryTest, AMillionScanHeaders) {
    JpgOptions options;
    options.progressive = true;
    Bytes file = MakeJpg(MakePicture(16, 16), options);
    const std::size_t end = file.size() - 2;
    const Bytes scan = {0xFF, 0xDA, 0, 8, 1, 1, 0, 1, 63, 0x10};
    Bytes scans;
    for (int i = 0; i < 1'000'000; ++i) scans.insert(scans.end(), scan.begin(), scan.end());
    const Bytes bomb = WithInserted(file, end, scans);
    ExpectModestMemory(bomb);
    EXPECT_LE(MemoryForAScreen(bomb), kAnyFile);
}

#ifdef PICTURE_CORPUS
TEST(MemoryTest, EveryPictureOfTheCorpus) {
    for (const char* ending : {".bmp", ".gif", ".jpg"}) {
        for (const CorpusFile& file : ReadCorpus(PICTURE_CORPUS, ending)) {
            SCOPED_TRACE(file.path);
            const auto bytes = ReadWholeFile(std::string(PICTURE_CORPUS) + "/" + file.path);
            ASSERT_TRUE(bytes.has_value());
            ExpectModestMemory(*bytes);
        }
    }
}
#endif

}  // namespace
}  // namespace vistrel::test
