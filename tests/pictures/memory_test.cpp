// No file makes a reader ask for more memory than its picture can need. This program counts what
// is asked for, and so is built without the checks of the other tests.
#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <cstdlib>
#include <new>

#include "pictures/whole_file.h"
#include "tests/pictures/bmp_file.h"
#include "tests/pictures/corpus.h"
#include "tests/pictures/gif_file.h"

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
namespace {

constexpr std::size_t kAnyFile = 64 * 1024 * 1024;
constexpr std::size_t kEachPixel = 12;

void ExpectModestMemory(const Bytes& file) {
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
