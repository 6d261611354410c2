// A mended screen has no faults, and keeps what was right.
#include "pictures/screen/mend.h"

#include <gtest/gtest.h>

#include <cstdio>

#include "pictures/bmp/reader.h"
#include "pictures/convert.h"
#include "pictures/screen/indexed_screen.h"
#include "tests/pictures/screen/broken_screens.h"

namespace vistrel::test {
namespace {

using namespace screen;

constexpr std::size_t kScreenFileSize = 129078;

TEST(MendedScreen, IsTheSameFileWhenNothingIsWrong) {
    EXPECT_EQ(MendScreen(MovingScreen()), MovingScreen());
    EXPECT_EQ(MendScreen(SoundScreen().Encode()), SoundScreen().Encode());
}

TEST(MendedScreen, HasNoFaultAnyMore) {
    for (const BrokenScreen& broken : BrokenScreens()) {
        const auto mended = MendScreen(broken.file);
        ASSERT_TRUE(mended) << InWords(broken.fault);
        EXPECT_EQ(FaultsOfScreen(*mended), std::vector<ScreenFault>{}) << InWords(broken.fault);
        EXPECT_EQ(mended->size(), kScreenFileSize) << InWords(broken.fault);
    }
}

TEST(MendedScreen, StaysAsItIsWhenMendedTwice) {
    for (const BrokenScreen& broken : BrokenScreens()) {
        const auto mended = MendScreen(broken.file);
        ASSERT_TRUE(mended);
        EXPECT_EQ(MendScreen(*mended), mended) << InWords(broken.fault);
    }
}

TEST(MendedScreen, KeepsColourNumbersAndWhatMoves) {
    for (const BrokenScreen& broken : BrokenScreens()) {
        const auto mended = MendScreen(broken.file);
        ASSERT_TRUE(mended);
        const auto read = ReadIndexedScreen(*mended);
        ASSERT_TRUE(read);
        EXPECT_EQ(read->firstAnimated, broken.moves ? 236 : 0) << InWords(broken.fault);
        if (!broken.keepsIndices) continue;
        EXPECT_EQ(read->indices, ScreenIndices()) << InWords(broken.fault);
        const auto palette = MakePalette(256);
        for (int i = 0; i < 250; ++i) EXPECT_EQ(read->palette[i], palette[i]) << i;
    }
}

TEST(MendedScreen, ChangesNoByteButTheCountWhenOnlyThatIsWrong) {
    Bytes file = SoundScreen().Encode();
    file.insert(file.end(), 5, 9);  // more bytes than the system wants
    const Bytes sound = file;
    PutFirstMoving(file, 300);
    EXPECT_EQ(MendScreen(file), sound);
}

TEST(MendedScreen, HasBlackForColoursThatTheFileLacks) {
    const auto mended = MendScreen(With([](BmpFile& f) {
        f.palette.resize(250);
        f.colorsUsed = 250;
    }));
    ASSERT_TRUE(mended);
    const auto read = ReadIndexedScreen(*mended);
    for (int i = 250; i < 256; ++i) EXPECT_EQ(read->palette[i], (bmp::RgbColor{})) << i;
}

TEST(MendedScreen, HasTheFirstColourWhereThePixelsEnd) {
    Bytes cut = MovingScreen();
    cut.resize(cut.size() - 320 * 40);
    const auto mended = MendScreen(cut);
    ASSERT_TRUE(mended);
    const auto read = ReadIndexedScreen(*mended);
    // The file ends with the rows at the top.
    EXPECT_TRUE(std::all_of(read->indices.begin(), read->indices.begin() + 320 * 40,
                            [](int index) { return index == 0; }));
    const Bytes all = ScreenIndices();
    EXPECT_TRUE(
        std::equal(read->indices.begin() + 320 * 40, read->indices.end(), all.begin() + 320 * 40));
}

TEST(MendedScreen, OfOtherDepthAndSizeIsWhatAConversionMakes) {
    BmpFile photo;
    photo.width = 500;
    photo.height = 300;
    photo.pixels = PackRgb24(MakePicture(500, 300));
    const std::string source = testing::TempDir() + "mend_source.bmp";
    const std::string target = testing::TempDir() + "mend_target.sys";
    const Bytes bytes = photo.Encode();
    FILE* file = std::fopen(source.c_str(), "wb");
    ASSERT_TRUE(file);
    std::fwrite(bytes.data(), 1, bytes.size(), file);
    std::fclose(file);
    pictures::ConvertToLogo(source, target);
    file = std::fopen(target.c_str(), "rb");
    ASSERT_TRUE(file);
    Bytes converted(kScreenFileSize + 1);
    converted.resize(std::fread(converted.data(), 1, converted.size(), file));
    std::fclose(file);
    EXPECT_EQ(MendScreen(bytes), converted);
}

/// A screen that has as many faults as `number` says; the rest that it leaves is told.
Bytes Mixed(int number, int& rest) {
    rest = number;
    const auto pick = [&](std::initializer_list<int> values) {
        const int value = values.begin()[std::size_t(rest) % values.size()];
        rest /= static_cast<int>(values.size());
        return value;
    };
    BmpFile file;
    file.headerSize = std::uint32_t(pick({40, 12, 108, 124}));
    file.bitsPerPixel = pick({8, 4, 1});
    file.width = pick({320, 70});
    file.height = file.width == 320 ? 400 : 50;
    const int colors = std::min(pick({256, 200, 2}), 1 << file.bitsPerPixel);
    file.palette = MakePalette(colors);
    file.colorsUsed = std::uint32_t(colors);
    const Bytes indices = MakeIndices(file.width, file.height, colors);
    const int encoding = file.bitsPerPixel == 1 ? 0 : pick({0, 1});
    file.compression = encoding == 0 ? 0 : file.bitsPerPixel == 8 ? kBmpRle8 : kBmpRle4;
    file.pixels = encoding == 0 ? PackIndices(indices, file.width, file.height, file.bitsPerPixel)
                                : EncodeRle(indices, file.width, file.height, file.bitsPerPixel);
    if (pick({0, 1}) == 1 && file.headerSize > 12 && encoding == 0) file.height = -file.height;
    const int first = pick({0, 1, 100, 256});
    Bytes bytes = file.Encode();
    if (file.headerSize > 12) PutFirstMoving(bytes, std::uint32_t(first));
    if (pick({0, 1}) == 1) bytes.resize(bytes.size() * 9 / 10);
    return bytes;
}

TEST(MendedScreen, HasNoFaultWhateverItHadAtOnce) {
    int mended = 0;
    for (int number = 0, rest = 0; rest == 0; number += 7) {
        const Bytes file = Mixed(number, rest);
        if (FaultsOfScreen(file) == std::vector<ScreenFault>{ScreenFault::NotABitmap}) continue;
        const auto once = MendScreen(file);
        ASSERT_TRUE(once) << number;
        EXPECT_EQ(FaultsOfScreen(*once), std::vector<ScreenFault>{}) << number;
        EXPECT_EQ(MendScreen(*once), once) << number;
        ++mended;
    }
    EXPECT_GT(mended, 100);
}

TEST(MendedScreen, IsNoneWhenThereIsNoBitmap) {
    EXPECT_EQ(MendScreen(Bytes{}), std::nullopt);
    EXPECT_EQ(MendScreen(Bytes(3000, 'M')), std::nullopt);
}

}  // namespace
}  // namespace vistrel::test
