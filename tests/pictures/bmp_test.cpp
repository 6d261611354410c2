// Bitmaps of every kind come out as they were put in; damaged ones do no harm.
#include <gtest/gtest.h>

#include <algorithm>

#include "pictures/bmp/reader.h"
#include "tests/support/picture_files/bmp_file.h"

namespace vistrel::test {

using namespace bmp;
using namespace pictures;

namespace {

void ExpectPicture(const Bytes& file, const RgbPicture& expected) {
    const std::optional<RgbPicture> read = ReadBmp(file);
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(read->width, expected.width);
    EXPECT_EQ(read->height, expected.height);
    EXPECT_EQ(read->pixels, expected.pixels);
}

RgbPicture UpsideDown(const RgbPicture& picture) {
    RgbPicture turned{picture.width, picture.height, {}};
    const auto rowBytes = static_cast<std::ptrdiff_t>(picture.width) * 3;
    for (int y = picture.height - 1; y >= 0; --y) {
        const auto row = picture.pixels.begin() + y * rowBytes;
        turned.pixels.insert(turned.pixels.end(), row, row + rowBytes);
    }
    return turned;
}

BmpFile IndexedFile(int width, int height, int bits) {
    BmpFile file;
    file.width = width;
    file.height = height;
    file.bitsPerPixel = bits;
    file.palette = MakePalette(1 << bits);
    file.pixels = PackIndices(MakeIndices(width, height, 1 << bits), width, height, bits);
    return file;
}

RgbPicture IndexedPicture(int width, int height, int bits) {
    return Colored(MakeIndices(width, height, 1 << bits), width, height, MakePalette(1 << bits));
}

BmpFile TrueColorFile(int width, int height) {
    BmpFile file;
    file.width = width;
    file.height = height;
    file.pixels = PackRgb24(MakePicture(width, height));
    return file;
}

BmpFile MaskedFile(const RgbPicture& picture, int bits, const std::vector<std::uint32_t>& masks) {
    BmpFile file;
    file.width = picture.width;
    file.height = picture.height;
    file.bitsPerPixel = bits;
    file.compression = kBmpBitFields;
    file.masks = masks;
    file.pixels = PackMasked(picture, bits, masks);
    return file;
}

BmpFile RleFile(int width, int height, int bits) {
    BmpFile file = IndexedFile(width, height, bits);
    file.compression = bits == 4 ? kBmpRle4 : kBmpRle8;
    file.pixels = EncodeRle(MakeIndices(width, height, 1 << bits), width, height, bits);
    return file;
}

TEST(BmpTest, PaletteColoursOfEveryDepthAndWidth) {
    for (const int bits : {1, 2, 4, 8}) {
        for (int width = 1; width <= 40; ++width) {
            SCOPED_TRACE(testing::Message() << bits << " bits, width " << width);
            ExpectPicture(IndexedFile(width, 5, bits).Encode(), IndexedPicture(width, 5, bits));
        }
    }
}

TEST(BmpTest, HeadersOfEverySize) {
    for (const std::uint32_t size : {12, 16, 20, 40, 52, 56, 64, 108, 124}) {
        for (const int bits : {1, 4, 8}) {
            SCOPED_TRACE(testing::Message() << "header of " << size << ", " << bits << " bits");
            BmpFile file = IndexedFile(21, 9, bits);
            file.headerSize = size;
            ExpectPicture(file.Encode(), IndexedPicture(21, 9, bits));
        }
        SCOPED_TRACE(testing::Message() << "header of " << size << ", 24 bits");
        BmpFile file = TrueColorFile(7, 6);
        file.headerSize = size;
        ExpectPicture(file.Encode(), MakePicture(7, 6));
    }
}

TEST(BmpTest, RowsFromTheTop) {
    for (const int bits : {1, 4, 8}) {
        BmpFile file = IndexedFile(13, 6, bits);
        file.height = -6;
        ExpectPicture(file.Encode(), UpsideDown(IndexedPicture(13, 6, bits)));
    }
    BmpFile file = TrueColorFile(13, 6);
    file.height = -6;
    ExpectPicture(file.Encode(), UpsideDown(MakePicture(13, 6)));
}

TEST(BmpTest, TrueColourOfEveryWidth) {
    for (int width = 1; width <= 9; ++width) {
        ExpectPicture(TrueColorFile(width, 3).Encode(), MakePicture(width, 3));
    }
}

TEST(BmpTest, ThirtyTwoBitsWithoutMasksAreBlueGreenRed) {
    const RgbPicture picture = MakePicture(5, 4);
    BmpFile file = MaskedFile(picture, 32, {0xFF0000, 0xFF00, 0xFF});
    file.compression = 0;
    file.masks.clear();
    ExpectPicture(file.Encode(), picture);
}

// Values of each number of bits, spread over 0 to 255 as other programs do it.
RgbPicture Spread(const RgbPicture& picture, const std::vector<int>& bits) {
    RgbPicture result = picture;
    for (std::size_t i = 0; i < result.pixels.size(); ++i) {
        const int kept = std::min(bits[i % 3], 8);
        const int value = result.pixels[i] >> (8 - kept) << (8 - kept);
        int full = value;
        for (int filled = kept; filled < 8 && kept != 4; filled += kept) full |= value >> filled;
        result.pixels[i] = static_cast<std::uint8_t>(full);
    }
    return result;
}

TEST(BmpTest, SixteenBitsWithoutMasksAreFiveOfEach) {
    const RgbPicture picture = MakePicture(31, 11);
    BmpFile file = MaskedFile(picture, 16, {0x7C00, 0x3E0, 0x1F});
    file.compression = 0;
    file.masks.clear();
    ExpectPicture(file.Encode(), Spread(picture, {5, 5, 5}));
}

TEST(BmpTest, MasksOfAnyWidthAtAnyPlace) {
    const RgbPicture picture = MakePicture(31, 11);
    const struct {
        int bitsPerPixel;
        std::vector<std::uint32_t> masks;
        std::vector<int> bits;
    } cases[] = {
        {16, {0xF800, 0x7E0, 0x1F}, {5, 6, 5}},
        {16, {0x1F, 0x7E0, 0xF800}, {5, 6, 5}},
        {16, {0x0F00, 0x00F0, 0x000F}, {4, 4, 4}},
        {16, {0x0038, 0xFFC0, 0x0007}, {3, 10, 3}},
        {16, {0x8000, 0x6000, 0x1000}, {1, 2, 1}},
        {32, {0xFF000000, 0xFF0000, 0xFF00}, {8, 8, 8}},
        {32, {0xFF, 0xFF00, 0xFF0000}, {8, 8, 8}},
        {32, {0xFFE00000, 0x1FFC00, 0x3FF}, {11, 11, 10}},
        {32, {0x0FC00000, 0x3FFFE0, 0x1F}, {6, 17, 5}},
    };
    for (const auto& item : cases) {
        for (const std::uint32_t headerSize : {40, 52, 56, 108, 124}) {
            SCOPED_TRACE(testing::Message() << std::hex << item.masks[0] << ' ' << item.masks[1]
                                            << std::dec << " header of " << headerSize);
            BmpFile file = MaskedFile(picture, item.bitsPerPixel, item.masks);
            file.headerSize = headerSize;
            ExpectPicture(file.Encode(), Spread(picture, item.bits));
        }
    }
}

TEST(BmpTest, AlphaMaskIsPassedOver) {
    const RgbPicture picture = MakePicture(9, 5);
    BmpFile file = MaskedFile(picture, 32, {0xFF0000, 0xFF00, 0xFF, 0xFF000000});
    file.compression = kBmpAlphaBitFields;
    ExpectPicture(file.Encode(), picture);
}

TEST(BmpTest, RunLengthsOfEveryWidth) {
    for (const int bits : {4, 8}) {
        for (const int width : {1, 2, 3, 4, 5, 17, 254, 255, 256, 600}) {
            SCOPED_TRACE(testing::Message() << bits << " bits, width " << width);
            BmpFile file = RleFile(width, 7, bits);
            ExpectPicture(file.Encode(), IndexedPicture(width, 7, bits));
            file.height = -7;
            ExpectPicture(file.Encode(), UpsideDown(IndexedPicture(width, 7, bits)));
        }
    }
}

TEST(BmpTest, RunOfFourBitsAlternatesBetweenTwoColours) {
    BmpFile file = RleFile(5, 1, 4);
    file.pixels = {5, 0x3A, 0, 1};
    ExpectPicture(file.Encode(), Colored({3, 10, 3, 10, 3}, 5, 1, MakePalette(16)));
}

TEST(BmpTest, SkippedPixelsHaveTheFirstPaletteColour) {
    BmpFile file = RleFile(4, 3, 8);
    // One pixel in the bottom row, then two to the right and one up, one pixel, end of the picture.
    file.pixels = {1, 7, 0, 2, 1, 1, 1, 9, 0, 1};
    const Bytes indices = {0, 0, 0, 0, 0, 0, 9, 0, 7, 0, 0, 0};
    ExpectPicture(file.Encode(), Colored(indices, 4, 3, MakePalette(256)));
}

TEST(BmpTest, PaletteMayBeShort) {
    BmpFile file = IndexedFile(16, 16, 8);
    file.palette = MakePalette(100);
    file.colorsUsed = 100;
    // What other programs do with an index beyond the palette: black, mostly.
    ExpectPicture(file.Encode(), Colored(MakeIndices(16, 16, 256), 16, 16, MakePalette(100)));
}

TEST(BmpTest, PaletteMayBeTooLong) {
    BmpFile file = IndexedFile(16, 16, 4);
    file.palette = MakePalette(20);
    file.colorsUsed = 20;
    ExpectPicture(file.Encode(), IndexedPicture(16, 16, 4));
}

TEST(BmpTest, PaletteOfATrueColourPictureIsPassedOver) {
    BmpFile file = TrueColorFile(6, 6);
    file.palette = MakePalette(9);
    file.colorsUsed = 9;
    ExpectPicture(file.Encode(), MakePicture(6, 6));
}

TEST(BmpTest, PixelsLieWhereTheHeaderSays) {
    BmpFile file = IndexedFile(16, 16, 8);
    file.gap.assign(100, 0xEE);
    ExpectPicture(file.Encode(), IndexedPicture(16, 16, 8));
}

TEST(BmpTest, PixelsFollowThePaletteWhereTheHeaderIsWrong) {
    for (const std::uint32_t offset : {0u, 53u, 54u, 0x7FFFFFFFu, 0xFFFFFFFFu}) {
        SCOPED_TRACE(offset);
        BmpFile file = IndexedFile(16, 16, 8);
        file.colorsUsed = 256;
        file.pixelOffset = offset;
        ExpectPicture(file.Encode(), IndexedPicture(16, 16, 8));
    }
}

TEST(BmpTest, PaletteEndsWhereThePixelsBegin) {
    BmpFile file = IndexedFile(16, 16, 8);
    file.palette = MakePalette(10);  // though the header stands for 256
    ExpectPicture(file.Encode(), Colored(MakeIndices(16, 16, 256), 16, 16, MakePalette(10)));
}

TEST(BmpTest, RowsMissingAtTheEndAreBlack) {
    BmpFile file = TrueColorFile(16, 10);
    file.pixels.resize(16 * 3 * 6);
    RgbPicture expected = MakePicture(16, 10);
    std::fill_n(expected.pixels.begin(), 16 * 3 * 4, 0);
    ExpectPicture(file.Encode(), expected);
}

TEST(BmpTest, PaddingOfTheLastRowMayBeMissing) {
    BmpFile file = TrueColorFile(5, 4);
    file.pixels.pop_back();
    ExpectPicture(file.Encode(), MakePicture(5, 4));
}

TEST(BmpTest, FewerThanATenthOfThePixelsIsNoPicture) {
    BmpFile file = TrueColorFile(20, 20);
    file.pixels.resize(60 * 2 - 1);
    EXPECT_FALSE(ReadBmp(file.Encode()).has_value());
}

TEST(BmpTest, FileCutAnywhereDoesNoHarm) {
    for (const Bytes& whole :
         {IndexedFile(9, 9, 4).Encode(), RleFile(9, 9, 8).Encode(),
          MaskedFile(MakePicture(9, 9), 32, {0xFF, 0xFF00, 0xFF0000}).Encode()}) {
        for (std::size_t size = 0; size < whole.size(); ++size) {
            const std::optional<RgbPicture> read = ReadBmp(FileBytes(whole).first(size));
            if (read) {
                EXPECT_EQ(read->pixels.size(), 9u * 9 * 3);
            }
        }
    }
}

TEST(BmpTest, WhatIsNoBitmapIsRefused) {
    const Bytes good = TrueColorFile(8, 8).Encode();
    Bytes bad = good;
    bad[1] = 'm';
    EXPECT_FALSE(ReadBmp(bad).has_value());
    EXPECT_FALSE(ReadBmp(FileBytes()).has_value());

    for (const std::uint32_t headerSize : {0u, 11u, 13u, 15u, 125u, 1000u, 0xFFFFFFFFu}) {
        bad = good;
        for (int i = 0; i < 4; ++i) bad[14 + i] = static_cast<std::uint8_t>(headerSize >> (8 * i));
        EXPECT_FALSE(ReadBmp(bad).has_value()) << headerSize;
    }
}

TEST(BmpTest, ImpossibleSizesAreRefused) {
    const std::int32_t most = 0x7FFFFFFF;
    const std::pair<std::int32_t, std::int32_t> sizes[] = {
        {0, 8},     {8, 0},     {-8, 8},     {most, 400},    {8, -most - 1},
        {32768, 1}, {1, 32768}, {1, -32768}, {32767, 32767}, {3000000, 2000000}};
    for (const auto& [width, height] : sizes) {
        BmpFile file = TrueColorFile(8, 8);
        file.width = width;
        file.height = height;
        EXPECT_FALSE(ReadBmp(file.Encode()).has_value()) << width << " x " << height;
    }
}

TEST(BmpTest, KindsOfPixelsThatDoNotExistAreRefused) {
    const std::pair<int, std::uint32_t> kinds[] = {{0, 0},
                                                   {3, 0},
                                                   {5, 0},
                                                   {65535, 0},
                                                   {4, kBmpRle8},
                                                   {8, kBmpRle4},
                                                   {24, kBmpRle8},
                                                   {8, kBmpBitFields},
                                                   {24, kBmpBitFields},
                                                   {24, 4},
                                                   {24, 5},
                                                   {8, 0x7FFFFFFF}};
    for (const auto& [bits, compression] : kinds) {
        BmpFile file = TrueColorFile(8, 8);
        file.bitsPerPixel = bits;
        file.compression = compression;
        EXPECT_FALSE(ReadBmp(file.Encode()).has_value()) << bits << ", " << compression;
    }
    // In an OS/2 header the number of the bit fields stands for a facsimile code.
    BmpFile file = MaskedFile(MakePicture(8, 8), 32, {0xFF, 0xFF00, 0xFF0000});
    file.headerSize = 64;
    EXPECT_FALSE(ReadBmp(file.Encode()).has_value());
}

// Run-length-encoded data that tries to get out of the picture: other programs refuse such a file
// or leave out what lies outside; here it is left out.
TEST(BmpTest, RunsThatLeaveThePictureAreCut) {
    const std::vector<RgbColor> palette = MakePalette(256);
    const struct {
        const char* what;
        Bytes pixels;
        Bytes indices;  // of a picture of 4 x 2, from the top
    } cases[] = {
        {"a run longer than the row", {200, 5, 0, 1}, {0, 0, 0, 0, 5, 5, 5, 5}},
        {"single pixels beyond the row",
         {0, 6, 1, 2, 3, 4, 5, 6, 0, 0, 1, 9, 0, 1},
         {9, 0, 0, 0, 1, 2, 3, 4}},
        {"a jump out on the right, then a run",
         {0, 2, 200, 0, 3, 5, 0, 1},
         {0, 0, 0, 0, 0, 0, 0, 0}},
        {"a jump out at the top, then a run", {0, 2, 0, 200, 3, 5, 0, 1}, {0, 0, 0, 0, 0, 0, 0, 0}},
        {"rows after the last one",
         {4, 1, 0, 0, 4, 2, 0, 0, 4, 3, 0, 0, 4, 4, 0, 1},
         {2, 2, 2, 2, 1, 1, 1, 1}},
        {"no end mark", {4, 1, 0, 0, 4, 2}, {2, 2, 2, 2, 1, 1, 1, 1}},
        {"an end in the middle of single pixels", {0, 4, 7, 8}, {0, 0, 0, 0, 7, 8, 0, 0}},
        {"an end in the middle of a jump", {1, 3, 0, 2, 1}, {0, 0, 0, 0, 3, 0, 0, 0}},
        {"an end in the middle of a run", {1, 3, 2}, {0, 0, 0, 0, 3, 0, 0, 0}},
        {"nothing at all", {}, {0, 0, 0, 0, 0, 0, 0, 0}},
    };
    for (const auto& item : cases) {
        SCOPED_TRACE(item.what);
        BmpFile file = RleFile(4, 2, 8);
        file.pixels = item.pixels;
        file.pixelOffset = 14 + 40 + 1024;
        ExpectPicture(file.Encode(), Colored(item.indices, 4, 2, palette));
    }
}

// Other programs ask for a gigabyte here, or refuse the file; a blank picture of a sensible size
// may be two bytes long, though.
TEST(BmpTest, FewBytesThatClaimAHugePictureAreRefused) {
    BmpFile file = RleFile(4, 2, 8);
    file.pixels = {0, 1};
    file.width = 8000;
    file.height = 8000;
    EXPECT_FALSE(ReadBmp(file.Encode()).has_value());
    file.width = 800;
    file.height = 600;
    EXPECT_TRUE(ReadBmp(file.Encode()).has_value());
}

}  // namespace
}  // namespace vistrel::test
