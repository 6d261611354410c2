// Whole JPEG files come out as libjpeg decodes them, byte for byte, whatever their kind.
#include <algorithm>

#include "pictures/jpg/reader.h"
#include "tests/support/picture_files/jpg_maker.h"

namespace vistrel::test {

using namespace jpg;
using namespace pictures;

namespace {

using Sampling = std::vector<std::pair<int, int>>;

void ExpectAsLibrary(const Bytes& file) {
    const std::optional<RgbPicture> picture = ReadJpg(file);
    const RgbPicture judged = DecodeByLibrary(file);
    ASSERT_TRUE(picture.has_value());
    EXPECT_EQ(picture->width, judged.width);
    EXPECT_EQ(picture->height, judged.height);
    EXPECT_TRUE(picture->pixels == judged.pixels);
}

TEST(JpgWholeTest, EverySamplingAtOddSizes) {
    const Sampling samplings[] = {{{1, 1}},
                                  {{2, 1}},
                                  {{1, 2}},
                                  {{2, 2}},
                                  {{4, 1}},
                                  {{4, 2}},
                                  {{1, 4}},
                                  {{3, 1}},
                                  {{1, 3}},
                                  {{2, 2}, {2, 1}, {1, 2}},
                                  {{2, 2}, {1, 2}, {1, 2}},
                                  {{1, 1}, {2, 2}, {1, 1}},
                                  {{2, 2}, {1, 1}, {2, 2}},
                                  {{4, 1}, {2, 1}, {1, 1}}};
    const std::pair<int, int> sizes[] = {{1, 1},   {2, 3},   {5, 4},    {8, 8},   {16, 9},
                                         {17, 33}, {31, 16}, {100, 75}, {3, 200}, {129, 65}};
    for (const Sampling& sampling : samplings) {
        for (const auto& [width, height] : sizes) {
            for (const bool progressive : {false, true}) {
                SCOPED_TRACE(testing::Message()
                             << width << " x " << height << ", " << sampling[0].first << " x "
                             << sampling[0].second << (progressive ? ", progressive" : ""));
                JpgOptions options;
                options.sampling = sampling;
                options.progressive = progressive;
                ExpectAsLibrary(MakeJpg(MakePicture(width, height), options));
            }
        }
    }
}

TEST(JpgWholeTest, EveryColor) {
    for (const J_COLOR_SPACE color : {JCS_GRAYSCALE, JCS_RGB, JCS_YCbCr, JCS_CMYK, JCS_YCCK}) {
        for (const bool progressive : {false, true}) {
            SCOPED_TRACE(testing::Message() << color << ' ' << progressive);
            JpgOptions options;
            options.color = color;
            options.progressive = progressive;
            ExpectAsLibrary(MakeJpg(MakePicture(61, 47), options));
        }
    }
}

TEST(JpgWholeTest, InksOfFewerSamples) {
    JpgOptions options;
    options.color = JCS_YCCK;
    options.sampling = {{2, 2}, {1, 1}, {1, 1}, {2, 2}};
    ExpectAsLibrary(MakeJpg(MakePicture(61, 47), options));
}

TEST(JpgWholeTest, InksWithoutTheirMakersMark) {
    JpgOptions options;
    options.color = JCS_CMYK;
    Bytes file = MakeJpg(MakePicture(40, 40), options);
    file[MarkerAt(file, 0xEE) + 4] = 'B';  // no longer "Adobe"
    ExpectAsLibrary(file);
}

TEST(JpgWholeTest, ColorsNamedByTheirComponents) {
    JpgOptions options;
    options.color = JCS_RGB;
    Bytes file = MakeJpg(MakePicture(40, 40), options);
    file[MarkerAt(file, 0xEE) + 4] = 'B';
    ExpectAsLibrary(file);
}

TEST(JpgWholeTest, EveryQuality) {
    for (const int quality : {1, 2, 10, 25, 50, 75, 90, 98, 100}) {
        for (const bool progressive : {false, true}) {
            SCOPED_TRACE(quality);
            JpgOptions options;
            options.quality = quality;  // the lowest ones have steps of 16 bits
            options.sampling = {{2, 2}};
            options.ownTables = quality % 2 == 0;
            options.progressive = progressive;
            ExpectAsLibrary(MakeJpg(MakePicture(90, 70), options));
        }
    }
}

TEST(JpgWholeTest, Restarts) {
    for (const unsigned units : {1u, 2u, 7u, 100u}) {
        for (const bool progressive : {false, true}) {
            SCOPED_TRACE(units);
            JpgOptions options;
            options.restartMcus = units;
            options.sampling = {{2, 1}};
            options.progressive = progressive;
            ExpectAsLibrary(MakeJpg(MakePicture(133, 70), options));
        }
    }
}

TEST(JpgWholeTest, OneScanForEachComponent) {
    for (const Sampling& sampling : {Sampling{{1, 1}}, Sampling{{2, 2}}, Sampling{{1, 2}}}) {
        JpgOptions options;
        options.sampling = sampling;
        options.separateScans = true;
        options.restartMcus = 5;
        ExpectAsLibrary(MakeJpg(MakePicture(77, 59), options));
    }
}

TEST(JpgWholeTest, FileLongerThanAnyBuffer) {
    JpgOptions options;
    options.quality = 100;
    ExpectAsLibrary(MakeJpg(MakePicture(500, 400), options));
}

TEST(JpgWholeTest, UsualTablesWhereTheFileHasNone) {
    JpgOptions options;
    options.sampling = {{2, 2}};
    const Bytes file = MakeJpg(MakePicture(60, 50), options);
    Bytes bare = file;
    for (int i = 0; i < 4; ++i) {
        const std::size_t at = MarkerAt(bare, 0xC4);
        const std::size_t length = static_cast<std::size_t>(bare[at + 2] << 8 | bare[at + 3]);
        bare.erase(bare.begin() + static_cast<std::ptrdiff_t>(at),
                   bare.begin() + static_cast<std::ptrdiff_t>(at + 2 + length));
    }
    const std::optional<RgbPicture> picture = ReadJpg(bare);
    ASSERT_TRUE(picture.has_value());
    EXPECT_TRUE(picture->pixels == DecodeByLibrary(file).pixels);
}

TEST(JpgWholeTest, HeightGivenBehindTheFirstScan) {
    Bytes file = MakeJpg(MakePicture(60, 50), {});
    const RgbPicture judged = DecodeByLibrary(file);
    const std::size_t frame = MarkerAt(file, 0xC0);
    file[frame + 5] = file[frame + 6] = 0;
    EXPECT_FALSE(ReadJpg(file).has_value());
    file = WithInserted(file, file.size() - 2, {0xFF, 0xDC, 0, 4, 0, 50});
    const std::optional<RgbPicture> picture = ReadJpg(file);
    ASSERT_TRUE(picture.has_value());
    EXPECT_TRUE(picture->pixels == judged.pixels);
}

TEST(JpgWholeTest, FillBytesGarbageAndNoEnd) {
    const Bytes file = MakeJpg(MakePicture(60, 50), {});
    const RgbPicture judged = DecodeByLibrary(file);
    const std::size_t scan = MarkerAt(file, 0xDA);
    const Bytes changed[] = {
        WithInserted(file, scan, {0xFF, 0xFF, 0xFF}),
        WithInserted(file, scan, {1, 2, 3, 0xFF, 0, 77}),
        WithInserted(file, file.size() - 2, {0xFF, 0xFF}),
        WithInserted(file, file.size(), {0xFF, 0xD8, 0xFF, 0xC0}),
        Bytes(file.begin(), file.end() - 2),
    };
    for (const Bytes& each : changed) {
        const std::optional<RgbPicture> picture = ReadJpg(each);
        ASSERT_TRUE(picture.has_value());
        EXPECT_TRUE(picture->pixels == judged.pixels);
    }
}

TEST(JpgWholeTest, LostRestartIntervalLeavesTheOthers) {
    JpgOptions options;
    options.restartMcus = 10;  // a row of blocks
    const RgbPicture source = MakePicture(80, 80);
    const Bytes file = MakeJpg(source, options);
    const RgbPicture judged = DecodeByLibrary(file);
    // Everything from the marker of the third row to that of the fourth is cut out.
    std::size_t third = MarkerAt(file, 0xDA), fourth = third;
    while (file[third] != 0xFF || file[third + 1] != 0xD1) ++third;
    while (file[fourth] != 0xFF || file[fourth + 1] != 0xD2) ++fourth;
    Bytes holed = file;
    holed.erase(holed.begin() + static_cast<std::ptrdiff_t>(third),
                holed.begin() + static_cast<std::ptrdiff_t>(fourth));
    const std::optional<RgbPicture> picture = ReadJpg(holed);
    ASSERT_TRUE(picture.has_value());
    for (int y = 0; y < 80; ++y) {
        const auto from = static_cast<std::ptrdiff_t>(y) * 80 * 3;
        const bool isSame =
            std::equal(judged.pixels.begin() + from, judged.pixels.begin() + from + 80 * 3,
                       picture->pixels.begin() + from);
        EXPECT_EQ(isSame, y < 16 || y >= 24) << y;
    }
}

TEST(JpgWholeTest, UpsideDownAndOnItsSide) {
    JpgOptions options;
    options.sampling = {{2, 2}};
    const Bytes file = MakeJpg(MakePicture(37, 21), options);
    const RgbPicture stored = DecodeByLibrary(file);
    // Where EXIF 2.3 says that the stored picture's first row and first column are.
    enum Side { Top, Bottom, Left, Right };
    const std::pair<Side, Side> sides[] = {{Top, Left},     {Top, Right},  {Bottom, Right},
                                           {Bottom, Left},  {Left, Top},   {Right, Top},
                                           {Right, Bottom}, {Left, Bottom}};
    for (int orientation = 1; orientation <= 8; ++orientation) {
        SCOPED_TRACE(orientation);
        const auto picture = ReadJpg(WithOrientation(file, orientation, orientation % 2 == 0));
        ASSERT_TRUE(picture.has_value());
        const auto [row, column] = sides[orientation - 1];
        const bool isTurned = row == Left || row == Right;
        ASSERT_EQ(picture->width, isTurned ? 21 : 37);
        ASSERT_EQ(picture->height, isTurned ? 37 : 21);
        const auto along = [](Side side, int at, int last) {
            return side == Top || side == Left ? at : last - at;
        };
        int wrong = 0;
        for (int y = 0; y < 21; ++y) {
            for (int x = 0; x < 37; ++x) {
                const int down = isTurned ? along(column, x, 36) : along(row, y, 20);
                const int across = isTurned ? along(row, y, 20) : along(column, x, 36);
                for (int i = 0; i < 3; ++i) {
                    wrong += stored.pixels[(y * 37 + x) * 3 + i] !=
                             picture->pixels[(down * picture->width + across) * 3 + i];
                }
            }
        }
        EXPECT_EQ(wrong, 0);
    }
}

TEST(JpgWholeTest, TellsWhetherAPictureIsToBeTurned) {
    const Bytes file = MakeJpg(MakePicture(40, 30), {});
    EXPECT_FALSE(IsJpgToBeTurned(file));
    EXPECT_FALSE(IsJpgToBeTurned(FileBytes()));
    for (int orientation = 0; orientation <= 9; ++orientation) {
        EXPECT_EQ(IsJpgToBeTurned(WithOrientation(file, orientation, true)),
                  orientation >= 2 && orientation <= 8)
            << orientation;
    }
}

TEST(JpgWholeTest, OrientationsThatAreNoneLeaveThePicture) {
    const Bytes file = MakeJpg(MakePicture(37, 21), {});
    for (const int orientation : {0, 9, 65535}) {
        const auto picture = ReadJpg(WithOrientation(file, orientation, true));
        ASSERT_TRUE(picture.has_value());
        EXPECT_EQ(picture->width, 37);
    }
}

}  // namespace
}  // namespace vistrel::test
