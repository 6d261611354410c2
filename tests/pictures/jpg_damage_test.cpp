// Damaged, cut and unreadable JPEG files: what is there is shown, and nothing does any harm.
#include <algorithm>

#include "pictures/jpg/reader.h"
#include "tests/support/picture_files/jpg_maker.h"

namespace vistrel::test {

using namespace jpg;
using namespace pictures;

namespace {

void ExpectHarmless(const Bytes& file) {
    const std::optional<RgbPicture> picture = ReadJpg(file);
    const std::optional<ScaledPicture> scaled = ReadJpgScaled(file, 20, 30);
    EXPECT_EQ(picture.has_value(), scaled.has_value());
    if (!picture || !scaled) return;
    EXPECT_EQ(picture->pixels.size(), std::size_t{3} * picture->width * picture->height);
    EXPECT_EQ(scaled->fileWidth, picture->width);
    EXPECT_EQ(scaled->fileHeight, picture->height);
    EXPECT_EQ(scaled->picture.pixels.size(), std::size_t{3} * 20 * 30);
}

Bytes CutAt(const Bytes& file, std::size_t size) {
    return Bytes(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size));
}

TEST(JpgDamageTest, CutFilesShowTheirFirstRows) {
    JpgOptions options;
    options.quality = 95;
    const Bytes file = MakeJpg(MakePicture(200, 400), options);
    const RgbPicture whole = DecodeByLibrary(file);
    const std::size_t data = MarkerAt(file, 0xDA);
    for (std::size_t tenth = 0; tenth < 10; ++tenth) {
        SCOPED_TRACE(tenth);
        // The noise is the same everywhere, so that the data are as long as their part of the rows.
        const Bytes cut = CutAt(file, data + (file.size() - data) * tenth / 10);
        ExpectHarmless(cut);
        const std::optional<RgbPicture> picture = ReadJpg(cut);
        if (tenth == 0) {
            EXPECT_FALSE(picture.has_value());
        }
        if (tenth < 2) continue;
        ASSERT_TRUE(picture.has_value());
        const std::size_t sameRows = (400 * tenth / 10 - 16) * 200 * 3;
        EXPECT_TRUE(std::equal(whole.pixels.begin(),
                               whole.pixels.begin() + static_cast<std::ptrdiff_t>(sameRows),
                               picture->pixels.begin()));
        EXPECT_TRUE(std::all_of(picture->pixels.end() - 200 * 3, picture->pixels.end(),
                                [](std::uint8_t value) { return value == 128; }));
    }
}

TEST(JpgDamageTest, LessThanATenthIsRefused) {
    JpgOptions options;
    options.quality = 95;
    const Bytes file = MakeJpg(MakePicture(200, 400), options);
    const std::size_t data = MarkerAt(file, 0xDA);
    EXPECT_FALSE(ReadJpg(CutAt(file, data + (file.size() - data) / 15)).has_value());
    EXPECT_TRUE(ReadJpg(CutAt(file, data + (file.size() - data) / 8)).has_value());
}

TEST(JpgDamageTest, CutProgressiveFilesAreCoarser) {
    JpgOptions options;
    options.progressive = true;
    options.sampling = {{2, 2}};
    const Bytes file = MakeJpg(MakePicture(200, 300), options);
    const RgbPicture whole = DecodeByLibrary(file);
    double nearest = 1e9;
    for (std::size_t tenth = 3; tenth <= 10; ++tenth) {
        SCOPED_TRACE(tenth);
        const Bytes cut = CutAt(file, file.size() * tenth / 10);
        ExpectHarmless(cut);
        const std::optional<RgbPicture> picture = ReadJpg(cut);
        ASSERT_TRUE(picture.has_value());
        double squares = 0;
        for (std::size_t i = 0; i < whole.pixels.size(); ++i) {
            squares +=
                (whole.pixels[i] - picture->pixels[i]) * (whole.pixels[i] - picture->pixels[i]);
        }
        EXPECT_LE(squares, nearest);
        nearest = squares;
    }
    EXPECT_EQ(nearest, 0);
}

TEST(JpgDamageTest, EveryShortLengthOfASmallFile) {
    for (const bool progressive : {false, true}) {
        JpgOptions options;
        options.progressive = progressive;
        options.restartMcus = 3;
        const Bytes file = MakeJpg(MakePicture(40, 30), options);
        for (std::size_t size = 0; size < file.size(); ++size) ExpectHarmless(CutAt(file, size));
    }
}

TEST(JpgDamageTest, FlippedBitsAnywhere) {
    Numbers numbers(7);
    for (int kind = 0; kind < 6; ++kind) {
        JpgOptions options;
        options.progressive = kind % 2 == 1;
        options.color = kind >= 4 ? JCS_YCCK : JCS_YCbCr;
        options.sampling = {{2, kind % 3 + 1}};
        options.restartMcus = kind >= 2 ? 4 : 0;
        const Bytes file = MakeJpg(MakePicture(70, 50), options);
        for (int i = 0; i < 400; ++i) {
            Bytes damaged = file;
            for (std::uint32_t flips = 1 + numbers.Next(4); flips > 0; --flips) {
                damaged[numbers.Next(static_cast<std::uint32_t>(file.size()))] ^=
                    static_cast<std::uint8_t>(1u << numbers.Next(8));
            }
            // A flipped size makes a picture that is only slow to check.
            const std::size_t frame = MarkerAt(file, options.progressive ? 0xC2 : 0xC0);
            std::copy_n(file.begin() + static_cast<std::ptrdiff_t>(frame), 9,
                        damaged.begin() + static_cast<std::ptrdiff_t>(frame));
            ExpectHarmless(damaged);
        }
    }
}

TEST(JpgDamageTest, FlippedBitsInTheHeaders) {
    Numbers numbers(8);
    const Bytes file = MakeJpg(MakePicture(24, 16), {});
    const std::size_t data = MarkerAt(file, 0xDA) + 14;
    for (std::size_t at = 0; at < data * 8; ++at) {
        Bytes damaged = file;
        damaged[at / 8] ^= static_cast<std::uint8_t>(1 << at % 8);
        ExpectHarmless(damaged);
    }
}

TEST(JpgDamageTest, OtherKindsAreRefused) {
    const Bytes file = MakeJpg(MakePicture(40, 30), {});
    const std::size_t frame = MarkerAt(file, 0xC0);
    Bytes lossless = file;
    lossless[frame + 1] = 0xC3;
    Bytes deep = file;
    deep[frame + 4] = 12;
    Bytes twoComponents = file;
    twoComponents[frame + 9] = 2;
    JpgOptions options;
    options.arithmetic = true;
    const Bytes text = {'n', 'o', ' ', 'p', 'i', 'c', 't', 'u', 'r', 'e'};
    for (const Bytes& each : {lossless, deep, twoComponents, MakeJpg(MakePicture(40, 30), options),
                              text, Bytes{}, Bytes{0xFF}, Bytes{0xFF, 0xD8}}) {
        EXPECT_FALSE(ReadJpg(each).has_value());
        EXPECT_FALSE(ReadJpgScaled(each, 20, 30).has_value());
    }
}

TEST(JpgDamageTest, SizesThatAreTooLargeAreRefused) {
    const Bytes file = MakeJpg(MakePicture(40, 30), {});
    const std::size_t frame = MarkerAt(file, 0xC0);
    for (const int side : {0, 32768, 65535}) {
        Bytes wide = file;
        wide[frame + 7] = static_cast<std::uint8_t>(side >> 8);
        wide[frame + 8] = static_cast<std::uint8_t>(side);
        EXPECT_FALSE(ReadJpg(wide).has_value()) << side;
    }
    // Plausible, but this file cannot hold so much.
    Bytes large = file;
    large[frame + 5] = large[frame + 7] = 8000 >> 8;
    large[frame + 6] = large[frame + 8] = 8000 & 255;
    EXPECT_FALSE(ReadJpg(large).has_value());
}

// Its length counts its own two bytes, and cannot be less.
TEST(JpgDamageTest, SegmentsThatSayTheyHaveNoLengthArePassedOver) {
    const Bytes file = MakeJpg(MakePicture(40, 30), {});
    const std::optional<RgbPicture> sound = ReadJpg(file);
    ASSERT_TRUE(sound.has_value());
    const std::size_t frame = MarkerAt(file, 0xC0);
    for (const int marker : {0xE0, 0xE1, 0xE5, 0xEE, 0xEF, 0xFE}) {
        for (const int length : {0, 1}) {
            SCOPED_TRACE(testing::Message() << marker << ", " << length);
            const Bytes segment = {0xFF, static_cast<std::uint8_t>(marker), 0,
                                   static_cast<std::uint8_t>(length)};
            const Bytes with = WithInserted(file, frame, segment);
            EXPECT_TRUE(DecodeByLibrary(with).pixels == DecodeByLibrary(file).pixels);
            const std::optional<RgbPicture> picture = ReadJpg(with);
            ASSERT_TRUE(picture.has_value());
            EXPECT_TRUE(picture->pixels == sound->pixels);
        }
    }
    for (const int marker : {0xC4, 0xDB, 0xDD}) {
        const Bytes segment = {0xFF, static_cast<std::uint8_t>(marker), 0, 0};
        EXPECT_FALSE(ReadJpg(WithInserted(file, frame, segment)).has_value()) << marker;
    }
}

TEST(JpgDamageTest, TablesThatNoScanReadsByMayBeOfNoCode) {
    const Bytes file = MakeJpg(MakePicture(40, 30), {});
    Bytes table = {0xFF, 0xC4, 0, 23, 0x13, 4};  // table 3: four codes of one bit
    table.resize(4 + 17);
    table.insert(table.end(), {0, 1, 2, 3});
    const Bytes with = WithInserted(file, MarkerAt(file, 0xC0), table);
    const std::optional<RgbPicture> picture = ReadJpg(with);
    ASSERT_TRUE(picture.has_value());
    EXPECT_TRUE(picture->pixels == ReadJpg(file)->pixels);
    EXPECT_TRUE(DecodeByLibrary(with).pixels == DecodeByLibrary(file).pixels);
    // One that is needed cannot be.
    table[4] = 0x10;
    EXPECT_FALSE(ReadJpg(WithInserted(file, MarkerAt(file, 0xDA), table)).has_value());
}

TEST(JpgDamageTest, ScansWithoutEndAreCutShort) {
    JpgOptions options;
    options.progressive = true;
    Bytes file = MakeJpg(MakePicture(600, 600), options);
    const RgbPicture judged = DecodeByLibrary(file);
    // A refinement of all coefficients in two bytes for the whole picture: each of its 5,625 blocks
    // is in one run of blocks without anything new. The bits that should correct the others are
    // missing, which changes nothing.
    Bytes table = {0xFF, 0xC4, 0, 20, 0x10, 1};  // one code, of one bit
    table.resize(4 + 17);
    table.push_back(0xC0);
    const Bytes scan = {0xFF, 0xDA, 0, 8, 1, 1, 0, 1, 63, 0x10, 0x7F, 0xF8};
    Bytes bomb = table;
    for (int i = 0; i < 20000; ++i) bomb.insert(bomb.end(), scan.begin(), scan.end());
    file = WithInserted(file, file.size() - 2, bomb);
    const std::optional<RgbPicture> picture = ReadJpg(file);
    ASSERT_TRUE(picture.has_value());
    EXPECT_TRUE(picture->pixels == judged.pixels);
}

}  // namespace
}  // namespace vistrel::test
