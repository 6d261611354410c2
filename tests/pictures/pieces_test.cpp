// A file that is read in pieces gives what it gives from memory, and is never there as a whole.
#include "tests/support/picture_files/pieces.h"

#include <gtest/gtest.h>

#include "pictures/file.h"
#include "tests/pictures/corpus.h"
#include "tests/support/picture_files/bmp_file.h"
#include "tests/support/picture_files/gif_file.h"
#include "tests/support/picture_files/jpg_maker.h"

namespace vistrel::test {

using namespace pictures;

namespace {

void ExpectTheSameInPieces(const Bytes& file) {
    Pieces pieces(file);
    const auto whole = ReadByContent(file);
    const auto wholeInPieces = ReadByContent(pieces.File());
    ASSERT_EQ(wholeInPieces.has_value(), whole.has_value());
    if (whole) {
        EXPECT_EQ(wholeInPieces->pixels, whole->pixels);
    }
    const auto scaled = ReadScaledByContent(file, 32, 40);
    const auto scaledInPieces = ReadScaledByContent(pieces.File(), 32, 40);
    ASSERT_EQ(scaledInPieces.has_value(), scaled.has_value());
    if (scaled) {
        EXPECT_EQ(scaledInPieces->picture.pixels, scaled->picture.pixels);
    }
}

/// The same, of a file that is much larger than a piece.
void ExpectTheSameInSmallPieces(const Bytes& file) {
    ASSERT_GT(file.size(), 50'000u);
    ExpectTheSameInPieces(file);
    Pieces pieces(file);
    ReadByContent(pieces.File());
    EXPECT_LE(pieces.largest(), 16'384u);
}

TEST(PiecesTest, TheWindowShowsWhereverItIsMoved) {
    const Bytes file = MakeIndices(300, 100, 256);
    Pieces pieces(file);
    FileWindow window(pieces.File());
    for (const std::size_t at : {0, 8191, 8192, 20'000, 3, 29'999, 15'000, 14'999}) {
        EXPECT_EQ(window[at], file[at]);
        const FileBytes seen = window.From(at, 300);
        ASSERT_GE(seen.size(), std::min<std::size_t>(300, file.size() - at));
        EXPECT_TRUE(std::equal(seen.begin(), seen.end(), file.begin() + at));
    }
    EXPECT_TRUE(window.From(30'000).empty());
    EXPECT_TRUE(window.From(99'000).empty());
}

TEST(PiecesTest, BehindTheEndStandZeros) {
    const Bytes file = {1, 2, 3};
    Pieces pieces(file);
    for (const PictureFile& each : {PictureFile(file), pieces.File()}) {
        Bytes bytes(4, 9);
        each.Copy(1, bytes);
        EXPECT_EQ(bytes, (Bytes{2, 3, 0, 0}));
        each.Copy(1000, bytes);
        EXPECT_EQ(bytes, Bytes(4));
    }
}

TEST(PiecesTest, BitmapsOfEveryDepth) {
    for (const int bits : {1, 2, 4, 8, 16, 24, 32}) {
        for (const int height : {300, -300}) {
            SCOPED_TRACE(testing::Message() << bits << ", " << height);
            BmpFile file;
            file.width = 3000 / bits * 8;
            file.height = height;
            file.bitsPerPixel = bits;
            file.pixels = MakeIndices(3000, 300, 256);
            ExpectTheSameInSmallPieces(file.Encode());
        }
    }
}

TEST(PiecesTest, RunLengthEncodedBitmaps) {
    for (const std::uint32_t compression : {kBmpRle8, kBmpRle4}) {
        SCOPED_TRACE(compression);
        BmpFile file;
        file.width = 1500;
        file.height = 300;
        file.bitsPerPixel = compression == kBmpRle8 ? 8 : 4;
        file.compression = compression;
        Numbers numbers(compression);
        while (file.pixels.size() < 80'000) {
            const std::uint32_t count = numbers.Next(256);
            file.pixels.push_back(0);
            file.pixels.push_back(static_cast<std::uint8_t>(count));
            const std::size_t bytes = compression == kBmpRle8 ? count : (count + 1) / 2;
            const Bytes stretch = MakeIndices(static_cast<int>((bytes + 1) / 2 * 2), 1, 256);
            if (count > 2) file.pixels.insert(file.pixels.end(), stretch.begin(), stretch.end());
            if (count == 1) file.pixels.back() = 0;
            if (count == 2) file.pixels.insert(file.pixels.end(), {3, 0});
        }
        ExpectTheSameInSmallPieces(file.Encode());
    }
}

TEST(PiecesTest, GifPictures) {
    for (const bool interlaced : {false, true}) {
        SCOPED_TRACE(interlaced);
        GifFile file = MakeGif(700, 600, 256);
        file.images[0].interlaced = interlaced;
        Numbers numbers(7);
        for (std::uint8_t& index : file.images[0].indices) {
            index = static_cast<std::uint8_t>(numbers.Next(200));
        }
        ExpectTheSameInSmallPieces(file.Encode());
    }
}

TEST(PiecesTest, JpgPictures) {
    for (const bool progressive : {false, true}) {
        for (const unsigned restartMcus : {0u, 7u}) {
            SCOPED_TRACE(testing::Message() << progressive << restartMcus);
            JpgOptions options;
            options.quality = 97;
            options.progressive = progressive;
            options.sampling = {{2, 2}};
            options.restartMcus = restartMcus;
            ExpectTheSameInSmallPieces(MakeJpg(MakePicture(700, 400), options));
        }
    }
}

// Whatever lies where one piece ends and the next begins: markers, headers, escaped bytes.
TEST(PiecesTest, JpgPicturesWhoseBytesLieElsewhere) {
    JpgOptions options;
    options.progressive = true;
    options.restartMcus = 3;
    const Bytes file = MakeJpg(MakePicture(40, 30), options);
    ASSERT_LT(file.size(), 8192u);
    for (std::size_t length = 8192 - file.size(); length < 8192; length += 7) {
        Bytes comment = {0xFF, 0xFE, static_cast<std::uint8_t>(length >> 8),
                         static_cast<std::uint8_t>(length)};
        comment.insert(comment.end(), length - 2, 'c');
        SCOPED_TRACE(length);
        ExpectTheSameInPieces(WithInserted(file, 2, comment));
    }
}

TEST(PiecesTest, WhateverAFileIsCutTo) {
    JpgOptions options;
    options.quality = 90;
    for (const bool progressive : {false, true}) {
        options.progressive = progressive;
        const Bytes jpg = MakeJpg(MakePicture(300, 200), options);
        for (std::size_t size = 0; size < jpg.size(); size += 397)
            ExpectTheSameInPieces({jpg.begin(), jpg.begin() + static_cast<std::ptrdiff_t>(size)});
    }
    const Bytes gif = MakeGif(300, 200, 256).Encode();
    for (std::size_t size = 0; size < gif.size(); size += 97)
        ExpectTheSameInPieces({gif.begin(), gif.begin() + static_cast<std::ptrdiff_t>(size)});
}

#ifdef PICTURE_CORPUS
TEST(PiecesTest, EveryPictureOfTheCorpus) {
    for (const char* ending : {".bmp", ".gif", ".jpg"}) {
        for (const CorpusFile& file : ReadCorpus(PICTURE_CORPUS, ending)) {
            if (file.path.starts_with("photos")) continue;  // large, and of no other kinds
            SCOPED_TRACE(file.path);
            const auto bytes = ReadWholeFile(std::string(PICTURE_CORPUS) + "/" + file.path);
            ASSERT_TRUE(bytes.has_value());
            ExpectTheSameInPieces(*bytes);
        }
    }
}
#endif

}  // namespace
}  // namespace vistrel::test
