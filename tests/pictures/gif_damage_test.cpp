// GIF files that break off, or that no encoder would have written: what is there is shown, and what
// can be no picture is refused.
#include <algorithm>
#include <utility>
#include <vector>

#include "tests/pictures/gif_expected.h"

namespace vistrel::test {

using namespace gif;
using namespace pictures;

namespace {

TEST(GifDamageTest, EndCodeAndTrailerMayBeMissing) {
    GifFile file = MakeGif(6, 5, 4);
    file.images[0].lzw.end = false;
    file.trailer = false;
    ExpectPicture(file.Encode(), PictureOf(file));
}

TEST(GifDamageTest, PixelsBeyondThePictureArePassedOver) {
    GifFile file = MakeGif(6, 5, 4);
    const RgbPicture expected = PictureOf(file);
    file.images[0].indices.resize(50, 1);
    ExpectPicture(file.Encode(), expected);
}

TEST(GifDamageTest, ShortDataLeaveTheBackground) {
    GifFile file = MakeGif(6, 5, 4);
    file.background = 3;
    Bytes expected = file.images[0].indices;
    std::fill(expected.begin() + 13, expected.end(), 3);
    file.images[0].indices.resize(13);
    ExpectPicture(file.Encode(), Colored(expected, 6, 5, file.palette));
}

TEST(GifDamageTest, ShortDataOfAnInterlacedPictureLeaveTheBackgroundBetweenItsRows) {
    GifFile file = MakeGif(6, 21, 4);
    file.images[0].interlaced = true;
    const Bytes indices = file.images[0].indices;
    // Rows 0, 8, 16, 4, 12, 20 and a part of row 2: the others have not come.
    file.images[0].interlaced = false;
    Bytes stored;
    for (const int y : {0, 8, 16, 4, 12, 20, 2})
        stored.insert(stored.end(), indices.begin() + y * 6, indices.begin() + (y + 1) * 6);
    stored.pop_back();
    stored.pop_back();
    file.images[0].indices = stored;
    file.background = 3;
    Bytes cut = file.Encode();
    cut[13 + 4 * 3 + 9] |= 0x40;  // interlaced after all
    Bytes expected(6 * 21, 3);
    for (const int y : {0, 8, 16, 4, 12, 20, 2})
        std::copy_n(indices.begin() + y * 6, y == 2 ? 4 : 6, expected.begin() + y * 6);
    ExpectPicture(cut, Colored(expected, 6, 21, file.palette));
}

TEST(GifDamageTest, FileCutAnywhereDoesNoHarm) {
    GifFile file = MakeGif(30, 20, 16);
    file.images[0].interlaced = true;
    const Bytes whole = file.Encode();
    int pictures = 0;
    for (std::size_t size = 0; size < whole.size(); ++size) {
        const std::optional<RgbPicture> read = ReadGif(FileBytes(whole).first(size));
        if (read) {
            ++pictures;
            EXPECT_EQ(read->pixels.size(), 30u * 20 * 3);
        }
    }
    EXPECT_GT(pictures, 50);
}

/// A file of 2 x 2 pixels and 4 colours, its background black, with these bytes as its data.
Bytes WithData(int literalBits, const Bytes& data) {
    Bytes file = {'G', 'I', 'F', '8', '9', 'a', 2,  0,    2, 0, 0x81, 0, 0, 0, 0, 0, 10, 10,
                  10,  20,  20,  20,  30,  30,  30, 0x2C, 0, 0, 0,    0, 2, 0, 2, 0, 0};
    file.push_back(static_cast<std::uint8_t>(literalBits));
    const Bytes blocks = SubBlocks(data);
    file.insert(file.end(), blocks.begin(), blocks.end());
    return file;
}

// Compressed data that no encoder could have written: other programs refuse the file or show the
// pixels before the mistake; here these are shown, and without any the file is refused.
TEST(GifDamageTest, DecodingStopsAtAnImpossibleCode) {
    // Codes of 3 bits, lowest bits first: clear (4), 1, then 7 where only 6 has been learnt.
    const std::optional<RgbPicture> read = ReadGif(WithData(2, {0b11'001'100, 0b1}));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->pixels, (Bytes{10, 10, 10, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    // Clear, then 6 before anything has been learnt.
    EXPECT_FALSE(ReadGif(WithData(2, {0b00'110'100, 0})).has_value());
    // Clear, end.
    EXPECT_FALSE(ReadGif(WithData(2, {0b00'101'100})).has_value());
    EXPECT_FALSE(ReadGif(WithData(2, {})).has_value());
}

/// Codes of `bits` bits, lowest bits first.
Bytes PackCodes(const std::vector<int>& codes, int bits) {
    Bytes bytes((codes.size() * bits + 7) / 8);
    for (std::size_t i = 0; i < codes.size() * bits; ++i)
        bytes[i / 8] |= (codes[i / bits] >> i % bits & 1) << i % 8;
    return bytes;
}

TEST(GifDamageTest, CodesForMoreColoursThanAPaletteHoldsAreRead) {
    for (int literalBits = 9; literalBits <= 11; ++literalBits) {
        SCOPED_TRACE(literalBits);
        GifFile file = MakeGif(100, 150, 256);
        file.images[0].lzw.literalBits = literalBits;
        ExpectPicture(file.Encode(), PictureOf(file));

        // 257 is not 1, nor is the last colour number any of those that the palette has.
        const int clear = 1 << literalBits;
        const Bytes data = PackCodes({clear, 1, 257, clear - 1, 2, clear + 1}, literalBits + 1);
        const std::optional<RgbPicture> read = ReadGif(WithData(literalBits, data));
        ASSERT_TRUE(read.has_value());
        EXPECT_EQ(read->pixels, (Bytes{10, 10, 10, 0, 0, 0, 0, 0, 0, 20, 20, 20}));
    }
}

TEST(GifDamageTest, LiteralsOfAnImpossibleLengthAreRefused) {
    for (const int literalBits : {0, 12, 16, 255}) {
        EXPECT_FALSE(ReadGif(WithData(literalBits, {0x44, 0x01, 0x44})).has_value()) << literalBits;
    }
}

TEST(GifDamageTest, WhatIsNoGifIsRefused) {
    const Bytes good = MakeGif(4, 4, 4).Encode();
    for (std::size_t i = 0; i < 6; ++i) {
        Bytes bad = good;
        bad[i] ^= 1;
        EXPECT_FALSE(ReadGif(bad).has_value()) << i;
    }
    EXPECT_FALSE(ReadGif(FileBytes()).has_value());
}

TEST(GifDamageTest, FileWithoutAPictureIsRefused) {
    GifFile file = MakeGif(4, 4, 4);
    file.images.clear();
    EXPECT_FALSE(ReadGif(file.Encode()).has_value());
    file.trailer = false;
    EXPECT_FALSE(ReadGif(file.Encode()).has_value());
}

TEST(GifDamageTest, ImpossibleSizesAreRefused) {
    const std::pair<int, int> sizes[] = {{65535, 65535}, {32768, 1}, {1, 32768}, {32767, 32767}};
    for (const auto& [width, height] : sizes) {
        GifFile screen = MakeGif(4, 4, 4);
        screen.width = width;
        screen.height = height;
        EXPECT_FALSE(ReadGif(screen.Encode()).has_value()) << width << " x " << height;
    }
    const std::pair<int, int> pictureSizes[] = {{0, 4}, {4, 0}, {65535, 65535}};
    for (const auto& [width, height] : pictureSizes) {
        GifFile picture = MakeGif(4, 4, 4);
        picture.images[0].width = width;
        picture.images[0].height = height;
        EXPECT_FALSE(ReadGif(picture.Encode()).has_value()) << width << " x " << height;
    }
}

TEST(GifDamageTest, PicturesWithoutAnExtentArePassedOver) {
    const GifFile sound = MakeGif(6, 5, 4);
    GifImage empty = sound.images[0];
    empty.transparent = 1;
    empty.palette = MakeGifColors(8);
    std::reverse(empty.palette.begin(), empty.palette.end());
    for (const auto& [width, height] : {std::pair{0, 5}, {6, 0}, {0, 0}}) {
        GifFile file = sound;
        empty.width = width;
        empty.height = height;
        file.images = {empty, empty, sound.images[0]};
        ExpectPicture(file.Encode(), PictureOf(sound));
    }
}

// Other programs ask for the memory; a small picture on a large screen is fine, though.
TEST(GifDamageTest, FewBytesThatClaimAHugeScreenAreRefused) {
    GifFile file = MakeGif(4, 4, 4);
    file.width = 8000;
    file.height = 8000;
    EXPECT_FALSE(ReadGif(file.Encode()).has_value());
    file.width = 800;
    file.height = 600;
    EXPECT_TRUE(ReadGif(file.Encode()).has_value());
}

}  // namespace
}  // namespace vistrel::test
