// GIF files come out as they were put in, and as giflib reads them; damaged ones do no harm.
#include <gif_lib.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "pictures/gif/reader.h"
#include "tests/support/picture_files/gif_file.h"

namespace vistrel::test {

using namespace gif;
using namespace pictures;

namespace {

constexpr std::array<std::uint8_t, 3> kWhite = {255, 255, 255};
constexpr std::array<std::uint8_t, 3> kBlack = {0, 0, 0};

RgbPicture Colored(const Bytes& indices, int width, int height, const GifColors& palette) {
    RgbPicture picture{width, height, {}};
    for (const std::uint8_t index : indices) {
        const auto color = index < palette.size() ? palette[index] : kBlack;
        picture.pixels.insert(picture.pixels.end(), color.begin(), color.end());
    }
    return picture;
}

void ExpectPicture(const Bytes& file, const RgbPicture& expected) {
    const std::optional<RgbPicture> read = ReadGif(file);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->width, expected.width);
    EXPECT_EQ(read->height, expected.height);
    EXPECT_EQ(read->pixels, expected.pixels);
}

/// The one picture of MakeGif as it should come out.
RgbPicture PictureOf(const GifFile& file) {
    const GifImage& image = file.images.front();
    return Colored(image.indices, image.width, image.height,
                   image.palette.empty() ? file.palette : image.palette);
}

int ReadFromSpan(GifFileType* gif, GifByteType* to, int count) {
    FileBytes& rest = *static_cast<FileBytes*>(gif->UserData);
    const auto size = std::min(rest.size(), static_cast<std::size_t>(count));
    std::copy_n(rest.begin(), size, to);
    rest = rest.subspan(size);
    return static_cast<int>(size);
}

/// The colour numbers of a file's first picture as giflib reads them.
Bytes IndicesByGiflib(const Bytes& file) {
    FileBytes rest = file;
    int error = 0;
    GifFileType* const gif = DGifOpen(&rest, ReadFromSpan, &error);
    if (gif == nullptr) return {};
    Bytes indices;
    if (DGifSlurp(gif) == GIF_OK && gif->ImageCount > 0) {
        const SavedImage& image = gif->SavedImages[0];
        const std::size_t pixels =
            std::size_t(image.ImageDesc.Width) * static_cast<std::size_t>(image.ImageDesc.Height);
        indices.assign(image.RasterBits, image.RasterBits + pixels);
    }
    DGifCloseFile(gif, &error);
    return indices;
}

TEST(GifTest, PicturesOfEveryNumberOfColours) {
    for (const int colors : {2, 4, 8, 16, 32, 64, 128, 256}) {
        for (const int width : {1, 7, 64, 300}) {
            SCOPED_TRACE(testing::Message() << colors << " colours, width " << width);
            const GifFile file = MakeGif(width, 50, colors);
            ASSERT_EQ(IndicesByGiflib(file.Encode()), file.images[0].indices);
            ExpectPicture(file.Encode(), PictureOf(file));
        }
    }
}

TEST(GifTest, CodesOfEveryLengthWithAndWithoutClearing) {
    for (const bool clearWhenFull : {true, false}) {
        for (const bool clearFirst : {true, false}) {
            for (int literalBits = 2; literalBits <= 8; ++literalBits) {
                SCOPED_TRACE(testing::Message() << literalBits << " bits, clear when full "
                                                << clearWhenFull << ", first " << clearFirst);
                GifFile file = MakeGif(100, 150, 1 << literalBits);
                file.images[0].lzw = {literalBits, clearFirst, clearWhenFull, true};
                ASSERT_EQ(IndicesByGiflib(file.Encode()), file.images[0].indices);
                ExpectPicture(file.Encode(), PictureOf(file));
            }
        }
    }
}

TEST(GifTest, OneBitLiteralsAreRead) {
    // The format asks for at least 2 bits; some encoders wrote 1 for two colours all the same.
    GifFile file = MakeGif(40, 40, 2);
    file.images[0].lzw.literalBits = 1;
    ExpectPicture(file.Encode(), PictureOf(file));
}

TEST(GifTest, LongStringsOfOneColour) {
    GifFile file = MakeGif(1000, 700, 4);
    std::fill(file.images[0].indices.begin(), file.images[0].indices.end(), 3);
    ExpectPicture(file.Encode(), PictureOf(file));
    file.images[0].lzw.clearWhenFull = false;
    ExpectPicture(file.Encode(), PictureOf(file));
}

TEST(GifTest, InterlacedPicturesOfEveryHeight) {
    for (int height = 1; height <= 20; ++height) {
        GifFile file = MakeGif(9, height, 16);
        file.images[0].interlaced = true;
        ExpectPicture(file.Encode(), PictureOf(file));
    }
}

TEST(GifTest, LocalPaletteGoesBeforeTheGlobalOne) {
    GifFile file = MakeGif(10, 10, 16);
    file.images[0].palette = MakeGifColors(16);
    std::reverse(file.images[0].palette.begin(), file.images[0].palette.end());
    ExpectPicture(file.Encode(), PictureOf(file));
    file.palette.clear();
    ExpectPicture(file.Encode(), PictureOf(file));
}

TEST(GifTest, WithoutAnyPaletteColourNumbersAreGreys) {
    GifFile file = MakeGif(10, 10, 256);
    file.palette.clear();
    GifColors greys;
    for (int i = 0; i < 256; ++i) {
        const auto grey = static_cast<std::uint8_t>(i);
        greys.push_back({grey, grey, grey});
    }
    ExpectPicture(file.Encode(), Colored(file.images[0].indices, 10, 10, greys));
}

TEST(GifTest, ColourNumbersBeyondThePaletteAreBlack) {
    GifFile file = MakeGif(10, 10, 16);
    file.palette.resize(4);
    ExpectPicture(file.Encode(), PictureOf(file));
}

TEST(GifTest, TransparentPixelsAreWhite) {
    GifFile file = MakeGif(10, 10, 4);
    file.images[0].transparent = 2;
    GifColors shown = file.palette;
    shown[2] = kWhite;
    ExpectPicture(file.Encode(), Colored(file.images[0].indices, 10, 10, shown));
}

TEST(GifTest, OnlyTheFirstPictureCounts) {
    GifFile file = MakeGif(10, 10, 4);
    const RgbPicture expected = PictureOf(file);
    GifImage second = file.images[0];
    std::reverse(second.indices.begin(), second.indices.end());
    file.images.push_back(second);
    ExpectPicture(file.Encode(), expected);
}

// A screen of 4 x 3 with a picture of 2 x 2 at (3, 2), of which one pixel is on the screen.
GifFile MakeCornerGif() {
    GifFile file;
    file.width = 4;
    file.height = 3;
    file.palette = MakeGifColors(8);
    file.background = 5;
    GifImage image;
    image.left = 3;
    image.top = 2;
    image.width = 2;
    image.height = 2;
    image.indices = {1, 2, 3, 4};
    image.lzw.literalBits = 3;
    file.images.push_back(image);
    return file;
}

TEST(GifTest, PictureIsCutAtTheScreenAndStandsOnTheBackground) {
    ExpectPicture(MakeCornerGif().Encode(),
                  Colored({5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 5, 1}, 4, 3, MakeGifColors(8)));
}

TEST(GifTest, ScreenUnderATransparentPictureIsWhite) {
    GifFile file = MakeCornerGif();
    file.images[0].transparent = 7;
    GifColors shown = file.palette;
    shown[0] = kWhite;
    ExpectPicture(file.Encode(), Colored({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, 4, 3, shown));
}

TEST(GifTest, BackgroundBeyondThePaletteIsWhite) {
    GifFile file = MakeCornerGif();
    file.background = 8;
    GifColors shown = file.palette;
    shown[0] = kWhite;
    ExpectPicture(file.Encode(), Colored({0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 1}, 4, 3, shown));
}

TEST(GifTest, ScreenWithoutAnExtentIsAsLargeAsItsPicture) {
    GifFile file = MakeGif(6, 5, 4);
    file.width = 0;
    file.height = 0;
    ExpectPicture(file.Encode(), PictureOf(file));
}

TEST(GifTest, ExtensionsArePassedOver) {
    GifFile file = MakeGif(6, 5, 4);
    file.extensions = {0x21, 0xFE, 3, 'a', ',', ';', 0,                 // comment
                       0x21, 0xFF, 3, 'x', 'y', 'z', 2, 0x2C, 0x2C, 0,  // application
                       0x21, 0x99, 1, 7,   0};                          // nobody's
    ExpectPicture(file.Encode(), PictureOf(file));
}

TEST(GifTest, GraphicControlOfATextIsNotThePictures) {
    GifFile file = MakeGif(6, 5, 4);
    file.extensions = {0x21, 0xF9, 4, 1,   0, 0, 2, 0,  // colour 2 is transparent
                       0x21, 0x01, 1, 'x', 0};          // in this text
    ExpectPicture(file.Encode(), PictureOf(file));
}

TEST(GifTest, LastGraphicControlCounts) {
    GifFile file = MakeGif(6, 5, 4);
    file.extensions = {0x21, 0xF9, 4, 1, 0, 0, 2, 0,   // colour 2 is transparent
                       0x21, 0xF9, 4, 0, 0, 0, 2, 0};  // no, none is
    ExpectPicture(file.Encode(), PictureOf(file));
}

TEST(GifTest, StrayBytesBetweenBlocksArePassedOver) {
    // giflib refuses such a file; most programs show it.
    GifFile file = MakeGif(6, 5, 4);
    file.extensions = {0, 0, 0x77};
    ExpectPicture(file.Encode(), PictureOf(file));
}

TEST(GifTest, EndCodeAndTrailerMayBeMissing) {
    GifFile file = MakeGif(6, 5, 4);
    file.images[0].lzw.end = false;
    file.trailer = false;
    ExpectPicture(file.Encode(), PictureOf(file));
}

TEST(GifTest, PixelsBeyondThePictureArePassedOver) {
    GifFile file = MakeGif(6, 5, 4);
    const RgbPicture expected = PictureOf(file);
    file.images[0].indices.resize(50, 1);
    ExpectPicture(file.Encode(), expected);
}

TEST(GifTest, ShortDataLeaveTheBackground) {
    GifFile file = MakeGif(6, 5, 4);
    file.background = 3;
    Bytes expected = file.images[0].indices;
    std::fill(expected.begin() + 13, expected.end(), 3);
    file.images[0].indices.resize(13);
    ExpectPicture(file.Encode(), Colored(expected, 6, 5, file.palette));
}

TEST(GifTest, ShortDataOfAnInterlacedPictureLeaveTheBackgroundBetweenItsRows) {
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

TEST(GifTest, FileCutAnywhereDoesNoHarm) {
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
TEST(GifTest, DecodingStopsAtAnImpossibleCode) {
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

TEST(GifTest, CodesForMoreColoursThanAPaletteHoldsAreRead) {
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

TEST(GifTest, LiteralsOfAnImpossibleLengthAreRefused) {
    for (const int literalBits : {0, 12, 16, 255}) {
        EXPECT_FALSE(ReadGif(WithData(literalBits, {0x44, 0x01, 0x44})).has_value()) << literalBits;
    }
}

TEST(GifTest, WhatIsNoGifIsRefused) {
    const Bytes good = MakeGif(4, 4, 4).Encode();
    for (std::size_t i = 0; i < 6; ++i) {
        Bytes bad = good;
        bad[i] ^= 1;
        EXPECT_FALSE(ReadGif(bad).has_value()) << i;
    }
    EXPECT_FALSE(ReadGif(FileBytes()).has_value());
}

TEST(GifTest, FileWithoutAPictureIsRefused) {
    GifFile file = MakeGif(4, 4, 4);
    file.images.clear();
    EXPECT_FALSE(ReadGif(file.Encode()).has_value());
    file.trailer = false;
    EXPECT_FALSE(ReadGif(file.Encode()).has_value());
}

TEST(GifTest, ImpossibleSizesAreRefused) {
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

TEST(GifTest, PicturesWithoutAnExtentArePassedOver) {
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
TEST(GifTest, FewBytesThatClaimAHugeScreenAreRefused) {
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
