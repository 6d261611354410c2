// GIF files come out as they were put in, and as giflib reads them.
#include <gif_lib.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "tests/pictures/gif_expected.h"

namespace vistrel::test {

using namespace gif;
using namespace pictures;

namespace {

constexpr std::array<std::uint8_t, 3> kWhite = {255, 255, 255};

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

}  // namespace
}  // namespace vistrel::test
